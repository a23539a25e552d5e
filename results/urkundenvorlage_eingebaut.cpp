#include "results/urkundenvorlage.h"

namespace tarvel {

const std::vector<std::string>& eingebaute_vorlage() {
    static const std::vector<std::string> zeilen{
        "Tarvel Urkunde",
        "; Vorlage einer Urkunde auf A4 hoch. Zum Ändern unter einem eigenen Namen kopieren und im Fenster",
        "; \"Urkunden\" auswählen. Zeilen mit einem Semikolon am Anfang sind Bemerkungen.",
        "; Alle Maße sind Millimeter: Abstand von links, Abstand von oben, Breite, Höhe.",
        "; Farben sind #RRGGBB. Was später steht, liegt über dem, was vorher steht.",
        ";",
        "; Fläche      x y breite höhe  farbe",
        "; Rahmen      x y breite höhe  farbe strichbreite",
        "; Linie       x y breite höhe  farbe strichbreite",
        "; Zielflagge  x y breite höhe  farbe",
        "; Plakette    x y breite höhe              Gold, Silber, Bronze oder Blau mit dem Platz",
        "; Bild        x y breite höhe  rund|eckig farbe randbreite  Fahrer|Fahrzeug|Datei, etwa Urkunden/wappen.png",
        "; Text        x y breite höhe  größe links|mitte|rechts stil farbe  Text bis zum Ende der Zeile",
        "; Der Stil ist normal oder fett, kursiv, serifen, mit - verbunden. Ein langer Text wird kleiner.",
        "; Im Text stehen in geschweiften Klammern: Verein, Veranstaltung, Rennen, Datum, Fahrer, Fahrzeug, Platz,",
        "; Platzwort, Teilnehmer, Spur, Strecke, Runden, Meter, Gesamtzeit, BesteRunde, Tempo. Ist eines davon leer,",
        "; so entfällt die ganze Zeile.",
        "",
        "Fläche 0 0 210 297 #FFFEFA",
        "Zielflagge 12 12 186 8 #1C2028",
        "Zielflagge 12 277 186 8 #1C2028",
        "Rahmen 8 8 194 281 #C41E2A 1.2",
        "Rahmen 12 12 186 273 #C9A227 0.5",
        "",
        "Text 20 27 170 9 6.4 mitte normal #626A78 {Verein}",
        "Text 20 37 170 24 23 mitte fett-serifen #C41E2A URKUNDE",
        "Text 20 63 170 11 8 mitte kursiv-serifen #1C2028 {Veranstaltung}",
        "",
        "Bild 52 79 106 106 rund #C9A227 2.2 Fahrer",
        "Plakette 137 131 44 44",
        "",
        "Text 20 190 170 22 17 mitte fett-serifen #1C2028 {Fahrer}",
        "Text 20 212 170 13 11 mitte fett #C41E2A {Platzwort}",
        "Text 20 226 170 8 5.4 mitte normal #626A78 {Rennen}",
        "",
        "Linie 40 238 130 0 #C9A227 0.5",
        "Text 25 240 53 5 3.6 mitte normal #626A78 Runden",
        "Text 25 245 53 9 7.5 mitte fett #1C2028 {Runden}",
        "Text 78 240 54 5 3.6 mitte normal #626A78 beste Runde",
        "Text 78 245 54 9 7.5 mitte fett #1C2028 {BesteRunde}",
        "Text 132 240 53 5 3.6 mitte normal #626A78 Gesamtzeit",
        "Text 132 245 53 9 7.5 mitte fett #1C2028 {Gesamtzeit}",
        "",
        "Text 25 262 70 6 4.6 mitte normal #1C2028 {Datum}",
        "Linie 25 269 70 0 #626A78 0.3",
        "Text 25 270 70 5 3.4 mitte normal #626A78 Datum",
        "Linie 115 269 70 0 #626A78 0.3",
        "Text 115 270 70 5 3.4 mitte normal #626A78 Rennleitung",
    };
    return zeilen;
}

}  // namespace tarvel
