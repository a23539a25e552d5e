#include "results/ergebnisdatei.h"

#include <algorithm>

#include "core/zeit.h"

namespace tarvel {
namespace {

constexpr std::size_t zeilen_max = 10100;        // a race of 9999 laps has some more
constexpr std::size_t zeile_bytes_max = 200000;  // a lane of 9999 laps is one line

}  // namespace

std::vector<std::string> ergebnis_zeilen_lesen(const dateien& ablage, std::string_view name) {
    return ablage.zeilen_lesen(name, zeilen_max, zeile_bytes_max).value_or(std::vector<std::string>{});
}

ergebnis_typ datei_typ_erkennen(const std::vector<std::string>& zeilen) {
    const auto von_hinten = [&](std::size_t abstand) {
        return abstand < zeilen.size() ? std::string_view(zeilen[zeilen.size() - 1 - abstand]) : std::string_view();
    };
    if (von_hinten(0) == magie_jeder_gegen_jeden) {
        return ergebnis_typ::jeder_gegen_jeden;
    }
    if (von_hinten(0) == magie_wettkampf) {
        return ergebnis_typ::wettkampf;
    }
    if (von_hinten(1) == magie_einzelrennen) {  // an address stands behind it
        return ergebnis_typ::einzelrennen;
    }
    return !zeilen.empty() && zeilen.front() == magie_tagesrennen ? ergebnis_typ::tagesrennen : ergebnis_typ::unbekannt;
}

std::string ergebnis_stempel(const plattform::datum_uhrzeit& moment) {
    std::string stempel = uhrzeit_text(moment);
    std::erase_if(stempel,
                  [](char zeichen) { return std::string_view(". :/").find(zeichen) != std::string_view::npos; });
    stempel.pop_back();
    return stempel;
}

std::string zeitpunkt_im_namen(std::string_view pfad) {
    constexpr std::size_t tag = 8;
    constexpr std::size_t uhrzeit = 5;
    const auto ziffern_an = [&pfad](std::size_t ab, std::size_t anzahl) {
        return pfad.substr(ab, anzahl).find_first_not_of("0123456789") == std::string_view::npos;
    };
    for (std::size_t strich = pfad.find('-', tag); strich != std::string_view::npos;
         strich = pfad.find('-', strich + 1)) {
        const std::size_t ab = strich - tag;
        const bool ganz = strich + uhrzeit < pfad.size() && ziffern_an(ab, tag) && ziffern_an(strich + 1, uhrzeit);
        if (ganz && (ab == 0 || !ziffern_an(ab - 1, 1))) {
            const std::string t(pfad.substr(ab, tag));
            const std::string u(pfad.substr(strich + 1, uhrzeit));
            return t.substr(0, 2) + "." + t.substr(2, 2) + "." + t.substr(4) + " " + u.substr(0, 2) + ":" +
                   u.substr(2, 2);
        }
    }
    return {};
}

std::string datum_im_namen(std::string_view pfad) {
    const std::string wann = zeitpunkt_im_namen(pfad);
    return wann.substr(0, wann.find(' '));
}

std::string ohne_trenner(std::string text, const std::string& trenner) {
    const std::string ersatz = trenner == " " ? "_" : " ";
    std::size_t stelle = text.find(trenner);
    while (!trenner.empty() && stelle != std::string::npos) {
        text.replace(stelle, trenner.size(), ersatz);
        stelle = text.find(trenner, stelle + ersatz.size());
    }
    return text;
}

}  // namespace tarvel
