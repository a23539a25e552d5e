#include "race/rennsounds.h"

#include <cstddef>

namespace tarvel {

void rennsounds::spielen(int nummer) const {
    const std::string& datei = einst_.sound_dateien.at(static_cast<std::size_t>(nummer));
    if (einst_.sound_an && !datei.empty()) {
        klang_.spielen(datei);
    }
}

void rennsounds::bereitstellen() const {
    if (!einst_.sound_an) {
        return;
    }
    for (const std::string& datei : einst_.sound_dateien) {
        if (!datei.empty()) {
            klang_.bereitstellen(datei);
        }
    }
}

}  // namespace tarvel
