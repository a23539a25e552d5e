#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/einstellungen.h"
#include "core/fensterregister.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "hardware/geraetefenster.h"
#include "hardware/lpt_register.h"
#include "platform/druckerport.h"
#include "platform/meldungen.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// The window `drucker_fenster`: address and pins of the printer port, with a lamp for each input and a button for each
/// output. While it is open it has the port for itself.
class drucker_fenster final : public geraetefenster {
public:
    static constexpr std::size_t ausgaenge = lpt::ausgaenge;
    static constexpr std::size_t eingaenge = lpt::eingaenge.size();

    struct umgebung {
        einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
        plattform::meldungen& meldungen;
        plattform::zeitgeber_dienst& zeitgeber;
        plattform::druckerport& port;
    };

    explicit drucker_fenster(const umgebung& um);

    bezeichnung Label_adresse;
    feld lpt_text;
    bezeichnung einheit;
    bezeichnung zustand;  ///< whether there is a port at this address
    rahmen ausgangsrahmen;
    std::array<bezeichnung, ausgaenge> pin;  ///< "Pin 2" to "Pin 9"
    std::array<auswahl, ausgaenge> comb;
    std::array<haken, ausgaenge> aanzeiger;  ///< the output is active
    rahmen eingangsrahmen;
    std::array<bezeichnung, eingaenge> epin;  ///< "Pin 10" to "Pin 13", "Pin 15"
    std::array<auswahl, eingaenge> ecomb;
    std::array<haken, eingaenge> eanzeiger;
    bezeichnung Label_funktion;
    bezeichnung Label_test;
    bezeichnung Label_efunktion;
    bezeichnung Label_etest;
    bezeichnung Label_status;
    bezeichnung status;  ///< the three registers
    bezeichnung hinweis;
    befehl Command3;  ///< confirm
    befehl Command2;  ///< cancel

    void laden() override;
    void entladen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache()}; }
    /// The texts of the window.
    sprachliste sprache();

private:
    struct worte {
        std::string eingang_doppelt;
        std::string ausgang_doppelt;
        std::string adresse_falsch;
        std::string pin;
        std::string da;
        std::string fehlt;
        std::string gelb;
        std::string tankausgang;
    };

    void listen_fuellen();
    void Timer1_tick();
    void umschalten(std::size_t platz);
    /// What was switched here is as before, and the next switching goes to the port at this address.
    void port_wechseln(int lpt_basis);
    void bestaetigen();
    bool adresse_uebernehmen();

    umgebung um_;
    std::unique_ptr<plattform::zeitgeber> Timer1_;
    lpt::registersatz register_;
    std::optional<std::uint8_t> vorher_;  ///< what the outputs were before the first switching; none without any
    worte wort_;
};

}  // namespace tarvel
