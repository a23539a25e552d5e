#pragma once

#include <cstddef>
#include <map>
#include <string>

#include "tools/simulator/geraet.h"

namespace tarvel::simulator {

/// Tells the console a line.
void zeile_schreiben(const std::string& text);

/// Writes each passage as a line, with the lap it ends.
class rundenschreiber {
public:
    explicit rundenschreiber(const geraet& g) : g_(g) {}
    void schreiben();

private:
    struct stand {
        int runde = -1;
        zeit_ms stempel = 0;
    };

    void schreiben(const ueberfahrt& u);

    const geraet& g_;
    std::map<int, stand> stand_;
    std::size_t gelesen_ = 0;
    int aufstellung_ = 0;
};

}  // namespace tarvel::simulator
