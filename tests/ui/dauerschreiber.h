#pragma once

#include <string>
#include <vector>

namespace tarvel::test {

/// The file below its folder that the endless writer writes.
inline constexpr const char* dauer_datei = "Einstellungen/dauer.ini";

/// Its two contents: long enough that a kill falls into the writing, and of different length.
inline std::vector<std::string> dauer_zeilen(bool zweiter) {
    return {zweiter ? std::size_t{20000} : std::size_t{20001}, zweiter ? "die andere Fassung" : "die eine Fassung"};
}

}  // namespace tarvel::test
