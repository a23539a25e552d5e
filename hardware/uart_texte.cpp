#include <string>

#include "hardware/uart_einstellungen.h"

/// The texts of the wizard.
namespace tarvel {

sprachliste uart_einstellungen::sprache() {
    sprachliste texte("language/language_uart.txt");
    texte.ueberschrift("UART_einstellungen").text("Einstellungen für AT-2560 USB Zeitmessungen", titel);
    texte.text("automatische Einrichtung", auto_einrichtung).text("Protokoll", Label_protokoll);
    texte.text("Zurück", zurueck).text("Weiter", wort_.weiter).text("Speichern", wort_.fertig);
    texte.text("Abbrechen", abbrechen).text("Schritt", wort_.schritt).text("von", wort_.von);
    texte_port(texte);
    texte_sensoren(texte);
    return texte;
}

void uart_einstellungen::texte_port(sprachliste& texte) {
    texte.text("COM-Port", wort_.seite[seite_port]);
    texte.text(
        "Zuerst wird der Anschluss der Zeitmessung gesucht. Ist seine Nummer bekannt, kann sie auch von Hand gewählt "
        "werden. Der Knopf Weiter öffnet den Port.",
        wort_.anleitung[seite_port]);
    texte.text("COM-Port ermitteln", port_ermitteln).text("Port manuell eingeben", Label_port);
    texte.text("Port schließen", port_schliessen);
    texte.text("Bitte USB-Gerät abziehen, ANSCHLIESSEND mit OK bestätigen", wort_.abziehen);
    texte.text(
        "JETZT das USB-Gerät einstecken, und warten bis dieses von Windows erkannt wurde, dann mit OK bestätigen",
        wort_.einstecken);
    texte.text("Ports wurden gescannt - ", wort_.gescannt).text("Ports werden verglichen...", wort_.vergleichen);
    texte.text("COM-PORT ", wort_.com_port).text(" gefunden.", wort_.gefunden);
    texte.text("Es konnte kein Port ermittelt werden.", wort_.nicht_ermittelt);
    texte.text("kein COM-Port gefunden", wort_.kein_port);
    texte.text("COM-Ports über 16 werden nicht erkannt.", wort_.zu_gross);
    texte.text(" +++ Vorhandene COM-Ports abfragen", wort_.abfragen);
    texte.text(" +++ COM-Port wurde geöffnet", wort_.geoeffnet);
    texte.text(" +++ COM-Port wurde geschlossen", wort_.geschlossen);
    texte.text(" +++ COM-Port ist nicht mehr vorhanden", wort_.verschwunden);
    texte.text("Port geöffnet, das Gerät startet...", wort_.startet);
    texte.text("Port geöffnet, Gerät ansprechbar!", wort_.ansprechbar);
    texte.text("Es ist bereits ein Port geöffnet. Bitte vorher schließen!", wort_.schon_offen);
    texte.text("Datenverlust!", wort_.datenverlust);
}

void uart_einstellungen::texte_sensoren(sprachliste& texte) {
    texte.text("Anzahl der Sensoren", wort_.seite[seite_anzahl]);
    texte.text(
        "Bitte angeben, wie viele Sensoren angeschlossen sind, und an welchen Pins des Gerätes Sensoren oder Taster "
        "stecken können.",
        wort_.anleitung[seite_anzahl]);
    texte.text("Anzahl der Sensoren", Label_anzahl).text("Pins, durch Punkte getrennt", Label_is);
    texte.text(
        "Ungültige Sensoranzahl, bitte Angaben wiederholen, mindestens 1, maximal 8 Sensoren auswählen. Ab Sensor 9 "
        "müssen diese von Hand eingestellt werden.",
        wort_.anzahl_ungueltig);
    texte.text("Sensoren", wort_.seite[seite_sensoren]);
    texte.text("Bitte die Sensoren einzeln auslösen und die gewünschte Funktion für den Sensor einstellen.",
               wort_.anleitung[seite_sensoren]);
    texte.text("Zuordnung verwerfen", neu).text("Sensor", wort_.sensor).text("Spur", wort_.spur);
    for (std::size_t i = 0; i < wort_.funktion.size(); ++i) {
        constexpr std::array<std::string_view, 4> deutsch{"keine Funktion", "Rundenzählung", "Zwischenzeit 1",
                                                          "Zwischenzeit 2"};
        texte.text(deutsch.at(i), wort_.funktion.at(i));
    }
    texte.text("kein Tanksensor", wort_.tanken[0]).text("Tanksensor 1", wort_.tanken[1]);
    texte.text("Tanksensor 2", wort_.tanken[2]).text("Chaostaster", wort_.seite[seite_chaos]);
    texte.text("Bitte die Anzahl der Chaostaster angeben und die Taster einzeln drücken.",
               wort_.anleitung[seite_chaos]);
    texte.text("Wie viele Chaostaster sind vorhanden?", Label_taster);
    texte.text("Sind die Chaostaster mit einem oder mehreren Steckern angeschlossen?", Label_stecker);
    texte.text("einer", wort_.stecker[0]).text("mehrere", wort_.stecker[1]).text("Chaostaster", wort_.taster);
    texte.text("kein Chaos", wort_.chaos[0]);
    for (std::size_t fahrer = 1; fahrer <= taster_max; ++fahrer) {
        texte.text("Chaos " + std::to_string(fahrer), wort_.chaos.at(fahrer));
    }
    texte.text("Chaos für alle", wort_.chaos.back());
    texte.text("Die Taster 5 und 6 werden von Hand in die Befehlsdatei eingetragen.", Label_von_hand);
    texte.text("Es wurde nicht zu jedem Sensor eine Funktion zugewiesen. Trotzdem fortfahren?", wort_.ohne_funktion);
    texte.text("Zwei Sensoren oder Taster haben dieselbe Funktion. Bitte die Auswahl ändern.", wort_.doppelt);
    texte.text("Sensorbefehl", wort_.sensorbefehl).text("Befehlsdatei", wort_.befehlsdatei);
    texte.text("Die bisherige bleibt als", wort_.gesichert);
    texte.text("Zusammenfassung", wort_.seite[seite_fertig]);
    texte.text("Diese Zuordnung wird in die Befehlsdatei geschrieben. Danach arbeitet die Zeitmessung mit ihr.",
               wort_.anleitung[seite_fertig]);
}

void uart_einstellungen::ansagen_setzen() {
    protokoll.ansage(Label_protokoll.text());
    port.ansage(Label_port.text());
    sensoranzahl.ansage(Label_anzahl.text());
    is_liste.ansage(Label_is.text());
    chaos_anzahl.ansage(Label_taster.text());
    stecker.ansage(Label_stecker.text());
    zusammenfassung.ansage(wort_.seite[seite_fertig]);
    const auto nummerieren = [](auto& zeilen, const std::string& wort) {
        int nummer = 0;
        for (auto& eine : zeilen) {
            eine.nummer.text(wort + " " + std::to_string(++nummer));
        }
    };
    nummerieren(sensoren, wort_.sensor);
    nummerieren(taster, wort_.taster);
    for (sensorzeile& eine : sensoren) {
        eine.spur.ansage(eine.nummer.text() + ", " + wort_.spur);
        eine.funktion.ansage(eine.nummer.text() + ", " + wort_.funktion[0]);
        eine.tanken.ansage(eine.nummer.text() + ", " + wort_.tanken[1]);
    }
    for (tasterzeile& eine : taster) {
        eine.cbo_chaos.ansage(eine.nummer.text());
    }
}

}  // namespace tarvel
