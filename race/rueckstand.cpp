#include "race/rueckstand.h"

namespace tarvel {

sprachliste& rueckstand_worte::eintragen(sprachliste& texte) {
    texte.text("Runde", runde).text("Runden", runden);
    return texte.text("zurück", zurueck).text("gleichauf", gleichauf);
}

std::string dauer_gesagt(zeit_ms dauer, const trennzeichen_tabelle& trennzeichen) {
    constexpr zeit_ms minute = 60000;
    constexpr zeit_ms zehn_sekunden = 10000;
    const std::string text = zeit_formatieren(dauer, dauer >= minute, trennzeichen);
    return text.substr(dauer < zehn_sekunden ? 1 : 0) + (dauer < minute ? " s" : " min");
}

std::string runden_gesagt(int runden, const rueckstand_worte& wort) {
    return std::to_string(runden) + " " + (runden == 1 ? wort.runde : wort.runden);
}

}  // namespace tarvel
