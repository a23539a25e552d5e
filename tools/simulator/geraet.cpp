#include "tools/simulator/geraet.h"

#include <algorithm>

namespace tarvel::simulator {

geraet::geraet(const rennen_einstellung& rennen, std::size_t wagen_max)
    : feld_({rennen.wagen.begin(),
             rennen.wagen.begin() + static_cast<std::ptrdiff_t>(std::min(rennen.wagen.size(), wagen_max))},
            rennen.saat),
      uhr_start_(rennen.uhr_start),
      uhr_(rennen.uhr_start),
      gang_ppm_(rennen.gang_ppm) {
    feld_.bei_ereignis = [this](const wagen_ereignis& was) { wagen_meldet(was); };
}

void geraet::weiter(zeit_ms jetzt) {
    if (!gestellt_) {
        gestellt_ = true;
        beginn_ = jetzt;
    }
    constexpr zeit_ms million = 1000000;
    const zeit_ms dauer = jetzt - beginn_;
    for (const zeit_ms bis = dauer + dauer * gang_ppm_ / million; vergangen_ < bis;) {
        ++vergangen_;
        ++uhr_;
        feld_.schritt(uhr_);
        schritt();
    }
}

void geraet::hinaus(std::string_view bytes) const {
    if (senden) {
        senden(bytes);
    }
}

void geraet::sagen(std::string_view zeile) const {
    if (melden) {
        melden(zeile);
    }
}

}  // namespace tarvel::simulator
