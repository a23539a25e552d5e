#include "results/ergebnisworte.h"

namespace tarvel {

sprachliste& diagramm_worte::eintragen(sprachliste& texte) {
    texte.text("Runde", achse_runde).text("Rundenzeit in Sekunden", achse_zeit).text("beste Runde", beste);
    texte.text("Runde mit Pause", pause).text("länger, als das Diagramm reicht", lang);
    return texte.text("keine Runde", ohne_runden).text("Es wurde keine Runde gezählt.", leer);
}

sprachliste& blatt_worte::eintragen(sprachliste& texte) {
    texte.text("Platz", platz).text("Spur", spur).text("Fahrer", fahrer).text("Fahrzeug", fahrzeug);
    return texte.text("Meter", meter).text("Abstand", abstand).text("km/h beste / Ø", tempo);
}

sprachliste& blatt_worte::nachtragen(sprachliste& texte) {
    return texte.text("Strecke", strecke).text("Rundenzeiten", rundenzeiten);
}

sprachliste& blatt_worte::ab_gruen_nennen(sprachliste& texte) {
    return texte.text("Die Zeit zählt ab der eigenen ersten Überfahrt; ab Grün gezählt wäre die Folge:", ab_gruen);
}

sprachliste& blatt_worte::fruehstart_nennen(sprachliste& texte) {
    return texte.text("Nach einem Frühstart zählt die Zeit schon ab Grün:", nach_fruehstart);
}

}  // namespace tarvel
