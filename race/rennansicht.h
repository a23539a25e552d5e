#pragma once

#include "race/ansicht_geometrie.h"
#include "race/umgebung.h"

namespace tarvel {

/// The small light of a lane.
enum class kleines_licht { rot, gelb, gruen };

/// Makes room for the third digit of a lane's counter at 100 laps and for the fourth at 1000.
void zaehler_verkleinern(bahn1& bahn, int spur, int runden);

/// Builds the race window for the lanes of the race, and puts its displays in the state before the start.
class rennansicht {
public:
    explicit rennansicht(const renn_umgebung& um) : um_(um) {}

    /// Rows or columns as the settings say, and a single column large.
    void oeffnen();
    /// Captions, and one row, one column or the whole room for each lane in the race; the controls of the other lanes
    /// are hidden.
    void zeilenansicht_oeffnen();
    void spaltenansicht_oeffnen();
    void einfahrer_ansicht_oeffnen();
    void farben_setzen();
    /// Beside the commands: the club's line, or what is wrong.
    void fusszeile_setzen(const std::string& text, bool warnung);
    /// The timing device is gone: says so with a sound, large, until `text` is empty.
    void geraetealarm_setzen(const std::string& text);
    /// The order that the result has, where the lanes show another, in the place of the record. Empty for none.
    void in_der_rekordzeile(const std::string& folge);
    std::string ziel_text(const rennziel& ziel) const;
    void ziel_zeigen();
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
    /// It has a block: it drives, or is shown empty.
    bool zu_sehen(int spur) const;
    void ansicht_oeffnen(ansicht_art art);
    void spur_oeffnen(int spur);
    void bilder_setzen();
    void texte_setzen();
    void ansagen_setzen();
    sprachliste& lageworte_nennen(sprachliste& texte);
    /// The best times as they are before the race; they stay during it.
    void bestzeit_anzeige();

    renn_umgebung um_;
};

}  // namespace tarvel
