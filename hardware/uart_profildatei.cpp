#include "hardware/uart_profildatei.h"

#include <algorithm>

#include "core/ordnerblick.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view endung = ".uart";
constexpr int name_laenge_max = 60;

}  // namespace

uart_profildatei::uart_profildatei(fenster_umgebung um)
    : fensterlogik(um.fenster, um.ablage, fenstername::UART_Profildatei), um_(um) {
    name.laenge_max(name_laenge_max);
    dateiliste.bei_auswahl = [this] {
        if (dateiliste.markiert() >= 0) {
            name.text(dateiliste.zeilen().at(static_cast<std::size_t>(dateiliste.markiert())));
        }
    };
    dateiliste.bei_doppelklick = [this] { uebernehmen(); };
    Command1.bei_klick = [this] { uebernehmen(); };
    Command2.bei_klick = [this] { um_.fenster.entladen(fenstername::UART_Profildatei); };
}

sprachliste uart_profildatei::sprache() {
    sprachliste texte("language/language_uart_p.txt");
    texte.ueberschrift("UART_Profildatei").text("Befehlsdatei der AT-2560 Zeitmessung", titel);
    texte.text(
        "Die Datei enthält alle Befehle und Ereignisse der Zeitmessung. Bitte eine Datei auswählen oder einen neuen "
        "Namen eingeben; eine neue Datei wird mit den jetzigen Befehlen angelegt.",
        hinweis);
    texte.text("Dateiname", Label_name).text("Übernehmen", Command1).text("Abbrechen", Command2);
    return texte.text("Dieser Dateiname ist nicht zulässig.", zeichen_text_);
}

void uart_profildatei::oeffnen(const std::string& datei) {
    bisher_ = datei;
    um_.fenster.laden(fenstername::UART_Profildatei);
    dateiliste.ansage(titel.text());
    name.ansage(Label_name.text());
    dateiliste.leeren();
    const auto vorhanden = um_.ablage.auflisten("", "", endung);
    for (const std::string& eine : vorhanden) {
        dateiliste.hinzufuegen(eine);
    }
    const auto platz = std::find(vorhanden.begin(), vorhanden.end(), datei);
    dateiliste.markieren(platz == vorhanden.end() ? -1 : static_cast<int>(platz - vorhanden.begin()));
    name.text(datei);
    um_.fenster.zeigen(fenstername::UART_Profildatei, anzeige_art::modal);
    name.fokus_setzen();
}

void uart_profildatei::uebernehmen() {
    std::string datei(gekuerzt(name.text()));
    if (datei.empty() || !dateiname_zulaessig(datei)) {
        um_.meldungen.zeigen(zeichen_text_, um_.txt.titel[1]);
        name.fokus_setzen();
        return;
    }
    if (!endet_auf(datei, endung)) {
        datei += endung;
    }
    at_profil vorlage;
    at_profil_laden(um_.ablage, bisher_, vorlage);
    if (!um_.ablage.gibt_es(datei) && !at_profil_speichern(um_.ablage, datei, vorlage)) {
        um_.meldungen.zeigen(um_.txt.meldung[26], um_.txt.titel[1]);
        return;
    }
    um_.fenster.entladen(fenstername::UART_Profildatei);
    if (gewaehlt) {
        gewaehlt(datei);
    }
}

}  // namespace tarvel
