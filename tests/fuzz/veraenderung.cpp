#include "tests/fuzz/veraenderung.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tarvel::test {
namespace {

using gute_dateien = std::vector<std::string>;

// Two draws never stand in one call: compilers take its arguments in different order.

/// A line with its line end.
struct abschnitt {
    std::size_t anfang;
    std::size_t laenge;
};

abschnitt zeile_um(const std::string& bytes, std::size_t ort) {
    const std::size_t davor = ort == 0 ? std::string::npos : bytes.rfind('\n', ort - 1);
    const std::size_t anfang = davor == std::string::npos ? 0 : davor + 1;
    const std::size_t ende = bytes.find('\n', ort);
    return {anfang, (ende == std::string::npos ? bytes.size() : ende + 1) - anfang};
}

abschnitt irgendeine_zeile(const std::string& bytes, zufall& z) {
    return zeile_um(bytes, z.unter(bytes.size()));
}

std::string interessantes(zufall& z) {
    using namespace std::string_view_literals;
    static constexpr std::array worte{
        "-1"sv,     "0"sv,      "1"sv,       "2"sv,         "7"sv,           "-0.5"sv,
        "0.5"sv,    "7.5"sv,    "7,5"sv,     "59"sv,        "60"sv,          "255"sv,
        "256"sv,    "300001"sv, "1e9"sv,     "NaN"sv,       "99999999999"sv, "-99999999999"sv,
        "+3"sv,     "-"sv,      "."sv,       ""sv,          " "sv,           "Wahr"sv,
        "Falsch"sv, "True"sv,   "{EOF}"sv,   "{pic}"sv,     "{ende}"sv,      "Fahrerliste:"sv,
        "\""sv,     ","sv,      "\"a,b\""sv, "..\\..\\x"sv, "/etc/passwd"sv, "\x80\x81\xFC\xFF"sv};
    const std::size_t wahl = z.unter(worte.size() + 1);
    return wahl < worte.size() ? std::string(worte.at(wahl)) : std::string(1 + z.unter(400), '9');
}

void bit_kippen(std::string& bytes, zufall& z, const gute_dateien& /*gute*/) {
    if (!bytes.empty()) {
        char& byte = bytes[z.unter(bytes.size())];
        byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << z.unter(8)));
    }
}

void byte_ersetzen(std::string& bytes, zufall& z, const gute_dateien& /*gute*/) {
    if (!bytes.empty()) {
        bytes[z.unter(bytes.size())] = static_cast<char>(z.unter(256));
    }
}

void zeile_loeschen(std::string& bytes, zufall& z, const gute_dateien& /*gute*/) {
    const abschnitt zeile = irgendeine_zeile(bytes, z);
    bytes.erase(zeile.anfang, zeile.laenge);
}

void zeile_verdoppeln(std::string& bytes, zufall& z, const gute_dateien& /*gute*/) {
    const abschnitt zeile = irgendeine_zeile(bytes, z);
    bytes.insert(zeile.anfang, bytes.substr(zeile.anfang, zeile.laenge));
}

void zeilen_tauschen(std::string& bytes, zufall& z, const gute_dateien& /*gute*/) {
    const abschnitt eine = irgendeine_zeile(bytes, z);
    const abschnitt andere = irgendeine_zeile(bytes, z);
    const abschnitt vorn = eine.anfang <= andere.anfang ? eine : andere;
    const abschnitt hinten = eine.anfang <= andere.anfang ? andere : eine;
    if (vorn.anfang == hinten.anfang) {
        return;
    }
    const std::string text = bytes.substr(vorn.anfang, vorn.laenge);
    bytes.replace(vorn.anfang, hinten.anfang + hinten.laenge - vorn.anfang,
                  bytes.substr(hinten.anfang, hinten.laenge) +
                      bytes.substr(vorn.anfang + vorn.laenge, hinten.anfang - vorn.anfang - vorn.laenge) + text);
}

