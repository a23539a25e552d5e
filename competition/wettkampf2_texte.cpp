#include "competition/wettkampf2.h"

namespace tarvel {

sprachliste wettkampf2::sprache_w2() {
    sprachliste texte("language\\language_w2.txt");
    texte.text("Wettkampf", wort_.titel).text("nächstes Rennen:", Label2);
    texte.text("Es fahren:", Label_jetzt);
    texte.text("von", wort_.von).text("ENDE", wort_.ende).text("Spur", wort_.spur);
    texte.text("schnellste Runde:", Label1).text("Bahnstrom", Label8);
    texte.text("aktuellen Stand speichern", Command1).text("Rennen starten", Command2).text("Auswertung", Command3);
    texte.text("Automatisierung eingeschaltet", wort_.automatik_ein);
    texte.text("Automatisierung ausgeschaltet", wort_.automatik_aus);
    texte.text("Automatisierung unterbrochen", wort_.automatik_unterbrochen);
    texte.text("Wettkampf-Ende", Command5).text("Rangliste", Command6).text("Fahrerverwaltung", Command7);
    texte.text("wiederholen", Command8).text("zurückstellen", Command9).text("Rennergebnis speichern", Command10);
    texte.text("Ein", Command11).text("Aus", Command12).text("Runden +/-", Command13).text("Namen +/-", Command14);
    texte.text("Reihenfolge ändern", opt_reihenfolge);
    texte.text("Fahrer auswählen, dessen Runden/Meter geändert werden sollen:", Label_rundenwahl);
    texte.text("Runden", Label_runden);
    texte.text("Meter (werden bei Rundenkorrektur automatisch angepasst)", Label_meter);
    texte.text("Fahrernamen ändern", aendernframe);
    texte.text("Fahrername wählen, der geändert werden soll:", Label_namenwahl);
    texte.text("neuen Fahrernamen eingeben:", Label_neuer_name);
    texte.text("Ausgewähltes Rennen wiederholen?", wort_.wiederholen);
    texte.text("Alle gefahrenen Runden gehen verloren.", wort_.wiederholen_titel);
    texte.text(
        "Der Wettkampf ist noch nicht beendet. Wirklich beenden? Sein Stand bleibt gespeichert: Der nächste Start "
        "und „Fortsetzen“ im Hauptfenster bieten ihn wieder an.",
        wort_.ende_frage);
    texte.text("Als Nächste an die Bahn:", Label_danach).text("Einsetzer:", wort_.einsetzer);
    texte.text("Der Wettkampf dauert noch etwa", Label_noch).text("Std.", wort_.stunden);
    texte.text("Min.", wort_.minuten).text("Start in Sekunden:", Label_warten);
    texte.text("Teil", wort_.teil).text("niemand", wort_.niemand);
    texte.text("Runden und Meter ändern", Frame_runden).text("Abend", Frame_blick).text("Rennen", wort_.liste);
    texte.text("Gruppenmodus, folgende Gruppenreihenfolge:", wort_.gruppenliste);
    texte.text("Übernehmen", Command_uebernehmen).text("fertig", Command_runden_fertig);
    texte.text("Umbenennen", Command_umbenennen).text("fertig", Command_namen_fertig);
    texte.text("Bitte einen Namen eingeben.", wort_.name_leer);
    texte.text("Name in Liste enthalten: ", wort_.name_vergeben);
    texte.text("So heißen nur freie Plätze: ", wort_.name_fueller);
    texte.text("Hier steht keine Zahl.", wort_.keine_zahl);
    texte.text("Der Stand konnte nicht gespeichert werden.", Label_fehler).text("und", wort_.und);
    texte.text("weitere", wort_.weitere).text("Gewonnen hat:", wort_.sieger);
    texte.tipp("Das markierte Rennen wird noch einmal gefahren; seine Runden gehen verloren", Command8);
    texte.tipp("Das markierte Rennen wird gefahren, wenn alle anderen gefahren sind", Command9);
    texte.tipp("Das Rennen, das in der Liste markiert wird, ist das nächste", opt_reihenfolge);
    texte.text("Ist eingeschaltet: Die Rennen folgen von selbst aufeinander. Drücken schaltet aus.", wort_.ist_ein);
    texte.text("Aushang", wort_.aushang).text("Rennliste", wort_.rennliste);
    texte.tipp("Ohne die Liste der Rennen: so groß, dass man es von der Bahn aus liest", Command_aushang);
    texte.text("Ist ausgeschaltet. Drücken schaltet ein: Die Rennen folgen dann von selbst aufeinander.",
               wort_.ist_aus);
    texte.tipp("Runden und Meter eines Fahrers im markierten Rennen ändern", Command13);
    texte.tipp("Einem Fahrer einen anderen Namen geben, in allen Rennen", Command14);
    texte.text("X = gefahren", wort_.gefahren).text("Z = zurückgestellt", wort_.zurueckgestellt);
    texte.text("1/4 = ein Teil von vieren gefahren", wort_.teile_gefahren);
    texte.text(
        "Der Stand des Wettkampfs lässt sich nicht speichern. Was seit dem letzten Speichern gefahren wurde, geht mit "
        "dem Ende verloren. Trotzdem beenden?",
        wort_.verlust_frage);
    texte.text(
        "Noch ist kein Rennen gewertet. Den Wettkampf behalten? Dann bieten ihn der nächste Start und „Fortsetzen“ im "
        "Hauptfenster wieder an.",
        wort_.behalten_frage);
    return texte.text("Behalten", wort_.behalten).text("Verwerfen", wort_.verwerfen);
}

}  // namespace tarvel
