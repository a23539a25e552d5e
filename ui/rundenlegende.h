#pragma once

#include <QFont>
#include <QGraphicsItem>
#include <optional>
#include <vector>

#include "ui/rundensymbole.h"

namespace tarvel::ui {

/// One entry: a lane, or a symbol.
struct legendeneintrag {
    QString text;
    QString zusatz;  ///< behind the text, and never cut
    QColor farbe;
    std::optional<symbolform> symbol;  ///< empty for the line of a lane
};

/// What the lines and symbols of the chart stand for. The chart's own legend has but one row, in which six names of
/// clubs are cut to their first letters; this one takes the rows that it needs.
class Rundenlegende final : public QGraphicsItem {
public:
    explicit Rundenlegende(QGraphicsItem* eltern) : QGraphicsItem(eltern) {}

    void setFarben(const diagrammfarben& farben) { farben_ = farben; }
    void setEintraege(std::vector<legendeneintrag> eintraege);
    /// Lays the entries out; afterwards `hoehe` holds.
    void ordnen(double breite, const QFont& schrift);
    double hoehe() const { return hoehe_; }

    QRectF boundingRect() const override { return {0, 0, breite_, hoehe_}; }
    void paint(QPainter* maler, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    struct platz {
        QRectF feld;
        QString text;
    };

    std::vector<legendeneintrag> eintraege_;
    std::vector<platz> plaetze_;  ///< of the entries, in their order
    QFont schrift_;
    diagrammfarben farben_ = diagrammfarben_von(true);
    double breite_ = 0;
    double hoehe_ = 0;
};

}  // namespace tarvel::ui
