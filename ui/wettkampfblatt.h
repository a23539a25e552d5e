#pragma once

#include <QSizeF>
#include <QString>
#include <QWidget>
#include <cstddef>
#include <functional>
#include <vector>

#include "competition/wettkampfblatt.h"
#include "ui/blattausgabe.h"

namespace tarvel::ui {

/// A part of a table that stands on one page: its rows from `von` up to, but without, `bis`.
struct tabellenstueck {
    std::size_t tabelle = 0;
    std::size_t von = 0;
    std::size_t bis = 0;
    double oben = 0;  ///< in tenths of a millimetre, as all measures here
};

/// What stands on each page of that height, with every row of every table once. At least one page.
std::vector<std::vector<tabellenstueck>> seiten_aufteilen(const wettkampfblatt& blatt, double hoehe);
/// Where a part ends.
double unterkante(const wettkampfblatt& blatt, const tabellenstueck& stueck);

/// The pages of the standing, as it was when they were made.
blattseiten wettkampfseiten(wettkampfblatt blatt);

}  // namespace tarvel::ui
