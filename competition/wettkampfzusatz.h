#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "competition/wettkampf.h"

/// The end of a competition's file: what its format has no place for. Older versions do not read so far.
namespace tarvel {

inline constexpr int tabelle_max = 100;  ///< places and races that a file has room for

struct wettkampf_zusatz {
    bool vorhanden = false;
    wettkampf_modus modus = wettkampf_modus::rotation;
    int teile = 1;
    spuren<int> herkunft;
    sortier_modus wertung = sortier_modus::runden;
    bool qualifying_an = false;
    std::int64_t rennlaenge = 0;
    std::string beginn;
    std::vector<startplatz> teilnehmer;
    std::vector<std::string> bilder;
    std::vector<gefahrener_teil> gefahren;  ///< times and metres; laps and best laps the format holds
    std::vector<zeit_ms> renndauern;
};

std::vector<std::string> zusatz_zeilen(const wettkampf& w);
/// None if the lines begin and are broken. Where there are none, it is not `vorhanden`.
std::optional<wettkampf_zusatz> zusatz_lesen(std::span<const std::string> zeilen);

/// The values of a line, between its commas.
std::vector<std::string_view> werte_der_zeile(std::string_view zeile);
/// None outside the limits.
std::optional<int> zahl_zwischen(std::string_view text, int min, int max);

}  // namespace tarvel
