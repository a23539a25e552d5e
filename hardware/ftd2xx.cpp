#include "hardware/ftd2xx.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include "hardware/rufbinder.h"

namespace tarvel {
namespace {

constexpr std::string_view name = "ftd2xx";
constexpr std::uint32_t nur_anzahl = 0x80000000;
constexpr std::uint32_t nach_nummer = 0x40000000;
constexpr std::uint32_t als_beschreibung = 2;
constexpr std::size_t beschreibung_max = 64;

}  // namespace

std::string ftd2xx::laden(plattform::bibliothek_dienst& bibliotheken) {
    if (bibliothek_) {
        return {};
    }
    std::unique_ptr<plattform::bibliothek> neu = bibliotheken.laden(name);
    if (!neu) {
        return std::string(name);
    }
    rufbinder finden(*neu);
    finden(liste_, "FT_ListDevices");
    finden(open_, "FT_Open");
    finden(close_, "FT_Close");
    finden(lesen_, "FT_Read");
    finden(schreiben_, "FT_Write");
    finden(baud_, "FT_SetBaudRate");
    finden(format_, "FT_SetDataCharacteristics");
    finden(fluss_, "FT_SetFlowControl");
    finden(fristen_, "FT_SetTimeouts");
    finden(zeichen_, "FT_SetChars");
    finden(wartende_, "FT_GetQueueStatus");
    if (finden.fehlt().empty()) {
        bibliothek_ = std::move(neu);
    }
    return finden.fehlt();
}

ftd2xx::status ftd2xx::anzahl(wort& geraete) const {
    geraete = 0;
    return liste_(&geraete, nullptr, nur_anzahl);
}

ftd2xx::status ftd2xx::beschreibung(wort nummer, std::string& text) const {
    std::array<char, 2 * beschreibung_max> platz{};  // twice what it may write
    // the call takes the number where it takes a place
    void* als_zeiger = nullptr;
    const std::uintptr_t breit = nummer;
    std::memcpy(&als_zeiger, &breit, sizeof breit);
    const status ergebnis = liste_(als_zeiger, platz.data(), nach_nummer | als_beschreibung);
    text.assign(platz.data(), static_cast<std::size_t>(std::find(platz.begin(), platz.end(), '\0') - platz.begin()));
    return ergebnis;
}

ftd2xx::status ftd2xx::format_8n1(griff geraet) const {
    constexpr byte datenbits = 8;
    constexpr byte ein_stopbit = 0;
    constexpr byte ohne_paritaet = 0;
    return format_(geraet, datenbits, ein_stopbit, ohne_paritaet);
}

ftd2xx::status ftd2xx::ohne_flusskontrolle(griff geraet) const {
    return fluss_(geraet, 0, 0, 0);
}

bool ftd2xx::schreiben(griff geraet, const std::string& bytes) const {
    std::string kopie = bytes;  // the call does not promise to leave it alone
    wort geschrieben = 0;
    const status ergebnis = schreiben_(geraet, kopie.data(), static_cast<wort>(kopie.size()), &geschrieben);
    return ergebnis == gut && geschrieben == kopie.size();
}

}  // namespace tarvel
