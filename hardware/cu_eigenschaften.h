#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/einstellungen.h"
#include "core/fensterregister.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "hardware/cu_leitung.h"
#include "hardware/geraetefenster.h"
#include "platform/meldungen.h"

namespace tarvel {

/// The window in which a Control Unit is looked for, tried and set up. While it is open it has the unit's port to
/// itself.
class cu_eigenschaften final : public geraetefenster {
public:
    struct umgebung {
        einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
    };

    cu_eigenschaften(const umgebung& um, const plattform::dienste& dienste);

    rahmen Frame_port;
    bezeichnung Label_port;
    auswahl cbo_cu_comport;  ///< entry 0 is no port, entry n is COMn
    befehl Command1;         ///< close the port
    befehl Command2;         ///< open it
    befehl Command8;         ///< look for the unit on all ports
    bezeichnung Label_start;
    form lampe_start;   ///< the unit's light is in its start state
    befehl starttaste;  ///< presses the unit's start key
    rahmen Frame_optionen;
    haken opt_cu_tankautomatik;
    haken opt_cu_prgstart;
    haken opt_cu_alterRZ;
    rahmen Frame_wagen;
    bezeichnung Label_wagen;  ///< captions of the columns
    bezeichnung Label_runden;
    bezeichnung Label_zeit;
    bezeichnung Label_tank;
    bezeichnung Label_tankgroesse;
    bezeichnung Label_box;
    spuren<form> lampe_wagen;  ///< lit for a moment when the car has passed a sensor
    spuren<bezeichnung> wagen;
    spuren<bezeichnung> rundenanzeige;
    spuren<bezeichnung> zeitanzeige;
    spuren<bezeichnung> tank;
    spuren<auswahl> cbo_cu_tankgroesse;
    spuren<form> Shape1;  ///< the car is in the pit lane
    rahmen Frame_status;
    liste List1;
    haken timer_aus;   ///< no polls
    befehl Command9;   ///< writes the list to a file
    befehl Command3;   ///< asks for the version
    befehl Command6;   ///< resets the unit
    befehl Command14;  ///< laps of the leader to the display
    rahmen Frame_senden;
    bezeichnung Label_befehl;
    feld Text1;
    befehl Command7;  ///< sends it as it stands
    rahmen Frame_codieren;
    std::array<bezeichnung, 4> Label_code;  ///< captions of the next four
    feld Text2;                             ///< number of the command, 0 to 15
    feld Text3;                             ///< controller, 1 to 6
    feld Text4;                             ///< value, 0 to 99
    feld Text5;                             ///< check character, filled in here
    befehl Command10;
    befehl Command4;  ///< keeps the options and closes

    /// What the next opening shows, where it is not what the settings say.
    std::optional<control_unit_einstellungen> vorgewaehlt;

    void laden() override;
    void entladen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache_e_cu()}; }
    sprachliste sprache_e_cu();

private:
    void befehle_verbinden();
    void anzeigen_leeren();
    void lampen_tick();
    void melden(std::string_view zeile);
    /// A line of the window's own.
    void hinweisen(const std::string& text) { melden(" +++ " + text); }
    /// The port is open; else says so.
    bool port_bereit();
    void oeffnen();
    void senden(const std::string& befehl);
    void codieren();
    void suche_beginnen();
    void port_tick();
    void suche_fortsetzen();
    void suche_beenden(int gefunden);
    void abfrage_tick();
    void auswertung_tick();
    void protokollieren(const std::string& satz);
    void verarbeiten(std::monostate /*nichts*/) {}
    void verworfene_melden(int anzahl);
    void verarbeiten(const cu::ueberfahrt& ueberfahrt);
    void verarbeiten(const cu::status& status);
    void verarbeiten(const cu::rundenzaehler& /*zaehler*/) {}
    void proto_schreiben();
    void uebernehmen();

    umgebung um_;
    plattform::meldungen& meldungen_;
    const plattform::serienport_dienst& ports_;
    const plattform::uhr& uhr_;
    cu_leitung leitung_;
    std::unique_ptr<plattform::zeitgeber> Timer1_;      ///< polls
    std::unique_ptr<plattform::zeitgeber> Timer2_;      ///< takes a record
    std::unique_ptr<plattform::zeitgeber> port_timer_;  ///< the next port of the search
    std::unique_ptr<plattform::zeitgeber> lampentakt_;

    std::vector<int> zu_pruefen_;  ///< COM numbers that the search has not tried yet, the next one last
    int prueft_ = 0;               ///< the one that it tries, 0 none
    std::string letzter_status_;   ///< what is repeated is not listed again
    cu::summenpruefung summenpruefung_;
    int verworfen_ = 0;  ///< damaged passages since the port is open here
    spuren<int> runden_;
    spuren<zeit_ms> stempel_;
    spuren<zeit_ms> leuchtet_bis_;  ///< machine's clock

    bool antwort_erwartet_ = false;  ///< to a command, while nothing polls

    struct worte {
        std::string kein_port;
        std::string port_fehlt;
        std::string nicht_gesendet;
        std::string geschlossen;  ///< lines of the status list
        std::string geoeffnet;
        std::string nicht_geoeffnet;
        std::string wird_geprueft;
        std::string gefunden;
        std::string nicht_gefunden;
        std::string geschrieben;
        std::string nicht_geschrieben;
        std::string verworfen;
    };
    worte wort_;
};

}  // namespace tarvel
