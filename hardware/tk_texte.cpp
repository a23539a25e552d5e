#include "hardware/tk_einstellungen.h"

namespace tarvel {

sprachliste tk_einstellungen::sprache_e_tk() {
    sprachliste texte("language/language_e_tk.txt");
    texte.ueberschrift("Timekeeper").text("Tarvel Timekeeper Einstellungen", titel);
    texte.text("TK - Modus", Frame_modus).text("Modus 0 - deaktiv", Option[0]).text("Analogmodus", Option[1]);
    texte.text("Digital 124/132", Option[2]).text("Digital 143", Option[3]);
    texte.text("Sensorergebnisse", Frame_sensoren).text("Ampel", Frame_ampel);
    for (std::size_t lampe = 0; lampe < gruen; ++lampe) {
        texte.text("Ampel rot " + std::to_string(lampe + 1), ampel_check.at(lampe));
    }
    texte.text("Ampel grün", ampel_check[gruen]).text("Ampel gelb/Chaos", ampel_check[gelb]);
    texte.text("Rennende", ampel_check[rennende]).text("alle an", ampel_alle_an).text("alle aus", ampel_alle_aus);
    texte.text("Relais", Frame_relais);
    for (const int spur : alle_spuren) {
        texte.text("Spur " + std::to_string(spur), relais_check[spur]);
    }
    texte.text("alle an", relais_alle_an).text("alle aus", relais_alle_aus);
    texte.text("Firmwareversion", Frame_firmware).text("abfragen", firmware_lesen);
    for (const int spur : alle_spuren) {
        texte.text("open " + std::to_string(spur), debug_open[spur]);
    }
    texte.tipp_fuer_alle("schreibt alles, was das Gerät bis „close“ sendet, in die Datei tk_debug_info-… der Spur",
                         debug_open);
    texte.text("close", debug_close).text("Protokoll", Frame_log).text("tk-command", Label_command);
    texte.text("Send", Send).text("Gerät suchen", suchen).text("Einstellungsdatei", Label_datei);
    texte.text("Laden", Laden).text("Werkseinstellungen", Werkseinstellungen).text("Speichern", Speichern);
    texte.text("Abbrechen", Abbrechen);
    texte.text("Kein Modus aktiv", wort_.modus[0]).text("Modus 1 - Analog", wort_.modus[1]);
    texte.text("Modus 2 - Digital 124, 132", wort_.modus[2]).text("Modus 2 - Digital 143", wort_.modus[3]);
    texte.text("Die Datei konnte nicht geschrieben werden.", wort_.nicht_geschrieben);
    texte.text("Der Timekeeper USB ist nicht zu erreichen. Bitte das Kabel prüfen.", wort_.weg);
    return texte.text(
        "Kein Timekeeper USB angeschlossen, starte im Simulationsmodus. Bitte in den Einstellungen Messhardware "
        "auswählen.",
        wort_.nicht_da);
}

std::string tk_einstellungen::nicht_da() {
    texte_lesen();
    return wort_.nicht_da;
}

std::string tk_einstellungen::weg() {
    texte_lesen();
    return wort_.weg;
}

void tk_einstellungen::ansagen() {
    List1.ansage(Frame_log.text());
    tk_command.ansage(Label_command.text());
    tk_datei.ansage(Label_datei.text());
    std::vector<std::string> arten;
    for (const ereignis_art art : tk_eingaenge()) {
        arten.push_back(um_.txt.ereignis_name.at(static_cast<std::size_t>(art)));
    }
    for (std::size_t i = 0; i < kanaele.size(); ++i) {
        kanal& k = kanaele.at(i);
        k.sensornum.text(std::to_string(i + 1));
        k.sensorart.eintraege(arten);
        k.sensorart.ansage(Frame_sensoren.text() + " " + k.sensornum.text());
        k.ergebnis.text("");
        k.lampe.hintergrund({});
    }
}

}  // namespace tarvel
