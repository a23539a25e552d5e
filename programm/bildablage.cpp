#include "programm/bildablage.h"

#include <algorithm>

namespace tarvel {

void bildablage::ablegen(const ziel& wo, const std::string& name, const std::filesystem::path& bild) {
    if (name.empty() || name == wo.niemand || namensliste::ist_marke(name) || um_.txt.ist_freier_platz(name)) {
        um_.meldungen.zeigen(um_.haupt.ohne_namen_text(), um_.txt.titel[0]);
        return;
    }
    const auto zeile_von = [&wo, &name] {
        const auto& alle = wo.liste.eintraege();
        const auto dort =
            std::find_if(alle.begin(), alle.end(), [&](const listeneintrag& e) { return e.name == name; });
        return static_cast<std::size_t>(dort - alle.begin());
    };
    if (zeile_von() == wo.liste.eintraege().size() && wo.liste.voll()) {
        um_.meldungen.zeigen(um_.haupt.liste_voll_text(), um_.txt.titel[0]);
        return;
    }
    const namensliste::art& art = wo.liste.listenart();
    const std::string standardstamm = art.standardbild.substr(0, art.standardbild.find('.'));
    um_.bilder.hereinnehmen({{},
                             art.bildordner,
                             standardstamm,
                             name,
                             [this, &wo, &name, &zeile_von](const std::string& stamm) {
                                 if (zeile_von() == wo.liste.eintraege().size()) {
                                     wo.liste.hinzufuegen(name);
                                 }
                                 wo.liste.bild_setzen(zeile_von(), stamm);
                                 wo.speichern();
                                 um_.haupt.listen_zeigen();
                                 um_.haupt.bilder_neu_laden();
                             }},
                            bild);
}

}  // namespace tarvel
