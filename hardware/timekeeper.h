#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/einstellungen.h"
#include "core/texte.h"
#include "hardware/ereignisse.h"
#include "hardware/geraetebedienung.h"
#include "hardware/messgeraet.h"
#include "hardware/rennverbindung.h"
#include "hardware/tk_leitung.h"
#include "hardware/tk_profil.h"
#include "hardware/tk_protokoll.h"
#include "hardware/tk_uhr.h"
#include "hardware/zeitbasis.h"
#include "platform/dienste.h"

namespace tarvel {

/// What the box is told for an output.
std::string tk_schaltbefehl(const schaltung& befehl);

/// The timing unit Timekeeper USB. It stamps its sensors with its own clock, which the race's clock is kept in step
/// with; until that clock is known they count as of their arrival.
class timekeeper final : public messgeraet {
public:
    struct umgebung {
        einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        ereignis_tabelle& ereignisse;
        zeitbasis& zeit;
        tarvel::ausgaben& ausgaben;
        rennverbindung& rennen;
        geraetebedienung& bedienung;
        std::function<std::string()> nicht_da;  ///< the message that there is no box, and the keyboard counts
        std::function<std::string()> weg;       ///< and that the chosen one is not there as a race opens
    };

    timekeeper(const umgebung& um, const plattform::dienste& dienste);

    hardware_art welches() const override { return hardware_art::timekeeper; }
    std::optional<ausgabe_platz> ausgabeplatz() const override { return ausgabe_platz::timekeeper; }
    /// Reads the settings file and opens the channel. If that fails, the operator's side knows.
    bool oeffnen() override;
    void schliessen() override;
    void wieder_aufnehmen() override;
    bool verbunden() const override;
    bool haelt_auf() const override { return true; }

    /// Reads the settings file; the default one is made if it is missing. A failure shows its message and leaves the
    /// values of the factory.
    void profil_laden();
    const tk_profil& profil() const { return profil_; }
    /// Records that were damaged, or that their stamp cannot be true of.
    int verworfene_saetze() const { return verworfen_; }
    const tk_uhr& uhr() const { return geraeteuhr_; }

    void abfragen() override;
    /// The box is asked for its time at each of these moments; the answer is for the next one.
    std::optional<zeit_ms> uhr_lesen() override;
    void rennfenster_offen() override;
    void rennstart() override { im_rennen_ = true; }
    void rennen_fortgesetzt() override { im_rennen_ = true; }
    void rennende() override { im_rennen_ = false; }
    void schalten(const schaltung& befehl) override { leitung_.tk_senden(tk_schaltbefehl(befehl)); }

private:
    struct takte {
        std::unique_ptr<plattform::zeitgeber> tk_timer1;  ///< the box starts up
        std::unique_ptr<plattform::zeitgeber> tk_timer;   ///< takes what it says while no race asks
        std::unique_ptr<plattform::zeitgeber> tk_sync;    ///< asks for its time
    };

    bool kanal_oeffnen();
    void tk_timer1_tick();
    void tk_timer_tick();
    void tk_sync_tick();
    bool tk_wert_zerlegen();
    bool verarbeiten(const tk::antwort& /*egal*/) { return false; }
    bool verarbeiten(const tk::gestoert& /*satz*/);
    bool verarbeiten(const tk::uhrzeit& satz);
    bool verarbeiten(const tk::chaostaste& satz);
    bool verarbeiten(const tk::sensor& satz);
    void tk_zeit_setzen(zeit_ms zeit);
    void melden(ereignis_art art, zeit_ms stempel);
    zeit_ms jetzt_bei_ankunft() const;
    zeit_ms stempel_von(zeit_ms geraetezeit);

    umgebung um_;
    const plattform::uhr& uhr_;
    plattform::meldungen& meldungen_;
    tk_leitung leitung_;
    std::string letzte_zeile_;  ///< of the channel
    takte zeitgeber_;
    tk_profil profil_;
    tk_empfang empfang_;
    zeit_ms angekommen_ = 0;  ///< machine's clock: what is being taken was there
    tk_uhr geraeteuhr_;
    int abgleiche_ = 0;  ///< since the box has started up
    int verworfen_ = 0;
    zeit_ms gehoert_ = 0;         ///< the box has opened, or told a time; a refusal is no sign that it measures
    zeit_ms letzte_abfrage_ = 0;  ///< of a race
    bool im_rennen_ = false;      ///< between its start and its end
    bool gewuenscht_ = false;     ///< open, or to be opened as soon as it is there
};

}  // namespace tarvel
