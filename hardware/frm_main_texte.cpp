#include "hardware/frm_main.h"

namespace tarvel {

sprachliste frm_main::sprache_e_tx3() {
    sprachliste texte("language\\language_e_tx3.txt");
    texte.ueberschrift("frmMain").text("Tarvel 4x4 USB Einstellungen", titel).text("Modus", Frame_modus);
    texte.text("Belegung Eingangssignale", Frame_eingang).text("Analogrennen", Frame_analog);
    texte.text("Digitalrennen", Frame_digital).text("Rundenzähler", wort_.funktion[0]);
    texte.text("Tanksensor EIN", wort_.funktion[1]).text("Tanksensor AUS", wort_.funktion[2]);
    texte.text("keine Funktion", wort_.funktion[3]).text("Zwischenzeit 1", wort_.funktion[4]);
    texte.text("Zwischenzeit 2", wort_.funktion[5]).text("je Auto verschieden", wort_.funktion[6]);
    texte.text("Standardeinstellungen", Frame_standard).text("4 Spur - ohne Boxengasse", Command2[0]);
    texte.text("2 Spur - 2 Spur Boxe", Command2[1]).text("2 Spur - 1 Spur Boxe", Command2[2]);
    texte.text("2 Spur ohne Boxengasse", Command2[3]).text("Ausgangssignale", Frame_ausgang);
    texte.text("Alle an/aus", [this](const std::string& wort) {
        chkTrafficAll.text(wort);
        chkBahnStromAll.text(wort);
    });
    texte.text("Ampel rot", Label_ampel).text("Bahnstrom", Label_strom);
    texte.text("Ampelausgänge 4 und 5 als Bahnstromabschaltung für Spuren 5 und 6 verwenden", Check2);
    texte.text("Meldungen", Frame_meldung).text("Anzeige löschen", Command1).text("Suchen", Command5);
    texte.text("Firmware", Command6).text("Anmelden", Command7).text("Wartung", Command8);
    texte.text("Übernehmen", Command3).text("Schließen", Command4).text("Eingang", wort_.eingang);
    texte.text("Das Modul wird gesucht …", wort_.sucht).text("Kein Modul verbunden", wort_.getrennt);
    texte.text("Rot", wort_.lampe).text("Spur", wort_.spur);
    texte.text(
        "Ohne Modus misst das Modul nicht. Bitte einen Modus wählen, oder mit „Schließen“ den bisherigen behalten.",
        wort_.modus_fehlt);
    texte.tipp("Das Modul meldet sich neu an und stellt seine Ausgänge zurück.", Command7);
    return texte.ansage("Meldungen des Moduls", List1);
}

}  // namespace tarvel
