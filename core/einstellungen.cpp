#include "core/einstellungen.h"

#include <cstddef>
#include <string_view>

namespace tarvel {
namespace {

struct sound_reihe {
    int erste;
    int anzahl;
    std::string_view stamm;
    int beginn;   ///< number in the first file's name; -1 for a name without number
    int schritt;  ///< from one file's number to the next
};

constexpr std::array<sound_reihe, 18> reihen{{
    {1, 1, "rv", -1, 0},
    {2, 1, "rs", -1, 0},
    {3, 1, "re", -1, 0},
    {4, 1, "ra", -1, 0},
    {5, 2, "cp", 1, 1},
    {7, 6, "sr", 1, 1},
    {13, 6, "fs", 1, 1},
    {19, 6, "ds", 1, 1},
    {25, 6, "tw", 1, 1},
    {31, 6, "tl", 1, 1},
    {37, 1, "rd", -1, 0},
    {46, 1, "as", -1, 0},
    {47, 1, "ez", -1, 0},
    {48, 1, "sd", -1, 0},
    {49, 1, "m", 5, 0},
    {50, 2, "m", 2, -1},
    {52, 2, "s", 30, -10},
    {54, 10, "s", 10, -1},
}};

}  // namespace

std::array<std::string, sounds_max + 1> einstellungen::standard_sounds() {
    std::array<std::string, sounds_max + 1> dateien;
    for (const sound_reihe& reihe : reihen) {
        for (int i = 0; i < reihe.anzahl; ++i) {
            std::string& datei = dateien.at(static_cast<std::size_t>(reihe.erste) + static_cast<std::size_t>(i));
            datei = "sound\\" + std::string(reihe.stamm);
            if (reihe.beginn >= 0) {
                datei += std::to_string(reihe.beginn + i * reihe.schritt);
            }
            datei += ".wav";
        }
    }
    return dateien;
}

}  // namespace tarvel
