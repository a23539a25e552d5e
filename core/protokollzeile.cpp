#include "core/protokollzeile.h"

#include <algorithm>
#include <charconv>

namespace tarvel {
namespace {

constexpr std::size_t summe_zeichen = 5;  // "*" and four digits
constexpr std::string_view zeilenende = "\r\n";
constexpr std::string_view hexzeichen = "0123456789ABCDEF";

/// CRC-16 with the polynomial 0x1021: it misses no burst of up to 16 bits.
constexpr std::array<std::uint16_t, 256> tabelle = [] {
    std::array<std::uint16_t, 256> alle{};
    for (unsigned n = 0; n < alle.size(); ++n) {
        unsigned rest = n << 8U;
        for (int bit = 0; bit < 8; ++bit) {
            rest = (rest & 0x8000U) != 0 ? (rest << 1U) ^ 0x1021U : rest << 1U;
        }
        alle.at(n) = static_cast<std::uint16_t>(rest);
    }
    return alle;
}();

std::uint16_t summe(std::string_view text, std::uint16_t kette) {
    unsigned wert = kette;
    for (const char zeichen : text) {
        const unsigned platz = (wert >> 8U ^ static_cast<unsigned char>(zeichen)) & 0xFFU;
        wert = (wert << 8U ^ tabelle[platz]) & 0xFFFFU;
    }
    return static_cast<std::uint16_t>(wert);
}

std::array<char, 4> als_ziffern(std::uint16_t wert) {
    std::array<char, 4> text{};
    for (std::size_t i = 0; i < text.size(); ++i) {
        text.at(i) = hexzeichen[wert >> (12U - 4U * static_cast<unsigned>(i)) & 0xFU];
    }
    return text;
}

}  // namespace

void protokollschreiber::anfuegen(std::string_view text) {
    const std::size_t platz = zeile_max - summe_zeichen - zeilenende.size() - laenge_;
    const std::size_t anzahl = std::min(text.size(), platz);
    std::copy_n(text.begin(), anzahl, zeile_.begin() + static_cast<std::ptrdiff_t>(laenge_));
    laenge_ += anzahl;
}

void protokollschreiber::trennen() {
    if (laenge_ > vorspann_) {
        anfuegen(" ");
    }
}

protokollschreiber& protokollschreiber::beginnen(int tiefe) {
    laenge_ = 0;
    for (int i = 0; i < tiefe; ++i) {
        anfuegen(".");
    }
    vorspann_ = laenge_;
    return *this;
}

protokollschreiber& protokollschreiber::wort(std::string_view wort) {
    trennen();
    const std::size_t von = laenge_;
    anfuegen(wort);
    std::replace_if(  // a line end within would be the end of the log
        zeile_.begin() + static_cast<std::ptrdiff_t>(von), zeile_.begin() + static_cast<std::ptrdiff_t>(laenge_),
        [](char zeichen) { return static_cast<unsigned char>(zeichen) < ' '; }, ' ');
    return *this;
}

protokollschreiber& protokollschreiber::zahl(std::int64_t zahl) {
    trennen();
    constexpr std::size_t stellen = 20;
    std::array<char, stellen> text{};
    const char* ende = std::to_chars(text.data(), text.data() + text.size(), zahl).ptr;
    anfuegen({text.data(), static_cast<std::size_t>(ende - text.data())});
    return *this;
}

std::string_view protokollschreiber::fertig() {
    kette_ = summe({zeile_.data(), laenge_}, kette_);
    const std::array<char, 4> stellen = als_ziffern(kette_);
    zeile_.at(laenge_++) = '*';
    for (const std::string_view text : {std::string_view(stellen.data(), stellen.size()), zeilenende}) {
        std::copy(text.begin(), text.end(), zeile_.begin() + static_cast<std::ptrdiff_t>(laenge_));
        laenge_ += text.size();
    }
    return {zeile_.data(), laenge_};
}

std::optional<std::string_view> protokollleser::zeile() {
    const std::size_t ende = rest_.find(zeilenende);
    if (ende == std::string_view::npos || ende < summe_zeichen) {
        return std::nullopt;
    }
    const std::string_view inhalt = rest_.substr(0, ende - summe_zeichen);
    const std::uint16_t kette = summe(inhalt, kette_);
    const std::array<char, 4> stellen = als_ziffern(kette);
    const std::string_view stempel = rest_.substr(inhalt.size(), summe_zeichen);
    if (stempel.front() != '*' || stempel.substr(1) != std::string_view(stellen.data(), stellen.size())) {
        return std::nullopt;
    }
    kette_ = kette;
    rest_.remove_prefix(ende + zeilenende.size());
    return inhalt;
}

std::string_view ohne_summe(std::string_view geschrieben) {
    const std::size_t dahinter = summe_zeichen + zeilenende.size();
    return geschrieben.substr(0, geschrieben.size() - std::min(geschrieben.size(), dahinter));
}

protokollsatz zerlegen(std::string_view zeile) {
    protokollsatz s;
    const std::size_t tiefe = std::min(zeile.find_first_not_of('.'), zeile.size());
    s.tiefe = static_cast<int>(tiefe);
    zeile.remove_prefix(tiefe);
    s.wort = naechstes_wort(zeile);
    s.schritt = s.tiefe > 0 ? als_zahl(s.wort) : std::nullopt;
    if (s.schritt) {
        s.wort = naechstes_wort(zeile);
    }
    s.rest = zeile;
    return s;
}

std::string_view naechstes_wort(std::string_view& zeile) {
    const std::size_t ende = std::min(zeile.find(' '), zeile.size());
    const std::string_view wort = zeile.substr(0, ende);
    zeile.remove_prefix(std::min(ende + 1, zeile.size()));
    return wort;
}

std::optional<std::int64_t> als_zahl(std::string_view wort) {
    std::int64_t zahl = 0;
    const char* ende = wort.data() + wort.size();
    const auto [bis, fehler] = std::from_chars(wort.data(), ende, zahl);
    return fehler == std::errc{} && bis == ende && !wort.empty() ? std::optional(zahl) : std::nullopt;
}

}  // namespace tarvel
