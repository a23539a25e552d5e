#include "results/korrekturworte.h"

#include <cstddef>
#include <optional>

#include "core/platzhalter.h"
#include "core/text.h"
#include "results/korrekturliste.h"

namespace tarvel {

sprachliste& korrekturworte::eintragen(sprachliste& texte) {
    texte.text("Korrektur: %1", neu_).text("Korrektur zurückgenommen: %1", zurueck_);
    texte.text("Korrektur gilt wieder: %1", wieder_)
        .text("Spur %1, Runde %2 gelöscht (ihre Zeit zählt zur Runde davor)", arten_[0]);
    texte.text("Spur %1, Runde %2: Überfahrt nachgetragen (%3)", arten_[1]);
    return texte.text("Spur %1, Runde %2 geteilt (%3)", arten_[2]).text("Spur %1, Restmeter %2", arten_[3]);
}

sprachliste& korrekturworte::nachtragen(sprachliste& texte) {
    return texte.text("Spur %1, Runde 1 gelöscht (ihre Zeit zählt nicht mehr)", erste_);
}

std::string korrekturworte::von(const std::string& zeile, const hergangsworte& worte) const {
    const std::optional<korrekturvermerk> v = korrekturzeile_lesen(zeile);
    if (!v) {
        return zeile;
    }
    const korrektur& k = v->was;
    const bool meter = k.was == korrektur::art::restmeter;
    const bool erste = k.was == korrektur::art::geloescht && k.runde == 1;  // what lies before it is in no total
    const std::string was =
        eingesetzt(erste ? erste_ : arten_.at(static_cast<std::size_t>(k.was) - 1),
                   {std::to_string(k.spur), meter ? zahl_text(k.meter, worte.komma) : std::to_string(k.runde),
                    worte.dauer(k.zeit)});
    using weise = korrekturvermerk::weise;
    const std::string& wie = v->wie == weise::zurueck ? zurueck_ : v->wie == weise::wieder ? wieder_ : neu_;
    return eingesetzt(wie, {was});
}

}  // namespace tarvel
