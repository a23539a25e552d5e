#include "competition/einfahren.h"

#include "competition/wettkampf2.h"
#include "competition/wettkampfabend.h"
#include "tests/plattform/vereinswettkampf.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

/// A device that tells what a test lets it tell, in its own time.
struct zeitmessung : messquelle {
    explicit zeitmessung(ereignis_tabelle& tabelle) : ereignisse(tabelle) {}
    void abfragen() override {
        for (const auto& [nummer, stempel] : std::exchange(wartende, {})) {
            ereignisse.ueberfahrt_melden(nummer, stempel);
        }
    }
    ereignis_tabelle& ereignisse;
    std::vector<std::pair<ereignis_art, zeit_ms>> wartende;
};

/// An evening whose races have a warm-up.
class Einfahren : public test::ProgrammProbe {
protected:
    Einfahren() {
        t.einrichten("Runden", "2", {1, 2, 3});
        t.p.fenster.entladen(fenstername::bahn1);
        t.p.einst.aut_speichern = false;
        t.p.einst.w_einfahren_an = true;
        t.p.einst.w_edauer_runden = true;
        t.p.einst.w_edauer = 2;
        t.p.param.min_rundenzeit_ms = 5000;
    }

    void beginnen(wettkampf_modus modus, int fahrer, std::initializer_list<int> lanes) {
        wettkampf neu = test::vereinswettkampf::neu(modus, fahrer, lanes);
        neu.rennlaenge = t.p.param.renn_laenge.zahl();
        abend.beginnen(std::move(neu));
    }
    void oeffnen() {
        ASSERT_TRUE(abend.rennen_starten());
        ASSERT_TRUE(t.bahn().Command6.bedienbar());
        t.bahn().Command6.klicken();
        ASSERT_TRUE(offen(fenstername::einfahren));
    }
    void ueber_die_linie(int spur) {
        f.taste('0' + spur);
        t.maschine.laufen(1);
    }
    void alle_einfahren() {
        for (int runde = 0; runde < t.p.einst.w_edauer; ++runde) {
            t.maschine.laufen(6000);
            for (const int spur : alle_spuren) {
                ueber_die_linie(spur);
            }
        }
    }
    /// The race after it: two laps that are what they are, from a first crossing that counts none.
    void rennen_fahren_und_pruefen() {
        ASSERT_FALSE(t.p.rennen.zustand.rennen_beendet);
        EXPECT_TRUE(strom(1) && strom(2) && strom(3));
        EXPECT_TRUE(geraet.ist_an(ausgang::ampel_gruen, 0)) << "without a light too";
        t.maschine.laufen(1);
        for (const int spur : alle_spuren) {
            EXPECT_EQ(t.runden(spur), -1);
        }
        t.runde_nach(1500, "123");
        EXPECT_EQ(t.runden(1), 0);
        t.runde_nach(6000, "123");
        t.runde_nach(7000, "123");
        EXPECT_EQ(rundenzeit(1, 1), 6000);
        EXPECT_EQ(rundenzeit(3, 2), 7000);
        t.maschine.laufen(3000);
        ASSERT_TRUE(offen(fenstername::auswertung));
    }
    bool alle_ohne_strom() const {
        return std::none_of(alle_spuren.begin(), alle_spuren.end(), [this](int spur) { return strom(spur); });
    }

    wettkampfabend& abend = t.p.wettkampfabend;
    einfahren& f = t.p.einfahren;
};

TEST_F(Einfahren, RundenVonHandUndDannEinRichtigesRennen) {
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    oeffnen();
    EXPECT_TRUE(strom(1) && geraet.ist_an(ausgang::ampel_gruen, 0));
    EXPECT_FALSE(t.bahn().Command1.bedienbar()) << "no race while the cars warm up";
    EXPECT_TRUE(f.Frame[0].sichtbar() && !f.Frame[3].sichtbar() && !f.zeitanzeige.sichtbar());
    EXPECT_EQ(f.runden[0].schriftfarbe(), t.p.einst.farben_spur[1]);
    EXPECT_EQ(f.runden[0].text(), "2");
    ueber_die_linie(1);
    EXPECT_EQ(f.runden[0].text(), "1");
    t.maschine.laufen(4998);
    ueber_die_linie(1);
    EXPECT_EQ(f.runden[0].text(), "1") << "within the shortest lap";
    ueber_die_linie(1);
    EXPECT_EQ(f.runden[0].text(), "0");
    EXPECT_FALSE(strom(1));
    EXPECT_TRUE(strom(2));
    t.maschine.laufen(6000);
    ueber_die_linie(1);
    EXPECT_EQ(f.runden[0].text(), "0");
    alle_einfahren();
    EXPECT_TRUE(f.labelende.sichtbar());
    EXPECT_EQ(f.labelende.text(), "Einfahrzeit ENDE");
    EXPECT_TRUE(alle_ohne_strom() && !geraet.ist_an(ausgang::ampel_gruen, 0) && !f.weiterlabel.sichtbar());
    t.maschine.laufen(600000);
    ASSERT_TRUE(offen(fenstername::einfahren)) << "by hand nothing goes on";
    ueber_die_linie(2);
    f.taste('1');  // in the moment of closing
    f.Command5.klicken();
    EXPECT_FALSE(offen(fenstername::einfahren));
    EXPECT_TRUE(alle_ohne_strom());
    EXPECT_EQ(t.p.ausgaben.bericht.iow_ausgang(), (iow_bericht::bytes{0, 255, 255, 255, 255, 255, 255, 255}));
    for (const ereignis_art nummer : art::rundenzaehlung) {
        EXPECT_FALSE(t.p.ereignisse[nummer].aktiv);
    }
    t.bahn().Command1.klicken();
    rennen_fahren_und_pruefen();
    t.p.auswertung.Command1.klicken();  // the same race again, without a warm-up
    t.bahn().Command1.klicken();
    rennen_fahren_und_pruefen();
}

