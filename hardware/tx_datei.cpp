#include "hardware/tx_datei.h"

#include <string_view>
#include <vector>

#include "core/felder.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view datei = "tvk_4x4.ini";
constexpr std::string_view wahr = "Wahr";
constexpr std::string_view falsch = "Falsch";
constexpr int port_max = 999;

}  // namespace

tx_datei tx_datei_laden(const dateien& ablage) {
    std::vector<std::string> felder = felder_lesen(ablage, datei, 3).value_or(std::vector<std::string>{});
    felder.resize(3);
    return {felder[0], felder[1] == wahr, static_cast<int>(ganzzahl_lesen(felder[2], 0, port_max))};
}

bool tx_datei_speichern(const dateien& ablage, const tx_datei& werte) {
    return ablage.zeilen_schreiben(
        datei, {als_feld(werte.firmware), std::string(werte.spuren_6 ? wahr : falsch), std::to_string(werte.port)});
}

}  // namespace tarvel
