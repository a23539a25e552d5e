#include "race/tanken.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <string>

#include "core/text.h"
#include "core/zeit.h"

namespace tarvel {
namespace {

constexpr farbe hellrot = 0x8080FF;
constexpr farbe gruen = 0x00C000;
constexpr double schritt_liter = 0.1;
constexpr zeit_ms schritt_ms = 10;
constexpr zeit_ms laengstes_tanken_ms = 600000;  // any tank is full by then, whatever the clock has done
constexpr zeit_ms halt_ms = 500;
constexpr double tank_liter_drei_stellen = 100;

double runden_auf(double wert, double je_eins) {
    return std::round(wert * je_eins) / je_eins;
}

}  // namespace

std::string tank_text(double liter) {
    const auto hundertstel = std::lround(liter * 100);
    std::string text = std::to_string(hundertstel / 100);
    if (liter < tank_liter_drei_stellen) {
        text += "," + ziffern(hundertstel % 100, 2);
    }
    return text;
}

double verbrauch(zeit_ms zeit, int liter_je_runde, dauer_s rundenzeit) {
    const zeit_teile teile = zeit_zerlegen(zeit);
    const double rest = static_cast<double>(teile.millisekunden) / 1000;
    const double sekunden = static_cast<double>(teile.minuten * 60 + teile.sekunden) + rest;
    const double nominal = liter_je_runde;
    const double mindestens = 2 * nominal / 3;
    const double hoechstens = nominal + nominal + 0.75;
    const double je_zeit = sekunden > 0 ? nominal * static_cast<double>(rundenzeit.count()) / sekunden : hoechstens;
    return runden_auf(std::min(std::max(je_zeit, mindestens), hoechstens) + rest, 100);
}

tanken::tanken(const renn_umgebung& um, strafen& s, rundenanzeige& anzeige) : um_(um), strafen_(s), anzeige_(anzeige) {
    for (const int spur : alle_spuren) {
        um_.zeitgeber.tanktimer[spur]->bei_tick = [this, spur] { tanktimer_tick(spur); };
        um_.zeitgeber.t_straftimer[spur]->bei_tick = [this, spur] { t_straftimer_tick(spur); };
    }
    stand_ = um_.protokoll.eingang("tank", 2, [this](const mitschrift::werte& w) {
        um_.zustand.spur[static_cast<int>(std::clamp<std::int64_t>(w[0], 1, spuren_max))].tank_inhalt =
            protokoll_bruch(w[1], 0);
    });
}

void tanken::stand_mitschreiben() {
    for (const int spur : alle_spuren) {
        um_.protokoll.geschieht(stand_, {spur, std::bit_cast<std::int64_t>(um_.zustand.spur[spur].tank_inhalt)});
    }
}

void tanken::zuruecksetzen() {
    const bool eigener_tank = um_.quellen.kann().eigener_tank;
    for (const int spur : alle_spuren) {
        um_.zeitgeber.tanktimer[spur]->aus();
        um_.zeitgeber.t_straftimer[spur]->aus();
        if (!eigener_tank) {
            um_.zustand.spur[spur].tank_inhalt = um_.einst.tank_inhalt;
        }
    }
    fuellstaende_zeigen();
    if (!eigener_tank) {
        for (const int spur : alle_spuren) {
            tankfarbe(spur, gruen);  // full, however near that is to the warning
        }
    }
}

void tanken::fuellstand_melden(int spur, int stufe, int stufen, bool neu) {
    const auto ansagen = [this, spur, neu](int was) {
        if (neu) {
            um_.sounds.spielen(was + spur);
        }
    };
    um_.zustand.spur[spur].tank_inhalt = runden_auf(static_cast<double>(stufe) * um_.einst.tank_inhalt / stufen, 100);
    if (stufe < 1) {
        tankfarbe(spur, um_.einst.farben_schrift[2]);
        ansagen(sound::tank_leer);
    } else if (static_cast<double>(stufe) * 100 / stufen < um_.einst.tank_warnung) {
        tankfarbe(spur, farben::rot);
        ansagen(sound::tankwarnung);
    } else {
        tankfarbe(spur, gruen);
    }
    fuellstand_zeigen(spur);
}

void tanken::sensoren_nachhalten() {
    if (!um_.param.tank_aktiv || um_.einst.tank_art != tankweise::auf_einem_kontakt) {
        return;
    }
    const zeit_ms dauer = um_.einst.tanksensor_justierung * prellen_ms;
    for (const int spur : alle_spuren) {
        zeit_ms& bis = um_.zustand.spur[spur].prellen_bis;
        for (const ereignis_art art : {art::rundenzaehlung[spur], art::tanken_ein[spur], art::tanken_aus[spur]}) {
            const ereignis_zeile& zeile = um_.ereignisse[art];
            if (zeile.aktiv && zeile.ereignis_zeit < bis) {
                bis = std::max(bis, zeile.ereignis_zeit + dauer);
            }
        }
    }
}

void tanken::fuellstand_zeigen(int spur) {
    const double stand = um_.zustand.spur[spur].tank_inhalt;
    um_.bahn.t_bahn[spur].text(tank_text(stand));
    um_.bahn.tankbalken.at(feld_index(spur))
        .hoehe(std::clamp(stand / um_.einst.tank_inhalt, 0.0, 1.0) * um_.bahn.tank_balkenhoehe);
}

void tanken::fuellstaende_zeigen() {
    for (const int spur : alle_spuren) {
        const double stand = um_.zustand.spur[spur].tank_inhalt;
        fuellstand_zeigen(spur);
        tankfarbe(spur, stand <= 0                           ? um_.einst.farben_schrift[2]
                        : stand <= um_.einst.tank_warnung    ? farben::rot
                        : stand < 2 * um_.einst.tank_warnung ? hellrot
                                                             : gruen);
    }
}

void tanken::tankfarbe(int spur, farbe neu) {
    um_.bahn.t_bahn[spur].schriftfarbe(neu);
    um_.bahn.tankbalken.at(feld_index(spur)).hintergrund(neu);
}

void tanken::tank_kontakte_auswerten() {
    for (const int spur : alle_spuren) {
        kontakt_auswerten(spur);
    }
}

void tanken::kontakte_nur_als_runden() {
    tank_kontakte_auswerten();
    for (const int spur : alle_spuren) {
        um_.zeitgeber.tanktimer[spur]->aus();
        um_.zustand.spur[spur].tank_kontakt = false;
    }
}

void tanken::kontakt_auswerten(int spur) {
    ereignis_zeile& ein = um_.ereignisse[art::tanken_ein[spur]];
    ereignis_zeile& aus = um_.ereignisse[art::tanken_aus[spur]];
    spur_zustand& zustand = um_.zustand.spur[spur];
    if (aus.aktiv) {
        zustand.tank_kontakt = false;
    }
    if (ein.aktiv && !zustand.tank_kontakt) {
        um_.zeitgeber.tanktimer[spur]->an();
    }
    const rundenzaehlung_auf modus = um_.einst.tank_runden_modus;
    const bool ueberfahrt = (modus == rundenzaehlung_auf::tanksensor_2 && aus.aktiv) ||
                            (modus == rundenzaehlung_auf::tanksensor_1 && ein.aktiv);
    if (ueberfahrt && !zustand.tank_kontakt) {
        const ereignis_zeile& kontakt = modus == rundenzaehlung_auf::tanksensor_2 ? aus : ein;
        um_.ereignisse.ereignis_melden(art::rundenzaehlung[spur], um_.hat_eigenen_stempel(kontakt)
                                                                      ? kontakt.ereignis_zeit
                                                                      : um_.ereignisse.messzeit);
    }
    if (um_.param.tank_aktiv && ein.aktiv) {
        zustand.tank_kontakt = true;
    }
    ein.aktiv = false;
    aus.aktiv = false;
}

void tanken::kontakt_verlassen(int spur) {
    if (um_.einst.tank_art == tankweise::auf_einem_kontakt) {
        um_.zustand.spur[spur].tank_kontakt = false;
    }
}

void tanken::tank_alle_spuren() {
    if (!um_.param.tank_aktiv) {
        return;
    }
    getankt_bis_ = um_.ereignisse.messzeit;
    const bool kontakte_wiederholt = um_.quellen.kann().kontakte_wiederholt;
    for (const int spur : alle_spuren) {
        spur_zustand& zustand = um_.zustand.spur[spur];
        const bool tankt = zustand.tank_kontakt && !um_.zeitgeber.tanktimer[spur]->laeuft() &&
                           !zustand.disqualifiziert && !um_.zustand.chaos_aktiv && !zustand.ziel_erreicht;
        if (!tankt) {
            if (std::exchange(zustand.tankt_seit, 0) != 0) {
                um_.protokoll.vermerken(vermerk::tank_ende, {spur, std::llround(zustand.tank_inhalt * 100)});
            }
            continue;
        }
        if (zustand.tankt_seit == 0) {
            zustand.tankt_seit = um_.ereignisse.messzeit;
            um_.protokoll.vermerken(vermerk::tankt, {spur, std::llround(zustand.tank_inhalt * 100)});
        }
        zustand.tankt_seit = std::max(zustand.tankt_seit, um_.ereignisse.messzeit - laengstes_tanken_ms);
        while (zustand.tank_kontakt && um_.ereignisse.messzeit - zustand.tankt_seit >= schritt_ms) {
            zustand.tankt_seit += schritt_ms;
            tanken_spur(spur, kontakte_wiederholt);
        }
    }
}

zeit_ms tanken::getankt_bis() const {
    const auto& spuren = um_.zustand.spur;
    const bool einer =
        std::any_of(spuren.begin(), spuren.end(), [](const spur_zustand& s) { return s.tankt_seit != 0; });
    return einer ? getankt_bis_ : 0;
}

void tanken::tanken_spur(int spur, bool kontakte_wiederholt) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    if (kontakte_wiederholt) {
        zustand.prellen_bis = std::max(zustand.prellen_bis, zustand.tankt_seit + prellen_ms);
    }
    if (zustand.tank_inhalt < um_.einst.tank_inhalt && !um_.zeitgeber.t_straftimer[spur]->laeuft()) {
        const double vorher = zustand.tank_inhalt;
        zustand.tank_inhalt = runden_auf(vorher + schritt_liter, 10);
        const int nominal = um_.einst.tank_verbrauch;
        tankfarbe(spur, vorher > 4 * nominal ? gruen : vorher > 2 * nominal ? hellrot : farben::rot);
        fuellstand_zeigen(spur);
    }
    if (zustand.tank_inhalt >= um_.einst.tank_inhalt) {
        voll(spur);
    }
}

