#pragma once

#include <string>
#include <vector>

namespace tarvel::test {

/// The file below its folder that the endless writer writes.
inline constexpr const char* dauer_datei = "Einstellungen/dauer.ini";

/// Its two contents: long enough that a kill falls into the writing, and of different length.
inline std::vector<std::string> dauer_zeilen(bool zweiter) {
    constexpr std::size_t anzahl = 20000;
    std::vector<std::string> zeilen{"Tarvel Version 2.23"};
    zeilen.resize(zweiter ? anzahl : anzahl + 1, zweiter ? "die andere Fassung" : "die eine Fassung");
    zeilen.emplace_back("{EOF}");
    return zeilen;
}

}  // namespace tarvel::test
