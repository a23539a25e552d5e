#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "core/sprache.h"
#include "core/spuren.h"

namespace tarvel {

inline constexpr std::string_view programm_version = "2.23";
inline constexpr std::string_view programm_name = "Tarvel";

/// What the counter of a lane shows that is out.
inline constexpr std::string_view disqualifiziert_text = "Dis.";

/// The texts that several windows share, with their German defaults.
struct texte {
    texte();

    void sprache_m1_laden(const dateien& ablage) { sprache_m1().anwenden(ablage); }
    void sprache_tx1_laden(const dateien& ablage) { sprache_tx1().anwenden(ablage); }
    void sprache_usb2_laden(const dateien& ablage) { sprache_usb2().anwenden(ablage); }
    /// The language files of the shared texts.
    std::vector<sprachliste> alle_gruppen();

    std::string text_zeit;  ///< the kinds of race; always compared with these two, never with a literal
    std::string text_runden;
    std::string text_runde;    ///< behind the number one
    std::string text_mehrere;  ///< and behind any other
    std::string runden(int anzahl) const {
        return std::to_string(anzahl) + " " + (anzahl == 1 ? text_runde : text_mehrere);
    }
    std::array<std::string, 2> titel;
    std::array<std::string, 28> meldung;  ///< index 1 to 27
    std::array<std::string, 12> datei_text;
    static constexpr std::size_t abbrechen = 10;  ///< the place of that word among them
    std::string ja, nein;
    std::string handbuch_fehlt;  ///< before the name of the file
    std::string gespeichert;     ///< likewise
    struct dateiworte {
        std::string gespeichert, oeffnen, ordner, kein_programm, schliessen;
    } papierdatei;  ///< said of a page that has been saved

    std::string werbetext = "w w w . t a r v e l . e x a m p l e";  ///< a line shown in the race window
    std::string kein_fahrer = "kein Fahrer";
    std::string frei_text;  ///< name of a place without a driver, perhaps with a number behind it
    /// That name in every other language of the program: an evening planned in one of them may go on in this one.
    std::vector<std::string> frei_anderswo;
    bool ist_freier_platz(std::string_view name) const;
    spuren<std::string> fahrer_standard;
    std::string standardfahrzeug_text;
    std::vector<std::string> fahrzeuge_standard{"Formel 1",       "Porsche GT3", "Peugeot 206", "Peugeot 307",
                                                "Subaru Impreza", "Viper",       "Corvette",    "Mini Cooper S"};
    std::array<std::string, 8> hardware_name;
    std::array<std::string, 5> spurmodus_name;  ///< track modes of a digital-capable device
    std::string nicht_aktiv_text;
    struct {
        std::string laden, stand_speichern, einstellungen_uebernehmen, ladefehler;
        std::string das_rennen, in_runde, unterbrochen, gefahren;  ///< a race that was cut off
        std::string weiterfahren, spaeter, naechstes, von_vorn;    ///< answers
        std::string keines, nicht_fortsetzbar, ohne_protokoll;
        std::string der_wettkampf, vom, nicht_beendet;  ///< an evening that was cut off, around its name and day
    } wettkampf;
    std::array<std::string, 20> tx_text;  ///< of the 4x4 USB module
    /// Name of a mode of that module, 1 to 4; any other number is none.
    const std::string& tx_modus(int nummer) const {
        constexpr int kein_modus = 6;
        return tx_text.at(static_cast<std::size_t>(nummer >= 1 && nummer <= 4 ? nummer + 1 : kein_modus));
    }
    std::array<std::string, 60> ereignis_name;  ///< index is the event number

private:
    sprachliste sprache_m1();
    sprachliste sprache_tx1();
    /// The names of the events, from the last to the first.
    sprachliste sprache_usb2();
};

}  // namespace tarvel
