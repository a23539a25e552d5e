#include "core/text.h"
#include "core/zeit.h"
#include "results/auswertung.h"

namespace tarvel {

sprachliste auswertung::sprache_a() {
    sprachliste texte("language\\language_a.txt");
    const auto spalte = [&texte](std::string_view deutsch, je_spur<bezeichnung>& ueber, std::string& auf_papier) {
        texte.text(deutsch, [&ueber, &auf_papier](const std::string& neu) {
            auf_papier = neu;
            for (bezeichnung& label : ueber) {
                label.text(neu);
            }
        });
    };
    texte.ueberschrift("Auswertung").text("Auswertung des Rennens", titel).text("Hauptmenü", wort_.hauptmenue);
    texte.text("Zeitrennen", wort_.zeitrennen).text("Rundenrennen", wort_.rundenrennen);
    texte.text("vorzeitig beendet", wort_.vorzeitig).text("Strafzeit", wort_.strafzeit);
    texte.text("Spur", wort_.spur);
    spalte("Runden", Label_runden, blatt.runden);
    spalte("Gesamtzeit", Label_zeit, blatt.gesamtzeit);
    spalte("beste Runde", Label_beste, blatt.beste);
    texte.text("Geschwindigkeit beste Runde / Durchschnittsgeschwindigkeit", wort_.tempo);
    texte.text("Rundenliste", wort_.rundenliste);
    texte.text("Rennen wiederholen", Command1).text("neu starten", Command2).text("fortsetzen", Command3);
    texte.text("speichern", Command4).text("Weiter", wort_.weiter).text("Meter eingeben", wort_.meter_eingeben);
    texte.text("fertig", wort_.fertig).text("Automatisierung unterbrechen", Command7).text("Runde löschen", Command8);
    texte.text("Bestzeiten", Command9).text("Platzierung prüfen", Command10);
    texte.text("Spur wechseln", wort_.spur_wechseln).text("Rennen", wort_.rennen);
    texte.text("Fahrer wechseln", spurwechsel)
        .text("Fahrzeugtausch", tauschfahrzeug)
        .text("Restmeter", wort_.restmeter);
    texte.text("Bitte zu löschende Runde auswählen.", wort_.runde_waehlen);
    texte.text("Sektoren nicht aktiviert - Anzeigeänderung nicht möglich.", wort_.keine_sektoren);
    texte.text("Rennmaximum erreicht. Fortsetzung nicht möglich.", wort_.maximum);
    texte.text("Runden/Zeitmaximum erreicht. Fortsetzung nicht möglich.", wort_.maximum_titel);
    texte.text("Training wird fortgesetzt in:", wort_.training).fuer_alle("Tankinhalt", Label_tank);
    texte.text("Rundenverlauf", wort_.verlauf).text("Platzierung", wort_.stand).text("Drucken", Command_drucken);
    texte.text("Als PDF speichern", Command_pdf).text("bis", Label_bis);
    texte.text("Runden insgesamt", wort_.runden).text("Minuten insgesamt", wort_.minuten);
    texte.text("Das Ergebnis ist nicht gespeichert. Trotzdem weiter?", wort_.verlust);
    tipps_eintragen(texte);
    texte.text("Die PDF-Datei konnte nicht geschrieben werden.", wort_.pdf_fehler);
    texte.text("Der Drucker nimmt die Seite nicht an.", wort_.druckfehler);
    texte.text("Wertung nach Metern", wort_.wertung[0]).text("Wertung nach Runden", wort_.wertung[1]);
    texte.text("Wertung nach schnellster Runde", wort_.wertung[2]);
    blatt.eintragen(diagramm.eintragen(texte));
    texte.text("Minuten, auch mit Sekunden: 5,30 sind fünf Minuten und dreißig Sekunden", wort_.minuten_hinweis);
    texte.text("Unterschied der Gesamtzeiten; mit - hat dieser Fahrer weniger Runden und war mit ihnen früher fertig",
               wort_.abstand);
    texte.text("Alle Runden zusammen, von der ersten Überfahrt der Spur an, mit den Strafzeiten", wort_.gesamtzeit);
    texte.text("Hier steht keine Zahl.", wort_.keine_zahl).text("Die Spur ist nur so lang:", wort_.zu_viele_meter);
    texte.text("Trotzdem eintragen?", wort_.trotzdem);
    texte.text("Weiter in:", wort_.weiter_in);
    texte.text("Wiedergabe", Command_wiedergabe);
    texte.tipp("Das Rennen noch einmal auf dem Rennbildschirm ablaufen lassen", Command_wiedergabe);
    korrekturtexte(texte);
    texte.text("Protokoll", Command_protokoll);
    texte.tipp("Was im Rennen geschah, auch die Überfahrten, die nicht zählten", Command_protokoll);
    texte.text("Urkunden", Command_urkunden);
    texte.tipp(
        "Eine Urkunde für jeden Fahrer, mit seinem Bild; hier stehen auch die Namen von Verein und Veranstaltung",
        Command_urkunden);
    blatt.nachtragen(texte);
    blatt.rueckstand.eintragen(texte).text("Überfahrten zählen noch mit", Label_vorlaeufig);
    blatt.ab_gruen_nennen(texte);
    texte.fuer_alle("Sektoren", cmd_anzeige).fuer_alle("nächste", cmd_rd_add);
    texte.fuer_alle("löschen", cmd_rd_inc);
    blatt.fruehstart_nennen(texte).text("Ergebnis:", wort_.folge);
    texte.text("Gewertet ab der eigenen ersten Überfahrt:", wort_.folge_ab_erster);
    texte.text("Training", anlass_.training).text("Tagesrennen", anlass_.tagesrennen);
    texte.text("Wettkampf", anlass_.wettkampf);
    texte.text("Rennen", anlass_.rennen).text("Ergebnis", wort_.ergebnis);
    texte.text("Tank leer", blatt.tank_leer);
    texte.tipp("Berechnet die Plätze neu. Stimmen sie schon, ändert sich nichts.", Command10);
    nachtrag.ohne_pausen_nennen(texte).text("Geprüft: Die Plätze stimmen.", wort_.plaetze_stimmen);
    texte.text("Geprüft: Die Plätze haben sich geändert.", wort_.plaetze_neu).text("Ende", wort_.ende);
    texte.text("Rot: schneller als die Bestzeit, die für diese Spur gespeichert ist", wort_.neue_bestzeit);
    texte.text("Kommt in die Tagesdatei; zurück zum Tagesrennen, von dort führt „Beenden“ ins Hauptmenü",
               wort_.zum_tagesrennen);
    return nachtrag.ziel_nennen(texte).text("Überfahrten zählen nicht mehr", wort_.endgueltig);
}

void auswertung::korrekturtexte(sprachliste& texte) {
    texte.text("Rückgängig", Command_zurueck).text("Wiederherstellen", Command_wieder);
    texte.text("Runde nachtragen", Command_nachtragen);
    texte.tipp(
        "Eine Überfahrt, die nicht gezählt wurde, zählt doch, oder eine Runde wird geteilt, weil der Sensor "
        "eine Überfahrt verpasst hat",
        Command_nachtragen);
    texte.text("Nimmt die letzte Korrektur zurück (Strg+Z)", wort_.zurueck);
    texte.text("Trägt die zurückgenommene Korrektur wieder ein (Strg+Y)", wort_.wieder);
    texte.text("nachgetragen", wort_.nachgetragen).text("Rest", wort_.geteilt).text("Neustart", wort_.ausfall);
    texte.text("Bitte auswählen, was nachgetragen werden soll.", wort_.nachtrag_waehlen);
    texte.text("Das geht nicht: Diese Runde läge hinter dem Ziel.", wort_.hinter_dem_ziel);
    texte.text("nachgetragene Runde", diagramm.nachgetragen).text("nachgetragen:", blatt.nachgetragen);
    nachtrag.sprache(texte);
}

void auswertung::tipps_eintragen(sprachliste& texte) {
    texte.tipp("Dasselbe Rennen noch einmal, jeder auf seiner Spur", Command1);
    texte.tipp("Ein neues Rennen, in dem jeder Fahrer auf die nächste Spur wechselt", Command2);
    texte.tipp("Das Rennen geht mit allen Runden weiter, und jeder Fahrer wechselt auf die nächste Spur", Command3);
    texte.tipp("Die Fahrzeuge wechseln die Spur mit ihren Fahrern", tauschfahrzeug);
    texte.tipp("Die markierte Runde war keine: ihre Zeit zählt zur Runde davor", Command8);
    texte.tipp("Meter, die ein Fahrzeug über seine letzte volle Runde hinaus gekommen ist", Command6);
    texte.tipp_fuer_alle("Sektorzeiten und Geschwindigkeiten einblenden", cmd_anzeige);
    texte.tipp_fuer_alle("Nächste Runde markieren", cmd_rd_add);
    texte.tipp_fuer_alle("Markierte Runde löschen", cmd_rd_inc);
}

void auswertung::ansagen_setzen() {
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        Label_spur[i].text(wort_.spur + " " + std::to_string(spur));
        const auto ansagen = [&](steuerelement& element, const std::string& was) {
            element.ansage(Label_spur[i].text() + ": " + was);
        };
        ansagen(runden_aus[i], Label_runden[i].text());
        ansagen(zeit_aus[i], Label_zeit[i].text());
        ansagen(beste_aus[i], Label_beste[i].text());
        ansagen(tankinhalt[i], Label_tank[i].text());
        ansagen(liste[i], wort_.rundenliste);
        ansagen(meter[i], wort_.restmeter);
        for (befehl* knopf : {&cmd_anzeige[i], &cmd_rd_add[i], &cmd_rd_inc[i]}) {
            ansagen(*knopf, knopf->tipp());
        }
        beste_aus[i].tipp(wort_.tempo);
        kmh_label[i].tipp(wort_.tempo);
        abstandlabel[i].tipp(wort_.abstand);
        zeit_aus[i].tipp(wort_.gesamtzeit);
        Label_zeit[i].tipp(wort_.gesamtzeit);
    }
    nachtrag.ansagen();
    neues_ziel.ansage(Command3.text() + " " + Label_bis.text());
}

}  // namespace tarvel
