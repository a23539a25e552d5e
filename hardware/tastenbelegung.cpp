#include "hardware/tastenbelegung.h"

#include <algorithm>

#include "core/spuren.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view datei = "tvk_taste.ini";
constexpr int erste_reihe = 13;  // the file holds row 1, then the rows from here on

/// The same row of each lane, lane 1 first.
struct spurgruppe {
    std::string_view name;
    std::array<int, spuren_max> zeilen;
    std::array<std::string_view, spuren_max> tasten;
    belegung_stufe ab;
};

constexpr std::array<spurgruppe, 6> spurgruppen{{
    {"Rundenzählung", {16, 15, 14, 13, 34, 35}, {"1", "2", "3", "4", "5", "6"}, belegung_stufe::erststart},
    {"Tanken ein", {32, 30, 28, 26, 36, 38}, {"q", "w", "e", "r", "t", "z"}, belegung_stufe::erststart},
    {"Tanken aus", {31, 29, 27, 25, 37, 39}, {"a", "s", "d", "f", "g", "h"}, belegung_stufe::erststart},
    {"Zwischenzeit 1", {42, 44, 46, 48, 50, 52}, {"u", "i", "o", "p", "ü", "+"}, belegung_stufe::alle},
    {"Zwischenzeit 2", {43, 45, 47, 49, 51, 53}, {"j", "k", "l", "ö", "ä", "#"}, belegung_stufe::alle},
    {"Rundenabzug", {61, 62, 63, 64, 65, 66}, {"!", "\"", "§", "$", "%", "&"}, belegung_stufe::standard},
}};

std::vector<tastenzeile> zeilen_aufbauen() {
    std::vector<tastenzeile> zeilen;
    for (const int spur : alle_spuren) {
        for (const spurgruppe& gruppe : spurgruppen) {
            zeilen.push_back({gruppe.zeilen.at(feld_index(spur)), spur, gruppe.name,
                              std::string(gruppe.tasten.at(feld_index(spur))), gruppe.ab});
        }
    }
    zeilen.insert(zeilen.end(), {{tastenbelegung::zeile_chaos, 0, "Chaos", "c", belegung_stufe::erststart},
                                 {tastenbelegung::zeile_nacht, 0, "Nachtbildschirm", "n", belegung_stufe::erststart},
                                 {54, 0, "Chaostaster 1", "y", belegung_stufe::alle},
                                 {55, 0, "Chaostaster 2", "x", belegung_stufe::alle},
                                 {56, 0, "Chaostaster 3", "v", belegung_stufe::alle},
                                 {57, 0, "Chaostaster 4", "b", belegung_stufe::alle},
                                 {58, 0, "Chaostaster 5", "m", belegung_stufe::alle},
                                 {59, 0, "Chaostaster 6", ",", belegung_stufe::alle},
                                 {20, 0, "Sound 1", "8", belegung_stufe::alle},
                                 {19, 0, "Sound 2", "9", belegung_stufe::alle},
                                 {18, 0, "Sound 3", "0", belegung_stufe::alle},
                                 {17, 0, "Sound 4", "ß", belegung_stufe::alle}});
    return zeilen;
}

}  // namespace

const std::vector<tastenzeile>& tastenzeilen() {
    static const std::vector<tastenzeile> zeilen = zeilen_aufbauen();
    return zeilen;
}

void tastenbelegung::taste(int zeile, int code) {
    tasten_.at(static_cast<std::size_t>(zeile)) = code >= 1 && code <= 255 ? code : keine_taste;
}

bool tastenbelegung::ist_belegt(int code) const {
    return code != keine_taste && std::find(tasten_.begin(), tasten_.end(), code) != tasten_.end();
}

void tastenbelegung::vorbelegen(belegung_stufe stufe) {
    leeren();
    for (const tastenzeile& zeile : tastenzeilen()) {
        if (zeile.ab <= stufe) {
            taste(zeile.zeile, ansi_code(zeile.taste).value_or(keine_taste));
        }
    }
}

bool tastenbelegung::tastenbelegung_laden(const dateien& ablage) {
    constexpr std::size_t zeilen_anzahl = 1 + zeile_max - erste_reihe + 1;
    const auto zeilen = ablage.zeilen_lesen(datei, zeilen_anzahl);
    const auto ist_zahl = [](const std::string& zeile) {
        const std::string_view zahl = gekuerzt(zeile);
        return !zahl.empty() && zahl.find_first_not_of("0123456789") == std::string_view::npos;
    };
    if (!zeilen || zeilen->size() < zeilen_anzahl || !std::all_of(zeilen->begin(), zeilen->end(), ist_zahl)) {
        return false;
    }
    int reihe = zeile_chaos;
    for (const std::string& zeile : *zeilen) {
        taste(reihe, static_cast<int>(ganzzahl_lesen(zeile, 0, 256)));
        reihe = reihe == zeile_chaos ? erste_reihe : reihe + 1;
    }
    return true;
}

bool tastenbelegung::tastenbelegung_speichern(const dateien& ablage) const {
    std::vector<std::string> zeilen;
    const auto schreiben = [&](int reihe) { zeilen.push_back(" " + std::to_string(taste(reihe)) + " "); };
    schreiben(zeile_chaos);
    for (int reihe = erste_reihe; reihe <= zeile_max; ++reihe) {
        schreiben(reihe);
    }
    return ablage.zeilen_schreiben(datei, zeilen);
}

}  // namespace tarvel
