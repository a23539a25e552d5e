#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace tarvel::ui {

/// Draws a round lamp that fills the rectangle.
void lampe_malen(QPainter& maler, const QRectF& platz, const QColor& farbe, bool leuchtet);

}  // namespace tarvel::ui
