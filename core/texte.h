#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/spuren.h"

namespace tarvel {

inline constexpr std::string_view programm_version = "2.23";
inline constexpr std::string_view programm_name = "Tarvel";

/// The texts that several windows share, with their German defaults.
struct texte {
    texte();

    std::string text_zeit = "Zeit";  ///< the kinds of race; always compared with these two, never with a literal
    std::string text_runden = "Runden";
    std::array<std::string, 2> titel{"Hinweis", "Fehlermeldung"};
    std::array<std::string, 28> meldung;  ///< index 1 to 27
    std::array<std::string, 12> datei_text{"Speichern",
                                           "Speichern unter",
                                           "Laden",
                                           "Laden von",
                                           "Einstellungen speichern",
                                           "Einstellungen laden",
                                           "Fahrzeugliste laden",
                                           "Fahrzeugliste speichern",
                                           "Fahrerliste laden",
                                           "Fahrerliste speichern",
                                           "Abbrechen",
                                           "Alle Dateien anzeigen *.*"};

    std::string werbetext = "w w w . t a r v e l . e x a m p l e";  ///< a line shown in the race window
    std::string kein_fahrer = "kein Fahrer";
    spuren<std::string> fahrer_standard;
    std::string standardfahrzeug_text = "Standardfahrzeug";
    std::vector<std::string> fahrzeuge_standard{"Formel 1",       "Porsche GT3", "Peugeot 206", "Peugeot 307",
                                                "Subaru Impreza", "Viper",       "Corvette",    "Mini Cooper S"};
    std::array<std::string, 8> hardware_name{"Simulationsmodus",     "IOW 40 USB", "Race Control",
                                             "Druckeranschluss",     "4x4 USB",    "Timekeeper",
                                             "Carrera Control Unit", "AT-2560 USB"};
};

}  // namespace tarvel
