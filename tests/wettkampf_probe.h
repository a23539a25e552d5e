#pragma once

#include <random>
#include <string>
#include <vector>

#include "competition/wettkampf.h"

namespace tarvel::test {

inline const texte worte;

inline std::vector<std::string> fahrernamen(int anzahl) {
    std::vector<std::string> namen;
    for (int wer = 1; wer <= anzahl; ++wer) {
        namen.push_back("Fahrer " + std::to_string(wer));
    }
    return namen;
}

inline wettkampf wettkampf_mit(wettkampf_modus modus, int fahrer, const std::vector<int>& lanes,
                               bool centermode = false) {
    planvorgabe vorgabe;
    vorgabe.modus = modus;
    vorgabe.centermode = centermode;
    for (const int spur : lanes) {
        vorgabe.aktiv[spur] = true;
    }
    return wettkampf_beginnen(vorgabe, fahrernamen(fahrer), "Pokal", worte).value();
}

/// Few different values, so that many are equal.
inline spuren<fahrt> zufallsfahrten(std::mt19937& wuerfel) {
    const auto zahl = [&](int bis) { return static_cast<int>(wuerfel() % static_cast<unsigned>(bis + 1)); };
    spuren<fahrt> neu;
    for (fahrt& eine : neu) {
        const int runden = zahl(3);
        eine = {runden, runden * zeit_ms{8000 + zahl(2)}, zentimeter{runden} * 1005 + zentimeter{zahl(1)} * 240,
                runden == 0 ? 0 : 7000 + zahl(3)};
    }
    return neu;
}

}  // namespace tarvel::test
