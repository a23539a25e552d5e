#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/einstellungen.h"
#include "core/fensterregister.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "hardware/at2560_empfang.h"
#include "hardware/ausgaben.h"
#include "hardware/geraetefenster.h"
#include "platform/dienste.h"

namespace tarvel {

/// The window in which an AT-2560 is tried with the command file in force: a lamp for every event that it can tell, and
/// every output by hand. It has a port of its own.
class uart_probe final : public geraetefenster {
public:
    struct umgebung {
        const texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
    };

    uart_probe(const umgebung& um, const plattform::dienste& dienste);

    /// An event: its lamp, and the unit's word for it.
    struct kanal {
        form lampe;
        bezeichnung ereignis;
    };
    static constexpr std::size_t reihen = 6;  ///< kinds of events that each lane has one of
    static constexpr std::size_t soundsensoren = 8;
    static constexpr std::size_t lampen = 6;  ///< red 1 to 5, green

    bezeichnung zustand;  ///< what the port and the unit are doing
    befehl verbinden;
    rahmen Frame_eingaenge;
    spuren<bezeichnung> Label_spur;
    std::array<bezeichnung, reihen> Label_reihe;
    bezeichnung Label_chaos;
    bezeichnung Label_sound;
    std::array<kanal, at_ereignisse_max> kanaele;  ///< index 0 is row 1 of the command file
    rahmen Frame_ampel;
    std::array<haken, lampen> ampel;
    befehl ampel_alle_an;
    befehl ampel_alle_aus;
    haken chaosanzeige;
    haken rennende;
    rahmen Frame_strom;
    spuren<haken> strom;
    befehl strom_alle_an;
    befehl strom_alle_aus;
    rahmen Frame_meldungen;
    liste protokoll;
    bezeichnung Label_befehl;
    feld befehlstext;
    befehl senden;
    befehl seriennummer;
    befehl zuruecksetzen;
    befehl Command1;  ///< close

    at2560_anschluss anschluss;  ///< port and command file of the next opening

    /// Row of the command file with the event of a lane, of this kind from 0.
    static int zeile_von(std::size_t reihe, int spur);

    void laden() override;
    void entladen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache()}; }
    sprachliste sprache();

private:
    struct worte {
        std::string startet;
        std::string bereit;
        std::string nicht_da;
        std::string kein_port;
        std::string verloren;
        std::string unbekannt;
        std::string spur;
        std::string soundsensor;
    };

    static constexpr std::size_t schalter_anzahl = lampen + spuren_max + 2;

    /// Every output.
    std::array<haken*, schalter_anzahl> schalter();
    void befehle_verbinden();
    void ansagen();
    void kanaele_zeigen();
    void oeffnen();
    void booten();
    void boot_vorbei();
    void zustand_melden(const std::string& text);
    void port_verloren();
    bool bereit() const;
    void bedienbar(bool an);
    void notieren(std::string_view zeile);
    void sagen(const std::string& text);
    void schalten(const schaltung& befehl);
    void alles_aus();
    void empfangen(std::string_view bytes);
    void ereignis_zeigen(const at_meldung& meldung);
    void lampen_tick();

    umgebung um_;
    plattform::meldungen& meldungen_;
    const plattform::uhr& uhr_;
    std::unique_ptr<plattform::serienport> port_;
    std::unique_ptr<plattform::zeitgeber> bootzeit_;
    std::unique_ptr<plattform::zeitgeber> lampentakt_;
    at_profil profil_;
    at_empfang empfang_;
    std::array<zeit_ms, at_ereignisse_max> leuchtet_bis_{};  ///< machine's clock
    worte wort_;
};

}  // namespace tarvel
