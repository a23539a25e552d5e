#include "core/ordner.h"

#include <array>
#include <chrono>
#include <string>
#include <string_view>

namespace tarvel {
namespace {

constexpr std::array<std::string_view, 6> ergebnis_ordner_namen{"Ergebnisse",
                                                                "Ergebnisse\\Einzelrennen",
                                                                "Ergebnisse\\auto-Einzelrennen",
                                                                "Ergebnisse\\Wettkampf",
                                                                "Ergebnisse\\Wettkampf-Zwischenstand",
                                                                "Ergebnisse\\Tagesrennen"};

}  // namespace

void bestzeiten_umziehen(const dateien& ablage) {
    const auto namen = ablage.auflisten("", "", ".bst");
    for (auto name = namen.rbegin(); name != namen.rend(); ++name) {
        if (!ablage.kopieren(*name, "Ergebnisse\\Bestzeiten\\" + *name) || !ablage.loeschen(*name)) {
            return;
        }
    }
}

void ergebnis_ordner_anlegen(const dateien& ablage) {
    for (const std::string_view name : ergebnis_ordner_namen) {
        ablage.ordner_anlegen(name);
    }
}

void schreibreste_loeschen(const dateien& ablage) {
    const auto aufraeumen = [&ablage](std::string_view ordner) {
        if (ablage.ist_eigener_ordner(ordner)) {
            ablage.reste_loeschen(ordner);
        }
    };
    for (const std::string_view ordner :
         {"", "Einstellungen", "Listen", "pictures", "slotcars", "Ergebnisse\\Bestzeiten"}) {
        aufraeumen(ordner);
    }
    for (const std::string_view ordner : ergebnis_ordner_namen) {
        aufraeumen(ordner);
    }
}

void papierkorb_leeren(const dateien& ablage) {
    constexpr std::chrono::days frist{30};
    if (ablage.ist_eigener_ordner(papierkorb)) {
        ablage.aeltere_loeschen(papierkorb, frist);
    }
}

void auto_dateien_wegraeumen(const dateien& ablage) {
    if (!ablage.ist_eigener_ordner(papierkorb)) {
        return;
    }
    struct muster {
        std::string_view ordner;
        std::string_view anfang;
        std::string_view ende;
    };
    constexpr std::array<muster, 3> auto_dateien{{{".", "auto-", ".csv"},
                                                  {"Ergebnisse\\auto-Einzelrennen", "auto-", ".csv"},
                                                  {"Ergebnisse\\Wettkampf-Zwischenstand", "", ".wta"}}};
    for (const muster& gesucht : auto_dateien) {
        if (!ablage.ist_eigener_ordner(gesucht.ordner)) {
            continue;
        }
        for (const std::string& name : ablage.auflisten(gesucht.ordner, gesucht.anfang, gesucht.ende)) {
            ablage.wegraeumen(std::string(gesucht.ordner) + "\\" + name, papierkorb);
        }
    }
}

}  // namespace tarvel
