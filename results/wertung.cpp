#include "results/wertung.h"

#include <algorithm>

#include "core/text.h"

namespace tarvel {
namespace {

// A lane that was not in the race stays behind all others, whatever the key.
constexpr zeit_ms beste_inaktiv = 999999;
constexpr platz_werte werte_inaktiv{false, -2, -100.0, 999999999, beste_inaktiv};

}  // namespace

void wertung::fahrer_umsetzen(const spuren<int>& herkunft) {
    const auto vorher = stand_;
    for (const int spur : alle_spuren) {
        if (herkunft[spur] != 0) {
            stand_[spur] = vorher[herkunft[spur]];
        }
    }
}

void wertung::disqualifizierte_streichen() {
    for (spur_zustand& zustand : um_.zustand.spur) {
        zustand.runden = zustand.disqualifiziert ? 0 : zustand.runden_zeile - 1;
    }
}

int wertung::runden(int spur) const {
    return std::max(um_.zustand.spur[spur].runden, 0);
}

std::string wertung::meter_text(int spur, char komma) const {
    return zahl_fest(meter(spur), komma);
}

void wertung::meter_auswerten() {
    for (const int spur : alle_spuren) {
        if (um_.zustand.spur[spur].disqualifiziert) {
            stand_[spur] = {};
        } else if (um_.param.spur_aktiv[spur]) {
            stand_[spur].runden.resize(static_cast<std::size_t>(runden(spur)), um_.param.spurlaenge[spur]);
        }
    }
}

void wertung::restmeter_zuschlagen(int spur, double meter) {
    if (um_.zustand.spur[spur].disqualifiziert) {
        return;
    }
    stand_[spur].restmeter += meter;
}

void wertung::platzierung_berechnen() {
    rundenspeicher& speicher = um_.zustand.rundenzeiten;
    const sortier_modus modus = gueltiger_modus(um_.param.auswertung_nach_rennen);
    for (const int spur : alle_spuren) {
        platz_werte& werte = werte_[spur];
        if (!um_.param.spur_aktiv[spur]) {
            speicher.beste(spur, beste_inaktiv);
            werte = werte_inaktiv;
            continue;
        }
        const spur_zustand& zustand = um_.zustand.spur[spur];
        const double meter =
            std::max(zahl_lesen(meter_text(spur, '.')), 0.0);  // what is shown decides, not what it hides
        const int runden = std::max(zustand.runden, -1);  // laps taken off before the first crossing go further down
        werte = {true, runden, meter, dauer_ms(zustand.strafzeit).count(), beste_runde(spur)};
        if (zustand.disqualifiziert && modus == sortier_modus::beste) {
            werte.beste_runde = beste_inaktiv;  // no lap, and so no fast one either
        }
        for (int runde = 1; runde <= zustand.runden; ++runde) {
            werte.gesamtzeit += speicher.rundenzeit(spur, runde);
        }
    }
    const spuren<int> rang_folge = rang_folge_bilden(werte_, modus);
    for (int rang = 1; rang <= spuren_max; ++rang) {
        platzierung_[rang_folge[rang]] = rang;
    }
    fuehrende_spur_ = rang_folge[1];
}

bool wertung::runde_loeschen(int spur, int runde) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    const int letzte = zustand.runden;
    if (runde < 1 || runde > letzte) {
        return false;
    }
    --zustand.runden;
    --zustand.runden_zeile;
    um_.zustand.rundenzeiten.zeile_verschmelzen(spur, runde, letzte);
    sektoren_.zeile_verschmelzen(spur, runde, letzte);
    zustand.runden_vorher -= runde <= zustand.runden_vorher ? 1 : 0;
    auto& meter_je_runde = stand_[spur].runden;
    if (static_cast<std::size_t>(runde) <= meter_je_runde.size()) {
        meter_je_runde.erase(meter_je_runde.begin() + runde - 1);
    }
    beste_runde_suchen(spur);
    return true;
}

void wertung::beste_runde_suchen(int spur) {
    rundenspeicher& speicher = um_.zustand.rundenzeiten;
    const int runden = um_.zustand.spur[spur].runden;
    zeit_ms beste = runden > 0 ? speicher.rundenzeit(spur, 1) : 0;
    for (int runde = 2; runde <= runden; ++runde) {
        const zeit_ms zeit = speicher.rundenzeit(spur, runde);
        if (zeit > 0 && zeit < beste) {
            beste = zeit;
        }
    }
    speicher.beste(spur, beste);
}

}  // namespace tarvel
