#pragma once

#include <string>

namespace tarvel {

/// The words over the columns of a competition's table.
struct wettkampf_worte {
    std::string name = "Name";
    std::string runden = "Runden";
    std::string einzelrunden = "Einzelrunden";
    std::string meter = "Meter";
    std::string beste_runde = "beste Runde";
    std::string gesamtzeit = "Gesamtzeit";
};

}  // namespace tarvel
