#include <string_view>

#include "competition/wettkampf1.h"

namespace tarvel {
namespace {

constexpr std::array<std::string_view, wettkampf_modus_max> modi{
    "ohne Gruppen, reihum",
    "feste Gruppen im Wechsel",
    "feste Gruppen im Wechsel, freie Plätze verteilt",
    "feste Gruppen nacheinander, freie Plätze verteilt",
    "feste Gruppen nacheinander",
    "jeder gegen jeden",
    "feste Gruppen, jede fährt einmal",
    "ohne Gruppen, nach Wechselschema",
    "feste Gruppen nacheinander, nach Wechselschema",
    "feste Gruppen nacheinander, nach Wechselschema, freie Plätze verteilt",
    "feste Gruppen im Wechsel, nach Wechselschema",
    "feste Gruppen im Wechsel, nach Wechselschema, freie Plätze verteilt",
    "ohne Gruppen, nach Wechselschema, gleichmäßige Pausen"};

constexpr std::array<std::string_view, wettkampf1::plan_zeilen> planzeilen{
    "Rennplan", "Spuren", "Rennen", "davon je Fahrer", "freie Plätze", "Länge je Rennen", "reine Fahrzeit"};

void befehle_nennen(sprachliste& texte, wettkampf1& w) {
    texte.text("hinzufügen", w.Command1).text("entfernen", w.Command2).text("alle entfernen", w.Command7);
    texte.text("hoch", w.Command10).text("runter", w.Command12).text("mischen", w.Command13);
    texte.text("hinzufügen", w.Command16).text("alle hinzufügen", w.Command17);
    texte.text("entfernen", w.Command18).text("alle entfernen", w.Command19);
    texte.text("rechte Liste ersetzen", w.Command15).text("linke Liste ersetzen", w.Command20);
    texte.text("Listen tauschen", w.Command21).text("laden", w.Command5).text("speichern", w.Command6);
    texte.text("laden", w.Command22).text("speichern", w.Command23);
    texte.text("Bildnamen aus Verzeichnis", w.Command14).text("anderes Bild zuordnen", w.Command24);
    texte.text("Wettkampf starten", w.Command3).text("Qualifying starten", w.Command11);
    texte.text("Einstellungen", w.Command8).text("Rennen laden", w.Command9).text("Auswertung", w.Command25);
    texte.text("Hauptmenü", w.Command4);
}

void tipps_nennen(sprachliste& texte, wettkampf1& w) {
    texte.tipp("Den eingetippten Fahrer auf die Startliste setzen", w.Command1);
    texte.tipp("Den gewählten Fahrer ganz von der Startliste streichen", w.Command2);
    texte.tipp("Die Startliste leeren", w.Command7).tipp("Die Reihenfolge auslosen", w.Command13);
    texte.tipp("Den gewählten Fahrer auf die Startliste setzen", w.Command16);
    texte.tipp("Alle Fahrer auf die Startliste setzen", w.Command17);
    texte.tipp("Den gewählten Fahrer der Startliste zurück in die linke Liste stellen", w.Command18);
    texte.tipp("Alle Fahrer der Startliste zurück in die linke Liste stellen", w.Command19);
    texte.tipp("Die Startliste wird wie die linke Liste", w.Command15);
    texte.tipp("Die linke Liste wird wie die Startliste", w.Command20);
    texte.tipp("Bilder aus dem Ordner pictures den Fahrern gleichen Namens zuordnen", w.Command14);
    texte.tipp("Ein Rennen, dessen Rangliste die Startliste neu ordnet", w.Command11);
    texte.tipp("Einen gespeicherten Wettkampf fortsetzen", w.Command9);
    texte.tipp("Wechselmodus, Wechselschema und Gruppen", w.Command8);
}

}  // namespace

sprachliste wettkampf1::sprache_w1() {
    sprachliste texte("language/language_w1.txt");
    texte.ueberschrift("Wettkampf vorbereiten").text("Wettkampf vorbereiten", titel).text("Titel", Label_titel);
    texte.text("Name des Rennens", wort_.titel_standard).text("Fahrer zur Auswahl", Frame_gesamt);
    texte.text("Startliste", Frame_auswahl).text("Name", Label_name).text("Bild", Frame_bild);
    befehle_nennen(texte, *this);
    texte.text(
        "Bitte ALLE Teilnehmer des Rennens VOR dem Start eintragen. Es ist nicht möglich, Teilnehmer nach "
        "Beginn des Wettkampfes nachzutragen.",
        Label_hinweis);
    texte.text("Name in Liste enthalten: ", wort_.enthalten).text("Rennliste voll.", wort_.voll);
    texte.text("Es wurden nicht genügend Fahrer eingegeben.", wort_.zu_wenige);
    texte.text("Für Wettkampf 'Jeder vs. Jeder' nicht mehr als 10 Fahrer eingeben.", wort_.zu_viele);
    texte.text("Es wurden nicht genügend Spuren ausgewählt.", wort_.keine_spur);
    texte.text("Für Wettkampf 'Jeder vs. Jeder' bitte 2 Spuren auswählen.", wort_.nicht_zwei);
    texte.text("Der Abend", Frame_plan);
    for (std::size_t i = 0; i < planzeilen.size(); ++i) {
        texte.text(planzeilen.at(i), Label_plan.at(i));
    }
    for (std::size_t i = 0; i < modi.size(); ++i) {
        texte.text(modi.at(i), wort_.modus.at(i + 1));
    }
    texte.text("Teile", wort_.teile).text("keine", wort_.keine).ueberschrift("Runden").text("h", wort_.stunden);
    texte.text("min", wort_.minuten).text("Fahrer", wort_.fahrer).text("Fahrerliste voll.", wort_.gesamt_voll);
    texte.text("ist der Name eines Platzes ohne Fahrer. Bitte einen anderen wählen.", wort_.platzhalter);
    texte.text("Zeichen, die in keiner Datei stehen können, sind ersetzt:", wort_.ersetzt);
    texte.text("Leer, doppelt, ohne Platz oder wie ein Platz ohne Fahrer benannt, und deshalb nicht in der Liste:",
               wort_.nicht_uebernommen);
    texte.text("Die Datei ist keine Fahrerliste. Die Liste bleibt, wie sie ist.", wort_.nicht_geladen);
    texte.text("Alle Namen der Startliste streichen?", wort_.alle_streichen);
    texte.text("neues Fahrerbild zuordnen", wort_.bildtitel).text("Zugeordnete Bilder: ", wort_.bilder);
    texte.text("So viele Fahrer haben auf diesen Spuren höchstens Platz:", wort_.passen_nicht);
    texte.text("Ohne diese Fahrer beginnen?", wort_.fallen_heraus);
    tipps_nennen(texte, *this);
    return texte.text("Fahrer", wort_.ein_fahrer);
}

void wettkampf1::ansagen_setzen() {
    Text1.ansage(Label_titel.text());
    auswahl.ansage(Frame_auswahl.text() + ", " + Label_name.text());
    rennliste.ansage(Frame_gesamt.text());
    auswahlliste.ansage(Frame_auswahl.text());
    const auto in_liste = [](befehl& knopf, const rahmen& wo) { knopf.ansage(wo.text() + ", " + knopf.text()); };
    in_liste(Command5, Frame_auswahl);  // captions that stand in the window more than once
    in_liste(Command6, Frame_auswahl);
    in_liste(Command22, Frame_gesamt);
    in_liste(Command23, Frame_gesamt);
    for (befehl* knopf : {&Command1, &Command2, &Command7, &Command16, &Command17, &Command18, &Command19}) {
        knopf->ansage(knopf->tipp());
    }
}

}  // namespace tarvel
