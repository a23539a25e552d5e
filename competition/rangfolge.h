#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "competition/wettkampf.h"
#include "core/namensspalten.h"
#include "core/zeit.h"

namespace tarvel {

/// So many characters of a name have room in the table of the file, and at least in lists.
inline constexpr std::size_t listenname_breite = 15;

/// Places of the start list, the best first, by each way of judging. All are in them, fillers too.
struct ranglisten {
    std::vector<int> rangfolge;  ///< by metres
    std::vector<int> rangfolge_runden;
    std::vector<int> rangfolge_beste;  ///< by the best lap; those without one are behind

    /// By laps for a number that is no way of judging.
    const std::vector<int>& nach(sortier_modus wertung) const;
    bool operator==(const ranglisten&) const = default;
};

/// Equals stay in the order of the list. A time of 0 is none, and never better than another.
ranglisten rangfolge_berechnen(std::span<const fahrer_stand> staende);
/// Real drivers alone, in the order of the ranking.
std::vector<int> fahrer_in_rangfolge(const wettkampf& w, sortier_modus wertung);

/// Of the names in the lines of `rangliste`.
namensspalten rangspalten(const wettkampf& w);
/// The lines of `rangliste`: place, name, laps, metres and total time, or the best lap where that is what counts. So
/// many characters of a name are in them.
std::vector<std::string> rangschreiben(const wettkampf& w, sortier_modus wertung,
                                       const trennzeichen_tabelle& trennzeichen, std::size_t namen = listenname_breite);

/// A row of `w_auswertung`, cut to the widths of its columns.
struct auswertung_zeile {
    struct einzeln {
        std::string runden;
        std::string beste;
    };
    std::string platz;
    std::string name;
    std::string ganzer_name;  ///< not cut
    std::string runden;       ///< of all races
    std::string meter;
    std::vector<einzeln> je;  ///< of each lane from 1 to 6, or of each heat where each meets each
    std::string gesamtzeit;
};
std::vector<auswertung_zeile> w_auswertung_schreiben(const wettkampf& w, sortier_modus wertung,
                                                     const trennzeichen_tabelle& trennzeichen);

/// A driver's bar in the chart of the standing.
struct wettkampf_balken {
    std::string name;
    spuren<int> runden;  ///< on each lane
    int gesamt = 0;
};
std::vector<wettkampf_balken> balken(const wettkampf& w, sortier_modus wertung);

/// The drivers in the order of the qualifying, as the start list takes them.
std::vector<std::string> qualifying_uebernehmen(const wettkampf& w);

}  // namespace tarvel
