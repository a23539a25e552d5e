#include <algorithm>
#include <iterator>
#include <string>

#include "core/text.h"
#include "optionen/einstellungsfenster.h"

// Rows that find their choices in the program folder.

namespace tarvel {

void einstellungsfenster::sprachwahl_verbinden() {
    optionszeile& eine = zeile("sprache");
    auto* wahl = &std::get<auswahl>(eine.element);
    eine.zeigen = [this, wahl](const einstellungs_ziel& z) {
        sprachordner_ = sprachordner_finden(um_.ablage);
        std::vector<std::string> namen;
        std::transform(sprachordner_.begin(), sprachordner_.end(), std::back_inserter(namen), sprachname);
        wahl->eintraege(namen);
        const auto jetzt = std::find(sprachordner_.begin(), sprachordner_.end(), z.einst.anzeige.sprachordner);
        wahl->platz(jetzt == sprachordner_.end() ? -1 : static_cast<int>(jetzt - sprachordner_.begin()));
        wahl->aktiviert(um_.fenster.sprache_wechselbar());
    };
    eine.uebernehmen = [this, wahl](const einstellungs_ziel& z, const auto&) {
        if (wahl->platz() >= 0) {
            z.einst.anzeige.sprachordner = sprachordner_.at(static_cast<std::size_t>(wahl->platz()));
        }
    };
}

void einstellungsfenster::sounds_verbinden() {
    for (int nummer = 1; nummer <= sounds_max; ++nummer) {
        auto& sound = std::get<soundfeld>(zeile("sound_dateien_" + std::to_string(nummer)).element);
        sounds_.push_back(&sound);
        sound.abspielen.text("▶");
        sound.abspielen.bei_klick = [this, &sound] { um_.klang.spielen(sound.datei.text()); };
        sound.datei.bei_aenderung = [this, &sound] {
            sound.abspielen.aktiviert(um_.ablage.gibt_es(sound.datei.text()));
        };
    }
}

void einstellungsfenster::sounds_auffrischen() {
    std::string ordner(gekuerzt(std::get<feld>(zeile("sound_ordner").element).text()));
    if (ordner.empty()) {
        ordner = "sound";
    }
    const std::string davor = ordner + "\\";
    std::vector<std::string> vorhanden;
    for (const std::string& datei : um_.ablage.auflisten(ordner, "", ".wav")) {
        vorhanden.push_back(davor + datei);
    }
    for (soundfeld* sound : sounds_) {
        sound->datei.eintraege(vorhanden);
        sound->datei.bei_aenderung();
    }
}

}  // namespace tarvel
