#include <string>
#include <utility>

#include "core/form1.h"
#include "core/text.h"

// What was typed until the last end is at hand, and nobody gets it who has not asked.

namespace tarvel {
namespace {

constexpr std::size_t genannte_zeichen_max = 45;  // more are wider than the place beside the title

}  // namespace

void form1::letztes_mal_anbieten(const renneinrichtung& felder) {
    letztes_mal_ = felder;
    letztes_mal_zeigen();
    if (!command_wieder.sichtbar()) {
        letztes_mal_.reset();
    }
}

void form1::letztes_mal_vergessen() {
    letztes_mal_.reset();
    command_wieder.sichtbar(false);
}

void form1::letztes_mal_zeigen() {
    std::string namen;
    bool andere = false;
    for (const int nummer : alle_spuren) {
        if (!letztes_mal_ || !letztes_mal_->bahn[nummer].dabei) {
            continue;
        }
        const std::string& name = letztes_mal_->bahn[nummer].fahrer;
        if (name.empty() || name == um_.txt.kein_fahrer) {
            continue;
        }
        andere = andere || name != fahrer[feld_index(nummer)].text();
        if (namen.empty() || laenge(namen) + laenge(name) <= genannte_zeichen_max) {
            namen += (namen.empty() ? "" : ", ") + name;
        } else if (!namen.ends_with("…")) {
            namen += ", …";
        }
    }
    command_wieder.text(andere ? wort_letztes_mal_ + " " + namen : wort_letztes_mal_);
    command_wieder.sichtbar(andere);
}

void form1::letztes_mal_uebersetzen(std::string_view niemand, std::string_view standardfahrzeug) {
    for (const int nummer : alle_spuren) {
        if (letztes_mal_ && letztes_mal_->bahn[nummer].fahrer == niemand) {
            letztes_mal_->bahn[nummer].fahrer = um_.txt.kein_fahrer;
        }
        if (letztes_mal_ && letztes_mal_->bahn[nummer].fahrzeug == standardfahrzeug) {
            letztes_mal_->bahn[nummer].fahrzeug = um_.txt.standardfahrzeug_text;
        }
    }
    letztes_mal_zeigen();
}

void form1::letztes_mal_nehmen() {
    if (const auto felder = std::exchange(letztes_mal_, std::nullopt)) {
        um_.einrichtung = *felder;
        einrichtung_zeigen();
        felder_nach_spuren();
        bilder_anzeigen();
        beste_zeiten_anzeigen();
        Command1.fokus_setzen();  // the button itself has gone
    }
}

}  // namespace tarvel
