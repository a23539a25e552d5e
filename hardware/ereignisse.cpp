#include "hardware/ereignisse.h"

namespace tarvel {

void ereignis_tabelle::ereignis_melden(ereignis_art nummer) {
    (*this)[nummer].ereignis_zeit = messzeit;
    (*this)[nummer].aktiv = true;
}

void ereignis_tabelle::ereignis_melden(ereignis_art nummer, zeit_ms stempel) {
    if (stempel >= gilt_ab) {
        (*this)[nummer].ereignis_zeit = stempel;
        (*this)[nummer].aktiv = true;
    }
}

void ereignis_tabelle::ueberfahrt_melden(ereignis_art nummer, zeit_ms stempel) {
    constexpr zeit_ms uhren_uneinig_ms = 100;  // a car that is let go on the line itself is not one from the pause
    if (pause_ab && stempel < gilt_ab - uhren_uneinig_ms) {
        if (stempel >= *pause_ab) {
            return;
        }
        stempel += gilt_ab - *pause_ab;
    }
    (*this)[nummer].ereignis_zeit = stempel;
    (*this)[nummer].aktiv = true;
}

void ereignis_tabelle::ruhe_herstellen() {
    constexpr std::size_t zeilen = 42;
    gelten_lassen(std::numeric_limits<zeit_ms>::min());  // the next race may go by another clock
    for (ereignis_zeile& zeile : std::span(zeilen_).first(zeilen)) {
        zeile.aktiv = false;
        zeile.pegel = zeile.pegel_ruhe;
    }
}

void ereignis_tabelle::stempel_verschieben(zeit_ms um) {
    messzeit += um;
    gilt_ab += gilt_ab == std::numeric_limits<zeit_ms>::min() ? 0 : um;
    if (pause_ab) {
        *pause_ab += um;
    }
    for (ereignis_zeile& zeile : zeilen_) {
        zeile.ereignis_zeit += um;
    }
}

void ereignis_tabelle::rundenzaehlung_leeren() {
    for (const ereignis_art nummer : art::rundenzaehlung) {
        (*this)[nummer].aktiv = false;
    }
}

void ereignis_tabelle::spuren_3_4_mitzaehlen() {
    for (const int spur : {1, 2}) {
        const ereignis_zeile& zweiter = (*this)[art::rundenzaehlung[spur + 2]];
        if (zweiter.aktiv) {
            ereignis_zeile& erster = (*this)[art::rundenzaehlung[spur]];
            erster.aktiv = true;
            erster.ereignis_zeit = zweiter.ereignis_zeit;
        }
    }
}

void ereignis_tabelle::strecke_leeren() {
    rundenzaehlung_leeren();
    for (ereignis_art nummer = erste_zwischenzeit; nummer < erste_zwischenzeit + sektorsensoren_max; ++nummer) {
        (*this)[nummer].aktiv = false;
    }
}

}  // namespace tarvel