/// The fault that leaves all other lines of a positional file in their places.
void zeile_ersetzen(std::string& bytes, zufall& z, const gute_dateien& /*gute*/) {
    const abschnitt zeile = irgendeine_zeile(bytes, z);
    bytes.replace(zeile.anfang, zeile.laenge, interessantes(z) + "\r\n");
}

void zeile_abschreiben(std::string& bytes, zufall& z, const gute_dateien& /*gute*/) {
    const abschnitt von = irgendeine_zeile(bytes, z);
    const std::string text = bytes.substr(von.anfang, von.laenge);
    const abschnitt nach = irgendeine_zeile(bytes, z);
    bytes.replace(nach.anfang, nach.laenge, text);
}

void einfuegen(std::string& bytes, zufall& z, const gute_dateien& /*gute*/) {
    const std::size_t ort = z.unter(bytes.size() + 1);
    bytes.insert(ort, interessantes(z));
}

void steuerzeichen_einfuegen(std::string& bytes, zufall& z, const gute_dateien& /*gute*/) {
    constexpr std::string_view zeichen("\r\n\0\t\x1A", 5);
    const std::size_t ort = z.unter(bytes.size() + 1);
    const std::size_t anzahl = 1 + z.unter(2);
    bytes.insert(ort, anzahl, zeichen[z.unter(zeichen.size())]);
}

void abschneiden(std::string& bytes, zufall& z, const gute_dateien& /*gute*/) {
    bytes.resize(z.unter(bytes.size() + 1));
}

void zeile_verlaengern(std::string& bytes, zufall& z, const gute_dateien& /*gute*/) {
    constexpr std::array<std::size_t, 5> laengen{3995, 3999, 4000, 4001, 12000};  // lines are cut at 4000 bytes
    const std::size_t ort = z.unter(bytes.size() + 1);
    const std::size_t anzahl = laengen.at(z.unter(laengen.size()));
    bytes.insert(ort, anzahl, "x9 "[z.unter(3)]);
}

void spleissen(std::string& bytes, zufall& z, const gute_dateien& gute) {
    const std::string& andere = gute[z.unter(gute.size())];
    bytes.resize(z.unter(bytes.size() + 1));
    bytes += andere.substr(z.unter(andere.size() + 1));
}

using fehler = void (*)(std::string&, zufall&, const gute_dateien&);

/// Faults that leave most of a file valid stand here more than once: behind them lies most of the program.
constexpr std::array<fehler, 16> fehlerarten{
    bit_kippen,     byte_ersetzen,           zeile_loeschen, zeile_verdoppeln,  zeilen_tauschen,   zeile_ersetzen,
    zeile_ersetzen, zeile_ersetzen,          zeile_ersetzen, zeile_abschreiben, zeile_abschreiben, einfuegen,
    einfuegen,      steuerzeichen_einfuegen, abschneiden,    spleissen};

}  // namespace

std::uint64_t zufall::zahl() {
    zustand_ += 0x9E3779B97F4A7C15U;
    std::uint64_t wert = zustand_;
    wert = (wert ^ (wert >> 30U)) * 0xBF58476D1CE4E5B9U;
    wert = (wert ^ (wert >> 27U)) * 0x94D049BB133111EBU;
    return wert ^ (wert >> 31U);
}

std::string veraendert(std::string bytes, const std::vector<std::string>& gute, zufall& z) {
    constexpr std::size_t selten = 64;  // long lines cost more time than all the rest
    if (z.unter(selten) == 0) {
        zeile_verlaengern(bytes, z, gute);
    }
    const std::size_t anzahl = 1 + std::min(z.unter(5), z.unter(5));
    for (std::size_t i = 0; i < anzahl; ++i) {
        fehlerarten.at(z.unter(fehlerarten.size()))(bytes, z, gute);
    }
    bytes.resize(std::min(bytes.size(), bytes_max));
    return bytes;
}

}  // namespace tarvel::test
