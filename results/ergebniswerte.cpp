#include "results/ergebniswerte.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::size_t stundenziffern_max = 8;  // sums of all lines stay within a duration
constexpr double meter_max = 1e8;              // likewise within what can be written
constexpr std::int64_t runden_hoechstens = 1000000000;

}  // namespace

std::vector<std::string> felder_teilen(std::string_view zeile, std::string_view trenner) {
    std::vector<std::string> alle;
    const auto naechster = [&] { return trenner.empty() ? std::string_view::npos : zeile.find(trenner); };
    for (std::size_t ende = naechster(); ende != std::string_view::npos; ende = naechster()) {
        alle.emplace_back(zeile.substr(0, ende));
        zeile.remove_prefix(ende + trenner.size());
    }
    alle.emplace_back(zeile);
    return alle;
}

std::string felder_verbinden(const std::vector<std::string>& felder, std::string_view trenner) {
    std::string zeile;
    for (std::size_t i = 0; i < felder.size(); ++i) {
        zeile += i == 0 ? felder[i] : std::string(trenner) + felder[i];
    }
    return zeile;
}

zeit_ms ergebniszeit_lesen(std::string_view text) {
    std::string ziffernfolge;
    std::copy_if(text.begin(), text.end(), std::back_inserter(ziffernfolge),
                 [](char zeichen) { return zeichen >= '0' && zeichen <= '9'; });
    const auto teil = [&ziffernfolge](std::size_t stellen) {
        const std::size_t ab = ziffernfolge.size() - std::min(stellen, ziffernfolge.size());
        zeit_ms wert = 0;
        std::from_chars(ziffernfolge.data() + ab, ziffernfolge.data() + ziffernfolge.size(), wert);
        ziffernfolge.resize(ab);
        return wert;
    };
    const zeit_ms tausendstel = teil(3);
    const zeit_ms sekunden = teil(2);
    const zeit_ms minuten = teil(2);
    return ((teil(stundenziffern_max) * 60 + minuten) * 60 + sekunden) * 1000 + tausendstel;
}

bool nennt_stunden(std::string_view text) {
    constexpr std::ptrdiff_t ohne_stunden = 7;
    return std::count_if(text.begin(), text.end(), [](char zeichen) { return zeichen >= '0' && zeichen <= '9'; }) >
           ohne_stunden;
}

zeit_ms mit_stunden(zeit_ms gesamtzeit, zeit_ms rundensumme) {
    constexpr zeit_ms stunde = 3600000;
    const zeit_ms fehlt = rundensumme - gesamtzeit + stunde / 2;  // penalties move the two apart
    return gesamtzeit + std::max<zeit_ms>(fehlt / stunde, 0) * stunde;
}

dauer_s strafzeit_von(zeit_ms gesamtzeit, zeit_ms rundensumme) {
    constexpr zeit_ms sekunde = 1000;
    const zeit_ms mehr = gesamtzeit - rundensumme;
    return dauer_s(mehr > 0 && mehr % sekunde == 0 ? mehr / sekunde : 0);
}

std::string ergebniszeit(zeit_ms zeit, const trennzeichen_tabelle& trennzeichen) {
    const std::string ohne_stunden = zeit_formatieren(zeit, true, trennzeichen);
    const zeit_ms stunden = zeit_zerlegen(zeit).stunden;
    return stunden > 0 ? std::to_string(stunden) + trennzeichen[0] + ohne_stunden : ohne_stunden;
}

double ergebnismeter_lesen(std::string_view text, const trennzeichen_tabelle& trennzeichen) {
    std::string zahl(text);
    if (const std::size_t stelle = trennzeichen[1].empty() ? std::string::npos : zahl.find(trennzeichen[1]);
        stelle != std::string::npos) {
        zahl.replace(stelle, trennzeichen[1].size(), ".");
    }
    werte_pruefen2(zahl);
    return std::clamp(zahl_lesen(zahl), -meter_max, meter_max);
}

std::int64_t ergebnisrunden_lesen(std::string_view text) {
    return ganzzahl_lesen(text, 0, runden_hoechstens);
}

}  // namespace tarvel
