#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"

/// How the program meets the eye: in which language, light or dark, and with which fields. It is the machine's, not the
/// race's, so it has a file of its own and holds for every settings file.
namespace tarvel {

enum class aussehen { hell, dunkel, wie_das_system };

/// The folder that the program comes with; its texts are German until somebody puts others there.
inline constexpr std::string_view sprachordner_standard = "language";

struct erscheinung {
    std::string sprachordner{sprachordner_standard};
    aussehen fenster = aussehen::hell;
    bool hauptfenster_wie_zuletzt = false;  ///< its fields at the start are those of the last end
    bool operator==(const erscheinung&) const = default;
};

/// `tvk_anzeige.ini`: the folder of the language files, the number of the look, and "Wahr" or "Falsch" for the main
/// window, one a line. What is missing, or names nothing that is there, leaves `ziel`.
void erscheinung_laden(const dateien& ablage, erscheinung& ziel);
bool erscheinung_speichern(const dateien& ablage, const erscheinung& werte);

/// `language` and all the folders `language-…`, in the order of their names.
std::vector<std::string> sprachordner_finden(const dateien& ablage);
/// "de", or what stands behind `language-`.
std::string sprachkuerzel(std::string_view ordner);
/// What the language of such a folder calls itself, as far as it is known; else its letters.
std::string sprachname(std::string_view ordner);

}  // namespace tarvel
