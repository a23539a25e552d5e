#include "results/tabellenverlauf.h"

#include <utility>

namespace tarvel {
namespace {

bool wechseln(ergebnistabelle& tabelle, std::vector<ergebnistabelle>& aus, std::vector<ergebnistabelle>& nach) {
    if (aus.empty()) {
        return false;
    }
    nach.push_back(std::exchange(tabelle, std::move(aus.back())));
    aus.pop_back();
    return true;
}

}  // namespace

void tabellenverlauf::merken(const ergebnistabelle& vorher) {
    if (vorher_.size() == schritte_max) {
        vorher_.erase(vorher_.begin());
    }
    vorher_.push_back(vorher);
    nachher_.clear();
    if (gesichert_ > stand_) {
        gesichert_ = nie;
    }
    ++stand_;
}

bool tabellenverlauf::zuruecknehmen(ergebnistabelle& tabelle) {
    const bool da = wechseln(tabelle, vorher_, nachher_);
    stand_ -= da ? 1 : 0;
    return da;
}

bool tabellenverlauf::wiederherstellen(ergebnistabelle& tabelle) {
    const bool da = wechseln(tabelle, nachher_, vorher_);
    stand_ += da ? 1 : 0;
    return da;
}

void tabellenverlauf::abschliessen() {
    gesichert_ = ungesichert() ? nie : 0;
    stand_ = 0;
    vorher_.clear();
    nachher_.clear();
}

}  // namespace tarvel
