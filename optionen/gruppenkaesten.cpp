#include "optionen/gruppenkaesten.h"

namespace tarvel {

gruppenkaesten::gruppenkaesten(const zeilen& z, const wechsel_folge& in_kraft)
    : feste_gruppen_(std::get<haken>(z.feste_gruppen.element)),
      optimal_verteilen_(std::get<haken>(z.optimal_verteilen.element)),
      am_stueck_(std::get<haken>(z.am_stueck.element)),
      folge_(std::get<feld>(z.folge.element)),
      in_kraft_(in_kraft) {
    for (haken* kasten : {&feste_gruppen_, &optimal_verteilen_, &am_stueck_}) {
        kasten->bei_aenderung = [this] { abgleichen(); };
    }
}

void gruppenkaesten::abgleichen() {
    const bool standard = ist_standardschema(wechsel_folge_lesen(folge_.text()).value_or(in_kraft_));
    const gruppenwahl frei = zulaessige_gruppenwahl({feste_gruppen_.gesetzt(), true, true}, standard);
    const auto sperren = [](haken& kasten, bool darf) {
        kasten.aktiviert(darf);
        kasten.gesetzt(kasten.gesetzt() && darf);
    };
    sperren(optimal_verteilen_, frei.optimal_verteilen);
    sperren(am_stueck_, frei.am_stueck);
}

}  // namespace tarvel
