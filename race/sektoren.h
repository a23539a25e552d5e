#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "race/rennergebnis.h"
#include "race/umgebung.h"

namespace tarvel {

/// Sector times and speeds from the sensors between the line and the line.
class sektoren {
public:
    explicit sektoren(const renn_umgebung& um);

    /// For a new race.
    void zuruecksetzen();
    /// Once per race tick, if any sector sensor is in use.
    void sektoren_auswerten();
    /// The lap of row `zeile` closes with a crossing at `stempel`; `pause` ms of it do not count.
    void letzten_sektor_speichern(int spur, int zeile, zeit_ms stempel, zeit_ms pause);

    /// Time of sector 1 to 3 in ms, 0 for none; `zeile` as in the lap store.
    zeit_ms sektorzeit(int spur, int sektor, int zeile) const;

    using zeiten = std::array<zeit_ms, 3>;
    /// All three times of a row.
    zeiten zeile(int spur, int zeile) const;
    /// The lane has had these laps, row 0 first; it was in lap `laufende`, whose times so far are those of the lap that
    /// it is in now, unless that one has only begun.
    void runden_setzen(int spur, const std::vector<rennergebnis::runde>& runden, int laufende, bool begonnen);
    /// The sector times go with their drivers: lane i takes those of lane `herkunft[i]`, 0 leaves them.
    void fahrer_umsetzen(const spuren<int>& herkunft);

private:
    using zeilen = std::vector<zeiten>;

    void sektorzeit_verarbeiten(int spur, int sektor);
    void anzeigen(int spur, int sektor, zeit_ms zeit);
    void sektorzeit(int spur, int sektor, int zeile, zeit_ms zeit);

    renn_umgebung um_;
    spuren<zeilen> sektorzeiten_;
    std::array<zeit_ms, sektorsensoren_max> zuletzt_{};  ///< stamp of the last hit of each sensor that counted
};

/// km/h over `meter` in `zeit` ms; 0 for no time.
double sektor_tempo(double meter, zeit_ms zeit);
/// The same over a length as typed, as a number in km/h: of the model, or with its scale of the original. Empty without
/// a length.
std::string sektor_tempo_text(const std::string& laenge, zeit_ms zeit, std::optional<double> massstab);

}  // namespace tarvel
