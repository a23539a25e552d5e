#pragma once

#include <QListView>
#include <QString>

#include "core/namensspalten.h"
#include "core/steuerelemente.h"

namespace tarvel::ui {

/// What the rows of a list have, in letters of one width.
struct zeilenplatz {
    double breite = 0;       ///< in pixels
    double schrift_min = 1;  ///< size of the letters, in pixels
    double schrift_max = 1;
    std::size_t mindestens = 1;       ///< each row counts as so many characters, so that few do not stand too large
    std::size_t kopf = 0;             ///< characters of the captions over them
    double anteil_fuer_namen = 0.75;  ///< of the size that short names have: down to it longer ones stay whole
};

/// Draws the names in the rows of the list as wide as there is room, and returns the size of the letters for it. Whole
/// names may cost some of the size that short ones have; names that are longer are cut, and whole under the pointer.
int namen_einpassen(QListView& ansicht, const liste& zeilen, const namensspalten& namen, const zeilenplatz& platz);

/// Characters of its longest row as it is drawn.
std::size_t laengste_zeile(const QListView& ansicht, const liste& zeilen);

/// The captions over the columns of such a list.
QString kopf_einpassen(const QListView& ansicht, const std::string& kopf);

}  // namespace tarvel::ui
