#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/zeit.h"
#include "race/rennergebnis.h"
#include "results/ergebnistabelle.h"
#include "results/papierkopf.h"
#include "results/urkundenvorlage.h"

namespace tarvel {

/// What the certificate of one driver says.
struct urkunde {
    urkundenworte worte;
    int spur = 0;            ///< 0 for one of many races
    int platz = 0;           ///< 0 for who has none: a disqualified driver, and one without a lap
    std::string fahrerbild;  ///< files below the program folder; empty for a driver or vehicle without one of his own
    std::string fahrzeugbild;

    const std::string& wort(urkundenwort w) const { return worte.at(static_cast<std::size_t>(w)); }
    void setzen(urkundenwort w, std::string_view text) { worte.at(static_cast<std::size_t>(w)) = text; }
};

/// What the result itself does not know.
struct urkundenangaben {
    papierkopf kopf;
    std::string rennen;      ///< what was driven
    std::string platz;       ///< behind the number of the place
    std::string ohne_platz;  ///< in place of both
    trennzeichen_tabelle trennzeichen;
    std::string klasse;  ///< in front of that of the driver
};

/// A driver's place in a table of many races. What it does not know is empty, or 0.
struct tabellenplatz {
    int platz = 0;
    std::string fahrer;
    std::string klasse;
    std::int64_t runden = 0;
    double meter = 0;
    zeit_ms beste = 0;
    zeit_ms gesamtzeit = 0;
};

/// Length of the track as people say it, "24,5 m"; lanes of different lengths from the shortest to the longest. Empty
/// if it is not known.
std::string streckenlaenge(const rennergebnis& ergebnis);

/// A certificate for each driver, in the order of the places.
std::vector<urkunde> urkunden_bilden(const rennergebnis& ergebnis, const urkundenangaben& angaben);
/// The same of the table of a competition or a day, driven on that date.
std::vector<urkunde> urkunden_bilden(const std::vector<tabellenplatz>& plaetze, const std::string& datum,
                                     const urkundenangaben& angaben);
/// The table of a result file, in its order. Of a day that is not added up yet, each driver's sum within his class.
/// Classes left out get none.
std::vector<tabellenplatz> plaetze_von(const ergebnistabelle& tabelle, sortier_modus nach,
                                       const std::set<std::string>& ohne_klassen);

}  // namespace tarvel
