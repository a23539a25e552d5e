#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QColor>
#include <QHBoxLayout>
#include <QLabel>
#include <QMargins>
#include <QPushButton>
#include <QSize>
#include <initializer_list>

#include "core/erscheinung.h"
#include "core/steuerelemente.h"

/// The look of the house in one place.
namespace tarvel::ui::stil {

// Of paper, and of what is drawn as on paper.
inline const QColor akzent{196, 30, 42};
inline const QColor flaeche{244, 245, 247};
inline const QColor karte{255, 255, 255};
inline const QColor linie{208, 212, 219};
inline const QColor schrift{28, 32, 40};
inline const QColor schrift_leise{98, 106, 120};
inline const QColor schrift_gesperrt{154, 161, 173};
inline const QColor nachtschrift{58, 62, 70};  ///< on black: for who looks for it

inline constexpr QMargins fensterrand{16, 12, 16, 12};
inline constexpr int knopfhoehe = 42;  ///< of the commands at the foot of a window

/// The colours of a window's own drawings, which are light or dark with it.
struct farbsatz {
    QColor akzent, flaeche, karte, linie, schrift, schrift_leise, schrift_gesperrt;
    QColor streifen;  ///< every second row of a table
    QColor sieger;    ///< the first row, if it has won something
    QColor sieger_rand;
};
const farbsatz& auf_dem_schirm();
const farbsatz& auf_papier();

void anwenden(QApplication& anwendung);
/// All windows anew in these colours.
void faerben(aussehen wie);

/// These margins, and beyond a large screen's size more at the right, the left and below: what belongs together stays
/// so.
QMargins zusammenhaltend(const QSize& fenster, const QMargins& rand);
/// A caption or a unit that stands back behind what it belongs to. Before the label is shown.
QLabel* leise(QLabel* label);
/// A command that ends or leaves its window: all of these have one size.
QPushButton* fensterknopf(QPushButton* knopf);
/// A list as high as the rest of its window, which is at least this: by itself it would have others squeezed, where a
/// text beside it breaks into lines.
void nimmt_den_rest(QAbstractItemView* liste, int mindestens);
/// The foot of a window: these commands, in this order, at its right end.
QHBoxLayout* knopfzeile(std::initializer_list<QPushButton*> knoepfe);
/// The small patch in the colour of a lane.
void fleck_faerben(QLabel* fleck, farbe spurfarbe);
/// Labels and commands on a dark ground; `innen` is the padding of the commands.
QString dunkle_regeln(const char* innen);
/// Boxes and lines to write in, on a ground that is dark in the light look too.
QString dunkle_eingaben();

/// A caption in this colour on that ground: on a dark one, as light as small letters need it.
QColor titelfarbe(const QColor& farbton, const QColor& grund);
/// Of a colour as the eye has it, from 0 to 1.
double helligkeit(const QColor& farbe);
/// From 1 to 21.
double kontrast(const QColor& a, const QColor& b);
/// Letters in this colour on a ground that may be as light: hardly seen there, they are darker.
QColor auf_hellem_grund(const QColor& farbton, const QColor& grund);
/// Letters on a ground of this colour.
QColor schrift_auf(const QColor& grund);

QColor farbe_von(farbe zahl);
farbe zahl_von(const QColor& farbton);

}  // namespace tarvel::ui::stil
