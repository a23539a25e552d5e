#include "hardware/tx_suche.h"

#include <algorithm>
#include <utility>

namespace tarvel {
namespace {

constexpr std::string_view port_werte = "9600,n,8,1";

}  // namespace

bool tx_suche::versuchen(int nummer) {
    auto leitung = std::make_unique<tx_leitung>();
    leitung->nummer = nummer;
    leitung->MSCommTX = dienst_.erzeugen();
    leitung->MSCommTX->bei_empfang = [this, l = leitung.get()](std::string_view bytes, zeit_ms stempel) {
        empfangen(*l, bytes, stempel);
    };
    leitung->MSCommTX->bei_ereignis = [this](int ereignis) { bei_ereignis(ereignis); };
    leitung->MSCommTX->bei_verlust = [this, l = leitung.get()] { bei_verlust(*l); };
    if (!leitung->MSCommTX->oeffnen(nummer, port_werte)) {
        return false;
    }
    tx_leitung& neue = *leitung;
    leitungen_.push_back(std::move(leitung));
    neue.MSCommTX->schreiben({&tx::anmelden, 1});
    return true;
}

bool tx_suche::versucht(int nummer) const {
    return std::any_of(leitungen_.begin(), leitungen_.end(),
                       [nummer](const auto& leitung) { return leitung->nummer == nummer; });
}

void tx_suche::nochmals_gruessen() {
    for (std::size_t i = 0; i < leitungen_.size(); ++i) {  // who answers at once ends the search
        leitungen_[i]->MSCommTX->schreiben(std::string{tx::anmelden, tx::firmware_frage});
    }
}

std::unique_ptr<tx_leitung> tx_suche::nehmen(const tx_leitung& diese) {
    std::unique_ptr<tx_leitung> genommen;
    for (auto& leitung : leitungen_) {
        if (leitung.get() == &diese) {
            genommen = std::move(leitung);
        }
    }
    beenden();
    return genommen;
}

void tx_suche::empfangen(tx_leitung& leitung, std::string_view bytes, zeit_ms stempel) const {
    for (const char byte : bytes) {
        if (const auto zeile = leitung.puffer.nehmen(byte)) {
            bei_meldung(leitung, tx::zeile_lesen(*zeile), stempel);
        }
    }
}

}  // namespace tarvel
