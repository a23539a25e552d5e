#include "programm/einstellungsruecklage.h"

#include <algorithm>
#include <utility>

#include "race/fruehstartstrafe.h"

namespace tarvel {

using namespace std::chrono_literals;

einstellungsruecklage::einstellungsruecklage(const umgebung& um)
    : um_(um), takt_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 200ms)) {
    takt_->bei_tick = [this] { abgelaufene_zurueckstellen(); };
}

bool einstellungsruecklage::solange(std::vector<fenstername> offen, felder wie, const std::function<bool()>& holen) {
    abgelaufene_zurueckstellen();
    um_.haupt.einrichtung_lesen();
    schichten_.push_back({um_.einst, um_.einrichtung, in_kraft(), std::move(offen), wie});
    if (!holen()) {
        zurueckstellen();
        return false;
    }
    schichten_.back().danach = in_kraft();
    schichten_.back().nach_einem_start = nach_einem_start();
    takt_->an();
    return true;
}

void einstellungsruecklage::aufgeben() {
    schichten_.clear();
    takt_->aus();
}

/// The start light writes one of the settings itself: that is no change by the operator.
std::vector<std::string> einstellungsruecklage::nach_einem_start() {
    const dauer_hs bisher = std::exchange(um_.einst.fruehstart_strafzeit, fruehstart_sperrdauer(um_.einst));
    std::vector<std::string> zeilen = um_.datei.festhalten();
    um_.einst.fruehstart_strafzeit = bisher;
    return zeilen;
}

/// The lines that waited, and over them those that have been changed meanwhile.
std::vector<std::string> einstellungsruecklage::ueberlagert(const schicht& unten, std::vector<std::string> zeilen) {
    const std::vector<std::string>& davor = unten.davor.zeilen;
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        if (!unten.danach || zeilen[i] == unten.danach->zeilen.at(i) || zeilen[i] == unten.nach_einem_start.at(i)) {
            zeilen[i] = davor.at(i);
        }
    }
    return zeilen;
}

std::vector<std::string> einstellungsruecklage::fuer_die_datei(std::vector<std::string> in_kraft) const {
    for (auto unten = schichten_.rbegin(); unten != schichten_.rend(); ++unten) {
        in_kraft = ueberlagert(*unten, std::move(in_kraft));
    }
    return in_kraft;
}

const renneinrichtung& einstellungsruecklage::eigene_einrichtung() const {
    const auto unterste = std::find_if(schichten_.begin(), schichten_.end(),
                                       [](const schicht& eine) { return eine.wie == felder::zurueck; });
    return unterste == schichten_.end() ? um_.einrichtung : unterste->einrichtung;
}

void einstellungsruecklage::abgelaufene_zurueckstellen() {
    const auto offen = [this](fenstername name) { return um_.fenster.ist_offen(name); };
    while (!schichten_.empty() && schichten_.back().danach &&
           std::none_of(schichten_.back().offen.begin(), schichten_.back().offen.end(), offen)) {
        zurueckstellen();
    }
    if (schichten_.empty()) {
        takt_->aus();
    }
}

void einstellungsruecklage::zurueckstellen() {
    um_.haupt.einrichtung_lesen();
    const schicht alt = std::move(schichten_.back());
    schichten_.pop_back();
    const std::vector<std::string> neu = ueberlagert(alt, um_.datei.festhalten());
    const einstellungen vorher = um_.einst;
    const renneinrichtung getippt = um_.einrichtung;
    um_.einst = alt.einst;
    um_.einst.nebendateien_behalten(vorher);
    um_.einrichtung = alt.einrichtung;
    um_.datei.aenderungen_uebernehmen(alt.davor.zeilen, neu);
    if (!alt.danach || um_.belegung == alt.danach->belegung) {
        um_.belegung = alt.davor.belegung;
    }
    if (alt.wie == felder::bleiben) {
        um_.einrichtung = getippt;
    } else {
        um_.haupt.einrichtung_zeigen();
        um_.haupt.felder_nach_spuren();
    }
    um_.folgen.einstellungen_gewechselt(vorher);
}

}  // namespace tarvel
