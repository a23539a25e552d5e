#include "core/portzusatz.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tarvel {

void portzusaetze_zeigen(auswahl& ports, const plattform::serienport_dienst& anschluesse) {
    std::vector<std::string> zusaetze(ports.eintraege().size());
    for (const int nummer : anschluesse.vorhandene()) {
        const auto eintrag =
            std::find(ports.eintraege().begin(), ports.eintraege().end(), "COM" + std::to_string(nummer));
        if (eintrag == ports.eintraege().end()) {
            continue;
        }
        const plattform::portangaben a = anschluesse.angaben(nummer);
        const std::string& geraet = a.beschreibung.empty() ? a.typ : a.beschreibung;
        zusaetze.at(static_cast<std::size_t>(eintrag - ports.eintraege().begin())) =
            geraet.empty() || a.name.empty() ? geraet + a.name : geraet + " (" + a.name + ")";
    }
    ports.zusaetze(zusaetze);
}

}  // namespace tarvel
