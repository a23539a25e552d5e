#include "hardware/usbtest.h"

namespace tarvel {

sprachliste usbtest::sprache() {
    sprachliste texte("language/language_e_usb1.txt");
    texte.ueberschrift("USB Modultest").text("USB Modultest", titel);
    texte.text(
        "Bei Auslösen eines Kontaktes am USB-Modul wird diese hier angezeigt. Für Bahnstromabschaltung, Ampel und "
        "Chaosanzeige können die Felder angeklickt werden, um die Übertragung und Schaltung am Modul zu kontrollieren.",
        hinweis);
    for (std::size_t port = 0; port < ports; ++port) {
        texte.text("Port " + std::to_string(port), Frame.at(port));
    }
    texte.text("Wert:", wort_.wert).text("lesen", lesen).text("setzen", setzen);
    texte.text("Meldungen des Moduls", Label_protokoll).text("Vorlagen", vorlagen);
    texte.text("IO-W 40 / 56 Einstellungen", Command1).text("IO-W 24 / 4 Spur Einstellungen", Command2);
    texte.text("IO-W 24 / 2 Spur Einstellungen", Command4).text("RESET IO-W", Command5);
    texte.text("Werkseinstellungen", Command7).text("Zuordnungsdatei", Label_datei).text("Speichern", Command3);
    texte.text("öffnen", Command8).text("Schließen", Command6).text("neue Profildatei öffnen", oeffnen_rahmen);
    texte.text("Laden", Command10).text("Abbrechen", Command9);
    texte.text("Ein Ereignis wurde mehrfach einem Port zugewiesen.", wort_.doppelt);
    texte.text("Die Bibliothek iowkit fehlt, ohne sie ist das Modul nicht erreichbar.", wort_.ohne_bibliothek);
    texte.text("Der Bibliothek iowkit fehlt der Aufruf", wort_.ohne_ruf);
    texte.text("Kein Modul angeschlossen", wort_.keine_box).text("Verbunden:", wort_.verbunden);
    texte.text("Das Modul wurde abgezogen", wort_.getrennt).text("Kontakt", wort_.lampe);
    texte.text("Ausgang schalten", wort_.schalten).text("Funktion", wort_.funktion);
    texte.text("Dieser Dateiname ist nicht zulässig.", wort_.name);
    texte.text("angehalten, weiter mit „lesen“", wort_.angehalten);
    texte.text("läuft weiter", wort_.weiter);
    texte.text("gespeichert", wort_.gespeichert).text("geladen", wort_.geladen);
    return texte.text("Das Modul nimmt nichts mehr an, bitte aus- und wieder einstecken.", wort_.haengt);
}

void usbtest::ansagen_setzen() {
    protokoll.ansage(Label_protokoll.text());
    iow_profildatei.ansage(Label_datei.text());
    dateiliste.ansage(oeffnen_rahmen.text());
    for (std::size_t platz = 0; platz < iow_bits; ++platz) {
        const std::string pin = pin_name(platz);
        Label.at(platz).text(pin);
        lampe.at(platz).ansage(pin + ", " + wort_.lampe);
        combo_c.at(platz).ansage(pin + ", " + wort_.funktion);
        c.at(platz).ansage(pin + ", " + wort_.schalten);
        c.at(platz).tipp(wort_.schalten);
        combo_c.at(platz).eintraege({um_.txt.ereignis_name.begin(), um_.txt.ereignis_name.end()});
    }
    for (std::size_t port = 0; port < ports; ++port) {
        Label_wert.at(port).text(wort_.wert);
        tp.at(port).ansage(Frame.at(port).text() + ", " + wort_.wert);
    }
}

}  // namespace tarvel
