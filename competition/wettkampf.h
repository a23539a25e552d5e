#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "competition/fahrername.h"
#include "competition/rennplan.h"
#include "core/einstellungswerte.h"
#include "core/spuren.h"
#include "core/texte.h"
#include "core/zeit.h"
#include "platform/uhr.h"
#include "race/rennergebnis.h"

namespace tarvel {

/// Metres of a competition are whole hundredths: sums are exact, and equal metres are equal.
using zentimeter = std::int64_t;
zentimeter zentimeter_aus(double meter);
double als_meter(zentimeter meter);

/// What a driver has driven on a lane in one race, or in several together.
struct fahrt {
    int runden = 0;
    zeit_ms zeit = 0;  ///< laps and penalties
    zentimeter meter = 0;
    zeit_ms beste = 0;  ///< lap, 0 for none

    fahrt& operator+=(const fahrt& weitere);
    bool operator==(const fahrt&) const = default;
};

/// Within what a file of the competition holds.
fahrt begrenzt(const fahrt& wert);

/// What the race itself has given a driver for a part of it, whatever the director has made of that in the books.
struct gutschrift {
    fahrt gefahren;  ///< its laps alone
    zeit_ms strafe = 0;
    zentimeter restmeter = 0;

    fahrt gesamt() const;
    bool operator==(const gutschrift&) const = default;
};

/// The parts of a race that a result has.
struct rennteile {
    int ab = 1;   ///< with which it was started
    int bis = 1;  ///< driven last
    int auf = 1;  ///< on whose lanes the drivers stand
};

/// What a driver has in all his races. Lane 0 is the total.
struct fahrer_stand {
    std::array<fahrt, spuren_max + 1> auf;

    int fahrer_runden(int spur) const { return auf.at(static_cast<std::size_t>(spur)).runden; }
    zeit_ms fahrer_zeit(int spur) const { return auf.at(static_cast<std::size_t>(spur)).zeit; }
    zentimeter fahrer_meter(int spur) const { return auf.at(static_cast<std::size_t>(spur)).meter; }
    zeit_ms fahrer_beste(int spur) const { return auf.at(static_cast<std::size_t>(spur)).beste; }
};

/// A driver's heats where each meets each, by their numbers among his races in the plan; 0 is the total.
struct jeder_zeile {
    static constexpr int fahrer_max = 10;
    static constexpr int heats_max = 2 * (fahrer_max - 1);
    std::array<fahrt, heats_max + 1> heat;

    int jeder_runden(int nummer) const { return heat.at(static_cast<std::size_t>(nummer)).runden; }
    zeit_ms jeder_beste(int nummer) const { return heat.at(static_cast<std::size_t>(nummer)).beste; }
    zeit_ms gesamtzeit() const { return heat.front().zeit; }
};

/// The numbers are those of the competition's files.
enum class rennstatus { offen, gefahren, zurueckgestellt };

/// A race, or with centermode a part of one, that has been driven.
struct gefahrener_teil {
    int rennen = 0;
    int teil = 1;
    spuren<fahrt> fahrten;
    std::optional<spuren<gutschrift>> aus_rennen = {};  ///< of one of several parts

    bool operator==(const gefahrener_teil&) const = default;
};

struct schnellste_runde {
    static constexpr zeit_ms keine = 999999;  ///< no longer lap counts
    zeit_ms beste_runde_ms = keine;
    int beste_runde_fahrer = 0;  ///< his place, 0 for nobody

    /// What shows; of nobody's too.
    std::string beste_runde_text(const trennzeichen_tabelle& trennzeichen) const;

