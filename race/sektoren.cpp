#include "race/sektoren.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/text.h"
#include "core/zeit.h"

namespace tarvel {
namespace {

constexpr int sensoren_je_spur = 2;
constexpr zeit_ms sperre_ms = 1500;  // as `sekt_timer`; what a device tells late is as far apart as it says

/// Event of a lane's sector sensor 1 or 2.
constexpr ereignis_art art_von(int spur, int sensor) {
    return erste_zwischenzeit + sensoren_je_spur * (spur - 1) + sensor - 1;
}

void anzeigen_in(bahn1& bahn, int spur, sektor_ort ort, const std::string& was, const std::string& text,
                 const std::string& davor = {}) {
    if (ort == sektor_ort::klein) {
        bahn.brunde[spur].text(text, davor);
        bahn.Label_brunde[spur].text(was);
    } else if (ort == sektor_ort::gross) {
        bahn.lrunde[spur].text(text, davor);
        bahn.Label_lrunde[spur].text(was);
    }
}

}  // namespace

double sektor_tempo(double meter, zeit_ms zeit) {
    constexpr double ms_je_stunde = 3600000;
    return zeit <= 0 ? 0 : (meter / 1000) / (static_cast<double>(zeit) / ms_je_stunde);
}

std::string sektor_tempo_text(const std::string& laenge, zeit_ms zeit, std::optional<double> massstab) {
    if (laenge.empty()) {
        return {};
    }
    const double tempo = sektor_tempo(zahl_lesen(laenge), zeit);
    return massstab ? std::to_string(std::llround(tempo * *massstab)) : zahl_fest(tempo, ',');
}

sektoren::sektoren(const renn_umgebung& um) : um_(um) {
    for (std::size_t i = 0; i < um_.zeitgeber.sekt_timer.size(); ++i) {
        um_.zeitgeber.sekt_timer.at(i)->bei_tick = [this, i] {
            um_.zeitgeber.sekt_timer.at(i)->aus();
            um_.ereignisse[erste_zwischenzeit + static_cast<int>(i)].aktiv = false;  // a second hit is dropped
        };
    }
}

void sektoren::zuruecksetzen() {
    for (zeilen& spur : sektorzeiten_) {
        spur.assign(runden_max + 2, {});
    }
}

zeit_ms sektoren::sektorzeit(int spur, int sektor, int nummer) const {
    return zeile(spur, nummer).at(static_cast<std::size_t>(sektor - 1));
}

void sektoren::sektorzeit(int spur, int sektor, int zeile, zeit_ms zeit) {
    zeilen& speicher = sektorzeiten_[spur];
    if (zeile >= 0 && zeile < static_cast<int>(speicher.size())) {
        speicher[static_cast<std::size_t>(zeile)].at(static_cast<std::size_t>(sektor - 1)) = zeit;
    }
}

void sektoren::sektoren_auswerten() {
    if (!um_.einst.sektor_an[0]) {
        return;
    }
    for (const int spur : alle_spuren) {
        for (int sensor = 1; sensor <= sensoren_je_spur; ++sensor) {
            const ereignis_art art = art_von(spur, sensor);
            const auto platz = static_cast<std::size_t>(art - erste_zwischenzeit);
            const auto& sperre = um_.zeitgeber.sekt_timer.at(platz);
            const zeit_ms stempel = um_.ereignisse[art].ereignis_zeit;
            const bool gesperrt = sperre->laeuft() && stempel - zuletzt_.at(platz) < sperre_ms;
            if (um_.ereignisse[art].aktiv && !gesperrt && um_.einst.sektor_an.at(static_cast<std::size_t>(sensor)) &&
                !um_.zustand.spur[spur].ziel_erreicht) {
                sperre->an();
                zuletzt_.at(platz) = stempel;
                um_.ereignisse[art].aktiv = false;
                sektorzeit_verarbeiten(spur, sensor);
            }
        }
    }
}

void sektoren::sektorzeit_verarbeiten(int spur, int sektor) {
    const spur_zustand& zustand = um_.zustand.spur[spur];
    const int zeile = um_.zustand.konto.laufende(spur);
    if (zeile <= 0) {
        return;  // has not crossed the line yet
    }
    zeit_ms basis = um_.zustand.konto.stempel(spur, zeile - 1);
    if (sektor == 2) {
        basis += sektorzeit(spur, 1, zeile);
    }
    const zeit_ms zeit =
        um_.ereignisse[art_von(spur, sektor)].ereignis_zeit - basis + zustand.strafzuschlag() - zustand.pause_abzug;
    sektorzeit(spur, sektor, zeile, zeit);
    um_.protokoll.vermerken(vermerk::sektor, {spur, sektor, zeit});
    anzeigen(spur, sektor, zeit);
    um_.sounds.spielen(sound::sektorzeit);
}

sektoren::zeiten sektoren::zeile(int spur, int zeile) const {
    const zeilen& speicher = sektorzeiten_[spur];
    return zeile < 0 || zeile >= static_cast<int>(speicher.size()) ? zeiten{}
                                                                   : speicher[static_cast<std::size_t>(zeile)];
}

void sektoren::runden_setzen(int spur, const std::vector<rennergebnis::runde>& runden, int laufende, bool begonnen) {
    zeilen& speicher = sektorzeiten_[spur];
    const zeiten unterwegs = begonnen ? zeiten{} : zeile(spur, laufende);
    const std::size_t bis = std::max(runden.size(), static_cast<std::size_t>(std::max(laufende, 0)));
    for (std::size_t i = 0; i <= bis && i < speicher.size(); ++i) {
        speicher[i] = i < runden.size() ? runden[i].sektoren : i == runden.size() ? unterwegs : zeiten{};
    }
}

void sektoren::fahrer_umsetzen(const spuren<int>& herkunft) {
    const spuren<zeilen> vorher = sektorzeiten_;
    for (const int spur : alle_spuren) {
        if (herkunft[spur] != 0) {
            sektorzeiten_[spur] = vorher[herkunft[spur]];
        }
    }
}

void sektoren::anzeigen(int spur, int sektor, zeit_ms zeit) {
    anzeigen_in(um_.bahn, spur, um_.einst.sektor_anzeige, um_.bahn.wort.sektor + " " + std::to_string(sektor),
                zeit_formatieren(zeit, false, um_.einst.trennzeichen), minuten_davor(zeit, um_.einst.trennzeichen));
    std::string text = sektor_tempo_text(um_.einst.sektor_laenge.at(static_cast<std::size_t>(sektor))[spur], zeit,
                                         um_.einst.real_speed ? std::optional(um_.param.massstab) : std::nullopt);
    if (text.empty()) {
        return;
    }
    text += um_.bahn.zeilenansicht() ? " k" : " k/h";
    anzeigen_in(um_.bahn, spur, um_.einst.topspeed_anzeige, um_.bahn.wort.topspeed, text);
}

void sektoren::letzten_sektor_speichern(int spur, int zeile, zeit_ms stempel, zeit_ms pause) {
    if (!um_.einst.sektor_an[0] || zeile <= 0) {
        return;
    }
    const zeit_ms bisher = sektorzeit(spur, 1, zeile) + sektorzeit(spur, 2, zeile);
    const zeit_ms zeit =
        stempel - um_.zustand.konto.stempel(spur, zeile - 1) - bisher - pause + um_.zustand.spur[spur].strafzuschlag();
    sektorzeit(spur, um_.einst.sektor_an[3] ? 3 : 2, zeile, zeit);
}

}  // namespace tarvel
