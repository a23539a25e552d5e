#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/spuren.h"
#include "core/wettkampfmodus.h"

namespace tarvel {

/// What a plan is drawn up from.
struct planvorgabe {
    wettkampf_modus modus = wettkampf_modus::rotation;
    int fahrer = 0;  ///< on the list; those beyond `planfahrer_max` are left out
    spuren<bool> aktiv;
    wechsel_folge folge = wechsel_standard;
    bool centermode = false;  ///< the cars of a group change lanes within one race that is continued
};

enum class planmangel { keiner, zu_wenige_fahrer, zu_viele_fahrer, keine_spur, nicht_zwei_spuren };

/// A place of the start list: a driver, or what fills the plan up where there are too few.
struct startplatz {
    int fahrer = 0;   ///< his number on the list, from 1; 0 for a filler
    int fueller = 0;  ///< the filler's number, from 1; 0 for a driver

    bool ist_fueller() const { return fahrer == 0; }
    bool operator==(const startplatz&) const = default;
};

/// Per lane the place of its driver in `teilnehmer`, from 1; 0 where nobody drives.
using startfeld = spuren<int>;

/// All races of a competition. Races and places count from 1.
struct rennplan {
    std::vector<startplatz> teilnehmer;
    int rennen_teilnehmer = 0;  ///< places that were taken before any group was filled up
    std::vector<startfeld> rennen;
    int teile = 1;         ///< of each race, one per lane with centermode; the cars change lanes between them
    spuren<int> herkunft;  ///< for the next part, per lane the one that its driver comes from

    int rennen_gesamt() const { return static_cast<int>(rennen.size()); }
    /// Nobody for a race or a part that there is not.
    startfeld feld(int rennen_nummer, int teil = 1) const;
    /// The how manyth race of the lane's driver it is, from 1; 0 if nobody drives there.
    int heat(int rennen_nummer, int spur) const;
    /// 0 if the place does not drive in that race.
    int spur_von(int rennen_nummer, int platz) const;
    const startplatz& platz(int nummer) const { return teilnehmer.at(static_cast<std::size_t>(nummer - 1)); }

    bool operator==(const rennplan&) const = default;
};

planmangel plan_pruefen(const planvorgabe& vorgabe);
/// So many drivers have a place in a plan for these lanes, whatever its kind.
int planfahrer_max(const spuren<bool>& aktiv);
/// Empty if anything is amiss.
rennplan rennplan_erstellen(const planvorgabe& vorgabe);

/// The names of the start list, in its order; fillers are `frei_text` and their number.
std::vector<std::string> teilnehmer_namen(const rennplan& plan, std::span<const std::string> fahrer,
                                          std::string_view frei_text);

}  // namespace tarvel
