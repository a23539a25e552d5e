#include "race/rennuhr.h"

#include <cstddef>

#include "core/text.h"
#include "core/zeit.h"

namespace tarvel {
namespace {

struct restzeit_sound {
    std::size_t marke;
    zeit_ms vor_ende;  ///< played this long before time zero
    int nummer;
    zeit_ms zu_kurz_bis;  ///< not played in a race of this length or less
};

constexpr std::array<restzeit_sound, 16> restzeit_tabelle{{
    {1, 300500, 49, 300000},
    {2, 120500, 50, 120000},
    {3, 60500, 51, 60000},
    {16, 42500, 64, 42000},
    {4, 30500, 52, 30000},
    {5, 20500, 53, 20000},
    {6, 10200, 54, 10000},
    {7, 9200, 55, 10000},
    {8, 8200, 56, 10000},
    {9, 7200, 57, 10000},
    {10, 6200, 58, 10000},
    {11, 5200, 59, 10000},
    {12, 4200, 60, 10000},
    {13, 3150, 61, 10000},
    {14, 2150, 62, 10000},
    {15, 1100, 63, 10000},
}};

constexpr zeit_ms anzeige_rundung = 15;  // the last milliseconds show as zero

void uhr_schreiben(rennuhr_felder& uhr, const zeit_teile& zeit, bool tausendstel_null) {
    uhr.stunden.text(ziffern(zeit.stunden, 2));
    uhr.minuten.text(ziffern(zeit.minuten, 2));
    uhr.sekunden.text(ziffern(zeit.sekunden, 2));
    uhr.tausendstel.text(ziffern(tausendstel_null ? 0 : zeit.millisekunden, 3));
}

void stunden_zeigen(rennuhr_felder& uhr, bool sichtbar) {
    uhr.stunden.sichtbar(sichtbar);
    uhr.nach_stunden.sichtbar(sichtbar);
}

}  // namespace

void rennuhr::schreiben(zeit_ms gefahren, zeit_ms rest) {
    const zeit_teile hin = zeit_zerlegen(gefahren);
    const zeit_teile her = zeit_zerlegen(rest);
    if (hin.stunden > 0) {
        stunden_zeigen(um_.bahn.uhr1, true);
    }
    if (her.stunden > 0) {
        stunden_zeigen(um_.bahn.uhr2, true);
    }
    const bool zeitrennen = um_.ist_zeitrennen();
    const bool gleich_null =
        zeitrennen && her.stunden == 0 && her.minuten == 0 && her.sekunden == 0 && her.millisekunden < anzeige_rundung;
    uhr_schreiben(um_.bahn.uhr1, zeitrennen ? her : hin, gleich_null);
    uhr_schreiben(um_.bahn.uhr2, hin, gleich_null);
}

void rennuhr::zuruecksetzen() {
    const zeit_ms rest = um_.ist_zeitrennen() ? um_.param.renndauer_ms : 0;
    stunden_zeigen(um_.bahn.uhr1, zeit_zerlegen(rest).stunden > 0);
    stunden_zeigen(um_.bahn.uhr2, false);
    schreiben(0, rest);
}

void rennuhr::zeigen_bei(zeit_ms messzeit) {
    if (laeuft()) {
        schreiben(gefahren_bei(messzeit), ende() - messzeit);
    }
}

void rennuhr::rennuhr_anzeigen() {
    zeigen_bei(um_.ereignisse.messzeit);
    if (laeuft() && um_.ist_zeitrennen()) {
        restzeit_sounds();
    }
}

void rennuhr::fortsetzen_uhreinstellen() {
    const zeit_ms rest = um_.ist_zeitrennen() ? um_.param.renndauer_ms : gefahren();
    stunden_zeigen(um_.bahn.uhr1, zeit_zerlegen(rest).stunden > 0);
    stunden_zeigen(um_.bahn.uhr2, zeit_zerlegen(gefahren()).stunden > 0);
    schreiben(gefahren(), um_.param.renndauer_ms);
}

void rennuhr::auf_null_stellen() {
    um_.bahn.uhr1.minuten.text("00");
    um_.bahn.uhr1.sekunden.text("00");
    tausendstel_auf_null();
}

void rennuhr::tausendstel_auf_null() {
    um_.bahn.uhr1.tausendstel.text("000");
    um_.bahn.uhr2.tausendstel.text("000");
}

void rennuhr::restzeit_vorbereiten(zeit_ms dauer) {
    for (const restzeit_sound& sound : restzeit_tabelle) {
        zeit_sound_offen_.at(sound.marke) = dauer > sound.zu_kurz_bis;
    }
}

void rennuhr::restzeit_sounds() {
    for (const restzeit_sound& sound : restzeit_tabelle) {
        bool& offen = zeit_sound_offen_.at(sound.marke);
        if (offen && um_.ereignisse.messzeit >= ende() - sound.vor_ende) {
            offen = false;
            um_.sounds.spielen(sound.nummer);
        }
    }
}

}  // namespace tarvel
