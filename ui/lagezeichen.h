#pragma once

#include <QPainter>

#include "race/spurlage.h"

namespace tarvel::ui {

/// The mark of a state, as large as fits into the middle of the place. `grund` is what lies behind it.
void lagezeichen_malen(QPainter& maler, const QRectF& platz, lagezeichen zeichen, const QColor& farbe,
                       const QColor& grund);
/// Slanting bars of these colours, each so wide.
void schraffieren(QPainter& maler, const QRectF& flaeche, double breite, const QColor& hell, const QColor& dunkel);
/// Squares in turn, two rows high.
void karo_malen(QPainter& maler, const QRectF& flaeche, const QColor& hell, const QColor& dunkel);

}  // namespace tarvel::ui
