#include "optionen/optionsseite.h"

namespace tarvel {

optionsgruppe& optionsseite::gruppe(std::string_view name_deutsch, int spalte) {
    gruppen.push_back(std::make_unique<optionsgruppe>());
    gruppen.back()->deutsch = name_deutsch;
    gruppen.back()->spalte = spalte;
    return *gruppen.back();
}

void optionsseite::texte_nennen(sprachliste& texte) {
    texte.text(deutsch, titel);
    for (const auto& gruppe : gruppen) {
        texte.text(gruppe->deutsch, gruppe->titel);
        for (const optionszeile_zeiger& zeile : gruppe->zeilen) {
            zeile->texte_nennen(texte);
        }
    }
}

}  // namespace tarvel
