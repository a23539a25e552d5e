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
    for (const int spur : alle_spuren) {
        if (um_.zustand.spur[spur].disqualifiziert) {
            um_.zustand.konto.streichen(spur);
        }
    }
}

int wertung::runden(int spur) const {
    return std::max(um_.zustand.konto.runden(spur), 0);
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
    const rundenkonto& konto = um_.zustand.konto;
    const sortier_modus modus = gueltiger_modus(um_.param.auswertung_nach_rennen);
    for (const int spur : alle_spuren) {
        platz_werte& werte = werte_[spur];
        if (!um_.param.spur_aktiv[spur]) {
            werte = werte_inaktiv;
            continue;
        }
        const spur_zustand& zustand = um_.zustand.spur[spur];
        const double meter =
            std::max(zahl_lesen(meter_text(spur, '.')), 0.0);  // what is shown decides, not what it hides
        const int runden =
            std::max(konto.runden(spur), -1);  // laps taken off before the first crossing go further down
        werte = {true, runden, meter, dauer_ms(zustand.strafzeit).count(), beste_runde(spur)};
        if (zustand.disqualifiziert && modus == sortier_modus::beste) {
            werte.beste_runde = beste_inaktiv;  // no lap, and so no fast one either
        }
        for (int runde = 1; runde <= konto.runden(spur); ++runde) {
            werte.gesamtzeit += konto.rundenzeit(spur, runde);
        }
    }
    const spuren<int> rang_folge = rang_folge_bilden(werte_, modus);
    for (int rang = 1; rang <= spuren_max; ++rang) {
        platzierung_[rang_folge[rang]] = rang;
    }
    fuehrende_spur_ = rang_folge[1];
}

bool wertung::runde_loeschen(int spur, int runde) {
    const int letzte = um_.zustand.konto.runden(spur);
    if (!um_.zustand.konto.verschmelzen(spur, runde)) {
        return false;
    }
    sektoren_.zeile_verschmelzen(spur, runde, letzte);
    auto& meter_je_runde = stand_[spur].runden;
    if (static_cast<std::size_t>(runde) <= meter_je_runde.size()) {
        meter_je_runde.erase(meter_je_runde.begin() + runde - 1);
    }
    return true;
}

}  // namespace tarvel
