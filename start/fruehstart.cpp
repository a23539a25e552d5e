#include "start/fruehstart.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <utility>

namespace tarvel {
void fruehstart::zuruecksetzen() {
    einer_ = false;
    for (const int spur : alle_spuren) {
        stand_[spur] = {};
        um_.zustand.spur[spur].fruehstart_sperre = false;
    }
    um_.ereignisse.rundenzaehlung_leeren();
}

bool fruehstart::pruefen() {
    const bool neu = fruehstart_erkennen();
    if (einer_) {
        fruehstart_behandeln();
    }
    tanksensor_als_rundensensor();
    return neu;
}

void fruehstart::tanksensor_als_rundensensor() {
    for (const int spur : alle_spuren) {
        const ereignis_tabelle& ereignisse = um_.ereignisse;
        if ((um_.einst.tank_runden_modus == rundenzaehlung_auf::tanksensor_1 &&
             ereignisse[art::tanken_ein[spur]].aktiv) ||
            (um_.einst.tank_runden_modus == rundenzaehlung_auf::tanksensor_2 &&
             ereignisse[art::tanken_aus[spur]].aktiv)) {
            um_.ereignisse.ereignis_melden(art::rundenzaehlung[spur]);
        }
    }
}

bool fruehstart::fruehstart_erkennen() {
    bool neu = false;
    const ereignis_tabelle& ereignisse = um_.ereignisse;
    for (const int spur : alle_spuren) {
        if (ereignisse[art::rundenzaehlung[spur]].aktiv || ereignisse[art::tanken_ein[spur]].aktiv ||
            ereignisse[art::tanken_aus[spur]].aktiv) {
            if (!stand_[spur].erkannt) {
                neu = true;
                um_.protokoll.vermerken(vermerk::fruehstart, {spur, um_.zeit.messzeit_lesen()});
            }
            stand_[spur].erkannt = true;
            um_.ereignisse[art::rundenzaehlung[spur]].vorgemerkt = true;
            einer_ = true;
        }
    }
    return neu;
}

void fruehstart::melden(int spur) {
    um_.zustand.spur[spur].start_zeit = um_.zeit.messzeit_lesen();
    stand_[spur].gemeldet = true;
    um_.sounds.spielen(sound::fruehstart + spur);
    for (const ereignis_art art : {art::rundenzaehlung[spur], art::tanken_ein[spur], art::tanken_aus[spur]}) {
        um_.ereignisse[art].aktiv = false;
    }
}

void fruehstart::fruehstart_behandeln() {
    using aktion = void (fruehstart::*)();
    /// Index is `fruehstart_option`.
    static constexpr std::array<aktion, 6> aktionen{
        &fruehstart::fruehstart_ohne,  &fruehstart::fruehstart_abbruch, &fruehstart::fruehstart_disqualifikation,
        &fruehstart::fruehstart_strom, &fruehstart::fruehstart_runde,   &fruehstart::fruehstart_zeit};
    if (um_.einst.sound_an) {  // with sounds off nobody is stamped, and the events wait on
        for (const int spur : alle_spuren) {
            if (stand_[spur].erkannt && !stand_[spur].gemeldet) {
                melden(spur);
            }
        }
    }
    (this->*aktionen.at(static_cast<std::size_t>(um_.einst.fruehstart_option)))();
}

template <class Tat>
void fruehstart::je_frueher_spur(Tat tat) {
    for (const int spur : alle_spuren) {
        if (stand_[spur].erkannt && !um_.zustand.spur[spur].fruehstart_sperre) {
            um_.zustand.spur[spur].fruehstart_sperre = true;
            tat(spur);
        }
    }
}

void fruehstart::ueberfahrt_zaehlen(int spur) {
    um_.zustand.konto.zaehlen(spur, 0, 0, 0);
}

void fruehstart::fruehstart_ohne() {
    je_frueher_spur([this](int spur) { ueberfahrt_zaehlen(spur); });
}

void fruehstart::fruehstart_abbruch() {
    je_frueher_spur([](int /*spur*/) {});
    for (const int spur : alle_spuren) {
        strafen_.spur_strom_aus(spur);
    }
    folgen_.start_abbrechen();
}

void fruehstart::fruehstart_disqualifikation() {
    for (const int spur : alle_spuren) {
        bool& disqualifiziert = um_.zustand.spur[spur].disqualifiziert;
        if (stand_[spur].erkannt && !std::exchange(disqualifiziert, true)) {
            um_.bahn.zaehler[spur].text(disqualifiziert_text);
            strafen_.spur_strom_aus(spur);
        }
    }
}

void fruehstart::fruehstart_strom() {
    je_frueher_spur([this](int spur) {
        ueberfahrt_zaehlen(spur);
        stand_[spur].gemeldet = true;
        folgen_.strom_unterbrechen(spur);
    });
}

void fruehstart::fruehstart_runde() {
    je_frueher_spur([](int /*spur*/) {});  // the crossing is swallowed: the lane is one lap behind
}

void fruehstart::fruehstart_zeit() {
    je_frueher_spur([this](int spur) { strafen_.zeitstrafe(spur, um_.einst.fruehstart_schritte); });
}

}  // namespace tarvel
