#include "hardware/iow_profil.h"

#include <numeric>
#include <string>
#include <vector>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::size_t iow_zeile_bytes_max = 200;
constexpr int zahl_max = 1000000;  // far beyond any meaning

}  // namespace

iow_profil iow_werkseinstellung() {
    iow_profil profil;
    std::iota(profil.begin(), profil.end(), 1);
    return profil;
}

std::optional<iow_profil> iow_profil_laden(const dateien& ablage, std::string_view datei) {
    const auto zeilen = ablage.zeilen_lesen(datei, iow_bits, iow_zeile_bytes_max);
    if (!zeilen || zeilen->size() < iow_bits) {
        return std::nullopt;
    }
    iow_profil profil{};
    for (std::size_t i = 0; i < iow_bits; ++i) {
        profil.at(i) = static_cast<ereignis_art>(ganzzahl_lesen(zeilen->at(i), -zahl_max, zahl_max));
    }
    return profil;
}

bool iow_profil_speichern(const dateien& ablage, std::string_view datei, const iow_profil& profil) {
    std::vector<std::string> zeilen;
    zeilen.reserve(profil.size());
    for (const ereignis_art nummer : profil) {
        zeilen.push_back(std::to_string(nummer));
    }
    return ablage.zeilen_schreiben(datei, zeilen);
}

iow_belegung belegung_von(const iow_profil& profil) {
    iow_belegung belegung;
    belegung.leeren();
    for (std::size_t pin = 0; pin < profil.size(); ++pin) {
        belegung.zuweisen(profil.at(pin), pin);
    }
    return belegung;
}

kontaktleser::linienzuordnung linien_von(const iow_profil& profil) {
    kontaktleser::linienzuordnung linien{};
    for (std::size_t i = 0; i < profil.size(); ++i) {
        for (std::size_t davor = 0; davor < i; ++davor) {
            if (linien.at(davor) == profil.at(i)) {
                linien.at(davor) = 0;
            }
        }
        linien.at(i) = art::ist_eingang(profil.at(i)) ? profil.at(i) : 0;
    }
    return linien;
}

}  // namespace tarvel
