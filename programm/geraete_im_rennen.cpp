#include "programm/geraete_im_rennen.h"

#include <algorithm>
#include <bit>

namespace tarvel {
namespace {

int als_spur(std::int64_t wert) {
    return static_cast<int>(std::clamp<std::int64_t>(wert, 1, spuren_max));
}

}  // namespace

geraete_im_rennen::geraete_im_rennen(tarvel::rennen& r, tarvel::form1& form1, const fensterregister& fenster)
    : r_(r), form1_(form1), fenster_(fenster) {
    using werte = mitschrift::werte;
    tankflanken_auswerten_ = r_.protokoll.befehl("tankflanken", [this] { tankflanken_ansehen(); });
    verschieben_ = r_.protokoll.eingang("verschieben", 1, [this](const werte& w) {
        r_.zustand.stempel_verschieben(protokoll_stempel(w[0]));
        r_.umgebung.ereignisse.stempel_verschieben(protokoll_stempel(w[0]));
    });
    nachruecken_ = r_.protokoll.eingang("nachruecken", 1, [this](const werte& w) {
        r_.zustand.uhr_nachruecken(protokoll_stempel(w[0]));
        r_.umgebung.ereignisse.uhr_nachruecken(protokoll_stempel(w[0]));
    });
    nachmessen_ = r_.protokoll.eingang(
        "nachmessen", 1, [this](const werte& w) { r_.zustand.pausen_nachmessen(protokoll_bruch(w[0], 1)); });
    festhalten_ = r_.protokoll.eingang(
        "festhalten", 1, [this](const werte& w) { r_.zustand.pausen_festhalten(protokoll_stempel(w[0])); });
    verlassen_ =
        r_.protokoll.eingang("verlassen", 1, [this](const werte& w) { r_.tanken.kontakt_verlassen(als_spur(w[0])); });
    fuellstand_ = r_.protokoll.eingang("fuellstand", 4, [this](const werte& w) {
        r_.tanken.fuellstand_melden(als_spur(w[0]), static_cast<int>(w[1]), std::max(static_cast<int>(w[2]), 1),
                                    w[3] != 0);
    });
}

bool geraete_im_rennen::rennen_ruht() const {
    return fenster_.ist_offen(fenstername::bahn1) && !fenster_.ist_offen(fenstername::auswertung) &&
           r_.zustand.rennen_beendet && r_.bahn1.Command1.bedienbar();
}

void geraete_im_rennen::pausen_nachmessen(double faktor) {
    r_.protokoll.geschieht(nachmessen_, {std::bit_cast<std::int64_t>(faktor)});
}

void geraete_im_rennen::pausen_festhalten(zeit_ms stempel) {
    if (!r_.zustand.rennen_beendet && (r_.zustand.chaos_aktiv || r_.zustand.pause_abzug != 0)) {
        r_.protokoll.geschieht(festhalten_, {stempel});
    }
}

void geraete_im_rennen::tankflanken_ansehen() {
    r_.tanken.sensoren_nachhalten();
    if (!r_.umgebung.ampel_laeuft()) {  // else a tank sensor may be what sees a false start
        r_.tanken.tank_kontakte_auswerten();
    }
}

void geraete_im_rennen::tankfunktion(bool an) {
    if (!fenster_.ist_offen(fenstername::bahn1)) {
        form1_.t_aktiv.gesetzt(an);
        form1_.tankoptionen_zeigen();
    }
}

}  // namespace tarvel
