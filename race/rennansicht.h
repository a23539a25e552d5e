#pragma once

#include "race/ansicht_geometrie.h"
#include "race/umgebung.h"

namespace tarvel {

/// Pixels per design unit in a column view of this size: the scale of the column's width or of the window's height,
/// whichever is smaller.
double spalten_skala(double breite_px, double hoehe_px, int spuren_anzahl);

/// The small light of a lane.
enum class kleines_licht { rot, gelb, gruen };

/// Builds the race window for the lanes of the race, and puts its displays in the state before the start.
class rennansicht {
public:
    explicit rennansicht(const renn_umgebung& um) : um_(um) {}

    /// Captions, and one column for each lane in the race; the controls of the other lanes are hidden.
    void spaltenansicht_oeffnen();
    void farben_setzen();
    /// Counters, times and lists as before the first crossing.
    void anzeigen_leeren();
    /// The same with what the lanes have, for a race that goes on.
    void stand_zeigen();
    /// The race runs: the small light of each lane that has power shows green.
    void freigeben();
    void kleine_ampel(int spur, kleines_licht licht);
    /// Toggles the dark cover.
    void bildschirm_dunkel();
    /// The texts of the race window.
    sprachliste sprache_r();

private:
    void texte_setzen();
    void ansagen_setzen();
    /// The best times as they are before the race; they stay during it.
    void bestzeit_anzeige();

    renn_umgebung um_;
};

}  // namespace tarvel
