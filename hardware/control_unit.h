#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/renn_parameter.h"
#include "core/texte.h"
#include "hardware/ausgaben.h"
#include "hardware/cu_protokoll.h"
#include "hardware/ereignisse.h"
#include "hardware/messquelle.h"
#include "hardware/zeitbasis.h"
#include "platform/dienste.h"
#include "platform/serienport.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// A Carrera Control Unit: the central box of a digital track. It stamps the passages of its cars with its own clock,
/// has the tanks and runs the start light; the program polls it. Controller n is lane n.
class control_unit final : public messquelle, public ausgabe_geraet, private geraeteampel {
public:
    struct umgebung {
        const einstellungen& einst;
        const renn_parameter& param;
        const texte& txt;
        ereignis_tabelle& ereignisse;
        zeitbasis& zeit;
    };

    /// What the unit brings about in the program.
    struct wirkung {
        std::function<void(zeit_ms um)> stempel_verschieben;        ///< all stamps so far move by so many ms
        std::function<bool()> rennen_ruht;                          ///< the race window waits for a start
        std::function<bool()> rennen_laeuft;                        ///< and is neither paused nor over
        std::function<void()> rennen_vorbereiten;                   ///< as the start command
        std::function<void(int spur, int stufe)> fuellstand;        ///< 0 to 15, of 14
        std::function<void(bool an)> tankfunktion;                  ///< before a race: the unit drives with fuel
        std::function<void()> port_fehlt;                           ///< a race window opens without the unit
        std::function<void(std::string_view satz)> satz_empfangen;  ///< each record, for who looks on
    };

    control_unit(const umgebung& um, const plattform::dienste& dienste);

    wirkung bewirkt;

    /// Opens the port of the settings; false if they name none or it is not there.
    bool mscomm1_oeffnen();
    void schliessen();
    bool port_offen() const { return port_->offen(); }
    /// The unit has answered within the last second.
    bool antwortet() const;
    /// Writes a command; false on a closed port.
    bool senden(std::string_view befehl);

    bool im_startzustand() const { return startzustand_ == start::steht; }
    bool in_der_box(int spur) const { return boxenstatus_[spur]; }
    /// The pause that is was begun at the unit itself.
    bool chaos_durch_box() const { return chaos_durch_box_; }

    void abfragen() override {}
    geraeteampel* ampel() override { return port_->offen() ? this : nullptr; }
    void rennfenster_offen() override;
    void rennfenster_zu() override;
    void rennen_bereit() override;
    void rennstart() override;
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

    void empfangen(std::string_view bytes);
    void cu_abfrage_tick();
    void cu_auswertung_tick();
    void cu_tankabfrage_tick();
    void satz_verarbeiten(const std::string& satz);
    void verarbeiten(std::monostate /*nichts*/) {}
    void verarbeiten(const cu::ueberfahrt& ueberfahrt);
    void verarbeiten(const cu::status& status);
    void verarbeiten(const cu::rundenzaehler_bereit& bereit);
    void uhr_nachstellen(zeit_ms stempel);
    void cu_tank_auswerten(const cu::status& status);
    void startzustand_auswerten(bool steht);
    void starttaste();
    void rennbetrieb(bool an);

    umgebung um_;
    const plattform::uhr& uhr_;
    std::unique_ptr<plattform::serienport> port_;
    std::unique_ptr<plattform::zeitgeber> cu_abfrage_timer_;     ///< polls while the race window is open
    std::unique_ptr<plattform::zeitgeber> cu_auswertung_timer_;  ///< and takes one record at a time
    std::unique_ptr<plattform::zeitgeber> cu_tankabfrage_;       ///< both, slowly, before
    std::unique_ptr<plattform::zeitgeber> cu_ende_timer_;        ///< stops the cars after the race

    std::string cu_empfang_;
    int durchgaenge_ohne_satz_ = 0;
    bool antwort_offen_ = false;  ///< the last poll waits for its answer
    zeit_ms abgefragt_ = 0;       ///< reading of the machine's clock at the last poll
    zeit_ms geantwortet_ = 0;     ///< at the last record, 0 none

    zeit_ms luecke_ = 0;  ///< ms without a record, as long as what has waited meanwhile still comes

    bool uhr_bekannt_ = false;
    zeit_ms letzter_stempel_ = 0;
    zeit_ms umlauf_ = 0;  ///< what the overflows of the unit's clock add up to
    spuren<int> cu_tank_wert_;
    spuren<bool> boxenstatus_;
    start startzustand_ = start::unbekannt;
    bool rennen_laeuft_ = false;    ///< between its start and its end
    bool neustart_wartet_ = false;  ///< the start key was pressed, the unit's light runs
    bool nach_rennende_ = false;    ///< the start state is the one that has ended the race
    bool chaos_durch_box_ = false;
};

}  // namespace tarvel
