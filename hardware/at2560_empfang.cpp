#include "hardware/at2560_empfang.h"

#include <utility>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr zeit_ms zeit_max = 1'000'000'000'000;  // some thirty years: no sum of stamps comes near its limits

char byte_von(const std::string& zeichen) {
    const std::string bytes = nach_1252(zeichen);
    return bytes.empty() ? '\0' : bytes.front();
}

}  // namespace

bool at_empfang::anhaengen(std::string_view bytes) {
    const std::size_t alle = at_empfang_.size() + bytes.size();
    at_empfang_ += bytes;
    if (alle > bytes_max) {
        at_empfang_.erase(0, alle - bytes_max);
    }
    return alle <= bytes_max;
}

bool at_empfang::µC_neuer_befehl(const at_profil& profil) {
    if (std::exchange(zurueckgelegt_, false)) {
        return true;
    }
    at_befehl_.clear();
    if (at_empfang_.empty()) {  // the usual case, a thousand times a second
        return false;
    }
    const char start = byte_von(profil.at_startzeichen);
    at_empfang_.erase(0, at_empfang_.find(start));
    const std::size_t ende = at_empfang_.find(byte_von(profil.at_endzeichen), 1);
    if (ende == std::string::npos) {
        return false;
    }
    const std::size_t anfang = at_empfang_.rfind(start, ende - 1);  // what begins again has lost its end
    at_befehl_ = at_empfang_.substr(anfang, ende + 1 - anfang);
    at_empfang_.erase(0, ende + 1);
    return true;
}

std::optional<at_meldung> at_empfang::meldung(const at_profil& profil) const {
    if (at_befehl_.size() < 2) {
        return std::nullopt;
    }
    const std::string_view inhalt = std::string_view(at_befehl_).substr(1, at_befehl_.size() - 2);
    const std::size_t trenner = inhalt.find(byte_von(profil.at_trennzeichen_zeit));
    if (trenner == std::string_view::npos) {
        return std::nullopt;
    }
    return at_meldung{von_1252(inhalt.substr(0, trenner)),
                      ganzzahl_lesen(inhalt.substr(trenner + 1), -zeit_max, zeit_max)};
}

}  // namespace tarvel
