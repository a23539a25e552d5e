#include "race/ansicht_geometrie.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace tarvel {

static std::ostream& operator<<(std::ostream& aus, const rechteck& r) {
    return aus << r.x << "," << r.y << " " << r.breite << "x" << r.hoehe;
}

namespace {

using t = spur_teil;
using f = fenster_teil;

constexpr std::pair<int, int> groessen[] = {{800, 600},   {1024, 768},  {1280, 800},
                                            {1280, 1024}, {1920, 1080}, {3840, 2160}};

bool enthaelt(const rechteck& aussen, const rechteck& r) {
    return r.x >= aussen.x && r.y >= aussen.y && r.rechts() <= aussen.rechts() && r.unten() <= aussen.unten();
}

bool schneiden(const rechteck& a, const rechteck& b) {
    return !a.leer() && !b.leer() && a.x < b.rechts() && b.x < a.rechts() && a.y < b.unten() && b.y < a.unten();
}

spuren<bool> letzte_spuren(int anzahl) {
    spuren<bool> aktiv{};
    for (int spur = spuren_max; spur > spuren_max - anzahl; --spur) {
        aktiv[spur] = true;
    }
    return aktiv;
}

/// Every view with everything that it may have to show.
std::vector<ansicht_inhalt> alle_ansichten() {
    std::vector<ansicht_inhalt> alle;
    for (int muster = 0; muster < 3 * 16; ++muster) {
        ansicht_inhalt inhalt;
        inhalt.tank = static_cast<tankanzeige_art>(muster % 3);
        inhalt.fahrzeugbild = (muster / 3 & 1) != 0;
        inhalt.bestzeit = (muster / 3 & 2) != 0;
        inhalt.grosse_zeit = (muster / 3 & 4) != 0;
        inhalt.logobild = inhalt.wrpic1 = inhalt.wrpic2 = (muster / 3 & 8) != 0;
        inhalt.einfahrzeit = inhalt.naechstes_rennen = inhalt.logobild;
        inhalt.licht_der_pause = inhalt.tank == tankanzeige_art::balken;
        inhalt.art = ansicht_art::einfahrer;
        inhalt.spur_aktiv = letzte_spuren(1);
        alle.push_back(inhalt);
        for (int anzahl = 1; anzahl <= spuren_max; ++anzahl) {
            inhalt.spur_aktiv = letzte_spuren(anzahl);
            for (const ansicht_art art : {ansicht_art::spalten, ansicht_art::zeilen}) {
                inhalt.art = art;
                alle.push_back(inhalt);
            }
        }
    }
    return alle;
}

template <class Teil>
void ohne_ueberdeckung(const plaetze<Teil>& orte, const rechteck& flaeche, const std::vector<Teil>& innere) {
    const auto anzahl = static_cast<int>(Teil::anzahl);
    const auto ist_innen = [&](Teil teil) { return std::find(innere.begin(), innere.end(), teil) != innere.end(); };
    for (int a = 0; a < anzahl; ++a) {
        const auto teil = static_cast<Teil>(a);
        if (ist_innen(teil)) {
            continue;
        }
        const rechteck& ort = orte[teil].ort;
        EXPECT_TRUE(enthaelt(flaeche, ort)) << "control " << a << " at " << ort;
        for (int b = a + 1; b < anzahl; ++b) {
            const auto anderer = static_cast<Teil>(b);
            const bool gleicher_ort = orte[anderer].ort == ort;  // the notice of a run-on and the clock
            if (!ist_innen(anderer) && !gleicher_ort) {
                EXPECT_FALSE(schneiden(ort, orte[anderer].ort)) << "controls " << a << " and " << b << ": " << ort;
            }
        }
    }
}

void innere_pruefen(const rechteck& aussen, std::vector<rechteck> innen) {
    for (std::size_t i = 0; i < innen.size(); ++i) {
        EXPECT_TRUE(innen[i].leer() || enthaelt(aussen, innen[i])) << innen[i] << " in " << aussen;
        for (std::size_t j = i + 1; j < innen.size(); ++j) {
            EXPECT_FALSE(schneiden(innen[i], innen[j])) << innen[i] << " and " << innen[j];
        }
    }
}

void lesbar(const ansicht_inhalt& inhalt, const ansicht_geometrie& g, const rechteck& block) {
    const auto schrift = [&](t teil) { return g.spur[teil].schrift_px; };
    const double tausend_runden = inhalt.art == ansicht_art::zeilen ? 0.8 : 0.6;
    EXPECT_GT(schrift(t::zaehler) * tausend_runden, schrift(t::lrunde));
    for (const t teil : {t::namenslabel, t::l_PosAnz, t::brunde, t::t_bahn, t::t_liste, t::straflabel}) {
        EXPECT_GT(schrift(t::zaehler), schrift(teil)) << static_cast<int>(teil);
    }
    EXPECT_GT(schrift(t::lrunde), schrift(t::brunde)) << "the large and the small display";
    for (const t teil : {t::namenslabel, t::Image1, t::ampel_rt, t::l_PosAnz, t::lrunde, t::brunde, t::t_liste,
                         t::straflabel, t::ch_strafzeit_hacken}) {
        EXPECT_GE(g.spur[teil].ort.hoehe, block.hoehe / 40) << static_cast<int>(teil);
        EXPECT_GE(g.spur[teil].ort.breite, 14) << static_cast<int>(teil);
    }
    EXPECT_EQ(g.spur[t::Image2].ort.leer(), !inhalt.fahrzeugbild);
    EXPECT_EQ(g.spur[t::bestzeit_label].ort.leer(), !inhalt.bestzeit);
    EXPECT_EQ(g.spur[t::tankbalken].ort.leer(), inhalt.tank != tankanzeige_art::balken);
    EXPECT_EQ(g.spur[t::t_bahn].ort.leer(), inhalt.tank != tankanzeige_art::zahl);
}

int erste_spur(const ansicht_inhalt& inhalt) {
    return *std::find_if(alle_spuren.begin(), alle_spuren.end(), [&](int spur) { return inhalt.spur_aktiv[spur]; });
}

void bloecke_pruefen(const ansicht_inhalt& inhalt, const ansicht_geometrie& g, const rechteck& fenster) {
    const bool zeilen = inhalt.art == ansicht_art::zeilen;
    std::vector<rechteck> bloecke;
    for (const rechteck& block : g.block) {
        if (!block.leer()) {
            bloecke.push_back(block);
            EXPECT_EQ(std::pair(block.breite, block.hoehe), std::pair(bloecke[0].breite, bloecke[0].hoehe));
        }
    }
    for (const int spur : alle_spuren) {
        EXPECT_EQ(g.block[spur].leer(), !inhalt.spur_aktiv[spur]) << spur;
    }
    EXPECT_LT(zeilen ? bloecke.front().y : bloecke.front().x, fenster.breite / 5) << "no room for the lanes before";
    EXPECT_GT((zeilen ? bloecke.back().unten() : bloecke.back().rechts()),
              (zeilen ? 0.88 * fenster.hoehe : 0.97 * fenster.breite))
        << "the chosen lanes take all the room";
    for (const f teil : {f::uhrframe1, f::uhrframe2, f::Frame1, f::ch_strafframe, f::ziel_label}) {
        bloecke.push_back(g.fenster[teil].ort);
    }
    if (inhalt.licht_der_pause) {
        bloecke.push_back(g.licht_der_pause);
    }
    innere_pruefen(fenster, bloecke);
}

/// The board of a lane's state covers nothing, and leaves what tells the standing where it is.
void tafel_pruefen(const ansicht_geometrie& g, const rechteck& block) {
    EXPECT_TRUE(enthaelt(block, g.tafel) && !g.tafel.leer()) << g.tafel;
    EXPECT_GT(g.tafel.hoehe, block.hoehe / 15) << g.tafel;
    for (int i = 0; i < static_cast<int>(t::anzahl); ++i) {
        const auto teil = static_cast<t>(i);
        const bool innen = teil == t::tanktitel || teil == t::t_bahn || teil == t::tankbalken;
        EXPECT_FALSE(!innen && schneiden(g.tafel, g.spur_tafel[teil].ort)) << "control " << i << " and " << g.tafel;
    }
    for (const t teil : {t::zaehler, t::l_PosAnz, t::namenslabel, t::Image1, t::straflabel}) {
        EXPECT_EQ(g.spur_tafel[teil].ort, g.spur[teil].ort) << static_cast<int>(teil);
    }
}

/// Its word hides neither laps, places, penalties and boxes nor the clock and the commands.
void pause_pruefen(ansicht_inhalt inhalt, int breite, int hoehe) {
    inhalt.pause = true;
    const ansicht_geometrie g = ansicht_aufteilen(inhalt, breite, hoehe);
    EXPECT_GT(g.pause.hoehe, hoehe / 12);
    EXPECT_GT(g.pause.breite, breite * 9 / 10);
    const bool gibt_es = inhalt.art != ansicht_art::spalten || inhalt.spur_aktiv[spuren_max - 1];
    EXPECT_TRUE(!gibt_es || g.tafel.hoehe > hoehe / 32) << g.tafel << ": some lane may be out";
    const bool schmal = 10 * breite < 16 * hoehe;  // six rows are too wide for such a screen
    for (const t teil : {t::zaehler, t::namenslabel, t::Label_spur, t::l_PosAnz, t::lrunde, t::brunde, t::rueckstand,
                         t::straflabel, t::Label_schuld}) {
        const platz& ort = g.spur[teil];
        EXPECT_TRUE(schmal || ort.ort.leer() || ort.schrift_px >= g.lesbar_px)
            << static_cast<int>(teil) << ": " << ort.schrift_px << " in " << ort.ort;
    }
    for (const int spur : alle_spuren) {
        for (const t teil : {t::zaehler, t::l_PosAnz, t::namenslabel, t::straflabel, t::ch_strafzeit_hacken}) {
            const rechteck& ort = g.spur[teil].ort;
            EXPECT_FALSE(!g.block[spur].leer() && schneiden(g.pause, ort.verschoben(g.block[spur].x, g.block[spur].y)))
                << static_cast<int>(teil) << " under " << g.pause;
        }
    }
    for (const f teil : {f::uhrframe1, f::uhrframe2, f::ch_strafframe, f::Frame1}) {
        EXPECT_FALSE(schneiden(g.pause, g.fenster[teil].ort)) << static_cast<int>(teil);
    }
}

TEST(AnsichtGeometrie, NichtsUeberdecktSichUndAllesIstImFenster) {
    for (const auto& [breite, hoehe] : groessen) {
        for (const ansicht_inhalt& inhalt : alle_ansichten()) {
            SCOPED_TRACE(testing::Message()
                         << breite << "x" << hoehe << ", view " << static_cast<int>(inhalt.art) << ", from lane "
                         << erste_spur(inhalt) << ", tank " << static_cast<int>(inhalt.tank) << ", car "
                         << inhalt.fahrzeugbild << ", best " << inhalt.bestzeit << ", clock " << inhalt.grosse_zeit);
            const ansicht_geometrie g = ansicht_aufteilen(inhalt, breite, hoehe);
            const rechteck fenster{0, 0, breite, hoehe};
            const rechteck block{0, 0, g.block[spuren_max].breite, g.block[spuren_max].hoehe};
            bloecke_pruefen(inhalt, g, fenster);
            ohne_ueberdeckung(g.spur, block, {t::tanktitel, t::t_bahn, t::tankbalken});
            ohne_ueberdeckung(g.spur_tafel, block, {t::tanktitel, t::t_bahn, t::tankbalken});
            tafel_pruefen(g, block);
            pause_pruefen(inhalt, breite, hoehe);
            innere_pruefen(g.spur[t::frame_tank].ort,
                           {g.spur[t::tanktitel].ort, g.spur[t::t_bahn].ort, g.spur[t::tankbalken].ort});
            const std::vector<f> befehle{f::Command1, f::Command6,    f::Command3,
                                         f::Command4, f::werbe_label, f::Command2};
            ohne_ueberdeckung(g.fenster, fenster, befehle);
            const rechteck& frame = g.fenster[f::Frame1].ort;
            std::vector<rechteck> orte(befehle.size());
            std::transform(befehle.begin(), befehle.end(), orte.begin(),
                           [&](f befehl) { return g.fenster[befehl].ort; });
            innere_pruefen({0, 0, frame.breite, frame.hoehe}, orte);
            lesbar(inhalt, g, block);
            if (testing::Test::HasFailure()) {
                return;  // the first is enough to go by
            }
        }
    }
}

TEST(AnsichtGeometrie, OhneBefehleHabenDieSpurenDerenPlatz) {
    for (const auto& [breite, hoehe] : groessen) {
        for (ansicht_inhalt inhalt : alle_ansichten()) {
            SCOPED_TRACE(testing::Message() << breite << "x" << hoehe << ", view " << static_cast<int>(inhalt.art)
                                            << ", from lane " << erste_spur(inhalt));
            const int mit_befehlen = ansicht_aufteilen(inhalt, breite, hoehe).block[spuren_max].hoehe;
            inhalt.befehle_woanders = true;
            const ansicht_geometrie g = ansicht_aufteilen(inhalt, breite, hoehe);
            const rechteck fenster{0, 0, breite, hoehe};
            const rechteck block{0, 0, g.block[spuren_max].breite, g.block[spuren_max].hoehe};
            EXPECT_GT(block.hoehe, mit_befehlen);
            bloecke_pruefen(inhalt, g, fenster);
            ohne_ueberdeckung(g.fenster, fenster, {});
            ohne_ueberdeckung(g.spur, block, {t::tanktitel, t::t_bahn, t::tankbalken});
            tafel_pruefen(g, block);
            pause_pruefen(inhalt, breite, hoehe);
            lesbar(inhalt, g, block);
            EXPECT_FALSE(g.fenster[f::bestzeit_gesamt].ort.leer() || g.fenster[f::werbe_label].ort.leer());
            for (const f teil : {f::Frame1, f::Command1, f::Command2, f::Command3, f::Command4, f::ch_strafframe}) {
                EXPECT_TRUE(g.fenster[teil].ort.leer()) << static_cast<int>(teil);
            }
            if (testing::Test::HasFailure()) {
                return;  // the first is enough to go by
            }
        }
    }
}

TEST(AnsichtGeometrie, GrosseUhrNurWoPlatzDafuerIst) {
    const auto uhr = [](int lanes, tankanzeige_art tank, bool gross) {
        ansicht_inhalt inhalt;
        inhalt.spur_aktiv = letzte_spuren(lanes);
        inhalt.tank = tank;
        inhalt.grosse_zeit = gross;
        return ansicht_aufteilen(inhalt, 1920, 1080).fenster[f::uhrframe1].schrift_px;
    };
    const int klein = uhr(3, tankanzeige_art::keine, false);
    EXPECT_NEAR(uhr(3, tankanzeige_art::keine, true), 1.5 * klein, 2);
    EXPECT_GT(uhr(3, tankanzeige_art::zahl, true), klein);
    EXPECT_EQ(uhr(3, tankanzeige_art::balken, true), klein) << "the bars need the room";
    EXPECT_EQ(uhr(4, tankanzeige_art::keine, true), klein) << "at most three lanes";
}

}  // namespace
}  // namespace tarvel
