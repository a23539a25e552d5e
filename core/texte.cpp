#include "core/texte.h"

#include <algorithm>
#include <cstddef>

namespace tarvel {

namespace {

constexpr std::size_t meldungen_anzahl = 27;

constexpr std::array<std::string_view, meldungen_anzahl> meldungen{
    "Keine Tarvel IOW40 Box angeschlossen, starte im Simulationsmodus. Bitte in den Einstellungen Messhardware "
    "auswählen.",
    "Fehler beim Schreiben der Datei. Die Fahrzeugliste wurde nicht gespeichert.",
    "Fehler beim Schreiben der Datei. Die Fahrerliste wurde nicht gespeichert.",
    "Fehler beim Schreiben der Datei. Die Einstellungen wurde nicht gespeichert.",
    "Fehler beim Einlesen der Datei. Die Einstellungen wurden nicht geladen.",
    " nicht lesbar. Standardwerte werden eingestellt.",
    "Fahrzeugliste konnte nicht geladen werden. Die Liste wird mit den Standardtypen erstellt.",
    "Fahrerliste konnte nicht geladen werden. Die Liste wird mit den Standardnamen erstellt.",
    "Dies ist keine gültige Tarvel Datei. Die Datei wird mit den Standardeinstellungen neu erstellt.",
    "Programm ist bereits gestartet",
    "USB Zuordnung kann nicht geladen werden. Standardwerte werden eingestellt",
    "Keine Spuren ausgewählt, Auswahl bitte wiederholen.",
    "Unzulässige Zeit-/ Rundenangaben, Werte bitte überprüfen.",
    "COM-Port kann nicht geöffnet werden.",
    "Unbekannter Fehler.",
    "RaceControl kann nicht aktiviert werden.",
    "Rennabbruch: Frühstart",
    "Startabbruch",
    "Zu ladende Einstellungen stammen von einer anderen Tarvel Version. Ggf. können nicht alle Einstellungen "
    "übernommen werden.",
    "Bestzeiten konnten nicht geladen werden.",
    "Bestzeiten konnten nicht gespeichert werden.",
    "Timekeeper-Einstellungen konnten nicht gespeichert werden.",
    "Timekeeper-Einstellungen konnten nicht geladen werden.",
    "Fehler beim Schreiben der Datei trennzeichen.ini. Werte wurden nicht geschrieben.",
    "Fehler beim Lesen der Datei trennzeichen.ini. Standardwerte wurden gesetzt.",
    "Fehler beim Lesen/Schreiben der AT-2560 Befehlsdatei. Zeitmessung ggf. nicht einsatzbereit!",
    "AT-2560 Zeitmessung kann nicht geöffnet werden - bitte Hardwareeinstellungen und COM-Port prüfen/einstellen.",
};

constexpr std::array<std::string_view, 12> datei_texte{"Speichern",
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

constexpr std::array<std::string_view, 8> hardware_namen{"Simulationsmodus",     "IOW 40 USB", "Race Control",
                                                         "Druckeranschluss",     "4x4 USB",    "Timekeeper",
                                                         "Carrera Control Unit", "AT-2560 USB"};

constexpr std::array<std::string_view, 5> modus_namen{"Kein Modus", "Analog", "Digital 124/132", "Digital 143",
                                                      "Fehler"};

constexpr std::array<std::string_view, 20> tx_texte{"Spur/Auto",
                                                    "Sensorposition",
                                                    "Digital IR-Modus",
                                                    "PRO-X Lochposition",
                                                    "PRO-X Lochzählung",
                                                    "Kontakt Modus",
                                                    "kein Modus",
                                                    "Langer Tastendruck",
                                                    "Normaler Tastendruck",
                                                    "Fehlernummer:",
                                                    "Kann 4x4 USB nicht öffnen",
                                                    "4x4 USB am COM-Port",
                                                    "4x4 USB kann nicht aktiviert werden",
                                                    "Bitte das Modul aus-/einstecken!",
                                                    "4x4 USB aktiviert"};

constexpr int ereignisse_max = 59;
constexpr int letztes_uebersetztes = 52;  // the chaos buttons of the drivers were added behind the files' names

std::string ereignis_deutsch(int art) {
    struct reihe {
        int erste;
        int anzahl;
        std::string_view stamm;
        int beginn;   // number in the first name
        int schritt;  // from one event's number to the next
    };
    constexpr std::array<reihe, 8> reihen{{
        {4, 5, "Ampel rot ", 5, -1},
        {9, 4, "Soundsensor ", 8, -1},
        {13, 4, "Rundenzählung ", 4, -1},
        {17, 4, "Soundsensor ", 4, -1},
        {21, 4, "Bahnstromabschaltung ", 4, -1},
        {34, 2, "Rundenzählung ", 5, 1},
        {40, 2, "Bahnstromabschaltung ", 5, 1},
        {54, 6, "Chaostaster Fahrer ", 1, 1},
    }};
    for (const reihe& r : reihen) {
        if (art >= r.erste && art < r.erste + r.anzahl) {
            return std::string(r.stamm) + std::to_string(r.beginn + (art - r.erste) * r.schritt);
        }
    }
    if (art >= 25 && art <= 32) {
        return "Tanken " + std::to_string(4 - (art - 25) / 2) + (art % 2 == 0 ? ", EIN" : ", AUS");
    }
    if (art >= 36 && art <= 39) {
        return "Tanken " + std::to_string(5 + (art - 36) / 2) + (art % 2 == 0 ? ", EIN" : ", AUS");
    }
    if (art >= 42 && art <= 53) {
        return "Zwischenzeit " + std::to_string(1 + art % 2) + ", Spur " + std::to_string(1 + (art - 42) / 2);
    }
    switch (art) {
        case 1:
            return "Chaostaster";
        case 2:
            return "Chaosanzeige";
        case 3:
            return "Ampel grün";
        case 33:
            return "Signalausgabe Zieleinfahrt";
        default:
            return "keine Funktion";
    }
}

}  // namespace

texte::texte() {
    for (sprachliste& gruppe : alle_gruppen()) {
        gruppe.deutsch_setzen();
    }
    for (int art = letztes_uebersetztes + 1; art <= ereignisse_max; ++art) {
        ereignis_name.at(static_cast<std::size_t>(art)) = ereignis_deutsch(art);
    }
}

std::vector<sprachliste> texte::alle_gruppen() {
    return {sprache_m1(), sprache_tx1(), sprache_usb2()};
}

bool texte::ist_freier_platz(std::string_view name) const {
    const auto heisst = [name](const std::string& wort) { return name == wort || name.starts_with(wort + " "); };
    return heisst(frei_text) || std::any_of(frei_anderswo.begin(), frei_anderswo.end(), heisst);
}

sprachliste texte::sprache_m1() {
    sprachliste gruppe("language\\language_m1.txt", sprachliste::form::zeilen);
    gruppe.ueberschrift("Gemeinsame Texte").text("Standardfahrzeug", standardfahrzeug_text);
    gruppe.text("Fahrer", [this](const std::string& wort) {
        for (const int spur : alle_spuren) {
            fahrer_standard[spur] = wort + " " + std::to_string(spur);
        }
    });
    gruppe.text("Zeit", text_zeit).text("Runden", text_runden).text("Hinweis", titel[0]);
    gruppe.text("Fehlermeldung", titel[1]);
    const auto alle = [&gruppe](const auto& deutsch, auto& ziel, std::size_t ab = 0) {
        for (std::size_t i = 0; i < deutsch.size(); ++i) {
            gruppe.text(deutsch.at(i), ziel.at(i + ab));
        }
    };
    alle(meldungen, meldung, 1);
    alle(datei_texte, datei_text);
    alle(hardware_namen, hardware_name);
    alle(modus_namen, spurmodus_name);
    gruppe.text("Kann nicht activiert werden.", nicht_aktiv_text);
    gruppe.text("Programmeinstellungen aus Datei übernehmen?", wettkampf.einstellungen_uebernehmen);
    gruppe.text("Fehler  beim Laden der Datei. Die Einstellungen wurden nicht geladen.", wettkampf.ladefehler);
    gruppe.text("Der Wettkampf „%1“", wettkampf.der_wettkampf).text("vom", wettkampf.vom);
    gruppe.text("wurde nicht beendet. Fortsetzen?", wettkampf.nicht_beendet);
    gruppe.text("Das Rennen von", wettkampf.das_rennen).text("wurde in Runde", wettkampf.in_runde);
    gruppe.text("unterbrochen. Fortsetzen?", wettkampf.unterbrochen);
    gruppe.text("ist gefahren, sein Ergebnis war noch offen. Wieder öffnen?", wettkampf.gefahren);
    gruppe.text("Es gibt kein Rennen, das fortgesetzt werden kann.", wettkampf.keines);
    gruppe.text("Dieses Rennen lässt sich nicht fortsetzen: Sein Protokoll ist beschädigt oder passt nicht mehr.",
                wettkampf.nicht_fortsetzbar);
    gruppe.text("Das Rennen geht weiter, aber sein Protokoll lässt sich nicht mehr schreiben.",
                wettkampf.ohne_protokoll);
    gruppe.text("Ja", ja).text("Nein", nein).text("Das Handbuch fehlt:", handbuch_fehlt);
    gruppe.text("Die PDF-Datei ist gespeichert:", papierdatei.gespeichert).text("Öffnen", papierdatei.oeffnen);
    gruppe.text("Ordner zeigen", papierdatei.ordner).text("Schließen", papierdatei.schliessen);
    gruppe.text("Auf diesem Rechner ist kein Programm dafür eingerichtet.", papierdatei.kein_programm);
    gruppe.text("Wettkampf laden", wettkampf.laden).text("Stand des Wettkampfs speichern", wettkampf.stand_speichern);
    gruppe.text("Gespeichert:", gespeichert);
    gruppe.text("Runde", text_runde);
    gruppe.text("Weiterfahren", wettkampf.weiterfahren).text("Später", wettkampf.spaeter);
    gruppe.text("Nächstes zeigen", wettkampf.naechstes).text("Neu starten", wettkampf.von_vorn);
    gruppe.text("Runden", text_mehrere);
    return gruppe.text("frei", [this](const std::string& wort) {
        frei_text = wort;
        std::erase(frei_text, ',');  // names of an evening have none
        frei_text = frei_text.empty() ? "frei" : frei_text;
    });
}

sprachliste texte::sprache_tx1() {
    sprachliste gruppe("language\\language_e_tx1.txt");
    gruppe.ueberschrift("4x4 USB");
    for (std::size_t i = 0; i < tx_texte.size(); ++i) {
        gruppe.text(tx_texte.at(i), tx_text.at(i));
    }
    return gruppe;
}

sprachliste texte::sprache_usb2() {
    sprachliste gruppe("language/language_e_usb2.txt", sprachliste::form::zeilen);
    for (int art = letztes_uebersetztes; art >= 0; --art) {
        gruppe.text(ereignis_deutsch(art), ereignis_name.at(static_cast<std::size_t>(art)));
    }
    for (int art = letztes_uebersetztes + 2; art <= ereignisse_max; ++art) {
        gruppe.ueberschrift(ereignis_deutsch(art));
    }
    return gruppe;
}

}  // namespace tarvel
