#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/einstellungen.h"
#include "core/fensterregister.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "hardware/geraetefenster.h"
#include "hardware/tx_zuschauer.h"
#include "platform/dienste.h"

namespace tarvel {

/// The window of the 4x4 USB module: what its inputs mean, with a lamp for each, and every output by hand. It works on
/// the module of the race; one that is not chosen yet it opens itself.
class frm_main final : public geraetefenster, private tx_zuschauer {
public:
    static constexpr std::size_t eingaenge = 8;
    static constexpr std::size_t sensoren = 4;  ///< positions on a digital track
    static constexpr std::size_t aufbauten = 4;

    struct umgebung {
        einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
    };

    frm_main(const umgebung& um, tx_modul& modul, const plattform::dienste& dienste);

    rahmen Frame_modus;
    std::array<haken, 5> optModus;  ///< index 1 to 4 the mode, 0 none; exactly one is set
    rahmen Frame_eingang;
    rahmen Frame_analog;
    std::array<form, eingaenge> lampe_eingang;
    std::array<bezeichnung, eingaenge> Label_eingang;
    std::array<auswahl, eingaenge> tx_eingang_liste;
    rahmen Frame_digital;
    std::array<form, sensoren> lampe_sensor;
    std::array<bezeichnung, sensoren> Label_sensor;
    std::array<auswahl, sensoren> tx_sensor_liste;  ///< one function for all cars
    std::array<bezeichnung, sensoren> auto_sensor;  ///< the car that was seen there last
    rahmen Frame_standard;
    std::array<befehl, aufbauten> Command2;
    std::array<bild, aufbauten> Picture1;
    rahmen Frame_ausgang;
    bezeichnung Label_ampel;
    std::array<haken, tx::lampen> chkTraffic;
    haken chkTrafficAll;
    bezeichnung Label_strom;
    spuren<haken> chkBahnStrom;
    haken chkBahnStromAll;
    haken Check2;  ///< outputs 5 and 6 are the power of lanes 5 and 6
    rahmen Frame_meldung;
    bezeichnung hinweis;  ///< the last line of the list
    liste List1;
    befehl Command1;  ///< clears the list
    befehl Command5;  ///< looks for the module
    befehl Command6;  ///< asks for the firmware
    befehl Command7;  ///< the two maintenance commands
    befehl Command8;
    befehl Command3;  ///< takes over and closes
    befehl Command4;  ///< closes

    /// The mode, 1 to 4, where the module is not the device in force.
    int modus_vorgewaehlt = tx::kontakt_modus;
    std::function<void(int)> modus_vormerken;

    void laden() override;
    void entladen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache_e_tx3()}; }
    sprachliste sprache_e_tx3();

private:
    void notiert(const std::string& zeile) override;
    void ausgeloest(const tx::sensor& was, ereignis_art nummer) override;
    void stand_geaendert() override;

    void befehle_verbinden();
    void ausgaenge_verbinden();
    void auswahlen_fuellen();
    void werte_zeigen();
    /// The outputs as the window has them, also before that is taken over.
    int lampenausgang(int lampe) const;
    int stromausgang(int spur) const;
    void ausgaenge_zeigen();
    void modus_waehlen(std::size_t nummer);
    std::size_t gewaehlter_modus() const;
    void aufbau_setzen(std::size_t nummer);
    /// Of the inputs, and behind them of the sensors.
    form& lampe(std::size_t platz);
    void aufleuchten(std::size_t platz);
    void lampen_tick();
    void suchen();
    void uebernehmen();

    umgebung um_;
    tx_modul& modul_;
    const plattform::uhr& uhr_;
    plattform::meldungen& meldungen_;
    std::unique_ptr<plattform::zeitgeber> lampentakt_;
    std::array<zeit_ms, eingaenge + sensoren> leuchtet_bis_{};
    struct {
        std::array<std::string, 7> funktion;  ///< the last one: not the same for all cars
        std::string eingang, alle, sucht, getrennt, lampe, spur, modus_fehlt;
    } wort_;
};

}  // namespace tarvel
