#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/einstellungen.h"
#include "core/fensterregister.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "hardware/geraetefenster.h"
#include "hardware/iow_bericht.h"
#include "hardware/iow_leitung.h"
#include "hardware/iow_pins.h"
#include "hardware/iow_profil.h"
#include "platform/meldungen.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// The window `usbtest`: what each pin of the IO board means, with a lamp for every contact and a tick box for every
/// output. While it is open it has the board for itself.
class usbtest final : public geraetefenster {
public:
    static constexpr std::size_t ports = iow_ports;
    static constexpr std::size_t bits_je_port = iow_bits_je_port;

    struct umgebung {
        einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
        plattform::meldungen& meldungen;
        plattform::zeitgeber_dienst& zeitgeber;
        plattform::abtaster_dienst& abtaster;
        std::shared_ptr<iow_bibliothek> bibliothek;
    };

    explicit usbtest(const umgebung& um);

    bezeichnung hinweis;
    bezeichnung zustand;                      ///< which board is there, or what is missing
    std::array<rahmen, ports> Frame;          ///< "Port 0" to "Port 3"
    std::array<bezeichnung, iow_bits> Label;  ///< "P0,0" to "P3,7"
    std::array<haken, iow_bits> lampe;        ///< set while the contact is closed or the output active
    std::array<auswahl, iow_bits> combo_c;
    std::array<haken, iow_bits> c;  ///< switches an output; only there for these
    std::array<bezeichnung, ports> Label_wert;
    std::array<feld, ports> tp;  ///< value of a port, 0 to 255
    befehl lesen;
    befehl setzen;
    bezeichnung Label_protokoll;
    liste protokoll;
    rahmen vorlagen;
    befehl Command1;  ///< "IO-W 40 / 56 Einstellungen"
    befehl Command2;  ///< "IO-W 24 / 4 Spur Einstellungen"
    befehl Command4;  ///< "IO-W 24 / 2 Spur Einstellungen"
    befehl Command5;  ///< "RESET IO-W"
    befehl Command7;  ///< "Werkseinstellungen"
    bezeichnung Label_datei;
    feld iow_profildatei;
    befehl Command3;  ///< save
    befehl Command8;  ///< open a file
    befehl Command6;  ///< close
    rahmen oeffnen_rahmen;
    bezeichnung muster;  ///< which files the list shows
    liste dateiliste;
    befehl Command10;  ///< load it
    befehl Command9;   ///< leave it

    void laden() override;
    void entladen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache()}; }
    /// The texts of the window.
    sprachliste sprache();

private:
    struct worte {
        std::string ohne_bibliothek;
        std::string ohne_ruf;
        std::string keine_box;
        std::string verbunden;
        std::string getrennt;
        std::string haengt;
        std::string doppelt;
        std::string wert;
        std::string lampe;
        std::string schalten;
        std::string funktion;
        std::string name;
        std::string gespeichert;
        std::string geladen;
        std::string angehalten;
        std::string weiter;
    };

    static std::string pin_name(std::size_t platz);
    void verbinden(bool auch_ohne_melden);
    void verbunden_melden();
    /// Why there is no board.
    std::string hindernis() const;
    void zustand_melden(const std::string& text);
    void notieren(std::string_view text);
    void takt_tick();
    ereignis_art zuordnung(std::size_t platz) const;
    const std::string& ereignis_zuordnung_name(std::size_t platz) const;
    void kontakte_notieren(std::uint32_t geschlossene);
    void lebenstakt_tick();
    void lampen_zeigen();

    iow_profil profil() const;
    void profil_zeigen(const iow_profil& neu, std::size_t sichtbare_ports);
    void zuordnung_geaendert();
    /// Holds the pins of the outputs that are ticked, and no others.
    void ausgaenge_schreiben();
    void werte_lesen();
    void werte_setzen();
    void ruecksetzen();
    /// The lamps stay as they are until what the pins say is read again.
    void ruecksetzen_und_anhalten();
    void lampen_weiter();
    bool doppelt_pruefen() const;
    void speichern();
    /// The program measures with this file from now on.
    void profil_gilt(const std::string& name, const std::string& wodurch);
    void dateien_zeigen();
    void dateiwahl_zeigen(bool zeigen);
    void laden_klick();
    void ansagen_setzen();

    umgebung um_;
    std::unique_ptr<plattform::zeitgeber> Timer1_;
    std::unique_ptr<plattform::zeitgeber> lebenstakt_;  ///< looks whether the board is still, or again, there
    iow_leitung leitung_;
    std::shared_ptr<kontaktproben> proben_ = std::make_shared<kontaktproben>(0);  ///< of the board that is open
    std::uint32_t linien_ = 0;                                                    ///< closed contacts as last heard of
    worte wort_;
};

}  // namespace tarvel
