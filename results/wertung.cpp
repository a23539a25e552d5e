#include "results/wertung.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarvel {

void wertung::fahrer_umsetzen(const spuren<int>& herkunft) {
    const auto vorher = stand_;
    for (const int spur : alle_spuren) {
        if (herkunft[spur] != 0) {
            stand_[spur] = vorher[herkunft[spur]];
        }
    }
}

void wertung::disqualifizierte_streichen() {
    for (const int spur : alle_spuren) {
        if (um_.zustand.spur[spur].disqualifiziert) {
            um_.zustand.konto.streichen(spur);
        }
    }
}

void wertung::meter_auswerten() {
    for (const int spur : alle_spuren) {
        if (um_.zustand.spur[spur].disqualifiziert) {
            stand_[spur] = {};
        } else if (um_.param.spur_aktiv[spur]) {
            const auto runden = static_cast<std::size_t>(std::max(um_.zustand.konto.runden(spur), 0));
            stand_[spur].runden.resize(runden, um_.param.spurlaenge[spur]);
        }
    }
}

void wertung::zuruecksetzen() {
    stand_.fuellen({});
    korrekturen_.leeren();
}

bool wertung::korrigieren(const korrekturschritt& schritt) {
    korrekturschritt passende;
    std::copy_if(schritt.begin(), schritt.end(), std::back_inserter(passende),
                 [this](const korrektur& k) { return tarvel::korrigieren(ergebnis_, k); });
    if (passende.empty()) {
        return false;
    }
    protokollieren(korrekturvermerk::weise::neu, passende);
    korrekturen_.anfuegen(std::move(passende));
    auswerten();
    return true;
}

void wertung::ergaenzen(const korrektur& k) {
    if (tarvel::korrigieren(ergebnis_, k)) {
        korrekturen_.ergaenzen(k);
        auswerten();
    }
}

bool wertung::zuruecknehmen() {
    const korrekturschritt* weg = korrekturen_.zuruecknehmen();
    if (weg != nullptr) {
        protokollieren(korrekturvermerk::weise::zurueck, {weg->rbegin(), weg->rend()});
        auswerten();
    }
    return weg != nullptr;
}

bool wertung::wiederherstellen() {
    const korrekturschritt* wieder = korrekturen_.wiederherstellen();
    if (wieder != nullptr) {
        protokollieren(korrekturvermerk::weise::wieder, *wieder);
        auswerten();
    }
    return wieder != nullptr;
}

void wertung::protokollieren(korrekturvermerk::weise wie, const korrekturschritt& schritt) const {
    using weise = korrekturvermerk::weise;
    for (const korrektur& k : schritt) {
        const bool weitere = wie == weise::neu && &k != &schritt.front();
        um_.protokoll.kopfzeile(korrekturzeile({weitere ? weise::dazu : wie, k}));
    }
}

void wertung::festschreiben() {
    for (const korrekturschritt& schritt : abschliessen()) {
        for (const korrektur& k : schritt) {
            r_.rundenkorrektur.uebernehmen(k);
        }
    }
}

std::vector<korrekturschritt> wertung::abschliessen() {
    auswerten();
    std::vector<korrekturschritt> geltende = korrekturen_.geltende();
    for (const rennergebnis::spur& s : ergebnis_.spuren) {
        meter_fortsetzung& stand = stand_[s.nummer];
        stand = {{}, s.restmeter};
        for (std::size_t i = 1; i < s.runden.size(); ++i) {
            stand.runden.push_back(s.runden[i].meter);
        }
    }
    korrekturen_.leeren();
    return geltende;
}

void wertung::auswerten() {
    const zeit_ms start = um_.zustand.start_zeit;
    korrekturen_.stempel_verschieben(start - std::exchange(start_, start));
    disqualifizierte_streichen();
    meter_auswerten();  // the places may go by the metres
    rennergebnis gefahren = kopf_bilden();
    for (const int spur : alle_spuren) {
        if (um_.param.spur_aktiv[spur]) {
            gefahren.spuren.push_back(spur_bilden(spur));
        } else {
            gefahren.rundenzeilen = std::max(gefahren.rundenzeilen, um_.zustand.konto.laufende(spur));
        }
    }
    ergebnis_ = korrekturen_.angewandt(std::move(gefahren));
}

rennergebnis wertung::kopf_bilden() const {
    rennergebnis neu;
    neu.ziel = um_.param.renn_ziel;
    neu.zeit_um = zeit_um(um_);
    neu.teil = um_.zustand.konto.teil();
    neu.wertung = um_.param.auswertung_nach_rennen;
    neu.vorzeitig = um_.zustand.rennabbruch;
    const std::string& ende = um_.zustand.rennen_ende_uhrzeit;
    const std::size_t strich = ende.find('-');
    neu.datum = ende.substr(0, strich);
    neu.uhrzeit = strich == std::string::npos ? "" : ende.substr(strich + 1);
    neu.tanken = um_.param.tank_aktiv;
    if (um_.einst.real_speed) {
        neu.massstab = um_.param.massstab;
    }
    std::copy(um_.einst.sektor_an.begin() + 1, um_.einst.sektor_an.end(), neu.gemessen.begin());
    return neu;
}

rennergebnis::spur wertung::spur_bilden(int spur) const {
    const spur_zustand& zustand = um_.zustand.spur[spur];
    const rundenkonto& konto = um_.zustand.konto;
    rennergebnis::spur neu;
    neu.nummer = spur;
    neu.fahrer = um_.param.fahrer_name[spur];
    neu.klasse = um_.param.klasse[spur];
    neu.fahrzeug = um_.param.fahrzeug_name[spur];
    neu.laenge = um_.param.spurlaenge_text[spur];
    for (std::size_t sektor = 1; sektor <= sektoren_max; ++sektor) {
        if (um_.einst.sektor_an.at(sektor)) {
            neu.sektorlaenge.at(sektor - 1) = um_.einst.sektor_laenge.at(sektor)[spur];
        }
    }
    neu.disqualifiziert = zustand.disqualifiziert;
    for (int runde = 0; runde <= konto.runden(spur); ++runde) {
        neu.runden.push_back(runde_bilden(spur, runde));
        neu.gesamtzeit += runde > 0 ? neu.runden.back().zeit : 0;
    }
    neu.beste = konto.beste(spur);
    neu.gesamtzeit += dauer_ms(zustand.strafzeit).count();
    neu.meter = stand_[spur].meter();
    neu.restmeter = stand_[spur].restmeter;
    neu.strafzeit = zustand.strafzeit;
    neu.tankinhalt = zustand.tank_inhalt;
    neu.vor_fortsetzung = konto.vor_fortsetzung(spur);
    return neu;
}

rennergebnis::runde wertung::runde_bilden(int spur, int runde) const {
    rennergebnis::runde neu = um_.zustand.konto.runde(spur, runde);
    for (std::size_t i = 0; runde > 0 && i < neu.sektoren.size(); ++i) {
        if (um_.einst.sektor_an.at(i + 1)) {
            neu.sektoren.at(i) = r_.sektoren.sektorzeit(spur, static_cast<int>(i) + 1, runde);
        }
    }
    if (runde > 0) {
        neu.meter = stand_[spur].runden[static_cast<std::size_t>(runde) - 1];
    }
    return neu;
}

}  // namespace tarvel
