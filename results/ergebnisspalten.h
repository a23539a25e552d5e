#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/einstellungswerte.h"
#include "results/ergebnisdatei.h"
#include "results/ergebniswerte.h"

namespace tarvel {

using ergebnisfelder = std::vector<std::string>;

/// Fields of a line that belong together.
struct feldbereich {
    std::size_t ab = 0;
    std::size_t anzahl = 0;

    std::size_t ende() const { return ab + anzahl; }
};

/// Where the figures of a driver stand in his line, by the kind of its file. Fields count from 0.
struct ergebnisspalten {
    std::optional<std::size_t> platz;
    std::optional<std::size_t> klasse;
    std::size_t name = 0;
    feldbereich runden;  ///< the total, and behind it those of the lanes or heats
    feldbereich meter;   ///< likewise; a table of heats has none
    feldbereich beste;   ///< of the lanes or heats, or the one
    std::size_t gesamtzeit = 0;
    std::optional<std::size_t> erste_runde = {};  ///< where the lap times begin, behind the way to the first crossing

    /// Lanes or heats; 0 where the line has totals alone.
    std::size_t teile() const { return runden.anzahl - 1; }
};

/// None for a line that is no driver's.
std::optional<ergebnisspalten> spalten_von(ergebnis_typ typ, std::size_t felder);

/// What a line brings to the standing.
struct zeilenwerte {
    std::int64_t runden = 0;
    double meter = 0;
    zeit_ms beste = 0;  ///< the lowest one above 0; 0 for none, or without a lap
    zeit_ms gesamtzeit = 0;
};
zeilenwerte werte_von(const ergebnisfelder& felder, const ergebnisspalten& spalten,
                      const trennzeichen_tabelle& trennzeichen);

/// The total time of a line. A race of more than an hour is written without the hours: its laps bring them back.
zeit_ms gesamtzeit_lesen(const ergebnisfelder& felder, const ergebnisspalten& spalten);
/// Of the race of the line; 0 where it has no laps.
dauer_s strafzeit_lesen(const ergebnisfelder& felder, const ergebnisspalten& spalten);
/// Writes it so that it is read as the same.
void gesamtzeit_schreiben(ergebnisfelder& felder, const ergebnisspalten& spalten, zeit_ms zeit,
                          const trennzeichen_tabelle& trennzeichen);

/// How a file of this kind writes laps and metres.
std::string runden_schreiben(ergebnis_typ typ, std::int64_t runden);
std::string meter_schreiben(ergebnis_typ typ, double meter);

}  // namespace tarvel
