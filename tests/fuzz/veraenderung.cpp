#include "tests/fuzz/veraenderung.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tarvel::test {
namespace {

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

/// A word that means something to one reader or another, now and then a long one: lines are cut at 4000 bytes.
std::string wort(zufall& z) {
    using namespace std::string_view_literals;
    constexpr std::string_view worte =
        "|-1|0|1|7|-0.5|0.5|7.5|7,5|59|60|255|256|300001|-99999999999|1e9|NaN|+3|-|.|| |Wahr|Falsch|{EOF}|{pic}|{ende}|"
        "Fahrerliste:|\"|,|\"a,b\"|\n|\r|\0|\t|\x1A|..\\..\\x|/etc/passwd|\x80\x81\xFC\xFF|"sv;
    constexpr std::array<std::size_t, 5> laengen{11, 400, 3999, 4001, 12000};
    if (unter(z, 30) == 0) {
        return std::string(laengen.at(unter(z, laengen.size())), '9');
    }
    const std::string_view rest = worte.substr(worte.find('|', unter(z, worte.size())) + 1);
    return std::string(rest.substr(0, rest.find('|')));
}

/// Most faults leave the other lines of the file in their places: behind them lies most of the program.
void fehler_setzen(std::string& bytes, const std::vector<std::string>& gute, zufall& z) {
    const std::size_t ort = unter(z, bytes.size() + 1);
    const abschnitt zeile = zeile_um(bytes, ort);
    const std::string& andere = gute[unter(z, gute.size())];
    const std::size_t dort = unter(z, andere.size() + 1);
    const abschnitt ihre = zeile_um(andere, dort);
    switch (unter(z, 14)) {
        case 0:
        case 1:
            bytes.replace(ort, 1, 1, static_cast<char>(unter(z, 256)));
            break;
        case 2:
            bytes.erase(zeile.anfang, zeile.laenge);
            break;
        case 3:
            bytes.insert(zeile.anfang, andere, ihre.anfang, ihre.laenge);
            break;
        case 4:
        case 5:
            bytes.replace(zeile.anfang, zeile.laenge, andere, ihre.anfang, ihre.laenge);
            break;
        case 6:
            bytes.resize(ort);
            break;
        case 7:
            bytes.replace(ort, std::string::npos, andere, dort);
            break;
        case 8:
        case 9:
        case 10:
            bytes.insert(ort, wort(z));
            break;
        default:
            bytes.replace(zeile.anfang, zeile.laenge, wort(z) + "\r\n");
    }
}

}  // namespace

std::string veraendert(std::string bytes, const std::vector<std::string>& gute, zufall& z) {
    for (std::size_t fehler = 1 + std::min(unter(z, 5), unter(z, 5)); fehler > 0; --fehler) {
        fehler_setzen(bytes, gute, z);
    }
    bytes.resize(std::min(bytes.size(), bytes_max));
    return bytes;
}

}  // namespace tarvel::test