    bool operator==(const schnellste_runde&) const = default;
};

/// What a race is given to be driven.
struct renn_uebergabe {
    int rennen = 0;                  ///< 0 if there is none
    int teil = 1;                    ///< with centermode; the parts before it have been driven
    spuren<int> spur_fahrer;         ///< place of the lane's driver, 0 for nobody
    spuren<std::string> fahrer;      ///< names, those of fillers too
    spuren<bool> rennen_spur_aktiv;  ///< has a real driver: takes part in the warm-up and in the race
    spuren<bool> fueller;
};

/// A competition that runs: who drives when, and what has been driven. All else follows from these. Races and places
/// count from 1; a number that there is not changes nothing.
struct wettkampf {
    std::string wettkampf_name;
    std::string beginn;  ///< date
    wettkampf_modus modus = wettkampf_modus::rotation;
    rennplan plan;
    std::vector<std::string> teilnehmer;  ///< the name of each place
    std::vector<std::string> bilder;      ///< picture file of each place, perhaps empty
    spuren<bool> spur_aktiv;
    sortier_modus wertung = sortier_modus::runden;  ///< the ranking that counts
    bool qualifying_an = false;
    bool zwischenstand_an = false;  ///< dated files are kept of the state after each race
    std::int64_t rennlaenge = 0;    ///< number of every heat's `rennziel`, whose kind the settings tell; 0 if not known
    int aktuelles_rennen = 1;
    std::set<int> zurueckgestellte;
    std::vector<gefahrener_teil> gefahren;  ///< in the order driven
    std::vector<zeit_ms> renndauern;        ///< on the clock, from one start to the next

    int rennen_gesamt() const { return plan.rennen_gesamt(); }
    int plaetze() const { return static_cast<int>(teilnehmer.size()); }
    bool ist_fueller(int platz) const { return plan.platz(platz).ist_fueller(); }
    /// Where each meets each.
    int heats_je_fahrer() const { return 2 * (plan.rennen_teilnehmer - 1); }
    /// Empty for place 0, nobody.
    std::string name(int platz) const;

    rennstatus rennen_gefahren(int rennen) const;
    /// Parts driven of the race.
    int fortsetzung_nummer(int rennen) const;
    /// No race is left.
    bool ende_pruefen() const;
    /// For the current race, its next part.
    renn_uebergabe uebergabe() const;
    /// For any part of it.
    renn_uebergabe uebergabe(int teil) const;
    /// Null if not driven.
    const spuren<fahrt>* ergebnis(int rennen, int teil = 1) const;

    /// By places.
    std::vector<fahrer_stand> staende() const;
    std::vector<jeder_zeile> jeder_tabelle() const;
    schnellste_runde beste_runde() const;
    /// Who drove it, or what stands in his place.
    std::string beste_runde_name() const;

    /// The result of the current race, or of its next part. Fillers get nothing. False if it has been driven.
    bool ergebnis_eintragen(const spuren<fahrt>& fahrten);
    /// All that a race which may have gone on has given its drivers: parts that are in the books get what has been
    /// corrected of them since, those that are not come into them. False if the current race has been driven.
    bool ergebnis_eintragen(const rennergebnis& ergebnis, const rennteile& teile);
    /// The current race if it is open, else the next one, round the list; when only postponed ones are left, they are
    /// open again. False at the end.
    bool naechstes_offenes_rennen();
    /// The race that `naechstes_offenes_rennen` will lead to from the current one once that is driven; 0 for none.
    int folgendes_rennen() const;
    /// Drives this one next. False if it has been driven.
    bool rennen_waehlen(int rennen);
    /// As if it had never been driven, and it comes next. False if it has not been.
    bool wiederholen(int rennen);
    /// Until all others are driven; a race postponed already is open again. False if it has been driven.
    bool zurueckstellen(int rennen);
    /// The lane's laps in a race driven; its metres go with them. False if no driver has driven there.
    bool runden_aendern(int rennen, int teil, int spur, int runden, double spurlaenge);
    bool meter_aendern(int rennen, int teil, int spur, double meter);
    namensmangel name_aendern(int platz, std::string_view neu, const texte& txt);

    bool operator==(const wettkampf&) const = default;

private:
    gefahrener_teil* teil_von(int rennen, int teil);
    /// `gebucht_bis`: the part up to which the books had come.
    void fahrer_buchen(const rennergebnis& ergebnis, const rennergebnis::spur& s, int wer, const rennteile& teile,
                       int gebucht_bis);
    fahrt* fahrt_von(int rennen, int teil, int spur);
    int naechstes(int ab, rennstatus status) const;
};

/// None if the plan or a name is amiss; see `plan_pruefen` and `name_pruefen`. `vorgabe.fahrer` is counted here.
std::optional<wettkampf> wettkampf_beginnen(planvorgabe vorgabe, std::span<const std::string> fahrer,
                                            std::string_view titel, const texte& txt);

}  // namespace tarvel
