#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "programm/rennprotokoll.h"

namespace tarvel {

class programm;

/// What came of driving a race again from its log, and of its results beside the files that they were written to.
struct ergebnisvergleich {
    struct unterschied {
        std::string datei;  ///< below the program folder
        int zeile = 0;      ///< from 1; 0 if `gerechnet` is no line of the file of a day
        int spalte = 0;     ///< from 1
        std::string geschrieben;
        std::string gerechnet;
    };

    rennprotokoll::ausgang ausgang = rennprotokoll::ausgang::fremd;
    std::vector<std::string> gleich;
    std::vector<unterschied> anders;
    std::vector<std::string> fehlen;  ///< are there no longer

    bool gut() const { return ausgang == rennprotokoll::ausgang::ganz && anders.empty(); }
};

/// Drives the race again in this program, which must be on a machine that stands still, and makes each result anew at
/// the moment at which it was written. `ablage` is the folder of the program that has driven it.
ergebnisvergleich rennen_vergleichen(programm& p, std::string_view inhalt, const dateien& ablage);

}  // namespace tarvel
