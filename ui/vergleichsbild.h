#pragma once

#include <QPainter>
#include <QWidget>
#include <vector>

#include "core/zeit.h"
#include "results/fahrervergleich.h"
#include "ui/blattausgabe.h"
#include "ui/stil.h"

namespace tarvel::ui {

/// What the comparison of drivers shows, and in which words.
struct vergleichsbild_inhalt {
    std::vector<fahrerstreuung> fahrer;
    trennzeichen_tabelle trennzeichen = trennzeichen_standard;
    QString titel;
    QString kopf;
    QString achse;  ///< with its unit
    QString beste;
    QString median;
    QString streuung;
    QString zeiten;
    QString leer;  ///< stands in place of the chart
};

/// A row for each driver: a line from his best to his slowest usual time, a box around the middle half, a stroke at the
/// median, and the figures beside it. Draws the drivers from `von` on, as many as the area holds in rows of this
/// height.
void vergleich_zeichnen(QPainter& maler, const QRectF& flaeche, const vergleichsbild_inhalt& inhalt, std::size_t von,
                        double zeilenhoehe, const stil::farbsatz& farben);

/// The same as pages.
blattseiten vergleichsseiten(const vergleichsbild_inhalt& inhalt);

/// The comparison in a window, as high as its rows.
class Vergleichsbild final : public QWidget {
public:
    explicit Vergleichsbild(QWidget* eltern) : QWidget(eltern) {}

    void setInhalt(vergleichsbild_inhalt inhalt);
    const vergleichsbild_inhalt& inhalt() const { return inhalt_; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    vergleichsbild_inhalt inhalt_;
};

}  // namespace tarvel::ui
