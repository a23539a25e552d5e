#pragma once

#include <QApplication>
#include <QColor>

#include "core/steuerelemente.h"

/// The look of the house in one place.
namespace tarvel::ui::stil {

inline const QColor akzent{196, 30, 42};
inline const QColor flaeche{244, 245, 247};
inline const QColor karte{255, 255, 255};
inline const QColor linie{208, 212, 219};
inline const QColor schrift{28, 32, 40};
inline const QColor schrift_leise{98, 106, 120};
inline const QColor schrift_gesperrt{154, 161, 173};

void anwenden(QApplication& anwendung);

QColor farbe_von(farbe zahl);
farbe zahl_von(const QColor& farbton);

}  // namespace tarvel::ui::stil
