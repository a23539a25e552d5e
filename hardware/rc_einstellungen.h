#pragma once

#include <array>
#include <map>
#include <memory>
#include <string>

#include "core/einstellungen.h"
#include "core/fensterregister.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "hardware/geraetefenster.h"
#include "hardware/rc_verbindung.h"
#include "platform/meldungen.h"
#include "platform/serienport.h"
#include "platform/uhr.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// The window `rc_einstellungen`: starts a Race Control box step by step, shows what its sensors do, and says which
/// lane each of them stands in. It looks on while the device has the line, and takes it over with a command.
class rc_einstellungen final : public geraetefenster, private rc_hoerer {
public:
    struct umgebung {
        einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
        const plattform::uhr& uhr;
        plattform::zeitgeber_dienst& zeitgeber;
        const plattform::serienport_dienst& serienports;
        plattform::meldungen& meldungen;
    };

    struct sensorzeile {
        bezeichnung name;
        form SensorLED;  ///< a car stands in it, or has just passed
        auswahl selSpur;
        bezeichnung SensorTime;  ///< of its last passage, on the box's clock
        bezeichnung SensorTimeStamp;
        bezeichnung anzahl;  ///< passages since the window opened
    };

    rc_einstellungen(const umgebung& um, rc_verbindung& verbindung);

    rahmen Frame_box;
    bezeichnung Label_port;
    auswahl selComPort;
    befehl doInit;  ///< opens the port and activates the box
    befehl doStop;
    bezeichnung status;
    bezeichnung Label_uhr;
    bezeichnung boxuhr;
    rahmen Frame_sensoren;
    std::array<bezeichnung, 5> Label_spalte;  ///< of the columns: occupied, lane, time, ticks, passages
    std::array<sensorzeile, rc_verbindung::sensoren> sensoren;
    haken check_rctank;
    haken check_rcziel;
    rahmen Frame_status;
    liste List1;      ///< the steps
    befehl Command1;  ///< keeps lanes and port, and closes
    befehl Command2;

    /// Opens the window with this port in its choice.
    void oeffnen(const std::string& port);
    void laden() override;
    void entladen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache()}; }
    sprachliste sprache();

private:
    void rc_geschehen(rc_schritt schritt) override;
    void rc_meldet(const rc_kontakt& kontakt) override;

    void uebernehmen_in_eigene_hand();
    void werte_zeigen();
    void sensoren_leeren();
    void ansagen_setzen();
    bool werte_zulaessig() const;
    void uebernehmen();
    void rc_akt_tick();
    const std::string& schritttext(rc_schritt schritt) { return schritttexte_[schritt]; }

    umgebung um_;
    rc_verbindung& verbindung_;
    std::unique_ptr<plattform::zeitgeber> rc_akt_timer_;  ///< keeps the display; runs while the window is open
    std::map<rc_schritt, std::string> schritttexte_;
    std::string spur_;
    std::string sensor_;
    std::string nicht_aktiv_;
    std::string offline_;
    std::string unzulaessig_;
    std::array<int, rc_verbindung::sensoren> gezaehlt_{};
    std::array<bool, rc_verbindung::sensoren> steht_{};            ///< a car is in it
    std::array<zeit_ms, rc_verbindung::sensoren> leuchtet_bis_{};  ///< machine's clock: for eyes to see that one was
    std::uint32_t stempel_ = 0;                                    ///< of the box's clock, as last seen
    zeit_ms bewegt_ = 0;                                           ///< machine's clock: when it was last seen to move
    bool eigene_ = false;  ///< the line is as this window has left it, no longer the device's
};

}  // namespace tarvel
