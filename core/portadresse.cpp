#include "core/portadresse.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr int hexadezimal = 16;
constexpr int adresse_min = 0x100;  // below it the machine has its timers and interrupts, which nobody may write
constexpr int adresse_max = 0xFFFF - 2;

}  // namespace

bool portadresse_gilt(int adresse) {
    return adresse >= adresse_min && adresse <= adresse_max;
}

std::string portadresse_text(int adresse) {
    std::array<char, 8> ziffern{};
    const auto ende = std::to_chars(ziffern.begin(), ziffern.end(), static_cast<unsigned>(adresse), hexadezimal).ptr;
    std::string text(ziffern.begin(), ende);
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char z) { return z >= 'a' ? static_cast<char>(z - 'a' + 'A') : z; });
    return text;
}

std::optional<int> portadresse_lesen(std::string_view text) {
    text = gekuerzt(text);
    int adresse = 0;
    const char* const ende = text.data() + text.size();
    const auto [bis, fehler] = std::from_chars(text.data(), ende, adresse, hexadezimal);
    const bool gut = fehler == std::errc() && bis == ende && portadresse_gilt(adresse);
    return gut ? std::optional(adresse) : std::nullopt;
}

}  // namespace tarvel
