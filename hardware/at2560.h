#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/einstellungen.h"
#include "core/texte.h"
#include "hardware/at2560_empfang.h"
#include "hardware/at_uhr.h"
#include "hardware/ereignisse.h"
#include "hardware/geraetebedienung.h"
#include "hardware/messgeraet.h"
#include "hardware/rennverbindung.h"
#include "hardware/zeitbasis.h"
#include "platform/meldungen.h"
#include "platform/serienport.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// Baud rate, parity, data bits and stop bits of the AT-2560's port as the port wants them.
std::string at_port_werte(const at2560_anschluss& anschluss);

/// The unit's word for the switching of an output.
const std::string& at_schaltwort(const at_profil& profil, const schaltung& befehl);

/// After the port opens the unit boots this long, and hears nothing.
inline constexpr dauer_ms at_bootzeit{3000};

/// The timing unit AT-2560 USB. Its events carry the time of its own clock, which each race fetches anew, and which the
/// race's clock is kept in step with; until it is known they are stamped with `messzeit`.
class at2560 final : public messgeraet {
public:
    struct umgebung {
        const einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        ereignis_tabelle& ereignisse;
        zeitbasis& zeit;
        const plattform::uhr& uhr;
        plattform::zeitgeber_dienst& zeitgeber;
        plattform::serienport_dienst& serienports;
        plattform::meldungen& meldungen;
        rennverbindung& rennen;
        geraetebedienung& bedienung;
    };

    explicit at2560(const umgebung& um);

    hardware_art welches() const override { return hardware_art::at_2560; }
    std::optional<ausgabe_platz> ausgabeplatz() const override { return ausgabe_platz::at_2560; }
    faehigkeiten kann() const override { return {.kontakte_wiederholt = true, .bootet = tmr_µportopen_->laeuft()}; }
    /// Reads the command file and opens the port of the settings. If that fails, the operator's side knows.
    bool oeffnen() override;
    void schliessen() override;
    void wieder_aufnehmen() override;
    bool verbunden() const override { return offen(); }
    bool haelt_auf() const override { return true; }

    bool offen() const { return MSComm2_->offen(); }
    /// Reads the command file of the settings; the default one is made if it is missing. A failure shows its message
    /// and leaves the words of the factory.
    void profil_laden();
    /// The same, and tells the unit its sensors.
    void profil_wechseln();
    const at_profil& profil() const { return profil_; }

    /// Sends a sequence; dropped while the port is closed.
    void at_senden(std::string_view text);

    void abfragen() override;
    void rennfenster_offen() override;
    void rennen_bereit() override;
    void rennstart() override;
    void rennen_fortgesetzt() override;
    void rennende() override { im_rennen_ = false; }
    void schalten(const schaltung& befehl) override;

private:
    bool µC_MSCOMM_settings_setzen();
    void empfangen(std::string_view bytes, zeit_ms stempel);
    void port_schliessen();
    void verloren_melden();
    void uhr_vergessen();
    at_uhr::moment bei_ankunft() const;
    void uhr_nachstellen(zeit_ms geraetezeit);
    zeit_ms stempel_von(zeit_ms geraetezeit);
    bool µC_neuer_befehl() { return empfang_.µC_neuer_befehl(profil_); }
    void µC_wert_zerlegen();
    /// The lanes that the event at hand speaks of, a bit each; bit 0: it is for all of them.
    unsigned betroffene() const;
    void ereignis_melden(const at_meldung& meldung);
    void zeile_melden(int zeile, zeit_ms stempel);
    void tmr_µportopen_tick();

    umgebung um_;
    std::unique_ptr<plattform::serienport> MSComm2_;
    std::unique_ptr<plattform::zeitgeber> tmr_µportopen_;
    at_profil profil_;
    at_empfang empfang_;
    zeit_ms angekommen_ = 0;  ///< machine's clock: the last bytes were there
    at_uhr geraeteuhr_;
    zeit_ms letzte_zeit_ = 0;     ///< of the last event on the unit's clock
    zeit_ms versatz_davor_ = 0;   ///< before the clock began anew, until the next event bears that out; 0 none
    zeit_ms at_zeitversatz_ = 0;  ///< what the race's clock is ahead of the unit's; 0 until it is known
    zeit_ms letzte_abfrage_ = 0;
    bool im_rennen_ = false;   ///< between its start and its end
    bool gewuenscht_ = false;  ///< open, or to be opened as soon as it is there
};

}  // namespace tarvel
