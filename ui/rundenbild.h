#pragma once

#include <QtCharts/QChart>
#include <QtCharts/QValueAxis>

#include "core/steuerelemente.h"
#include "core/zeit.h"
#include "results/ergebnisworte.h"
#include "results/rundenverlauf.h"
#include "ui/rundenlegende.h"
#include "ui/rundensymbole.h"

namespace tarvel::ui {

/// What a chart of lap times shows, and how.
struct rundenbild_inhalt {
    rundenverlauf verlauf;
    spuren<farbe> farben;  ///< of the lanes
    diagramm_worte wort;
    trennzeichen_tabelle trennzeichen = trennzeichen_standard;
};

/// The chart of the lap times: a line per lane, with its best lap, laps with a pause, and laps too long for the scale
/// as symbols. Draws itself on a window as on a page.
class Rundenbild final : public QChart {
public:
    Rundenbild();

    void setInhalt(rundenbild_inhalt inhalt);
    /// Before the content is set; at first it is as on paper.
    void setFarben(const diagrammfarben& farben);
    const rundenbild_inhalt& inhalt() const { return inhalt_; }
    /// Size in pixels of the chart; its font goes by it, up to the given number of pixels.
    void setGroesse(const QSizeF& groesse, double schrift_max = 26);

    /// The lap beside a place of the chart in words, empty far from all.
    QString runde_bei(const QPointF& ort);
    /// The best laps in words, for those who do not see the lines.
    QString beschreibung() const;

private:
    void achsen_bauen();
    void spur_bauen(const spur_verlauf& lauf, std::vector<rundensymbol>& symbole);
    void legende_bauen(const std::vector<rundensymbol>& symbole);
    QString zeit_text(zeit_ms zeit) const;
    /// The place of a lap within the axes.
    QPointF wert(const verlaufsrunde& runde) const;
    QColor spurfarbe(int spur) const;

    rundenbild_inhalt inhalt_;
    diagrammfarben auf_ = diagrammfarben_von(true);
    Rundensymbole* symbole_;  ///< belongs to the chart, as do the others
    Rundenlegende* legende_;
    QValueAxis* x_ = nullptr;  ///< null while there is nothing to show
    QValueAxis* y_ = nullptr;
    QAbstractSeries* bezug_ = nullptr;  ///< a series with these axes
    QFont schrift_;
};

}  // namespace tarvel::ui
