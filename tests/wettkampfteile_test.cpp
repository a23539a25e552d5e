// A race in parts whose drivers change lanes: what the evening's books hold when it is cut off, goes back, or is
// corrected.

#include <memory>

#include "competition/wettkampfabend.h"
#include "competition/wettkampfspeicher.h"
#include "tests/plattform/neustart.h"
#include "tests/wettkampfabend_probe.h"

namespace tarvel {
namespace {

using korrekturart = korrektur::art;

class Wettkampfteile : public test::Abendprobe {
protected:
    Wettkampfteile() { weg_ = &t.p; }

    programm& jetzt() { return *weg_; }
    const wettkampf& buch() { return jetzt().wettkampfabend.stand(); }
    const fahrt& gebucht(int teil, int spur) { return (*buch().ergebnis(1, teil))[spur]; }
    std::string protokollname() const {
        std::string name = t.p.rennprotokoll.dateiname();
        std::replace(name.begin(), name.end(), '\\', '/');
        return name;
    }
    std::string laufender() { return t.maschine.datei_lesen("Ergebnisse/Wettkampf/laufend.wtk"); }

    void ersten_teil_fahren(const std::vector<int>& spuren = {1, 2}) {
        beginnen(wettkampf_modus::am_stueck, static_cast<int>(spuren.size()), spuren, true);
        ASSERT_TRUE(abend.rennen_starten());
        t.bahn().Command1.klicken();
        runden_fahren(3);
        ASSERT_TRUE(offen(fenstername::auswertung));
    }
    void weiter() { jetzt().auswertung.Command5.klicken(); }
    void gruen_geben() {
        ASSERT_TRUE(jetzt().fenster.ist_offen(fenstername::k_ampel));
        jetzt().k_ampel.Command1.klicken();
        t.maschine.laufen(1500 * 3 + 2500);
    }
    /// Both lanes come over the line that often.
    void ueberfahren(int mal) {
        for (int runde = 0; runde < mal; ++runde) {
            t.maschine.laufen(5500);
            for (const char spur : {'1', '2'}) {
                t.maschine.laufen(150);
                jetzt().rennen.befehle.taste(spur);
                t.maschine.laufen(1);
            }
        }
        t.maschine.laufen(3000);
    }
    void strom_weg() {
        jetzt().rennen.protokoll.aufhoeren();
        jetzt().rennen.zeitgeber.alle_aus();
    }
    void neu_starten() {
        t.maschine.antwort = true;
        neu_ = std::make_unique<programm>(t.maschine.dienste());
        weg_ = neu_.get();
        neu_->starten();
    }
    void rennende() {
        jetzt().rennen.endfrage.bestaetigen();
        t.maschine.laufen(100);
        ASSERT_TRUE(jetzt().fenster.ist_offen(fenstername::auswertung));
    }
    /// What is left of two parts of three laps.
    void zweiten_teil_zu_ende() {
        gruen_geben();
        ueberfahren(3);
        ASSERT_TRUE(jetzt().fenster.ist_offen(fenstername::auswertung));
        weiter();
    }
    void alles_gebucht() {
        ASSERT_TRUE(buch().ende_pruefen());
        for (const int teil : {1, 2}) {
            for (const int spur : {1, 2}) {
                EXPECT_EQ(gebucht(teil, spur).runden, 3) << teil << " " << spur;
                EXPECT_GT(gebucht(teil, spur).beste, 5000);
            }
        }
    }

private:
    std::unique_ptr<programm> neu_;
    programm* weg_ = nullptr;
};

class WettkampfteileNachAusfall : public Wettkampfteile, public testing::WithParamInterface<bool> {};
INSTANTIATE_TEST_SUITE_P(AmLichtOderImErgebnis, WettkampfteileNachAusfall, testing::Bool());

TEST_P(WettkampfteileNachAusfall, EinGebuchterTeilWirdNichtNochEinmalGebucht) {
    const bool im_ergebnis = GetParam();
    ersten_teil_fahren();
    weiter();
    if (im_ergebnis) {
        rennende();  // ended before it has gone on
    }
    strom_weg();
    neu_starten();
    if (!im_ergebnis) {
        ASSERT_TRUE(jetzt().fenster.ist_offen(fenstername::k_ampel));
        rennende();
    }
    ASSERT_TRUE(jetzt().fenster.ist_offen(fenstername::auswertung));
    weiter();
    EXPECT_EQ(buch().fortsetzung_nummer(1), 1);
    zweiten_teil_zu_ende();
    alles_gebucht();
}

TEST_F(Wettkampfteile, EinTeilDerGebuchtIstUndImProtokollNochNichtVerlassenWirdNichtNochEinmalGebucht) {
    ersten_teil_fahren();
    const std::string protokoll = test::protokoll_von(t);
    weiter();
    strom_weg();
    t.maschine.datei_schreiben(protokollname(), protokoll);
    neu_starten();
    ASSERT_TRUE(jetzt().fenster.ist_offen(fenstername::auswertung));
    weiter();
    EXPECT_EQ(buch().fortsetzung_nummer(1), 1);
    EXPECT_EQ(jetzt().param.fahrer_name[1], buch().name(buch().plan.feld(1, 2)[1])) << "who has not moved yet";
    zweiten_teil_zu_ende();
    alles_gebucht();
}

TEST_F(Wettkampfteile, EinTeilDessenBuchungDerStromausfallNahmWirdNachgebucht) {
    ersten_teil_fahren();
    const std::string davor = laufender();
    weiter();
    gruen_geben();
    ueberfahren(1);
    strom_weg();
    t.maschine.datei_schreiben("Ergebnisse/Wettkampf/laufend.wtk", davor);
    neu_starten();
    ASSERT_TRUE(jetzt().rennen.zustand.chaos_aktiv);
    gruen_geben();
    ueberfahren(2);
    weiter();
    alles_gebucht();
}

TEST_F(Wettkampfteile, EineGeteilteRundeIstAuchImZweitenTeilNichtDieBeste) {
    ersten_teil_fahren();
    weiter();
    gruen_geben();
    ueberfahren(3);
    const zeit_ms davor = t.ergebnis(1).runden[4].stempel;
    ASSERT_TRUE(t.p.wertung.korrigieren({{korrekturart::geteilt, 1, 5, 2000, davor + 2000}}));
    weiter();
    alles_gebucht();
}

class WettkampfteileAbgebrochen : public Wettkampfteile, public testing::WithParamInterface<bool> {};
INSTANTIATE_TEST_SUITE_P(MitUndOhneNeustart, WettkampfteileAbgebrochen, testing::Bool());

TEST_P(WettkampfteileAbgebrochen, WasInDerTabelleBerichtigtWirdBleibtWennDasRennenWeitergeht) {
    ersten_teil_fahren();
    weiter();
    gruen_geben();
    ueberfahren(1);
    t.maschine.antwort_mit_ausweg = plattform::dreifache_antwort::ja;
    t.rennabbruch();
    ASSERT_TRUE(abend.aendern([](wettkampf& w) { return w.runden_aendern(1, 1, 1, 5, 25); }));
    if (GetParam()) {
        strom_weg();
        neu_starten();
    }
    ASSERT_TRUE(jetzt().wettkampfabend.rennen_starten());
    ASSERT_TRUE(jetzt().rennen.zustand.chaos_aktiv);
    gruen_geben();
    ueberfahren(2);
    weiter();
    ASSERT_TRUE(buch().ende_pruefen());
    EXPECT_EQ(gebucht(1, 1).runden, 5);
    EXPECT_EQ(gebucht(1, 1).meter, 5 * 2500);
    EXPECT_EQ(gebucht(2, 2).runden, 3) << "the same driver";
    EXPECT_EQ(gebucht(2, 2).meter, 3 * 2500);
}

TEST_F(Wettkampfteile, WasImErgebnisBerichtigtWirdGiltInDemTeilInDemEsGefahrenWurde) {
    const std::vector<int> spuren{1, 2, 4};
    ersten_teil_fahren(spuren);
    t.p.wertung.korrigieren({{.was = korrekturart::restmeter, .spur = 1, .meter = 2.5}});
    weiter();
    gruen_geben();
    runden_fahren(2);
    weiter();
    const auto wer = buch().plan.feld(1, 1)[1];
    const auto auf = [&](int teil) {
        const startfeld feld = buch().plan.feld(1, teil);
        return *std::find_if(alle_spuren.begin(), alle_spuren.end(), [&](int spur) { return feld[spur] == wer; });
    };
    const fahrt erster = gebucht(1, 1);
    const fahrt zweiter = gebucht(2, auf(2));
    EXPECT_EQ(erster.meter, 3 * 2500 + 250);
    abend.aendern([&](wettkampf& w) { return w.runden_aendern(1, 2, auf(2), 9, 25); });
    gruen_geben();
    t.maschine.laufen(2000);
    t.rennende();  // nobody has a lap in the last part
    ASSERT_TRUE(t.p.wertung.korrigieren({{korrekturart::geloescht, auf(3), 2}}));
    ASSERT_TRUE(t.p.wertung.korrigieren({{korrekturart::geloescht, auf(3), 4}}));  // the second one of part 2
    weiter();
    ASSERT_TRUE(buch().ende_pruefen());
    const fahrt dann = gebucht(1, 1);
    EXPECT_EQ(dann.runden, 2);
    EXPECT_EQ(dann.zeit, erster.zeit) << "its time is part of the lap before";
    EXPECT_EQ(dann.meter, 2 * 2500 + 250);
    EXPECT_GE(dann.beste, erster.beste);
    EXPECT_EQ(gebucht(2, auf(2)).runden, 8) << "what was corrected by hand stays corrected";
    EXPECT_EQ(gebucht(2, auf(2)).meter, 8 * 2500);
    EXPECT_EQ(gebucht(2, auf(2)).zeit, zweiter.zeit);
    EXPECT_EQ(gebucht(3, auf(3)), fahrt{});
}

TEST_F(Wettkampfteile, WiederholenSichertDasErgebnisUndFragtWennGebuchteTeileVerlorenGehen) {
    t.p.einst.aut_speichern = true;
    const auto dateien = [this] {
        return t.p.ablage.auflisten("Ergebnisse\\Wettkampf", "Vereinsabend-", ".csv").size();
    };
    t.p.fenster.zeigen(fenstername::wettkampf2);
    ersten_teil_fahren();
    t.maschine.fragen_gestellt.clear();
    t.p.auswertung.Command1.klicken();
    EXPECT_TRUE(t.maschine.fragen_gestellt.empty()) << "nothing is in the books";
    EXPECT_EQ(dateien(), 1U);
    ASSERT_TRUE(offen(fenstername::bahn1));
    t.bahn().Command1.klicken();
    runden_fahren(3);
    weiter();
    gruen_geben();
    ueberfahren(3);
    t.maschine.antwort = false;
    t.maschine.fragen_gestellt.clear();
    t.p.auswertung.Command1.klicken();
    ASSERT_EQ(t.maschine.fragen_gestellt.size(), 1U);
    EXPECT_EQ(t.maschine.fragen_gestellt.front().titel, "Alle gefahrenen Runden gehen verloren.");
    EXPECT_TRUE(offen(fenstername::auswertung));
    EXPECT_EQ(buch().fortsetzung_nummer(1), 1);
    t.maschine.antwort = true;
    t.p.auswertung.Command1.klicken();
    EXPECT_EQ(buch().fortsetzung_nummer(1), 0);
    EXPECT_EQ(dateien(), 3U);
}

}  // namespace
}  // namespace tarvel
