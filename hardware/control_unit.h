#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/renn_parameter.h"
#include "core/texte.h"
#include "hardware/cu_leitung.h"
#include "hardware/cu_uhr.h"
#include "hardware/ereignisse.h"
#include "hardware/geraetebedienung.h"
#include "hardware/messgeraet.h"
#include "hardware/rennverbindung.h"
#include "hardware/zeitbasis.h"
#include "platform/dienste.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// A Carrera Control Unit: the central box of a digital track. It stamps the passages of its cars with its own clock,
/// has the tanks and runs the start light; the program polls it. Controller n is lane n.
class control_unit final : public messgeraet, private geraeteampel {
public:
    struct umgebung {
        const einstellungen& einst;
        const renn_parameter& param;
        const texte& txt;
        ereignis_tabelle& ereignisse;
        zeitbasis& zeit;
        rennverbindung& rennen;
        geraetebedienung& bedienung;
    };

    control_unit(const umgebung& um, const plattform::dienste& dienste);

    hardware_art welches() const override { return hardware_art::control_unit; }
    std::optional<ausgabe_platz> ausgabeplatz() const override { return ausgabe_platz::control_unit; }
    faehigkeiten kann() const override;
    bool oeffnen() override;
    void schliessen() override;
    void wieder_aufnehmen() override;
    bool verbunden() const override { return antwortet(); }

    bool port_offen() const { return leitung_.offen(); }
    /// Passages that were damaged on the line, and dropped.
    int verworfene_saetze() const { return verworfen_; }
    /// The unit has answered lately.
    bool antwortet() const;

    bool im_startzustand() const { return cu_startzustand_ == start::steht; }
    bool in_der_box(int spur) const { return cu_boxenstatus_[spur]; }
    /// The pause that is was begun at the unit itself.
    bool chaos_durch_box() const { return cu_chaos_durch_box_; }

    void abfragen() override {}
    geraeteampel* ampel() override;
    void rennfenster_offen() override;
    void rennfenster_zu() override;
    void einfahren_beginnt() override;
    void einfahren_vorbei() override;
    void rennen_bereit() override;
    void nach_ausfall(ausfall_stand stand) override {
        rennen_bereit();
        geraeteuhr_.anschliessen(stand);
        nach_ausfall_ = true;
        rennen_laeuft_ = true;  // it has been started, and its end is the end of one
    }
    void start_abgebrochen() override;
    void rennstart() override;
    void rennen_fortgesetzt() override { rennstart(); }
    void rennende() override;
    void fuehrungsrunden(int runden) override;
    void platz(int spur, int platz) override;
    void schalten(const schaltung& befehl) override;

private:
    enum class start { unbekannt, faehrt, steht };

    bool rot() const override { return im_startzustand(); }
    void startkommando() override;
    void abbrechen() override;
    void neustart() override;

    void cu_auswertung_tick();
    void cu_tankentscheidung_tick();
    void cu_alter_rz_start_tick();
    void cu_werte_senden(int spur, int platz);
    void satz_verarbeiten(const std::string& satz);
    void verarbeiten(std::monostate /*nichts*/) {}
    void verarbeiten(const cu::ueberfahrt& ueberfahrt);
    void verarbeiten(const cu::status& status);
    void verarbeiten(const cu::rundenzaehler& zaehler);
    zeit_ms in_der_pause() const;
    void uhr_nachstellen(const cu_uhr::befund& befund);
    void cu_tank_auswerten(const cu::status& status);
    void startzustand_auswerten(bool steht);
    void starttaste();
    /// Presses it, unless that has only just been done: another press would let the cars go. True if it has.
    bool anhalten();
    /// Its light of a pause's end runs: its green would let the cars go, also behind the end of the race.
    bool im_licht() const;
    /// Somebody has pressed the start key already: a reset would throw him out.
    bool cu_nicht_zuruecksetzen() const { return im_startzustand() && !stand_verbraucht_; }
    void rennbetrieb(bool an);
    void fuer_rennen_einrichten();

    umgebung um_;
    const plattform::uhr& uhr_;
    cu_leitung leitung_;
    std::unique_ptr<plattform::zeitgeber> cu_abfrage_timer_;     ///< polls while the race window is open
    std::unique_ptr<plattform::zeitgeber> cu_auswertung_timer_;  ///< and takes one record at a time
    std::unique_ptr<plattform::zeitgeber> cu_tankabfrage_;       ///< both, slowly, while no race window is open
    std::unique_ptr<plattform::zeitgeber> cu_tankentscheidung_;
    std::unique_ptr<plattform::zeitgeber> cu_alter_rz_start_;  ///< waits for the lap counter box to start a race
    std::unique_ptr<plattform::zeitgeber> cu_ende_timer_;      ///< stops the cars after the race

    int durchgaenge_ohne_satz_ = 0;
    zeit_ms geoeffnet_ = 0;    ///< when the port was
    zeit_ms geantwortet_ = 0;  ///< at the last record, 0 none

    zeit_ms luecke_ = 0;      ///< ms without a record, as long as what has waited meanwhile may still come
    zeit_ms luecke_bis_ = 0;  ///< until then
    cu::summenpruefung summenpruefung_;
    int verworfen_ = 0;  ///< damaged passages
    cu_uhr geraeteuhr_;
    double pausengang_ = 1;  ///< pauses have been measured on a clock as fast as this
    spuren<int> cu_tank_wert_;
    cu::status letzter_status_;
    int gezeigte_tankgroesse_ = 0;  ///< litres that the levels were told for; 0: they are to be told again
    spuren<bool> cu_boxenstatus_;
    start cu_startzustand_ = start::unbekannt;
    std::optional<zeit_ms> angehalten_;  ///< when the start key was pressed to stop the cars, until a status shows it
    bool gewuenscht_ = false;            ///< open, or to be opened as soon as it is there
    bool im_rennfenster_ = false;        ///< the race window is open
    bool rennen_laeuft_ = false;         ///< between its start and its end
    bool nach_ausfall_ = false;          ///< the race has gone on behind one
    std::optional<zeit_ms> neustart_seit_;  ///< when the start key was pressed for the light of a pause's end
    bool stand_verbraucht_ = false;  ///< the start state is one that prepares no race: it has ended one, or a start
    int anschluss_ = 0;              ///< port that was opened last: another one has another unit
    bool zaehlerbox_bereit_ = false;
    bool cu_chaos_durch_box_ = false;
};

}  // namespace tarvel
