#include "race/blockteile.h"

#include <algorithm>

namespace tarvel::blockteile {
namespace {

using t = spur_teil;

}  // namespace

double titelplatz(double gewuenscht, int lesbar_px) {
    return std::max(gewuenscht, (lesbar_px + 0.5) / wortanteil);
}

double rueckstand_hoehe(const ansicht_inhalt& inhalt, double hoehe) {
    return std::count(inhalt.spur_aktiv.begin(), inhalt.spur_aktiv.end(), true) > 1 ? hoehe : 0;
}

rechteck mittig(const rechteck& ort, double hoehe_max) {
    const int zuviel = std::max(ort.hoehe - static_cast<int>(hoehe_max), 0);
    return {ort.x, ort.y + zuviel / 2, ort.breite, ort.hoehe - zuviel};
}

void mit_titel(const rechteck& ort, double titel_hoehe, platz& titel, platz& anzeige) {
    zuschnitt stueck(ort);
    titel.ort = stueck.oben(titel_hoehe);
    anzeige.ort = stueck.rest();
}

void ampel_legen(const rechteck& ort, double luecke, spur_orte& g) {
    const double kante = std::min<double>(ort.hoehe, (ort.breite - 2 * luecke) / 3);
    zuschnitt stueck(ort, luecke);
    for (const t lampe : {t::ampel_rt, t::ampel_ge, t::ampel_gr}) {
        g[lampe].ort = stueck.links(kante);
    }
}

void schuld_legen(const rechteck& ort, double titel_hoehe, spur_orte& g) {
    zuschnitt stueck(ort);
    g[t::Label_schuld].ort = stueck.oben(titel_hoehe);
    const rechteck& frei = stueck.rest();
    const int kante = std::min(frei.hoehe, frei.breite);
    g[t::ch_strafzeit_hacken].ort = {frei.x + (frei.breite - kante) / 2, frei.y + (frei.hoehe - kante) / 2, kante,
                                     kante};
}

void tank_legen(const ansicht_inhalt& inhalt, const rechteck& ort, bool nebeneinander, int lesbar_px, spur_orte& g) {
    if (inhalt.tank == tankanzeige_art::keine) {
        return;
    }
    g[t::frame_tank].ort = ort;
    zuschnitt stueck(ort, 0.02 * ort.breite);
    g[t::tanktitel].ort = nebeneinander
                              ? stueck.links(std::clamp(tanktitel_em * lesbar_px, 0.4 * ort.breite, 0.55 * ort.breite))
                              : stueck.oben(titelplatz(0.22 * ort.hoehe, lesbar_px));
    g[inhalt.tank == tankanzeige_art::balken ? t::tankbalken : t::t_bahn].ort = stueck.rest();
}

double bestzeit_hoehe(const ansicht_inhalt& inhalt, double hoehe) {
    return inhalt.bestzeit ? hoehe : 0;
}

void zeiten_stapeln(const ansicht_inhalt& inhalt, const rechteck& ort, int lesbar_px, spur_orte& g) {
    constexpr double letzte = 8.5;
    constexpr double beste = 6;
    const int titelzahl = inhalt.bestzeit ? 3 : 2;
    const rechteck feld = mittig(ort, std::max(0.9 * ort.breite, (inhalt.bestzeit ? 7.0 : 6.0) * lesbar_px));
    const double anteil = 5 / (letzte + beste + 5 * titelzahl) * feld.hoehe;
    constexpr double strecken = 1.16;  // further, and a caption were larger than the best lap
    const double lesbar = titelplatz(0, lesbar_px);
    const double titel = lesbar <= strecken * anteil ? std::max(anteil, lesbar) : anteil;
    const double ziffern = (feld.hoehe - titelzahl * titel) / (letzte + beste);
    zuschnitt stapel(feld);
    mit_titel(stapel.oben(titel + letzte * ziffern), titel, g[t::Label_lrunde], g[t::lrunde]);
    mit_titel(stapel.oben(titel + beste * ziffern), titel, g[t::Label_brunde], g[t::brunde]);
    g[t::bestzeit_label].ort = stapel.oben(bestzeit_hoehe(inhalt, titel));
}

void zeiten_reihen(const ansicht_inhalt& inhalt, const rechteck& ort, double luecke, int lesbar_px, spur_orte& g) {
    zuschnitt reihe(ort, luecke);
    const double titel = titelplatz(ort.hoehe * 4 / 14.0, lesbar_px);
    const double links = inhalt.bestzeit ? 0.46 : 0.5;  // the best time of the lane is a long text
    zuschnitt neben(reihe.links((ort.breite - luecke) * links));
    neben.unten(bestzeit_hoehe(inhalt, titel));  // both times stand in one line
    mit_titel(neben.rest(), titel, g[t::Label_lrunde], g[t::lrunde]);
    zuschnitt rechts(reihe.rest());
    g[t::bestzeit_label].ort = rechts.unten(bestzeit_hoehe(inhalt, titel));
    mit_titel(rechts.rest(), titel, g[t::Label_brunde], g[t::brunde]);
}

void zaehler_einruecken(const rechteck& feld, double rueckung, ansicht_geometrie& ganzes) {
    zuschnitt eingerueckt(feld);
    eingerueckt.links(rueckung);
    ganzes.spur[t::zaehler].ort = eingerueckt.rest();
    zuschnitt halb(feld);
    halb.links(rueckung / 2);
    ganzes.zaehler_weit = halb.rest();
}

}  // namespace tarvel::blockteile
