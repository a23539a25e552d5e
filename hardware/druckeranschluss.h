#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

#include "core/einstellungen.h"
#include "hardware/ausgaben.h"
#include "hardware/kontaktleser.h"
#include "hardware/lpt_register.h"
#include "hardware/messgeraet.h"
#include "platform/abtaster.h"
#include "platform/druckerport.h"

namespace tarvel {

/// Sensors and lamps on the lines of the printer port: five inputs in the status register, eight outputs in the data
/// register. Nothing tells whether somebody is at the other end; a machine without the port shows.
class druckeranschluss final : public messgeraet {
public:
    struct umgebung {
        const einstellungen& einst;
        ereignis_tabelle& ereignisse;
        plattform::abtaster_dienst& abtaster;
        plattform::druckerport& port;
        rennverbindung& rennen;
    };

    explicit druckeranschluss(const umgebung& um);
    druckeranschluss(const druckeranschluss&) = delete;
    druckeranschluss& operator=(const druckeranschluss&) = delete;
    ~druckeranschluss() override { schliessen(); }

    hardware_art welches() const override { return hardware_art::druckeranschluss; }
    std::optional<ausgabe_platz> ausgabeplatz() const override { return ausgabe_platz::druckeranschluss; }
    /// The supply of a tank is off until a race window opens.
    bool oeffnen() override;
    void schliessen() override;
    bool verbunden() const override { return abtastung_ != nullptr && port_->da; }

    void abfragen() override { lpt_auswerten(); }
    void rennfenster_offen() override { lpt_bereit(); }
    void einfahren_beginnt() override;
    void rennen_bereit() override;
    void nach_ausfall(ausfall_stand /*stand*/) override { kontakte_.nach_ausfall(); }
    void rennen_fortgesetzt() override { kontakte_.rennen_fortgesetzt(); }
    void schalten(const schaltung& befehl) override;
    /// On from here, as long as the device is in force.
    void tankausgang_einschalten() { lpt_an(art::tanken_ein[1]); }

    /// Switches the output of this number; 0 are all eight. Of two with the same number the last one.
    void lpt_an(ereignis_art nummer) { lpt_schalten(nummer, true); }
    void lpt_aus(ereignis_art nummer) { lpt_schalten(nummer, false); }

private:
    /// The port while it is sampled: who lets go of it last switches for the last time.
    struct offener_port {
        explicit offener_port(lpt::registersatz r) : registersatz(r) {}
        offener_port(const offener_port&) = delete;
        offener_port& operator=(const offener_port&) = delete;
        ~offener_port();

        /// By the sampling thread: the outputs as they have to be, and a look at the inputs.
        void lpt_abtasten(zeit_ms jetzt, kontaktproben& proben);

        lpt::registersatz registersatz;
        std::atomic<std::uint8_t> lpt_pin_zustand = 0;  ///< what the data register has to show
        std::atomic<bool> da = false;                   ///< there is a port
        bool abgetastet = false;
    };

    void lpt_schalten(ereignis_art nummer, bool an);
    std::uint8_t mit(std::uint8_t zustand, ereignis_art nummer, bool an) const;
    /// Every output at rest, but those that are active there; with the supply of a tank or without.
    void grundstellung(bool tankausgang);
    void lpt_bereit();
    void neuer_port();
    void lpt_auswerten() { kontakte_.auswerten(); }
    void zuordnen();

    umgebung um_;
    kontaktleser kontakte_;
    std::shared_ptr<offener_port> port_;
    std::unique_ptr<schnittstelle> abtastung_;
};

}  // namespace tarvel
