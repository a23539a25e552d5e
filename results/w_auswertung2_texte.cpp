#include "results/w_auswertung2.h"

namespace tarvel {

sprachliste w_auswertung2::sprache_w_ausw() {
    sprachliste texte("language\\language_w_ausw.txt");
    texte.text("Auswertung", wort_.titel);
    texte.text(
        "Bitte die Ergebnisse auswählen, die angezeigt werden sollen. Mit „hinzufügen“ und „Platzierung neu "
        "sortieren“ lassen sich mehrere zusammen auswerten.",
        Label1);
    texte.text("Einzelrennen", Command19[0]).text("Tagesrennen", Command19[1]).text("Wettkampf", Command19[2]);
    texte.text("öffnen", Command4).text("hinzufügen", Command2).text("Platzierung neu sortieren", Command3);
    texte.text("Sortiermethode", Command22).text("Sortiermethode", Command21).text("sortieren nach", Label10);
    texte.text("Metern", opt_sortieren_nach[0]).text("Runden", opt_sortieren_nach[1]);
    texte.text("schnellster Runde", opt_sortieren_nach[2]).text("gleiche Fahrer addieren", Command20);
    texte.text("speichern", Command16).text("speichern unter", Frame7).text("speichern", Command17);
    texte.text("abbrechen", Command12).text("Korrektur", Command18);
    texte.text("Rundendetails einblenden", wort_.details[0][0]).text("Rundendetails ausblenden", wort_.details[0][1]);
    texte.text("Meterdetails einblenden", wort_.details[1][0]).text("Meterdetails ausblenden", wort_.details[1][1]);
    texte.text("beste Runden einblenden", wort_.details[2][0]).text("beste Runden ausblenden", wort_.details[2][1]);
    texte.text("Debug-Fenster öffnen", wort_.debug_auf).text("Debug-Fenster schiessen", wort_.debug_zu);
    texte.text("Ende", Command5).text("Bitte Gruppen anklicken die angezeigt werden sollen:", Frame_klassen);
    texte.text("alle auswählen", Command8).text("Auswahl speichern", Command6).text("sortieren und anzeigen", Command1);
    texte.text("Korrekturzeile, bitte zu berichtigende Zeile anklicken.", korrekturzeile);
    korrektur.sprache(texte);
    meldungstexte(texte);
    dateitexte(texte);
    texte.text("Protokolle", Command_protokoll);
    texte.text("Rückgängig", Command_zurueck).text("Wiederherstellen", Command_wieder);
    texte.tipp("Nimmt die letzte Korrektur zurück (Strg+Z)", Command_zurueck);
    texte.tipp("Trägt die zurückgenommene Korrektur wieder ein (Strg+Y)", Command_wieder);
    texte.text("Urkunden", Command_urkunden);
    texte.tipp("Eine Urkunde für jeden Fahrer eines Einzelrennens", Command_urkunden);
    fuehrung_.eintragen(texte);
    texte.text("„gleiche Fahrer addieren“ zeigt alle Plätze.", wort_.alle_plaetze);
    blatt.nachtragen(texte);
    blatt.ab_gruen_nennen(blatt.rueckstand.eintragen(texte)).text("automatisch gesichert", wort_.automatisch);
    blatt.fruehstart_nennen(texte.text("ohne Klasse", wort_.ohne_klasse));
    texte.text("Eintrag", wort_.eintrag).text("Ende", wort_.ende).text("Strafzeit", ansicht_wort_.strafzeit);
    texte.text("nachgetragene Runde", diagramm.nachgetragen).text("nachgetragen:", blatt.nachgetragen);
    return texte.text("Nr.", ansicht_wort_.nummer);
}

void w_auswertung2::meldungstexte(sprachliste& texte) {
    texte.text("Keine Datei ausgewählt!", wort_.keine_datei);
    texte.text("Dateifehler, Ergebnisse können nicht angezeigt werden!", wort_.dateifehler);
    texte.text("Ergebnisse anderen Typs können nicht hinzugefügt werden!", wort_.anderer_typ);
    texte.text("Diese Datei kann nicht sortiert werden.", wort_.nicht_sortierbar);
    texte.text("Klasse in den Vergleich einbeziehen?", wort_.klasse_fragen);
    texte.text("Vergleichsmethode wählen", wort_.klasse_titel);
    texte.text("Bitte den zu berichtigenden Eintrag auswählen.", wort_.eintrag_waehlen);
    texte.text("Datei kann nicht geschrieben werden!", wort_.schreibfehler);
    texte.text(
        "Das ist kein gültiger Wert. Runden sind ganze Zahlen, Zeiten stehen als Minuten, Sekunden und "
        "Tausendstel.",
        wort_.falscher_wert);
    texte.text("Bitte geben Sie einen gültigen Dateinamen an.", wort_.name_fehlt);
    texte.text("Der Dateiname enthält ein unzulässiges Zeichen.", wort_.zeichen);
    texte.text("Die Datei ist bereits vorhanden. Überschreiben?", wort_.ueberschreiben);
    texte.text(
        "Die Datei hat mehr als 10000 Zeilen. Es werden nur die ersten angezeigt; die Datei selbst wird nicht "
        "überschrieben.",
        wort_.zu_lang);
    texte.text("Diese Datei hat mehr als 10000 Zeilen und wird nicht überschrieben. Bitte einen anderen Namen wählen.",
               wort_.nicht_ueber);
    texte.text("Die Korrekturen sind nicht gespeichert. Verwerfen?", wort_.verwerfen);
    texte.text("Zusammen sind es mehr als 10000 Zeilen. Die Datei wird nicht hinzugefügt.", wort_.zu_viele);
    texte.text("Dieses Rennen lässt sich nicht als Ergebnisblatt zeigen.", wort_.kein_blatt);
    texte.text("Die PDF-Datei konnte nicht geschrieben werden.", wort_.pdf_fehler);
    texte.text("Der Drucker nimmt die Seite nicht an.", wort_.druckfehler);
}

void w_auswertung2::dateitexte(sprachliste& texte) {
    texte.text("Noch keine Datei geöffnet.", wort_.keine_tabelle).text("Einträge", wort_.eintraege);
    texte.text("1 weitere Datei", wort_.eine_weitere).text("weitere Dateien", wort_.weitere);
    texte.text("gleiche Fahrer addiert", wort_.addiert).text("Rennen", wort_.rennen);
    texte.text("Einzelrennen", wort_.art[1]).text("Wettkampf", wort_.art[2]).text("Jeder gegen jeden", wort_.art[3]);
    texte.text("Tagesrennen", wort_.art[4]);
    texte.text("gewertet nach Metern", wort_.wertung[0]).text("gewertet nach Runden", wort_.wertung[1]);
    texte.text("gewertet nach schnellster Runde", wort_.wertung[2]);
    ansicht_worte& a = ansicht_wort_;
    texte.text("Pl.", a.platz).text("Klasse", a.klasse).text("Name", a.name).text("Rennen", a.rennen);
    texte.text("Spur", a.spur).text("Runden", a.runden).text("Meter", a.meter).text("beste Runde", a.beste);
    texte.text("Gesamtzeit", a.gesamtzeit).text("Heat", a.heat).text("Länge", a.laenge);
    texte.text("Restmeter", a.restmeter).text("Runde", a.runde).text("Start", a.start);
    texte.text("Tabelle", Command_blick[0]).text("Ergebnisblatt", Command_blick[1]);
    texte.text("Rundenverlauf", Command_blick[2]).text("Fahrervergleich", Command_blick[3]);
    texte.tipp("Platzierung und Rundenzeiten eines Einzelrennens auf einer Seite", Command_blick[1]);
    texte.tipp("Die Rundenzeiten der Spuren eines Einzelrennens", Command_blick[2]);
    texte.tipp("Beste Zeit, Median und Streuung jedes Fahrers aus allen geöffneten Dateien", Command_blick[3]);
    texte.text("Drucken", Command_drucken).text("Als PDF speichern", Command_pdf).text("Rennen", Label_rennen);
    texte.ansage("Ordner", Dir1).ansage("Ergebnisdateien", File1).ansage("Ergebnisse", auswertung_schoen);
    texte.ansage("Dateiname", Text3).ansage("Rennen", cbo_rennen);
    texte.text("Ergebniszeilen", debug_.titel).ansage("Zeilen im Speicher", debug_.zeilenliste);
    auto& v = vergleichswort;
    texte.text("Fahrervergleich", v.titel).text("beste", v.beste).text("Median", v.median);
    texte.text("Streuung", v.streuung).text("Zeiten", v.zeiten).text("Rundenzeit in Sekunden", v.achse_runden);
    texte.text("beste Runden in Sekunden", v.achse_beste).text("Es gibt keine Rundenzeiten.", v.leer);
    blatt.eintragen(diagramm.eintragen(texte));
    texte.text("Runden", blatt.runden).text("Gesamtzeit", blatt.gesamtzeit).text("beste Runde", blatt.beste);
    texte.text("Die Datei wurde geändert, seit sie geöffnet ist. Was dazugekommen ist, geht verloren. Überschreiben?",
               wort_.veraendert);
    texte.text(
        "Zusammen sind es mehr Runden, als eine Datei fasst. Die Summen stimmen, die letzten Rundenzeiten fehlen.",
        wort_.summe_zu_lang);
    texte.tipp("Korrektur eintragen", korrektur.Command14);
    texte.text("ohne Klassen addiert", wort_.addiert_alle);
    texte.text("beste Runden in Sekunden; vom Addieren bleibt nur die jeweils schnellste", v.achse_addiert);
    texte.tipp(
        "Ein Eintrag je Fahrer mit Summe und bester Runde. Im Tagesrennen: Wird die Klasse nicht einbezogen, zählen "
        "gleiche Namen aller Klassen als ein Fahrer.",
        Command20);
}

const std::string& w_auswertung2::vergleichsachse() const {
    const auto& v = vergleichswort;
    if (tabelle_ && vergleicht_runden(*tabelle_)) {
        return v.achse_runden;
    }
    return tabelle_ && tabelle_->addiert ? v.achse_addiert : v.achse_beste;
}

}  // namespace tarvel
