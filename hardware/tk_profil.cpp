#include "hardware/tk_profil.h"

#include <algorithm>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view kopfzeile = "Tarvel Timekeeper-Einstellungen";
constexpr std::size_t vor_den_sensoren = 3;  // lines

/// The events that each lane has one of.
constexpr std::array<spuren<ereignis_art>, 6> je_spur{{art::rundenzaehlung,
                                                       art::tanken_ein,
                                                       art::tanken_aus,
                                                       {{42, 44, 46, 48, 50, 52}},
                                                       {{43, 45, 47, 49, 51, 53}},
                                                       art::fahrertaster}};
constexpr std::array<ereignis_art, 9> fuer_alle{art::chaostaster, 20, 19, 18, 17, 12, 11, 10, 9};

}  // namespace

tk_profil::tk_profil() {
    constexpr std::array<ereignis_art, 13> werk{16, 15, 14, 13, 32, 31, 30, 29, 28, 27, 26, 25, art::chaostaster};
    std::copy(werk.begin(), werk.end(), tk_sensor_art.begin());
}

ereignis_art tk_profil::art_von(const tk::sensor& s) const {
    if (s.tk_sensor < 1 || s.tk_sensor > tk::sensoren_max) {
        return 0;
    }
    const ereignis_art art = tk_sensor_art.at(static_cast<std::size_t>(s.tk_sensor - 1));
    const auto familie = std::find_if(je_spur.begin(), je_spur.end(), [art](const spuren<ereignis_art>& alle) {
        return std::find(alle.begin(), alle.end(), art) != alle.end();
    });
    if (!digital() || familie == je_spur.end()) {
        return art;
    }
    return s.wagen >= 1 && s.wagen <= spuren_max ? (*familie)[s.wagen] : 0;
}

const std::vector<ereignis_art>& tk_eingaenge() {
    static const std::vector<ereignis_art> alle = [] {
        std::vector<ereignis_art> arten{0};
        for (const auto& familie : je_spur) {
            arten.insert(arten.end(), familie.begin(), familie.end());
        }
        arten.insert(arten.end(), fuer_alle.begin(), fuer_alle.end());
        return arten;
    }();
    return alle;
}

std::string tk_dateiname(std::string_view stamm) {
    return std::string(stamm) + ".tk";
}

bool tk_profil_laden(const dateien& ablage, std::string_view stamm, tk_profil& ziel) {
    const auto zeilen = ablage.zeilen_lesen(tk_dateiname(stamm), 100, 200);
    if (!zeilen || zeilen->size() < vor_den_sensoren || zeilen->front() != kopfzeile) {
        return false;
    }
    tk_profil neu;
    neu.modus = static_cast<spurmodus>(
        ganzzahl_lesen(zeilen->at(vor_den_sensoren - 1), 0, static_cast<int>(spurmodus::digital_143)));
    const std::vector<ereignis_art>& erlaubt = tk_eingaenge();
    for (std::size_t i = 0; i < neu.tk_sensor_art.size() && vor_den_sensoren + i < zeilen->size(); ++i) {
        const auto art = static_cast<ereignis_art>(ganzzahl_lesen(zeilen->at(vor_den_sensoren + i), 0, 99));
        const bool gut = std::find(erlaubt.begin(), erlaubt.end(), art) != erlaubt.end();
        neu.tk_sensor_art.at(i) = gut ? art : 0;
    }
    ziel = neu;
    return true;
}

bool tk_profil_speichern(const dateien& ablage, std::string_view stamm, const tk_profil& profil) {
    std::vector<std::string> zeilen{std::string(kopfzeile), "", std::to_string(static_cast<int>(profil.modus))};
    for (const ereignis_art art : profil.tk_sensor_art) {
        zeilen.push_back(std::to_string(art));
    }
    return ablage.zeilen_schreiben(tk_dateiname(stamm), zeilen);
}

std::vector<std::string_view> tk_modusbefehle(spurmodus modus) {
    switch (modus) {
        case spurmodus::analog:
            return {"mode1"};
        case spurmodus::digital_124_132:
            return {"mode2", "digital124132"};
        case spurmodus::digital_143:
            return {"mode2", "digital143"};
        default:
            return {"mode0"};
    }
}

}  // namespace tarvel
