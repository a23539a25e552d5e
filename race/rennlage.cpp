#include "race/rennlage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <string>
#include <utility>

#include "core/text.h"
#include "race/zeitfuehrung.h"

namespace tarvel {
namespace {

constexpr zeit_ms gesagt_ms = 2000;  // what is said for a moment
constexpr zeit_ms knapp_ms = 200;    // below what counts, which may lie above what was typed

/// Begun seconds: the last one counts down to the end.
int sekunden_auf(zeit_ms rest) {
    constexpr zeit_ms sekunde = 1000;
    return static_cast<int>((std::max<zeit_ms>(rest, 1) + sekunde - 1) / sekunde);
}

}  // namespace

rennlage::rennlage(const renn_umgebung& um, const teile& t) : um_(um), t_(t) {
    for (bezeichnung& label : um_.bahn.rueckstand) {
        label.sichtbar(false);
    }
    for (hinweis_anzeige& hinweis : um_.bahn.hinweis) {
        hinweis.sichtbar(false);
    }
}

int rennlage::sekunden_bis_strom(int spur) const {
    const spur_zustand& zustand = um_.zustand.spur[spur];
    const bool zaehlt = um_.einst.fruehstart_option == fruehstart_aktion::stromunterbrechung;
    return zustand.strom_aus && zaehlt ? sekunden_auf(dauer_ms(t_.fruehstart.rest()).count()) : 0;
}

/// In a pause nothing flows, but who stands on his contact then refuels as soon as it ends: nobody is to wonder why.
bool rennlage::in_der_box(int spur) const {
    const spur_zustand& zustand = um_.zustand.spur[spur];
    const bool tankt = zustand.tankt_seit != 0 || um_.zustand.chaos_aktiv;
    return tankt && zustand.tank_kontakt && zustand.tank_inhalt < um_.einst.tank_inhalt;
}

spurlage rennlage::lage_von(int spur) const {
    constexpr zeit_ms zugabe_ms = 100;  // beyond the seconds that were given
    const spur_zustand& zustand = um_.zustand.spur[spur];
    if (!um_.param.spur_aktiv[spur]) {
        return {};
    }
    if (zustand.disqualifiziert) {
        return {lage::disqualifiziert};
    }
    if (zustand.ziel_erreicht) {
        return {lage::ziel, t_.plaetze.position(feld_index(spur))};
    }
    if (um_.zustand.rennen_beendet) {
        return {};
    }
    if (zustand.ch_strafe_rest > 0) {
        return {lage::strafe, sekunden_auf(zustand.ch_strafe_rest - zugabe_ms)};
    }
    if (zustand.tank_strafe_aktiv) {
        return {lage::leer, sekunden_auf(dauer_ms(um_.einst.tank_strafzeit - zustand.tank_strafzaehler).count())};
    }
    if (zustand.fruehstart_sperre) {
        return {lage::fruehstart, sekunden_bis_strom(spur)};
    }
    if (in_der_box(spur)) {
        const double anteil = zustand.tank_inhalt / um_.einst.tank_inhalt;
        return {lage::box, static_cast<int>(zustand.tank_inhalt), static_cast<int>(std::lround(anteil * 1000))};
    }
    if (um_.zustand.chaos_aktiv) {
        return {lage::pause};
    }
    const bool leer = um_.param.tank_aktiv && hatte_sprit_[spur] && zustand.tank_inhalt <= 0;
    return leer ? spurlage{lage::leer} : spurlage{};
}

int rennlage::fuehrende() const {
    int erste = 0;
    if (um_.ampel_laeuft()) {
        return erste;
    }
    const rundenkonto& konto = um_.zustand.konto;
    for (const int spur : alle_spuren) {
        const bool vom_licht = konto.runden(spur) == 0 && konto.stempel(spur, 0) == um_.zustand.start_zeit;
        const bool dabei = um_.param.spur_aktiv[spur] && !um_.zustand.spur[spur].disqualifiziert &&
                           konto.runden(spur) >= 0 && !vom_licht;
        if (dabei && (erste == 0 || t_.plaetze.position(feld_index(spur)) < t_.plaetze.position(feld_index(erste)))) {
            erste = spur;
        }
    }
    return erste;
}

spuren<int> rennlage::ordnung() const {
    spuren<int> ordnung;
    for (const int spur : alle_spuren) {
        const int platz = um_.einst.rennbild.nach_platz ? t_.plaetze.position(feld_index(spur)) : 0;
        ordnung[spur] = platz > 0 ? platz : spuren_max + spur;  // who has no place, as an empty lane, comes last
    }
    return ordnung;
}

void rennlage::nachfuehren() {
    const int erste = fuehrende();
    for (const int spur : alle_spuren) {
        hatte_sprit_[spur] =
            !um_.zustand.rennen_beendet && (hatte_sprit_[spur] || um_.zustand.spur[spur].tank_inhalt > 0);
        spur_zeigen(spur, erste);
        rueckstand_zeigen(spur, erste);
        hinweis_zeigen(spur);
    }
    pause_zeigen();
    rekordzeile_zeigen(erste);
    restrunden_zeigen();
}

void rennlage::spur_zeigen(int spur, int fuehrende) {
    spurlage neu = um_.einst.rennbild.worte ? lage_von(spur) : spurlage{};
    neu.fuehrt = spur == fuehrende;
    lage_anzeige& anzeige = um_.bahn.lage[spur];
    const bool bleibt = anzeige.stand() == neu && anzeige.sichtbar() == (neu.was != lage::faehrt);
    if (bleibt) {
        return;
    }
    const std::string zahl = zahl_von(neu);
    const std::string wort = ohne_trennstellen(um_.bahn.wort.lagen.at(static_cast<std::size_t>(neu.was)));
    anzeige.text(zahl.empty() ? wort : wort + " " + zahl);
    anzeige.sichtbar(neu.was != lage::faehrt);
    anzeige.stand(neu);
}

void rennlage::rueckstand_zeigen(int spur, int fuehrende) {
    const rundenkonto& konto = um_.zustand.konto;
    const spur_zustand& zustand = um_.zustand.spur[spur];
    const bool zeigt = um_.param.spur_aktiv[spur] && !zustand.disqualifiziert && fuehrende != 0 && fuehrende != spur;
    rueckstandsgrund neu;
    if (zeigt) {
        neu = {fuehrende,
               konto.runden(spur),
               konto.runden(fuehrende),
               konto.stempel(spur, konto.runden(spur)),
               konto.stempel(fuehrende, konto.runden(spur)),
               um_.zustand.rennen_beendet || zustand.ziel_erreicht};
    }
    if (neu == rueckstandsgrund_[spur]) {
        return;
    }
    rueckstandsgrund_[spur] = neu;
    bezeichnung& label = um_.bahn.rueckstand[spur];
    label.text(zeigt ? rueckstand_gesagt(rueckstand_an_der_linie(konto, spur, fuehrende, neu.gewertet),
                                         um_.bahn.wort.zurueck, um_.einst.trennzeichen)
                     : std::string());
    label.sichtbar(!label.text().empty());
}

/// Of one from the beginning of a pause, which counts behind it.
zeit_ms rennlage::wartende_runde(int spur) const {
    const spur_zustand& zustand = um_.zustand.spur[spur];
    const zeit_ms nachgerueckt = um_.zustand.chaos_aktiv ? 0 : um_.zustand.pause.dauer;  // as it will be in a moment
    return zustand.ch_durchfahrt_zeit + nachgerueckt - um_.zustand.rundenbeginn(spur) + zustand.strafzuschlag() -
           zustand.pause_abzug;
}

bool rennlage::wartende_zu_kurz(int spur) const {
    return um_.zustand.spur[spur].ch_durchfahrt && um_.zustand.konto.runden(spur) >= 0 &&
           wartende_runde(spur) < um_.param.min_rundenzeit_ms;
}

/// One in a pause waits there to be forgotten; a contact that bounces behind one that counts is none.
letzte_ablehnung rennlage::zuletzt_abgelehnt(int spur) const {
    const spur_zustand& zustand = um_.zustand.spur[spur];
    const ereignis_tabelle& ereignisse = um_.ereignisse;
    const ereignis_zeile& wartet = ereignisse[art::rundenzaehlung[spur]];
    const bool in_der_pause = um_.zustand.chaos_aktiv && !um_.zeitgeber.ch_durch0->laeuft() && wartet.aktiv &&
                              !wartet.vorgemerkt && wartet.ereignis_zeit >= um_.zustand.pause.start &&
                              wartet.ereignis_zeit - zustand.verworfen_bei >= prellen_ms;
    if (in_der_pause) {
        return {wartet.ereignis_zeit, ablehnung::pause};
    }
    return wartende_zu_kurz(spur)
               ? letzte_ablehnung{zustand.ch_durchfahrt_zeit, ablehnung::zu_schnell, wartende_runde(spur)}
               : zustand.abgelehnt;
}

bool rennlage::eben_abgelehnt(int spur, const letzte_ablehnung& letzte) const {
    const zeit_ms seither = um_.zeit.messzeit_lesen() - letzte.stempel;
    return seither >= 0 && seither < gesagt_ms && letzte.stempel > um_.zustand.spur[spur].gezaehlt_bei;
}

bool rennlage::wird_gesagt(ablehnung grund) {
    return grund == ablehnung::zu_schnell || grund == ablehnung::volltanken || grund == ablehnung::vor_dem_start ||
           grund == ablehnung::pause || grund == ablehnung::sperre;
}

/// The lap that had waited is shown with the time that its lane stood still.
bool rennlage::eben_verbuesst(int spur) const {
    constexpr zeit_ms anzeige_ms = 3000;
    const spur_zustand& zustand = um_.zustand.spur[spur];
    return !zustand.tank_strafe_aktiv && zustand.tank_sperre.bis != 0 &&
           zustand.tank_sperre.von == zustand.gezaehlt_bei && um_.zustand.konto.runden(spur) > 0 &&
           std::abs(um_.zeit.messzeit_lesen() - zustand.tank_sperre.bis) < anzeige_ms;
}

/// Of a crossing that did not count, or not yet, only where nothing that the lane is in says it already.
rennlage::hinweisgrund rennlage::hinweis_von(int spur) const {
    const lage was = um_.bahn.lage[spur].stand().was;
    const letzte_ablehnung letzte = zuletzt_abgelehnt(spur);
    const bool eben = eben_abgelehnt(spur, letzte);
    if (was == lage::leer && um_.zustand.spur[spur].tank_strafe_aktiv) {
        if (eben && letzte.grund == ablehnung::tankstrafe) {
            return {spurhinweis::ungezaehlt, letzte.grund};
        }
        return {um_.zustand.konto.haelt_zurueck(spur) ? spurhinweis::runde_wartet : spurhinweis::keiner};
    }
    if (um_.zustand.rennen_beendet || !um_.einst.rennbild.worte) {
        return {};
    }
    if (eben && letzte.grund == ablehnung::sperre && (was == lage::fruehstart || was == lage::strafe)) {
        return {spurhinweis::ungezaehlt, letzte.grund};
    }
    const bool frei = was == lage::faehrt || was == lage::box || was == lage::leer;
    const bool pausiert = was == lage::pause;
    const bool in_ihr = letzte.stempel >= um_.zustand.pause.start;  // what was before it, the pause says enough of
    if (eben && (frei || (pausiert && in_ihr)) && wird_gesagt(letzte.grund)) {
        return {spurhinweis::ungezaehlt, letzte.grund, letzte.zeit};
    }
    if (frei && eben_verbuesst(spur)) {
        return {spurhinweis::runde_wartet, ablehnung::tankstrafe};
    }
    const bool wartet = um_.zustand.spur[spur].ch_durchfahrt && !wartende_zu_kurz(spur);
    return {wartet && (frei || pausiert) ? spurhinweis::runde_wartet : spurhinweis::keiner};
}

std::string rennlage::hinweis_gesagt(const hinweisgrund& g) const {
    const bahn1::worte& wort = um_.bahn.wort;
    if (g.was == spurhinweis::runde_wartet) {
        const auto sekunden = std::chrono::duration_cast<dauer_s>(um_.einst.tank_strafzeit).count();
        return g.grund == ablehnung::tankstrafe ? "+" + std::to_string(sekunden) + " " + wort.sekunden_strafe
                                                : wort.runde_wartet;
    }
    if (g.grund == ablehnung::sperre) {
        return wort.noch_gesperrt;
    }
    const zeit_ms ab = um_.param.min_rundenzeit_ms;
    if (g.grund == ablehnung::zu_schnell && g.zeit >= ab - knapp_ms) {
        return wort.erst_ab + " " + dauer_gesagt(ab, um_.einst.trennzeichen);
    }
    if (g.grund == ablehnung::zu_schnell) {
        return wort.zu_kurz + " " + dauer_gesagt(std::max<zeit_ms>(g.zeit, 0), um_.einst.trennzeichen);
    }
    if (g.grund == ablehnung::pause) {
        return wort.in_der_pause;
    }
    if (g.grund == ablehnung::tankstrafe) {
        return wort.noch_ohne_strom;
    }
    return g.grund == ablehnung::volltanken ? wort.noch_in_der_box : wort.vor_gruen;
}

void rennlage::hinweis_zeigen(int spur) {
    const hinweisgrund neu = hinweis_von(spur);
    if (neu == hinweisgrund_[spur]) {
        return;
    }
    hinweisgrund_[spur] = neu;
    hinweis_anzeige& hinweis = um_.bahn.hinweis[spur];
    const bool da = neu.was != spurhinweis::keiner;
    if (da) {
        hinweis.text(hinweis_gesagt(neu));
        hinweis.art(neu.was);
    }
    hinweis.sichtbar(da);
}

void rennlage::pause_zeigen() {
    const bool da = um_.einst.rennbild.worte && um_.zustand.chaos_aktiv && !um_.zustand.rennen_beendet;
    bezeichnung& dauer = um_.bahn.pausendauer;
    if (da) {
        constexpr int minute = 60;
        const zeit_ms seit = std::max<zeit_ms>(um_.zeit.messzeit_lesen() - um_.zustand.pause.start, 0);
        const auto sekunden = static_cast<int>(seit / 1000);
        if (sekunden != pausensekunden_ || dauer.text().empty()) {
            dauer.text(std::to_string(sekunden / minute) + ":" + ziffern(sekunden % minute, 2));
            pausensekunden_ = sekunden;
        }
    }
    dauer.sichtbar(da);
}

bool rennlage::pause_eben_verweigert() const {
    const zeit_ms seither = um_.zeit.messzeit_lesen() - um_.zustand.pause.zu_frueh_verlangt;
    return seither >= 0 && seither < gesagt_ms && !um_.zustand.chaos_aktiv;
}

/// Who has driven all the laps first has won already where the race is over with that.
bool rennlage::zeit_entscheidet() const {
    const bool erster_gewinnt = um_.ist_rundenrennen() && um_.einst.zielmodus_erster && !um_.einst.runde_beenden;
    return um_.param.auswertung_nach_rennen == sortier_modus::runden && !erster_gewinnt;
}

/// Once more only where a lap or a penalty has come since: the times are added up from the first lap on.
int rennlage::vorn_nach_zeit_neben(int fuehrende) {
    zeitgrund neu{fuehrende, {}, {}, {}, {}};
    for (const int spur : alle_spuren) {
        const spur_zustand& zustand = um_.zustand.spur[spur];
        neu.dabei[spur] = um_.param.spur_aktiv[spur] && !zustand.disqualifiziert;
        neu.runden[spur] = um_.zustand.konto.runden(spur);
        neu.stempel[spur] = um_.zustand.konto.stempel(spur, neu.runden[spur]);
        neu.strafe[spur] = dauer_ms(zustand.strafzeit).count();
    }
    if (neu != zeitgrund_) {
        zeitgrund_ = neu;
        vorn_ = zeit_entscheidet() ? vorn_nach_zeit(um_.zustand.konto, fuehrende, neu.dabei, neu.strafe) : 0;
    }
    return vorn_;
}

void rennlage::rekordzeile_zeigen(int fuehrende) {
    if (um_.zustand.rennen_beendet) {  // then the result stands there
        rekordzeile_ = {};
        return;
    }
    zeilengrund neu;
    if (um_.einst.rennbild.worte) {
        const int vorn = vorn_nach_zeit_neben(fuehrende);
        neu = {pause_eben_verweigert(), um_.zustand.chaos_aktiv ? 0 : vorn};  // in a pause more stands in this line
    }
    if (neu == rekordzeile_) {
        return;
    }
    rekordzeile_ = neu;
    const bahn1::worte& wort = um_.bahn.wort;
    const std::string vorn =
        neu.vorn == 0 ? std::string() : wort.nach_zeit_vorn + " " + um_.bahn.namenslabel[neu.vorn].text();
    t_.ansicht.in_der_rekordzeile(neu.pause_verweigert ? wort.pause_gesperrt : vorn);
}

void rennlage::restrunden_zeigen() {
    bezeichnung& rest = um_.bahn.restrunden;
    if (!rest.sichtbar()) {
        return;
    }
    const int erste = fuehrende();
    const int gefahren = erste == 0 ? 0 : um_.zustand.konto.runden(erste);
    const int runden = std::max(um_.param.renn_ziel.runden() - gefahren, 0);
    if (runden != restrunden_ || rest.text().empty()) {
        rest.text(std::to_string(runden));
        restrunden_ = runden;
    }
}

}  // namespace tarvel
