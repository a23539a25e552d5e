#include "results/einzelrennen.h"

#include "race/rundenspeicher.h"

namespace tarvel {

rennziel renn_maximum(const renn_parameter& param) {
    constexpr dauer_ms laengstes = std::chrono::minutes(1499);
    return param.ist_zeitrennen() ? rennziel::zeit(laengstes.count()) : rennziel::runden(runden_max);
}

bool einzelrennen::uebernehmen(const rennergebnis& ergebnis, weitergang /*wie*/) {
    return !um_.einst.aut_speichern || um_.speichern.automatisch_speichern(ergebnis);
}

}  // namespace tarvel
