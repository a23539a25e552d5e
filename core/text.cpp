#include "core/text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvel {
namespace {

constexpr char32_t ungueltig = 0xFFFD;

/// Code points of the bytes 0x80 to 0x9F.
constexpr std::array<char32_t, 32> oberer_steuerbereich{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                        0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                        0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool ist_folgebyte(char zeichen) {
    return (static_cast<unsigned char>(zeichen) & 0xC0U) == 0x80U;
}

/// Takes one character off the front of `rest`; a broken sequence gives `ungueltig` and loses one byte.
char32_t naechstes_zeichen(std::string_view& rest) {
    const auto erstes = static_cast<unsigned char>(rest.front());
    const std::size_t folgen = erstes < 0x80 ? 0 : erstes >= 0xF0 ? 3 : erstes >= 0xE0 ? 2 : 1;
    const bool kopf_gueltig = erstes < 0x80 || (erstes >= 0xC2 && erstes <= 0xF4);
    if (!kopf_gueltig || rest.size() <= folgen ||
        !std::all_of(rest.begin() + 1, rest.begin() + 1 + static_cast<std::ptrdiff_t>(folgen), ist_folgebyte)) {
        rest.remove_prefix(1);
        return ungueltig;
    }
    char32_t zeichen = folgen == 0 ? erstes : erstes & (0x3FU >> folgen);
    for (std::size_t i = 1; i <= folgen; ++i) {
        zeichen = (zeichen << 6U) | (static_cast<unsigned char>(rest[i]) & 0x3FU);
    }
    constexpr std::array<char32_t, 4> kleinstes{0, 0x80, 0x800, 0x10000};
    const bool zu_lang = zeichen < kleinstes.at(folgen);
    rest.remove_prefix(zu_lang ? 1 : folgen + 1);
    return zu_lang ? ungueltig : zeichen;
}

void anhaengen(std::string& text, char32_t zeichen) {
    const auto byte = [&text](char32_t wert) { text.push_back(static_cast<char>(wert)); };
    if (zeichen < 0x80) {
        byte(zeichen);
    } else if (zeichen < 0x800) {
        byte(0xC0U | (zeichen >> 6U));
        byte(0x80U | (zeichen & 0x3FU));
    } else {
        byte(0xE0U | (zeichen >> 12U));
        byte(0x80U | ((zeichen >> 6U) & 0x3FU));
        byte(0x80U | (zeichen & 0x3FU));
    }
}

std::optional<int> code_von(char32_t zeichen) {
    if (zeichen < 0x80 || (zeichen >= 0xA0 && zeichen <= 0xFF)) {
        return static_cast<int>(zeichen);
    }
    const auto* const stelle = std::find(oberer_steuerbereich.begin(), oberer_steuerbereich.end(), zeichen);
    if (stelle == oberer_steuerbereich.end()) {
        return std::nullopt;
    }
    return 0x80 + static_cast<int>(stelle - oberer_steuerbereich.begin());
}

bool ist_ziffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '9';
}

}  // namespace

std::size_t laenge(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char zeichen) { return !ist_folgebyte(zeichen); }));
}

std::string_view links(std::string_view text, std::size_t anzahl) {
    std::size_t ende = 0;
    while (ende < text.size() && (ist_folgebyte(text[ende]) || anzahl-- > 0)) {
        ++ende;
    }
    return text.substr(0, ende);
}

std::string_view rechts(std::string_view text, std::size_t anzahl) {
    const std::size_t zeichen = laenge(text);
    return text.substr(links(text, zeichen - std::min(anzahl, zeichen)).size());
}

std::string_view mitte(std::string_view text, std::size_t ab, std::size_t anzahl) {
    return links(text.substr(links(text, ab - 1).size()), anzahl);
}

std::string aufgefuellt(std::string_view text, std::size_t breite) {
    return std::string(text) + std::string(breite - std::min(breite, laenge(text)), ' ');
}

std::string unteilbar(std::string_view text) {
    std::string fest;
    for (const char zeichen : text) {
        fest += zeichen == ' ' ? "\u00A0" : std::string(1, zeichen);
    }
    return fest;
}

std::string_view gekuerzt(std::string_view text) {
    const auto anfang = text.find_first_not_of(" \t");
    if (anfang == std::string_view::npos) {
        return {};
    }
    return text.substr(anfang, text.find_last_not_of(" \t") - anfang + 1);
}

double zahl_lesen(std::string_view text) {
    text = gekuerzt(text);
    const bool negativ = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        text.remove_prefix(1);
    }
    double wert = 0;
    double stelle = 1;  // weight of the last digit read
    bool nach_punkt = false;
    for (const char zeichen : text) {
        if (zeichen == '.' && !nach_punkt) {
            nach_punkt = true;
        } else if (!ist_ziffer(zeichen)) {
            break;
        } else if (nach_punkt) {
            stelle /= 10;
            wert += (zeichen - '0') * stelle;
        } else {
            wert = wert * 10 + (zeichen - '0');
        }
    }
    return negativ ? -wert : wert;
}

std::int64_t ganzzahl_lesen(std::string_view text, std::int64_t min, std::int64_t max) {
    const double wert = std::trunc(zahl_lesen(text));
    if (wert <= static_cast<double>(min)) {
        return min;
    }
    return wert >= static_cast<double>(max) ? max : static_cast<std::int64_t>(wert);
}

std::string zahl_text(double zahl, char komma) {
    const long long millionstel = std::llround(std::abs(zahl) * 1e6);
    std::string text = std::to_string(millionstel / 1000000) + komma + ziffern(millionstel % 1000000, 6);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == komma) {
        text.pop_back();
    }
    return zahl < 0 && millionstel != 0 ? "-" + text : text;
}

std::string zahl_fest(double zahl, char komma) {
    constexpr double max = 1e15;
    const long long hundertstel = std::llround(std::clamp(zahl, -max, max) * 100);
    return (hundertstel < 0 ? "-" : "") + std::to_string(std::abs(hundertstel / 100)) + komma +
           ziffern(std::abs(hundertstel % 100), 2);
}

std::string zahl_mit_platz(std::int64_t zahl) {
    return (zahl < 0 ? "" : " ") + std::to_string(zahl);
}

std::string ziffern(std::int64_t zahl, int stellen) {
    zahl = std::max<std::int64_t>(zahl, 0);
    std::string text(static_cast<std::size_t>(stellen), '0');
    for (auto stelle = text.rbegin(); stelle != text.rend(); ++stelle) {
        *stelle = static_cast<char>('0' + zahl % 10);
        zahl /= 10;
    }
    return text;
}

void werte_pruefen2(std::string& text) {
    std::replace(text.begin(), text.end(), ',', '.');
}

std::string nach_1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        bytes.push_back(static_cast<char>(code_von(naechstes_zeichen(utf8)).value_or('?')));
    }
    return bytes;
}

std::string von_1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        text += ansi_zeichen(static_cast<unsigned char>(byte));
    }
    return text;
}

std::optional<int> ansi_code(std::string_view zeichen) {
    if (zeichen.empty()) {
        return std::nullopt;
    }
    const char32_t erstes = naechstes_zeichen(zeichen);
    return zeichen.empty() ? code_von(erstes) : std::nullopt;
}

std::string ansi_zeichen(int code) {
    std::string text;
    const auto byte = static_cast<unsigned>(code) & 0xFFU;
    anhaengen(text, byte >= 0x80 && byte < 0xA0 ? oberer_steuerbereich.at(byte - 0x80) : byte);
    return text;
}

}  // namespace tarvel
