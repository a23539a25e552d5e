#include "hardware/zeitbasis.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <utility>

namespace tarvel {
namespace {

/// No device's clock is as wrong as that.
double gang_aus(std::int64_t bits) {
    return std::clamp(protokoll_bruch(bits, 1), 0.01, 100.0);
}

}  // namespace

zeit_ms zeitbasis::messzeit_lesen() const {
    const zeit_ms seither = uhr_.jetzt() - bezug_;
    const zeit_ms gelaufen = gang_ == 1 ? seither : std::llround(static_cast<double>(seither) * gang_);
    return std::max(stand_ + gelaufen, mindestens_);
}

zeit_ms zeitbasis::ereignis_zeit_lesen() {
    if (!zaehlt_) {
        return messzeit_lesen();
    }
    ++zeit_zaehler_;
    const zeit_ms stempel = messzeit_lesen() + zeit_zaehler_;
    if (zeit_zaehler_ == 9) {
        zeit_zaehler_ = -1;
    }
    return stempel;
}

void zeitbasis::mitschreiben(mitschrift& protokoll) {
    protokoll_ = &protokoll;
    constexpr std::array<std::pair<const char*, std::size_t>, eingaenge> namen{
        {{"uhr", 2}, {"uhrgang", 2}, {"uhrzaehler", 0}, {"uhrzaehltnicht", 0}, {"uhrfrei", 0}, {"uhrstand", 6}}};
    for (std::size_t i = 0; i < eingaenge; ++i) {
        eingang_.at(i) =
            protokoll.eingang(namen.at(i).first, namen.at(i).second,
                              [this, i](const mitschrift::werte& w) { ausfuehren(static_cast<eingang>(i), w); });
    }
}

void zeitbasis::tun(eingang was, zeit_ms geraetezeit, double gang) {
    const mitschrift::werte w{geraetezeit, std::bit_cast<std::int64_t>(gang)};
    if (protokoll_ != nullptr) {
        protokoll_->geschieht(eingang_.at(static_cast<std::size_t>(was)), w);
    } else {
        ausfuehren(was, w);
    }
}

mitschrift::werte zeitbasis::stand() const {
    return {bezug_, stand_, std::bit_cast<std::int64_t>(gang_), mindestens_, zeit_zaehler_, zaehlt_ ? 1 : 0};
}

void zeitbasis::stand_setzen(const mitschrift::werte& stand) {
    protokoll_->geschieht(eingang_.at(static_cast<std::size_t>(eingang::stand)), stand);
}

void zeitbasis::ausfuehren(eingang was, const mitschrift::werte& w) {
    switch (was) {
        case eingang::stellen:
            setzen(protokoll_stempel(w[0]), gang_aus(w[1]));
            break;
        case eingang::nachstellen: {
            const zeit_ms gelesen = messzeit_lesen();
            setzen(protokoll_stempel(w[0]), gang_aus(w[1]));
            mindestens_ = gelesen;
            break;
        }
        case eingang::zaehler:
            zeit_zaehler_ = 0;
            break;
        case eingang::nicht_zaehlen:
            zaehlt_ = false;
            break;
        case eingang::freigeben:
            bezug_ = 0;
            stand_ = 0;
            gang_ = 1;
            mindestens_ = nie;
            zaehlt_ = true;
            break;
        case eingang::stand:
            bezug_ = protokoll_stempel(w[0]);
            stand_ = protokoll_stempel(w[1]);
            gang_ = gang_aus(w[2]);
            mindestens_ = w[3] == nie ? nie : protokoll_stempel(w[3]);
            zeit_zaehler_ = static_cast<int>(std::clamp<std::int64_t>(w[4], -1, 9));
            zaehlt_ = w[5] != 0;
            break;
    }
}

void zeitbasis::setzen(zeit_ms geraetezeit, double gang) {
    bezug_ = uhr_.jetzt();
    stand_ = geraetezeit;
    gang_ = gang;
    mindestens_ = nie;
}

}  // namespace tarvel
