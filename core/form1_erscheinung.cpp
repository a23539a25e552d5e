#include "core/form1.h"

namespace tarvel {

form1::auswahlmenue form1::sprachen() const {
    auswahlmenue menue;
    const std::vector<std::string> ordner = sprachordner_finden(um_.ablage);
    for (std::size_t i = 0; i < ordner.size(); ++i) {
        menue.zeilen.push_back(sprachname(ordner[i]));
        menue.gewaehlt = ordner[i] == um_.einst.anzeige.sprachordner ? i : menue.gewaehlt;
    }
    return menue;
}

form1::auswahlmenue form1::aussehensarten() const {
    return {{wort_aussehen_.begin(), wort_aussehen_.end()}, static_cast<std::size_t>(um_.einst.anzeige.fenster)};
}

void form1::sprache_waehlen(std::size_t welche) {
    const std::vector<std::string> ordner = sprachordner_finden(um_.ablage);
    if (welche < ordner.size() && erscheinen && um_.fenster.sprache_wechselbar()) {
        erscheinung neu = um_.einst.anzeige;
        neu.sprachordner = ordner[welche];
        erscheinen(neu);
    }
}

void form1::aussehen_waehlen(std::size_t welches) {
    if (welches < wort_aussehen_.size() && erscheinen) {
        erscheinung neu = um_.einst.anzeige;
        neu.fenster = static_cast<aussehen>(welches);
        erscheinen(neu);
    }
}

void form1::erscheinung_zeigen() {
    command_sprache.text(sprachname(um_.einst.anzeige.sprachordner));
    command_sprache.ansage(command_sprache.tipp());
    command_aussehen.text(wort_aussehen_.at(static_cast<std::size_t>(um_.einst.anzeige.fenster)));
    command_aussehen.ansage(command_aussehen.tipp());
    felder_merken.gesetzt(um_.einst.anzeige.hauptfenster_wie_zuletzt);
}

}  // namespace tarvel
