#include "competition/intervalltraining.h"

namespace tarvel {

selbstlauf intervalltraining::danach() const {
    using schritt = selbstlauf::schritt;
    const bool fortsetzen = um_.einst.training_weiter != training_weitergang::neu_starten;
    return {fortsetzen ? schritt::fortsetzen : schritt::neu_starten, um_.einst.training_wechseldauer};
}

}  // namespace tarvel