void tanken::voll(int spur) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    um_.protokoll.vermerken(vermerk::voll, {spur});
    um_.zeitgeber.tanktimer[spur]->aus();
    if (um_.einst.tank_runden_modus != rundenzaehlung_auf::keinem_tanksensor) {
        zustand.tank_halt = {zustand.tankt_seit, zustand.tankt_seit + halt_ms};
    }
    zustand.tank_wartezaehler = {};
    zustand.tank_kontakt = false;
    um_.ereignisse[art::tanken_ein[spur]].aktiv = false;
    um_.ereignisse[art::tanken_aus[spur]].aktiv = false;
}

void tanken::tank_verbrauch_rechnen(zeit_ms zeit, int spur) {
    if (um_.quellen.kann().eigener_tank) {
        return;  // the device burns, and tells the level
    }
    if (um_.zustand.rennen_beendet) {
        return;  // a late crossing counts as a lap, but must not cut the power behind the result
    }
    spur_zustand& zustand = um_.zustand.spur[spur];
    const double stand =
        runden_auf(zustand.tank_inhalt - verbrauch(zeit, um_.einst.tank_verbrauch, um_.einst.tank_rundenzeit), 100);
    zustand.tank_inhalt = std::max(stand, 0.0);
    warnen(spur, stand);
    if (stand <= 0) {
        leer(spur);
    }
    fuellstand_zeigen(spur);
}

