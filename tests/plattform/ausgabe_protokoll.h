#pragma once

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "hardware/ausgaben.h"

namespace tarvel {

inline std::ostream& operator<<(std::ostream& aus, const schaltung& befehl) {
    static const char* const namen[] = {"rot", "gruen", "strom", "chaos", "rennende"};
    return aus << namen[static_cast<int>(befehl.was)] << befehl.nummer << (befehl.an ? " an" : " aus");
}

namespace test {

/// A device that records what it was told to switch.
struct ausgabe_protokoll : ausgabe_geraet {
    std::vector<schaltung> befehle;

    void schalten(const schaltung& befehl) override { befehle.push_back(befehl); }
    bool enthaelt(const schaltung& befehl) const {
        return std::find(befehle.begin(), befehle.end(), befehl) != befehle.end();
    }
    /// The last that was switched of this output; false if nothing was.
    bool ist_an(schaltung::ausgang was, int nummer) const {
        bool an = false;
        for (const schaltung& befehl : befehle) {
            if (befehl.was == was && (befehl.nummer == nummer || befehl.nummer == 0)) {
                an = befehl.an;
            }
        }
        return an;
    }
};

}  // namespace test
}  // namespace tarvel
