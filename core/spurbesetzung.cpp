#include "core/spurbesetzung.h"

#include <utility>

namespace tarvel {

void spuren_tauschen(renneinrichtung& einrichtung, int eine, int andere) {
    renneinrichtung::spur& a = einrichtung.bahn[eine];
    renneinrichtung::spur& b = einrichtung.bahn[andere];
    std::swap(a, b);
    std::swap(a.laenge, b.laenge);
}

void fahrer_setzen(renneinrichtung& einrichtung, int spur, const std::string& name) {
    renneinrichtung::spur& dort = einrichtung.bahn[spur];
    for (const int woanders : alle_spuren) {
        if (woanders != spur && einrichtung.bahn[woanders].fahrer == name) {
            einrichtung.bahn[woanders].fahrer = dort.fahrer;
            break;
        }
    }
    dort.fahrer = name;
    dort.dabei = true;
}

}  // namespace tarvel