void tanken::warnen(int spur, double stand) {
    if (stand < 2 * um_.einst.tank_warnung) {
        tankfarbe(spur, hellrot);
    }
    if (stand <= um_.einst.tank_warnung) {
        tankfarbe(spur, farben::rot);
        um_.sounds.spielen(sound::tankwarnung + spur);
    }
}

void tanken::runde_genommen(int spur, zeit_ms pause) {
    um_.zustand.spur[spur].pause_abzug += pause;
    um_.bahn.t_liste.at(feld_index(spur)).letzte_entfernen();
    anzeige_.beste_zeigen(spur);
    um_.bahn.zaehler[spur].text(std::to_string(um_.zustand.konto.runden(spur)));
}

void tanken::leer(int spur) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    rundenkonto& konto = um_.zustand.konto;
    const bool mit_runde = konto.runden(spur) > 0;
    um_.sounds.spielen(sound::tank_leer + spur);
    um_.protokoll.vermerken(vermerk::leer, {spur, static_cast<int>(um_.einst.tank_straf_option)});
    tankfarbe(spur, um_.einst.farben_schrift[2]);
    switch (um_.einst.tank_straf_option) {
        case leer_aktion::ohne:
            break;
        case leer_aktion::disqualifikation:
            um_.bahn.zaehler[spur].text(disqualifiziert_text);
            zustand.disqualifiziert = true;
            zustand.ziel_erreicht = true;
            strafen_.spur_strom_aus(spur);
            um_.sounds.spielen(sound::disqualifiziert + spur);
            break;
        case leer_aktion::runde_weg:
            if (mit_runde) {
                runde_genommen(spur, konto.abziehen(spur));
            }
            break;
        case leer_aktion::stromunterbrechung:
            zustand.tank_strafzaehler = {};
            if (mit_runde) {
                runde_genommen(spur, konto.zurueckhalten(spur));
            }
            strafen_.spur_strom_aus(spur);
            um_.zeitgeber.t_straftimer[spur]->an();
            zustand.tank_strafe_aktiv = true;
            zustand.tank_sperre = {zustand.gezaehlt_bei,
                                   um_.zeit.messzeit_lesen() + dauer_ms(um_.einst.tank_strafzeit).count()};
            break;
        case leer_aktion::zeitstrafe:
            strafen_.zeitstrafe(spur, std::chrono::duration_cast<dauer_s>(um_.einst.tank_strafzeit));
            break;
    }
}

