#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/sprache.h"
#include "core/steuerelemente.h"
#include "core/zeit.h"
#include "race/rundenkorrektur.h"

namespace tarvel {

/// A crossing that the race has not counted.
struct abgelehnte_ueberfahrt {
    int spur = 0;
    zeit_ms stempel = 0;
    zeit_ms seit_gruen = 0;
    std::string grund;
};

/// What the log of the race knows of the laps that could have been counted.
struct offene_runden {
    std::vector<abgelehnte_ueberfahrt> ueberfahrten;  ///< in order of time
    std::vector<rennpause> pausen;                    ///< and the breaks
};

/// The crossing as a lap that is added to the lane; none if it lies before the lane's first one, or cannot be a lap.
/// `laenge` is that of the lane in metres.
std::optional<korrektur> ueberfahrt_nachtragen(const rennergebnis::spur& s, const abgelehnte_ueberfahrt& u,
                                               const std::vector<rennpause>& pausen, double laenge);
/// The lap in two halves.
korrektur runde_teilen(const rennergebnis::spur& s, int runde);

/// The frame in which a lap is added: a lane, and a list of what can be added to it.
class rundennachtrag {
public:
    rundennachtrag();

    rahmen Frame_nachtrag;
    bezeichnung Label_nachtrag_spur;
    auswahl cbo_nachtrag;
    bezeichnung Label_nachtrag;  ///< what the list shows
    liste angebote;
    befehl Command_eintragen;
    befehl Command_abbrechen;

    /// Takes what the operator has chosen; filled by the window.
    std::function<void(const korrektur& k)> eintragen;
    std::function<void()> ohne_wahl;  ///< nothing is chosen

    /// Offers what can be added. `runde` of the lane is chosen, or what suggests itself at 0; lane 0 is that of the
    /// first one.
    void fuellen(const rennergebnis& ergebnis, offene_runden offen, const spuren<double>& laengen,
                 const trennzeichen_tabelle& trennzeichen, int spur, int runde);
    /// The lane that is shown, and the lap that is chosen, 0 for none.
    int spur() const { return spur_; }
    int runde() const { return gewaehlt().value_or(korrektur()).runde; }
    const std::string& wort_runde() const { return wort_.runde; }

    void sprache(sprachliste& texte);
    /// With the texts of the window's language.
    void ansagen();
    /// Behind all others: a file of texts from before has no such line.
    sprachliste& ohne_pausen_nennen(sprachliste& texte) { return texte.text("ohne Pausen", wort_.ohne_pausen); }
    sprachliste& ziel_nennen(sprachliste& texte) {
        return texte.text("Mit einer Runde mehr war dieser Fahrer früher im Ziel: seine letzte Runde fällt weg.",
                          wort_.war_im_ziel);
    }

private:
    std::optional<korrektur> gewaehlt() const;
    void spur_zeigen(int runde);
    void anbieten(const korrektur& k, const rennergebnis::spur& s, const std::string& was);
    std::string moment(const abgelehnte_ueberfahrt& u) const;
    zeit_ms uhr_stand(const abgelehnte_ueberfahrt& u) const;
    std::string zeit(zeit_ms dauer) const { return zeit_formatieren(dauer, true, trennzeichen_); }

    rennergebnis ergebnis_;
    offene_runden offen_;
    spuren<double> laengen_;
    trennzeichen_tabelle trennzeichen_;
    int spur_ = 0;
    std::vector<korrektur> moeglich_;  ///< one per row of the list
    struct {
        std::string spur, runde, ueberfahrt, ohne_pausen, teilen;
        std::string was;          ///< the list shows
        std::string war_im_ziel;  ///< of a lane that has all its laps
    } wort_;
};

}  // namespace tarvel
