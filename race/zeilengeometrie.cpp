// A row of the race window, one for each lane.
#include <algorithm>
#include <array>
#include <cstddef>

#include "race/blockteile.h"
#include "race/spurgeometrie.h"

namespace tarvel {

using namespace blockteile;

namespace {

using t = spur_teil;

/// What belongs to the driver of a row; a high one has the tank here.
void zeile_fahrer(const ansicht_inhalt& inhalt, const rechteck& ort, bool hoch, double s, ansicht_geometrie& ganzes) {
    spur_orte& g = ganzes.spur;
    const double luecke = 80 * s;
    const int lesbar = ganzes.lesbar_px;
    const bool schuld_hier = hoch || !inhalt.pause;
    const double tank = hoch && inhalt.tank != tankanzeige_art::keine ? 700 * s : 0;
    const double strafe = titelplatz(std::min(0.22 * ort.hoehe, 600 * s), lesbar);
    const double wort = titelplatz(0, lesbar);
    const double bleibt = ort.hoehe - strafe - tank - (hoch ? wort : lesbar) - 2 * luecke;
    zuschnitt stapel(ort, luecke / 2);
    g[t::namenslabel].ort =
        stapel.oben(std::min({(tank > 0 ? 0.32 : 0.42) * ort.hoehe, 1100 * s, std::max(bleibt, wort)}));
    g[t::straflabel].ort = stapel.unten(strafe);
    tank_legen(inhalt, stapel.unten(tank), true, lesbar, g);
    constexpr double schuld_hoehe = 1500;
    const bool schuld_oben = hoch && mittig(stapel.rest(), schuld_hoehe * s).hoehe > 3.2 * lesbar;
    if (schuld_oben) {  // the box has more of the height than the lights, and is found from afar
        zuschnitt quer(stapel.rest(), 2 * luecke);
        const rechteck schuld = mittig(quer.rechts(std::max(0.24 * ort.breite, schuld_em * lesbar)), schuld_hoehe * s);
        schuld_legen(schuld, titelplatz(0.3 * schuld.hoehe, lesbar), g);
        stapel = quer;
    }
    zuschnitt mitte(mittig(stapel.rest(), 900 * s), 2 * luecke);
    g[t::Label_spur].ort = mitte.links(std::max((schuld_oben ? 0.2 : 0.14) * ort.breite, 1.6 * lesbar));
    if (schuld_oben || !schuld_hier) {
        ampel_legen(mitte.rest(), luecke, g);
    } else {
        const double kante = std::min<double>(mitte.rest().hoehe, (hoch ? 2.0 : 1.4) * lesbar);
        const double wunsch = kante + luecke + schuld_em * lesbar;
        const rechteck frei = mitte.rest();
        const double lampen = std::min(3 * std::min<double>(frei.hoehe, 1.2 * lesbar) + 2 * luecke, 0.62 * frei.breite);
        ampel_legen(mitte.links(std::max(frei.breite - wunsch - 2 * luecke, lampen)), luecke, g);
        zuschnitt schuld(mitte.rest(), luecke);
        g[t::ch_strafzeit_hacken].ort = schuld.rechts(kante);
        g[t::Label_schuld].ort = schuld.rest();
    }
}

/// A piece of a row: its share of the width, and what its texts need of it.
struct zeilenstueck {
    double gewicht = 0;
    double mindestens = 0;
};

/// How wide the pieces are together as wide as the row. What the texts need goes first, up to a part of the row that
/// leaves the rest its room.
template <std::size_t anzahl>
std::array<double, anzahl> zeile_teilen(const std::array<zeilenstueck, anzahl>& stuecke, double ganze, bool hoch) {
    constexpr double passt = 0.85;
    const double texte_noch = hoch ? 0.7 : passt;  // more, and the laps of few lanes were smaller than those of many
    constexpr double texte_hoechstens = 0.6;
    double gebraucht = 1;
    for (const zeilenstueck& stueck : stuecke) {
        gebraucht += stueck.mindestens;
    }
    const double gewaehrt = gebraucht < passt * ganze ? std::min(1.0, texte_noch * ganze / gebraucht)
                                                      : texte_hoechstens * ganze / gebraucht;
    std::array<double, anzahl> breiten{};
    std::array<bool, anzahl> fest{};
    for (bool neu = true; neu;) {
        neu = false;
        double rest = ganze;
        double gewichte = 0;
        for (std::size_t i = 0; i < anzahl; ++i) {
            rest -= fest.at(i) ? breiten.at(i) : 0;
            gewichte += fest.at(i) ? 0 : stuecke.at(i).gewicht;
        }
        for (std::size_t i = 0; i < anzahl; ++i) {
            if (!fest.at(i)) {
                const double mindestens = gewaehrt * stuecke.at(i).mindestens;
                breiten.at(i) = std::max(rest * stuecke.at(i).gewicht / gewichte, mindestens);
                fest.at(i) = breiten.at(i) == mindestens && mindestens > 0;
                neu = neu || fest.at(i);
            }
        }
    }
    return breiten;
}

/// The pieces of a row, from left to right.
struct zeilenteil {
    enum platz : std::size_t {
        bild,
        fahrer,
        platzziffer,
        abstand,
        zaehler,
        schuld,
        bild2,
        tank,
        zeiten,
        liste,
        anzahl
    };
};
using teil = zeilenteil;

constexpr double fahrer_em = 13.6;  ///< a name, number, lights and the box of the blame
constexpr double abstand_em = 5.5;  ///< "12 Runden"
constexpr double zeiten_em = 13.8;  ///< two captions
constexpr double zeiten_em_mit_bestzeit = 16;
constexpr double zeiten_em_knapp = 12;
constexpr double nebeneinander_ab = 2.4;  ///< of its height: there both times are larger side by side

/// One time below the other could not be read.
bool ist_niedrig(const ansicht_inhalt& inhalt, const rechteck& block, int lesbar) {
    const double ab_em = inhalt.bestzeit ? 6.8 : 5.6;
    return block.hoehe < ab_em * lesbar;
}

/// The pieces of a row.
std::array<zeilenstueck, teil::anzahl> zeilenstuecke(const ansicht_inhalt& inhalt, bool hoch, const rechteck& block,
                                                     double s, int lesbar) {
    const double hoehe = block.hoehe / s;
    std::array<zeilenstueck, teil::anzahl> stuecke;
    stuecke[teil::bild] = {hoch ? 2300 : 0.8 * hoehe};
    stuecke[teil::fahrer] = {hoch ? 5400.0 : 5000.0, fahrer_em * lesbar};
    stuecke[teil::platzziffer] = {1150, 3.0 * lesbar};
    stuecke[teil::abstand] = {rueckstand_hoehe(inhalt, hoch ? 2500 : 1850),
                              rueckstand_hoehe(inhalt, abstand_em * lesbar)};
    stuecke[teil::zaehler] = {std::clamp(1.9 * hoehe, 3900.0, 8200.0)};
    const bool mit_schuld = inhalt.pause && !hoch;
    stuecke[teil::schuld] = {mit_schuld ? 1900.0 : 0, mit_schuld ? schuld_em * lesbar : 0};
    stuecke[teil::bild2] = {inhalt.fahrzeugbild && !hoch && !mit_schuld ? 1900.0 : 0};
    if (!hoch && inhalt.tank != tankanzeige_art::keine) {
        stuecke[teil::tank] = {inhalt.tank == tankanzeige_art::balken ? 1200.0 : 1900.0, tanktitel_em * lesbar};
    }
    const double texte = (inhalt.bestzeit ? zeiten_em_mit_bestzeit : zeiten_em) * lesbar;
    const bool untereinander = texte < nebeneinander_ab * block.hoehe && !ist_niedrig(inhalt, block, lesbar);
    stuecke[teil::zeiten] = {hoch ? 4300.0 : 3500.0, untereinander ? texte / 2 : texte};
    stuecke[teil::liste] = {hoch ? 2700.0 : 2100.0, (liste_em + 2.0) * lesbar};
    return stuecke;
}

}  // namespace

/// A row from left to right; what it shows shares its width. In a high row the picture of the vehicle stands below that
/// of the driver, and the tank below the name. In a pause a low one has the box of the blame in place of the vehicle.
void zeile_legen(const ansicht_inhalt& ganzer_inhalt, const rechteck& block, double s, ansicht_geometrie& ganzes) {
    spur_orte& g = ganzes.spur;
    const int lesbar = ganzes.lesbar_px;
    ansicht_inhalt inhalt = ganzer_inhalt;
    if (inhalt.pause && ist_niedrig(inhalt, block, lesbar)) {
        inhalt.bestzeit = false;  // of before the race: it gives way
    }
    const double hoehe = block.hoehe / s;
    const bool hoch = hoehe > 1.4 * entwurf::zeile;
    const double luecke = 80 * s;
    zuschnitt reihe(block.innen(80 * s), 2 * luecke);
    ganzes.streifen = reihe.links(140 * s);
    g[t::yellowframe].ort = reihe.links(280 * s);
    const auto breite =
        zeile_teilen(zeilenstuecke(inhalt, hoch, block, s, lesbar), reihe.rest().breite - 16 * luecke, hoch);

    zuschnitt bilder(reihe.links(breite[teil::bild]), luecke);
    g[t::Image2].ort = bilder.unten(inhalt.fahrzeugbild && hoch ? 0.4 * block.hoehe : 0);
    g[t::Image1].ort = bilder.rest();
    zeile_fahrer(inhalt, reihe.links(breite[teil::fahrer]), hoch, s, ganzes);
    const rechteck platzfeld = mittig(reihe.links(breite[teil::platzziffer]), 2.2 * breite[teil::platzziffer]);
    mit_titel(platzfeld, titelplatz(std::min(0.2 * platzfeld.hoehe, 420 * s), lesbar), g[t::Label_platz],
              g[t::l_PosAnz]);
    g[t::rueckstand].ort = reihe.links(breite[teil::abstand]);
    zaehler_einruecken(reihe.links(breite[teil::zaehler]),
                       std::min(entwurf::zaehler_links * s, 0.1 * breite[teil::zaehler]), ganzes);
    if (breite[teil::schuld] > 0) {
        const rechteck schuld = reihe.links(breite[teil::schuld]);
        schuld_legen(schuld, titelplatz(0.3 * schuld.hoehe, lesbar), g);
    }
    const auto dahinter = [&](zuschnitt& rest, double fuer_zeiten, spur_orte& orte) {
        if (!hoch) {
            tank_legen(inhalt, rest.links(breite[teil::tank]), false, lesbar, orte);
        }
        const rechteck zeitfeld = rest.links(fuer_zeiten);
        if (zeitfeld.breite > nebeneinander_ab * zeitfeld.hoehe ||
            (ist_niedrig(inhalt, block, lesbar) && zeitfeld.breite > zeiten_em_knapp * lesbar)) {
            zeiten_reihen(inhalt, zeitfeld, 2 * luecke, lesbar, orte);
        } else {
            zeiten_stapeln(inhalt, zeitfeld, lesbar, orte);
        }
    };
    ganzes.spur_tafel = g;
    zuschnitt mit_tafel = reihe;
    if (!hoch) {
        g[t::Image2].ort = reihe.links(breite[teil::bild2]);
    }
    dahinter(reihe, breite[teil::zeiten], g);
    g[t::t_liste].ort = reihe.rest();
    const double zeiten_knapp = std::max(0.7 * breite[teil::zeiten], zeiten_em_mit_bestzeit / 2 * lesbar);
    const double zeiten_daneben = hoch ? std::min(zeiten_knapp, breite[teil::zeiten]) : breite[teil::zeiten];
    const double gebraucht =
        (breite[teil::tank] > 0 ? breite[teil::tank] + 2 * luecke : 0) + zeiten_daneben + 4 * luecke;
    ganzes.tafel = mit_tafel.links(mit_tafel.rest().breite - gebraucht);
    dahinter(mit_tafel, zeiten_daneben, ganzes.spur_tafel);
}

}  // namespace tarvel