void tanken::beenden() {
    for (const int spur : alle_spuren) {
        spur_zustand& zustand = um_.zustand.spur[spur];
        um_.zeitgeber.tanktimer[spur]->aus();
        um_.zeitgeber.t_straftimer[spur]->aus();
        zustand.tank_strafe_aktiv = false;
        zustand.tank_sperre.bis = std::min(zustand.tank_sperre.bis, um_.zeit.messzeit_lesen());
        if (um_.zustand.konto.haelt_zurueck(spur)) {
            zustand.ziel_erreicht = letzte_runde(spur) || zustand.ziel_erreicht;
            runde_zurueckgeben(spur, 0);
        }
    }
}

bool tanken::letzte_runde(int spur) const {
    return um_.ist_rundenrennen() && um_.zustand.konto.laufende(spur) == um_.param.renn_ziel.runden();
}

void tanken::runde_zurueckgeben(int spur, zeit_ms gewartet) {
    rundenkonto& konto = um_.zustand.konto;
    konto.zurueckgeben(spur, letzte_runde(spur) ? dauer_ms(um_.einst.tank_strafzeit).count() : 0, gewartet);
    um_.bahn.zaehler[spur].text(std::to_string(konto.runden(spur)));
}

void tanken::tanktimer_tick(int spur) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    if (++zustand.tank_wartezaehler >= um_.einst.tank_wartezeit) {
        um_.zeitgeber.tanktimer[spur]->aus();
        zustand.tank_wartezaehler = {};
    }
}

void tanken::t_straftimer_tick(int spur) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    if (++zustand.tank_strafzaehler < um_.einst.tank_strafzeit) {
        return;
    }
    strafe_beenden(spur);
}

void tanken::strafe_abgelaufen(int spur, zeit_ms stempel) {
    const spur_zustand& zustand = um_.zustand.spur[spur];
    if (zustand.tank_strafe_aktiv && zustand.tank_sperre.bis != 0 && stempel >= zustand.tank_sperre.bis) {
        strafe_beenden(spur);
    }
}

void tanken::strafe_beenden(int spur) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    um_.zeitgeber.t_straftimer[spur]->aus();
    strafen_.spur_strom_an(spur);
    zustand.tank_strafe_aktiv = false;
    zustand.tank_strafzaehler = {};
    const rundenkonto& konto = um_.zustand.konto;
    if (!konto.haelt_zurueck(spur)) {  // the tank was empty before the first lap
        return;
    }
    runde_zurueckgeben(spur, dauer_ms(um_.einst.tank_strafzeit).count());
    const int runde = konto.runden(spur);
    const zeit_ms zeit =
        um_.ereignisse.messzeit - konto.stempel(spur, runde - 1) + zustand.strafzuschlag() - zustand.pause_abzug;
    zustand.pause_abzug = std::max<zeit_ms>(zustand.pause_abzug - konto.pause(spur, runde), 0);
    anzeige_.runde_melden(spur, zeit);
}

}  // namespace tarvel