TEST_F(Einfahren, ZeitInSekundenVonHandBeendetUndVonSelbst) {
    t.p.einst.w_edauer_runden = false;
    t.p.einst.w_edauer = 60;
    t.p.einst.bahnstrom_invers = true;
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    oeffnen();
    EXPECT_EQ(f.zeitanzeige.text(), "60");
    EXPECT_TRUE(f.Frame[0].sichtbar() && !f.runden[0].sichtbar()) << "who drives";
    EXPECT_FALSE(geraet.ist_an(ausgang::bahnstrom, 1)) << "power, with the wiring turned round";
    for (int runde = 0; runde < 3; ++runde) {
        t.maschine.laufen(6000);
        ueber_die_linie(1);
    }
    EXPECT_FALSE(f.labelende.sichtbar());
    f.schliessen();
    EXPECT_TRUE(geraet.ist_an(ausgang::bahnstrom, 1));
    for (const ereignis_art nummer : art::bahnstrom) {
        EXPECT_TRUE(nummer > 32 || t.p.ausgaben.bericht.ist_an(nummer));
    }
    t.p.einst.bahnstrom_invers = false;
    t.bahn().Command6.klicken();
    t.maschine.laufen(30000);
    EXPECT_EQ(f.zeitanzeige.text(), "30");
    EXPECT_DOUBLE_EQ(f.zeitbalken.hoehe(), 0.5);
    t.maschine.laufen(29980);
    EXPECT_TRUE(strom(1) && !f.labelende.sichtbar());
    t.maschine.laufen(20);
    EXPECT_EQ(f.zeitanzeige.text(), "0");
    EXPECT_TRUE(alle_ohne_strom() && f.labelende.sichtbar());
    f.Command5.klicken();
    t.bahn().Command1.klicken();
    rennen_fahren_und_pruefen();
}

TEST_F(Einfahren, VonSelbstDurchDenGanzenAbend) {
    t.p.einst.w_autom = true;
    t.p.einst.w_zeit1 = 20s;
    t.p.einst.w_zeit2 = 5s;
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    ASSERT_TRUE(abend.rennen_starten());
    for (int rennen = 1; rennen <= 3; ++rennen) {
        SCOPED_TRACE(rennen);
        t.maschine.laufen(2999);
        EXPECT_FALSE(offen(fenstername::einfahren));
        t.maschine.laufen(1);
        ASSERT_TRUE(offen(fenstername::einfahren));
        alle_einfahren();
        ASSERT_TRUE(f.labelende.sichtbar());
        EXPECT_EQ(f.weiterlabel.text(), "Weiter in: 6");
        t.maschine.laufen(5990);
        EXPECT_TRUE(offen(fenstername::einfahren));
        t.maschine.laufen(10);
        EXPECT_FALSE(offen(fenstername::einfahren));
        t.maschine.laufen(2980);
        EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
        t.maschine.laufen(20);
        rennen_fahren_und_pruefen();
        t.maschine.laufen(8000);
        EXPECT_FALSE(offen(fenstername::bahn1));
        EXPECT_EQ(abend.stand().fortsetzung_nummer(rennen), 1);
        t.maschine.laufen(rennen < 3 ? 20000 - 1000 : 0);
        while (rennen < 3 && !offen(fenstername::bahn1)) {
            t.maschine.laufen(1);
        }
    }
    EXPECT_TRUE(abend.stand().ende_pruefen());
    EXPECT_EQ(abend.stand().staende().front().fahrer_runden(0), 6);
}

