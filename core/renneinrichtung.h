#pragma once

#include <string>

#include "core/renn_parameter.h"
#include "core/spuren.h"
#include "platform/schnittstelle.h"

namespace tarvel {

struct einstellungen;

/// What the operator has set up for a race, as it is typed: on the main window, or in a settings file.
struct renneinrichtung {
    renn_art art = renn_art::zeit;
    bool tanken = false;
    std::string stunden;       ///< of a time race
    std::string dauer;         ///< minutes and seconds as `M,SS`, or laps
    std::string mindestrunde;  ///< shortest lap in seconds
    std::string massstab;

    struct spur {
        bool dabei = false;  ///< ticked
        std::string laenge;  ///< metres
        std::string fahrer;
        std::string fahrzeug;
    };
    spuren<spur> bahn;

    /// Brings every value within its limits, silently.
    void werte_pruefen();
    /// The same, and the scale, which a settings file refuses beyond its limits.
    void vor_dem_speichern_pruefen();
    /// False where a number is missing that nothing can stand for.
    bool dauer_lesbar() const;

private:
    void dauer_pruefen();
};

/// Where the set-up is seen and changed.
class einrichtungsansicht : public schnittstelle {
public:
    /// Takes what has been typed into the record.
    virtual void einrichtung_lesen() = 0;
    /// Shows the record as it is after settings were loaded.
    virtual void einrichtung_zeigen() = 0;
};

enum class einrichtungsfehler { keiner, dauer, keine_spur };

/// What is set up: a race of its own, one of laps without an end, whatever kind and length are set, or all the races of
/// a competition, whose lanes are counted by its plan.
enum class rennumfang { einzelrennen, dauertraining, wettkampf };

/// In a race of its own a lap counts only this much above the entered minimum.
inline constexpr zeit_ms sperrzuschlag_einzelrennen_ms = 100;

/// Makes the race from its set-up, whose length is brought into its tidy form. With an error the parameters are not to
/// be driven with.
einrichtungsfehler rennen_uebergeben(renneinrichtung& einrichtung, const einstellungen& einst, rennumfang umfang,
                                     renn_parameter& param);

/// What the settings in a competition's file tell of its races but their target: the length knows no seconds there.
void wettkampfdatei_uebergeben(const renneinrichtung& einrichtung, renn_parameter& param);

}  // namespace tarvel
