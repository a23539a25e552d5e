#include "race/zeitgeber.h"

namespace tarvel {

using plattform::zeitgeber_art;

rennzeitgeber::rennzeitgeber(plattform::zeitgeber_dienst& dienst)
    : renntimer(dienst.erzeugen(zeitgeber_art::abfragend, 1)),
      renntimer2(dienst.erzeugen(zeitgeber_art::abfragend, 1)),
      renntimer3(dienst.erzeugen(zeitgeber_art::abfragend, 1)),
      nachlauftimer1(dienst.erzeugen(zeitgeber_art::zaehlend, 60000)) {
    for (auto& sperre : tankwartetimer) {
        sperre = dienst.erzeugen(zeitgeber_art::abfragend, 100);
        sperre->bei_tick = [zeitgeber = sperre.get()] { zeitgeber->aus(); };
    }
}

void rennzeitgeber::rennen_an() const {
    renntimer->an();
    renntimer2->an();
    renntimer3->an();
}

void rennzeitgeber::rennen_aus() const {
    renntimer->aus();
    renntimer2->aus();
    renntimer3->aus();
}

void rennzeitgeber::alle_aus() const {
    rennen_aus();
    nachlauftimer1->aus();
    for (const auto& sperre : tankwartetimer) {
        sperre->aus();
    }
}

}  // namespace tarvel
