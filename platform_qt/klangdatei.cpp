#include "platform_qt/klangdatei.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace tarvel::qt {
namespace {

using bytes = std::span<const std::uint8_t>;

constexpr std::uint32_t pcm = 1;
constexpr std::uint32_t gleitkomma = 3;
constexpr std::uint32_t erweitert = 0xFFFE;  // the kind stands further behind
constexpr std::uint32_t rate_min = 1000;
constexpr std::uint32_t rate_max = 400000;
constexpr std::size_t sekunden_max = 300;  // more than any sound of a race needs

/// Little-endian number of `laenge` bytes; the caller has checked the length.
std::uint32_t zahl(bytes inhalt, std::size_t ab, std::size_t laenge) {
    std::uint32_t wert = 0;
    for (std::size_t i = 0; i < laenge; ++i) {
        wert |= static_cast<std::uint32_t>(inhalt[ab + i]) << (8 * i);
    }
    return wert;
}

bool ist(bytes inhalt, std::size_t ab, std::string_view kennung) {
    return inhalt.size() >= ab + kennung.size() &&
           std::equal(kennung.begin(), kennung.end(), inhalt.begin() + static_cast<std::ptrdiff_t>(ab));
}

/// Content of a chunk, as far as the file has it.
bytes abschnitt(bytes inhalt, std::string_view kennung) {
    constexpr std::size_t kopf = 8;
    for (std::size_t ab = 12; ab + kopf <= inhalt.size();) {
        const std::size_t laenge = zahl(inhalt, ab + 4, 4);
        const std::size_t da = std::min(laenge, inhalt.size() - ab - kopf);
        if (ist(inhalt, ab, kennung)) {
            return inhalt.subspan(ab + kopf, da);
        }
        ab += kopf + da + da % 2;
    }
    return {};
}

struct wellenform {
    std::uint32_t art = 0;
    std::uint32_t kanaele = 0;
    std::uint32_t rate = 0;
    std::size_t breite = 0;  ///< bytes of one value

    bool brauchbar() const {
        const bool ganz = art == pcm && breite >= 1 && breite <= 4;
        return (ganz || (art == gleitkomma && breite == sizeof(float))) && kanaele >= 1 && kanaele <= 64 &&
               rate >= rate_min && rate <= rate_max;
    }
};

wellenform form_lesen(bytes fmt) {
    constexpr std::size_t einfach = 16;
    constexpr std::size_t lang = 26;
    if (fmt.size() < einfach) {
        return {};
    }
    wellenform form{zahl(fmt, 0, 2), zahl(fmt, 2, 2), zahl(fmt, 4, 4), zahl(fmt, 14, 2) / 8};
    if (form.art == erweitert && fmt.size() >= lang) {
        form.art = zahl(fmt, 24, 2);
    }
    return form;
}

float wert_lesen(bytes daten, std::size_t ab, const wellenform& form) {
    const std::uint32_t roh = zahl(daten, ab, form.breite);
    if (form.art == gleitkomma) {
        float wert = 0;
        std::memcpy(&wert, &roh, sizeof wert);
        return std::isfinite(wert) ? std::clamp(wert, -1.0F, 1.0F) : 0.0F;
    }
    if (form.breite == 1) {  // the only width without a sign
        return (static_cast<float>(roh) - 128.0F) / 128.0F;
    }
    const auto oben = static_cast<std::int32_t>(roh << (8 * (4 - form.breite)));
    return static_cast<float>(oben) / 2147483648.0F;
}

std::vector<float> einkanalig(bytes daten, const wellenform& form) {
    const std::size_t schritt = form.breite * form.kanaele;
    std::vector<float> werte(std::min(daten.size() / schritt, sekunden_max * form.rate));
    for (std::size_t i = 0; i < werte.size(); ++i) {
        for (std::size_t kanal = 0; kanal < form.kanaele; ++kanal) {
            werte[i] += wert_lesen(daten, i * schritt + kanal * form.breite, form) / static_cast<float>(form.kanaele);
        }
    }
    return werte;
}

std::vector<float> auf_rate(const std::vector<float>& werte, std::uint32_t von, int nach) {
    if (werte.empty() || von == static_cast<std::uint32_t>(nach)) {
        return werte;
    }
    const double schritt = static_cast<double>(von) / nach;
    std::vector<float> neu(static_cast<std::size_t>(static_cast<double>(werte.size()) / schritt));
    for (std::size_t i = 0; i < neu.size(); ++i) {
        const double stelle = static_cast<double>(i) * schritt;
        const std::size_t links = std::min(static_cast<std::size_t>(stelle), werte.size() - 1);
        const std::size_t rechts = std::min(links + 1, werte.size() - 1);
        neu[i] = std::lerp(werte[links], werte[rechts], static_cast<float>(stelle - static_cast<double>(links)));
    }
    return neu;
}

}  // namespace

std::vector<float> klangdatei_lesen(std::span<const std::uint8_t> inhalt, int rate) {
    if (!ist(inhalt, 0, "RIFF") || !ist(inhalt, 8, "WAVE")) {
        return {};
    }
    const wellenform form = form_lesen(abschnitt(inhalt, "fmt "));
    return form.brauchbar() ? auf_rate(einkanalig(abschnitt(inhalt, "data"), form), form.rate, rate)
                            : std::vector<float>{};
}

}  // namespace tarvel::qt
