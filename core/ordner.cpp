#include "core/ordner.h"

#include <array>
#include <string>
#include <string_view>

namespace tarvel {

void bestzeiten_umziehen(const dateien& ablage) {
    const auto namen = ablage.auflisten("", "", ".bst");
    for (auto name = namen.rbegin(); name != namen.rend(); ++name) {
        if (!ablage.kopieren(*name, "Ergebnisse\\Bestzeiten\\" + *name) || !ablage.loeschen(*name)) {
            return;
        }
    }
}

void ergebnis_ordner_anlegen(const dateien& ablage) {
    constexpr std::array<std::string_view, 6> ordner{"Ergebnisse",
                                                     "Ergebnisse\\Einzelrennen",
                                                     "Ergebnisse\\auto-Einzelrennen",
                                                     "Ergebnisse\\Wettkampf",
                                                     "Ergebnisse\\Wettkampf-Zwischenstand",
                                                     "Ergebnisse\\Tagesrennen"};
    for (const std::string_view name : ordner) {
        ablage.ordner_anlegen(name);
    }
}

void auto_dateien_loeschen(const dateien& ablage) {
    struct muster {
        std::string_view ordner;
        std::string_view anfang;
        std::string_view ende;
    };
    constexpr std::array<muster, 3> auto_dateien{{{".", "auto-", ".csv"},
                                                  {"Ergebnisse\\auto-Einzelrennen", "auto-", ".csv"},
                                                  {"Ergebnisse\\Wettkampf-Zwischenstand", "", ".wta"}}};
    for (const muster& gesucht : auto_dateien) {
        for (const std::string& name : ablage.auflisten(gesucht.ordner, gesucht.anfang, gesucht.ende)) {
            ablage.loeschen(std::string(gesucht.ordner) + "\\" + name);
        }
    }
}

}  // namespace tarvel