TEST_F(Einfahren, AbschaltenUndAbbrechenHaltenDenAblaufAn) {
    t.p.einst.w_autom = true;
    t.p.einst.w_zeit2 = 5s;
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    oeffnen();
    alle_einfahren();
    t.maschine.laufen(3000);
    abend.automatik_umschalten();
    t.maschine.laufen(60000);
    EXPECT_TRUE(offen(fenstername::einfahren) && !f.weiterlabel.sichtbar());
    t.p.rennen.befehle.rennen_abbrechen();
    EXPECT_FALSE(offen(fenstername::einfahren));
    EXPECT_TRUE(strom(1));
    t.maschine.laufen(60000);
    EXPECT_FALSE(offen(fenstername::bahn1));
    abend.automatik_umschalten();
    oeffnen();
    f.Command5.klicken();  // long before its end: the race follows all the same
    t.maschine.laufen(3000);
    rennen_fahren_und_pruefen();
    abend.beenden();
    t.p.fenster.entladen(fenstername::auswertung);
    t.p.fenster.entladen(fenstername::bahn1);
    t.starten("Runden", "2", {1, 2, 3});  // a race of its own knows no warm-up
    EXPECT_FALSE(t.bahn().Command6.sichtbar());
    rennen_fahren_und_pruefen();
}

TEST_F(Einfahren, FreieSpurFaehrtNichtMitEin) {
    beginnen(wettkampf_modus::gruppen, 3, {1, 2});
    int mit_freiem = 0;
    while (mit_freiem == 0 && !abend.stand().ende_pruefen()) {
        oeffnen();
        const renn_uebergabe dran = abend.stand().uebergabe();
        mit_freiem += dran.fueller[1] || dran.fueller[2] ? 1 : 0;
        for (const int spur : {1, 2}) {
            EXPECT_EQ(f.Frame.at(feld_index(spur)).sichtbar(), !dran.fueller[spur]);
            for (int runde = 0; runde < 2 && !dran.fueller[spur]; ++runde) {
                EXPECT_FALSE(f.labelende.sichtbar());
                ueber_die_linie(spur);
                t.maschine.laufen(6000);
            }
        }
        EXPECT_TRUE(f.labelende.sichtbar());
        f.Command5.klicken();
        t.bahn().Command1.klicken();
        t.rennende();
        t.p.auswertung.Command5.klicken();
    }
    EXPECT_EQ(mit_freiem, 1);
}

TEST_F(Einfahren, LiestAlleQuellenUndNimmtNichtsInsRennenMit) {
    zeitmessung messgeraet(t.p.ereignisse);
    t.p.quellen.anschliessen(messgeraet);
    t.p.belegung.vorbelegen(belegung_stufe::alle);
    t.p.einst.tank_runden_modus = rundenzaehlung_auf::tanksensor_1;
    t.p.einst.nachtrennen_modus = nachtrennen::rennen;
    t.p.einst.w_edauer = 5;
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    t.p.param.tank_aktiv = true;
    oeffnen();
    t.maschine.laufen(20000);
    const zeit_ms jetzt = t.p.rennen.zeit.messzeit_lesen();
    const auto lauf = [&](int spur, zeit_ms stempel) {
        messgeraet.wartende.emplace_back(art::rundenzaehlung[spur], stempel);
        t.maschine.laufen(1);
    };
    lauf(2, jetzt - 12000);  // told late, and as far apart as the device says
    lauf(2, jetzt - 7000);
    lauf(2, jetzt - 2001);
    EXPECT_EQ(f.runden[1].text(), "3");
    lauf(2, jetzt - 2000);
    EXPECT_EQ(f.runden[1].text(), "2");
    for (int mal = 0; mal < 2; ++mal) {
        t.p.ereignisse.ereignis_melden(art::tanken_ein[1]);
        t.maschine.laufen(5001);
    }
    EXPECT_EQ(f.runden[0].text(), "3");
    f.taste('c');
    f.taste('n');
    f.taste('!');  // takes a lap off in a race
    t.maschine.laufen(10);
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv || t.bahn().Nachtabschaltung.sichtbar());
    t.p.param.min_rundenzeit_ms = 0;
    ueber_die_linie(3);
    ueber_die_linie(3);
    EXPECT_EQ(f.runden[2].text(), "3") << "no lock at all";
    t.p.param.min_rundenzeit_ms = 5000;
    t.p.param.tank_aktiv = false;
    t.p.einst.tank_runden_modus = rundenzaehlung_auf::keinem_tanksensor;
    f.Command5.klicken();
    t.p.ereignisse.ueberfahrt_melden(art::rundenzaehlung[1], t.p.rennen.zeit.messzeit_lesen());  // told too late
    t.bahn().Command1.klicken();
    rennen_fahren_und_pruefen();
    t.p.quellen.trennen(messgeraet);
}

}  // namespace
}  // namespace tarvel
