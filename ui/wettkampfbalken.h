#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRectF>

#include "competition/rangfolge.h"

namespace tarvel::ui {

/// How the bars of a standing are drawn, on a window as on a page.
struct balkenmass {
    int laengster = 0;  ///< laps of the longest one
    QFont schrift;
    QColor schriftfarbe;
};

/// The laps on each lane in its colour, one behind the other, and their total at the end.
void balken_malen(QPainter& maler, const QRectF& feld, const wettkampf_balken& balken, const spuren<farbe>& farben,
                  const balkenmass& mass);

/// Laps of the longest bar.
int laengster_balken(const std::vector<wettkampf_balken>& alle);

}  // namespace tarvel::ui
