#include "core/texte.h"

namespace tarvel {

texte::texte() {
    meldung = {
        "",
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
    for (const int spur : alle_spuren) {
        fahrer_standard[spur] = "Fahrer " + std::to_string(spur);
    }
}

}  // namespace tarvel
