#pragma once

#include <array>
#include <string>
#include <vector>

#include "tests/plattform/vereinswettkampf.h"

namespace tarvel::test {

/// The file below its folder that the endless writer writes.
inline constexpr const char* dauer_datei = "Einstellungen/dauer.ini";

/// Its two contents: long enough that a kill falls into the writing, and of different length.
inline std::vector<std::string> dauer_zeilen(bool zweiter) {
    return {zweiter ? std::size_t{20000} : std::size_t{20001}, zweiter ? "die andere Fassung" : "die eine Fassung"};
}

/// Two states of one evening.
inline wettkampf dauer_abend(bool spaeter) {
    wettkampf w = vereinswettkampf::neu(wettkampf_modus::rotation, 99, {1, 2, 3, 4, 5, 6});
    vereinswettkampf::fahren(w, spaeter ? 90 : 20);
    w.naechstes_offenes_rennen();
    return w;
}

}  // namespace tarvel::test
