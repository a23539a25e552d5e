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
inline const QColor asphalt{24, 27, 33};

void anwenden(QApplication& anwendung);

QColor farbe_von(farbe zahl);
/// The same hue, dark enough to be read on white.
QColor auf_hell(const QColor& farbe);

}  // namespace tarvel::ui::stil
