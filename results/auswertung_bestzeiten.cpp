#include "results/auswertung.h"

namespace tarvel {

void auswertung::bestzeiten_pruefen() {
    neue_bestzeit_ = false;
}

void auswertung::bestzeiten_vor(aktion danach) {
    if (neue_bestzeit_) {
        bestzeiten_oeffnen(danach);
    } else {
        ausfuehren(danach);
    }
}

void auswertung::bestzeiten_oeffnen(aktion danach) {
    aktion_nach_bestzeiten_ = danach;
    ausfuehren(danach);
}

}  // namespace tarvel
