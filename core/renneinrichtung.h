#pragma once

#include <string>

#include "core/renn_parameter.h"
#include "core/spuren.h"

namespace tarvel {

/// What the operator has set up for a race, as it is typed: on the main window, or in a settings file.
struct renneinrichtung {
    renn_art art = renn_art::zeit;
    bool tanken = false;
    sortier_modus wertung = sortier_modus::runden;
    std::string stunden;       ///< of a time race
    std::string dauer;         ///< minutes and seconds as `M,SS`, or laps
    std::string mindestrunde;  ///< shortest lap in seconds
    std::string massstab;

    struct spur {
        bool dabei = false;
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

enum class einrichtungsfehler { keiner, dauer, keine_spur };

/// In a race of its own a lap counts only this much above the entered minimum.
inline constexpr zeit_ms sperrzuschlag_einzelrennen_ms = 100;

/// Makes the race from its set-up, whose length is brought into its tidy form. Laps have to take `sperrzuschlag_ms`
/// more than the entered minimum. With an error the parameters are not to be driven with.
einrichtungsfehler rennen_uebergeben(renneinrichtung& einrichtung, zeit_ms sperrzuschlag_ms, renn_parameter& param);

/// The same for the races of a competition, as far as its file tells: their length knows no seconds, lanes and drivers
/// follow with each race.
void wettkampf_uebergeben(const renneinrichtung& einrichtung, renn_parameter& param);

}  // namespace tarvel
