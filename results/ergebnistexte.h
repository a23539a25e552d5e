#pragma once

#include <string>

#include "core/spuren.h"
#include "core/zeit.h"
#include "race/rennergebnis.h"
#include "results/ergebnisworte.h"

/// How the figures of a result are written in windows and on paper.
namespace tarvel::ergebnistext {

using spur = rennergebnis::spur;

/// Laps, or that the lane is out.
std::string runden(const spur& s);
/// "23,40 m".
std::string meter(const spur& s);
/// Total time.
std::string zeit(const spur& s, const trennzeichen_tabelle& trennzeichen);
std::string beste(const spur& s, const trennzeichen_tabelle& trennzeichen);
/// Total time behind the leader's, "- " for a lane that has the lower time in fewer laps. Empty for the leader.
std::string abstand(const rennergebnis& ergebnis, const spur& s, const trennzeichen_tabelle& trennzeichen);
/// The same as people say it, by what the places go: laps behind in laps, and within a lap the time. Empty for the
/// leader, for a lane that is out, and where it would be `abstand` once more.
std::string rueckstand(const rennergebnis& ergebnis, const spur& s, const rueckstand_worte& wort,
                       const trennzeichen_tabelle& trennzeichen);
/// Speed of the best lap and on average.
std::string tempo(const spur& s);
/// The order from the green light, where it is another than the standing: who was first over the line by eye may be
/// second by his laps. On another line, whose time runs from there all the same. Empty else.
std::string ab_gruen(const rennergebnis& ergebnis, const blatt_worte& wort);
/// The places of the standing that the race window, by `auf_der_bahn`, shows otherwise; behind `wort`, or empty.
std::string anders_auf_der_bahn(const rennergebnis& ergebnis, const spuren<int>& auf_der_bahn, const std::string& wort);
/// Empty without a penalty; the words name it, and what an empty tank has added to a lap.
std::string strafe(const spur& s, const std::string& wort, const std::string& tank_leer,
                   const trennzeichen_tabelle& trennzeichen);

}  // namespace tarvel::ergebnistext
