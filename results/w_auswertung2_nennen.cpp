#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "core/ordner.h"
#include "results/ergebnisdatei.h"
#include "results/fahrervergleich.h"
#include "results/tagesfuehrung.h"
#include "results/w_auswertung2.h"

// How the window names what it shows: folders, files, the leaders and the places.

namespace tarvel {

std::string w_auswertung2::anzeigename(std::string_view pfad) const {
    const std::string_view name = pfad.substr(pfad.find_last_of("\\/") + 1);
    const std::string wann = name.starts_with("auto-") ? zeitpunkt_im_namen(name) : std::string();
    return wann.empty() ? std::string(name) : wann;
}

bool w_auswertung2::automatischer_ordner() const {
    return ordner_ == papierkorb || ordner_ == ergebnis_ordner::auto_einzelrennen;
}

/// Nobody is to think that a result has been thrown away.
void w_auswertung2::ordner_nennen() {
    const bool automatisch = automatischer_ordner();
    Label_ordner.text(automatisch ? wort_.automatisch : ordner_);
    Label_ordner.tipp(automatisch ? ordner_ : std::string());
}

/// A file of one race holds no places: they are those of its sheet, until the operator sorts.
void w_auswertung2::rennplaetze_eintragen() {
    if (!tabelle_ || sortiert_ || tabelle_->rennen.size() != 1) {
        return;
    }
    const auto rennen = rennen_von(*tabelle_, 0, sortieren_nach());
    for (ergebniszeile& zeile : tabelle_->zeilen) {  // saved sorted, they do not stand in the order of their lanes
        const auto nummer = zeile.ergebnis && rennen ? spurnummer(zeile, tabelle_->trennzeichen[2]) : 0;
        const rennergebnis::spur* spur =
            nummer >= 1 && nummer <= spuren_max ? rennen->auf(static_cast<int>(nummer)) : nullptr;
        zeile.platz = spur != nullptr ? spur->platz.value_or(0) : 0;
    }
}

void w_auswertung2::datei_nennen() {
    if (!tabelle_) {
        Label_datei.text(wort_.keine_tabelle);
        return;
    }
    const auto eintraege = std::count_if(ansicht_.zeilen.begin(), ansicht_.zeilen.end(),
                                         [](const auto& zeile) { return zeile.ergebnis.has_value(); });
    std::string text = anzeigename(dateien_.front());
    text += dateien_.front().ends_with(text) ? std::string() : ", " + wort_.automatisch;
    if (const std::size_t mehr = dateien_.size() - 1; mehr > 0) {
        text += " + " + (mehr == 1 ? wort_.eine_weitere : std::to_string(mehr) + " " + wort_.weitere);
    }
    text += "  ·  " + wort_.art.at(static_cast<std::size_t>(tabelle_->typ)) + "  ·  " + std::to_string(eintraege) +
            " " + (eintraege == 1 ? wort_.eintrag : wort_.eintraege);
    if (tabelle_->addiert) {
        text += "  ·  " + (klassen_vereint_ ? wort_.addiert_alle : wort_.addiert);
    }
    Label_datei.text(text);
}

/// A day's file holds a line for each race; who reads it wants to know the winner.
void w_auswertung2::fuehrung_nennen() {
    const auto wer =
        tabelle_ && !tabelle_->addiert ? tagesfuehrung(*tabelle_, sortieren_nach()) : std::vector<tagesfuehrender>{};
    Label_fuehrung.sichtbar(!wer.empty());
    Label_fuehrung.text(fuehrung_.zeile(wer, ansicht_wort_.klasse) + ".  " + wort_.alle_plaetze);
}

}  // namespace tarvel
