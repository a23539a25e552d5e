#pragma once

#include <QColor>
#include <QPainter>
#include <QString>
#include <array>
#include <optional>
#include <vector>

#include "race/rennhergang.h"
#include "results/protokollfenster.h"
#include "ui/stil.h"

namespace tarvel::ui {

/// What the strip of a race shows of its happenings, in the order of its legend.
enum class streifenzeichen { gruen, runde, abgelehnt, ziel, strafe, stromlos, tankt, pause, ende };

inline constexpr std::array alle_streifenzeichen{
    streifenzeichen::gruen, streifenzeichen::runde,  streifenzeichen::abgelehnt,
    streifenzeichen::ziel,  streifenzeichen::strafe, streifenzeichen::stromlos,
    streifenzeichen::tankt, streifenzeichen::pause,  streifenzeichen::ende};

/// None for what only the table tells.
std::optional<streifenzeichen> zeichen_von(const geschehen& g);
/// It lasts: a bar, not a mark.
bool ist_balken(streifenzeichen z);
/// The part of a lane's row, or of all rows for a pause, that such a bar takes.
QRectF balkenfeld(streifenzeichen z, const QRectF& zeile);
/// In the colours of the window, or of paper.
QColor farbe_von(streifenzeichen z, const stil::farbsatz& farben);
/// A mark at `x` of the row, in the colour `farbe`; `px` is the height of the letters beside it.
void marke_malen(QPainter& maler, streifenzeichen z, const QColor& farbe, const QRectF& zeile, double x, double px);

/// What is what, for who does not know the strip: only what there is to see.
struct streifenlegende {
    struct eintrag {
        streifenzeichen zeichen;
        QString wort;
    };
    std::vector<eintrag> eintraege;

    static constexpr double hoehe_em = 1.5;
    double hoehe(double px) const { return eintraege.empty() ? 0 : hoehe_em * px; }
    void malen(QPainter& maler, const QRectF& feld, double px, const stil::farbsatz& farben) const;
};
streifenlegende legende_bilden(const protokollfenster& logik);

}  // namespace tarvel::ui
