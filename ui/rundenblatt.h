#pragma once

#include <QPainter>

#include "ui/ergebnisblatt.h"

namespace tarvel::ui {

/// The lap times of a race on paper: a column for each driver, and as many blocks of them beside each other as the page
/// is wide. None without a lap.
int rundenblatt_seiten(const ergebnisblatt& blatt, const QSizeF& groesse);
/// Draws the page with this number, from 0.
void rundenblatt_zeichnen(QPainter& maler, const ergebnisblatt& blatt, const QSizeF& groesse, int nummer);

}  // namespace tarvel::ui
