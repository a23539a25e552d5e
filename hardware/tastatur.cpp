#include "hardware/tastatur.h"

namespace tarvel {
namespace {

constexpr int zeile_chaostaster = 53;  // + lane
constexpr int zeile_rundenabzug = 60;  // + lane
constexpr int erste_ereigniszeile = 13;
constexpr int letzte_ereigniszeile = ereignis_tabelle::zeilen_anzahl - 1;

}  // namespace

bool tastatur::ist(int taste, int zeile) const {
    return taste != tastenbelegung::keine_taste && taste == belegung_.taste(zeile);
}

bool tastatur::rundenabzug_auswerten(int taste) {
    bool erledigt = false;
    for (const int spur : alle_spuren) {
        if (ist(taste, zeile_rundenabzug + spur) && rennen_.runde_abziehen(spur)) {
            erledigt = true;
        }
    }
    return erledigt;
}

void tastatur::taste_auswerten(int taste, std::optional<zeit_ms> stempel) {
    bool chaos = ist(taste, tastenbelegung::zeile_chaos);
    bool nacht = ist(taste, tastenbelegung::zeile_nacht) && !rennen_.beendet();
    for (const int spur : alle_spuren) {
        if (ist(taste, zeile_chaostaster + spur)) {
            // a personal button acts as the common chaos key from here on, and as nothing else
            ereignisse_.chaos_knopf(spur);
            taste = belegung_.taste(tastenbelegung::zeile_chaos);
            chaos = true;
            nacht = false;
        }
    }
    if (nacht) {
        rennen_.bildschirm_dunkel();
    }
    if (chaos) {
        rennen_.chaos_taste();
    }
    if (rundenabzug_auswerten(taste) || nacht || chaos) {
        return;
    }
    for (int zeile = erste_ereigniszeile; zeile <= letzte_ereigniszeile; ++zeile) {
        if (ist(taste, zeile)) {
            ereignisse_.ereignis_melden(zeile, stempel.value_or(ereignisse_.messzeit));
        }
    }
}

}  // namespace tarvel
