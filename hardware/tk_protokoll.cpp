#include "hardware/tk_protokoll.h"

#include <algorithm>
#include <charconv>

namespace tarvel::tk {
namespace {

constexpr std::string_view chaoswort = "Chaos_bttn";
constexpr std::size_t zeit_stellen = 13;  // of a clock that has run for three hundred years

/// Digits alone: what else stands there was damaged on the way.
std::optional<zeit_ms> ziffern_lesen(std::string_view text, std::size_t hoechstens) {
    zeit_ms zahl = 0;
    const char* const ende = text.data() + text.size();
    const bool nur_ziffern = std::all_of(text.begin(), text.end(), [](char z) { return z >= '0' && z <= '9'; });
    if (text.empty() || text.size() > hoechstens || !nur_ziffern ||
        std::from_chars(text.data(), ende, zahl).ptr != ende) {
        return std::nullopt;
    }
    return zahl;
}

/// The text up to the next separator, which goes with it, however many there are in a row.
std::string_view feld_abnehmen(std::string_view& rest) {
    const std::size_t ende = std::min(rest.find(feldtrenner), rest.size());
    const std::string_view feld = rest.substr(0, ende);
    rest.remove_prefix(std::min(rest.find_first_not_of(feldtrenner, ende), rest.size()));
    return feld;
}

satz sensor_lesen(std::string_view rest, bool digital) {
    const auto tk_sensor = ziffern_lesen(feld_abnehmen(rest), 2);
    const auto wagen = digital ? ziffern_lesen(feld_abnehmen(rest), 2) : std::optional<zeit_ms>(0);
    const auto zeit = ziffern_lesen(rest, zeit_stellen);
    if (!tk_sensor || !wagen || !zeit) {
        return gestoert{};
    }
    return sensor{static_cast<int>(*tk_sensor), static_cast<int>(*wagen), *zeit};
}

int chaoswert_lesen(std::string_view rest) {
    constexpr std::size_t wert_stellen = 9;
    const std::size_t trenner = std::min<std::size_t>(rest.size(), 1);
    return static_cast<int>(ziffern_lesen(rest.substr(trenner), wert_stellen).value_or(0));
}

}  // namespace

satz satz_lesen(std::string_view inhalt, bool digital) {
    if (inhalt.starts_with(feldtrenner)) {
        const auto zeit = ziffern_lesen(inhalt.substr(1), zeit_stellen);
        return zeit ? satz(uhrzeit{*zeit}) : satz(gestoert{});
    }
    if (inhalt.starts_with(chaoswort)) {
        return chaostaste{chaoswert_lesen(inhalt.substr(chaoswort.size()))};
    }
    // an answer in words may begin with that letter too
    const bool ist_sensor = inhalt.size() > 1 && inhalt[0] == 'D' && inhalt[1] >= '0' && inhalt[1] <= '9';
    return ist_sensor ? sensor_lesen(inhalt.substr(1), digital) : satz(antwort{});
}

}  // namespace tarvel::tk

namespace tarvel {

void tk_empfang::anhaengen(std::string_view bytes) {
    puffer_.erase(0, gelesen_);
    gelesen_ = 0;
    puffer_ += bytes;
}

std::optional<std::string_view> tk_empfang::naechster() {
    for (std::size_t ende = 0; (ende = puffer_.find(tk::satzende, gelesen_)) != std::string::npos;) {
        const std::string_view bis_ende = std::string_view(puffer_).substr(gelesen_, ende - gelesen_);
        gelesen_ = ende + 1;
        if (const std::size_t anfang = bis_ende.rfind(tk::satzanfang); anfang != std::string_view::npos) {
            return bis_ende.substr(anfang + 1);
        }
    }
    if (puffer_.size() - gelesen_ > satz_max) {
        const std::size_t anfang = puffer_.rfind(tk::satzanfang);
        const bool neuer = anfang != std::string::npos && puffer_.size() - anfang <= satz_max;
        gelesen_ = neuer ? anfang : puffer_.size();
    }
    return std::nullopt;
}

void tk_empfang::leeren() {
    puffer_.clear();
    gelesen_ = 0;
}

}  // namespace tarvel
