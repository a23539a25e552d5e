#pragma once

#include <string>
#include <vector>

#include "competition/wettkampf.h"
#include "core/letzte_ergebnisse.h"
#include "core/zeit.h"
#include "results/tabellenworte.h"

namespace tarvel {

/// The table of the standing, line by line: the drivers by their metres, with what they have on each lane.
std::vector<std::string> wettkampf_tabelle_schreiben(const wettkampf& w, const wettkampf_worte& wort,
                                                     const trennzeichen_tabelle& trennzeichen);
/// The same where each meets each: the drivers as they stand on the start list, with their heats.
std::vector<std::string> jeder_tabelle_schreiben(const wettkampf& w, const wettkampf_worte& wort,
                                                 const trennzeichen_tabelle& trennzeichen);
/// The one that belongs to this competition.
std::vector<std::string> tabelle_schreiben(const wettkampf& w, const wettkampf_worte& wort,
                                           const trennzeichen_tabelle& trennzeichen);

/// For the menu of the last results: when, which, and the best of its ranking.
ergebnisangabe angabe_von(const wettkampf& w);

}  // namespace tarvel
