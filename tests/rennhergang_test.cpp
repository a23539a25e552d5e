#include "race/rennhergang.h"

#include <algorithm>
#include <random>

#include "core/protokollzeile.h"
#include "programm/rennprotokoll.h"
#include "race/hergangsworte.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Rennhergang : public test::ProgrammProbe {
protected:
    Rennhergang() {
        worte_.eintragen(texte_);
        worte_.nachtragen(texte_).deutsch_setzen();
        nur_eingaben = true;
    }

    std::string datei() {
        std::string name = t.p.rennprotokoll.dateiname();
        std::replace(name.begin(), name.end(), '\\', '/');
        return t.maschine.datei_lesen(name);
    }
    /// A log whose head is that of the race that runs.
    std::string protokoll(const std::vector<std::string>& zeilen) {
        std::string text;
        protokollschreiber s;
        protokollleser kopf(inhalt_);
        for (auto zeile = kopf.zeile(); zeile && zeile->starts_with('#'); zeile = kopf.zeile()) {
            text += s.beginnen(0).wort(*zeile).fertig();
        }
        for (const std::string& zeile : zeilen) {
            text += s.beginnen(0).wort(zeile).fertig();
        }
        return text;
    }
    /// What is told of a lane, each with its time.
    std::vector<std::string> von(const rennhergang& h, int spur, std::vector<vorgang> ohne = {}) const {
        std::vector<std::string> zeilen;
        for (const geschehen& g : h.alle) {
            if (g.spur == spur && std::find(ohne.begin(), ohne.end(), g.was) == ohne.end()) {
                zeilen.push_back(hergang_zeit(g.seit_gruen, 3, ',') + " " + worte_.von(g));
            }
        }
        return zeilen;
    }

    sprachliste texte_{"protokoll"};
    hergangsworte worte_;
    std::string inhalt_;
};

TEST_F(Rennhergang, EinRennenErzaehltSich) {
    t.p.form1.wertmin.eingeben("5,2");
    t.p.einst.chaosampel_an = false;
    t.starten("Runden", "2", {1, 2});
    t.runde_nach(1000, "1");
    t.runde_nach(3214, "1");
    t.runde_nach(3000, "1");
    t.maschine.laufen(1000);
    t.taste("c");
    t.maschine.laufen(5000);
    t.bahn().Command3.klicken();
    t.runde_nach(6000, "1");
    t.maschine.laufen(100);
    const rennhergang h = hergang_lesen(datei());
    ASSERT_TRUE(h.kopf && h.ganz);
    const std::vector<vorgang> ohne{vorgang::taste, vorgang::platz, vorgang::ende};
    const std::string ganz = datei();
    const std::size_t mitten_drin = ganz.find("\r\n", ganz.size() * 3 / 4) + 2;
    hergangsmitleser live(ganz.substr(0, mitten_drin));
    for (std::size_t von_hier = mitten_drin; von_hier < ganz.size();) {
        const std::size_t bis = ganz.find("\r\n", von_hier) + 2;
        live.zeile(ganz.substr(von_hier, bis - von_hier));
        von_hier = bis;
    }
    rennhergang erzaehlt;
    for (std::size_t i = 0; i < live.anzahl(); ++i) {
        erzaehlt.alle.push_back(live.an(i));
    }
    std::stable_sort(erzaehlt.alle.begin(), erzaehlt.alle.end(),
                     [](const geschehen& a, const geschehen& b) { return a.seit_gruen < b.seit_gruen; });
    EXPECT_EQ(von(erzaehlt, 1), von(h, 1)) << "read while it is written";
    EXPECT_EQ(von(h, 1, ohne),
              (std::vector<std::string>{"0:00,998 erste Überfahrt nach 0,998 s, ab hier wird gezählt",
                                        "0:04,212 zu kurz: 3,214 s, gezählt wird ab 5,300 s",
                                        "0:07,212 Runde 1: 6,214 s", "0:19,213 Runde 2: 7,001 s", "0:19,213 im Ziel"}));
    EXPECT_EQ(std::count_if(h.alle.begin(), h.alle.end(), [](auto& g) { return g.was == vorgang::letzte; }), 0)
        << "the winner's end is that of all";
    const auto pause = std::find_if(h.alle.begin(), h.alle.end(), [](auto& g) { return g.was == vorgang::pause; });
    ASSERT_NE(pause, h.alle.end());
    EXPECT_EQ(pause->bis - pause->seit_gruen, 5000);
    ASSERT_EQ(h.abgelehnte(1).size(), 1U);
    EXPECT_EQ(h.abgelehnte(1)[0].stempel - t.p.rennen.zustand.start_zeit, 4212);
    EXPECT_TRUE(h.abgelehnte(2).empty());
}

TEST_F(Rennhergang, WoGewartetWirdLaufenRundenAus) {
    t.p.form1.wertmin.eingeben("1");
    t.p.einst.runde_beenden = true;
    t.starten("Runden", "1", {1, 2});
    t.runde_nach(1000, "1");
    t.runde_nach(3000, "1");
    const rennhergang h = hergang_lesen(datei());
    const auto auslauf = [](const geschehen& g) { return g.was == vorgang::letzte; };
    EXPECT_EQ(std::count_if(h.alle.begin(), h.alle.end(), auslauf), 1);
}

TEST_F(Rennhergang, WoDerErsteDieZeitBeendetLaeuftNichtsAus) {
    t.p.einst.zielmodus_erster = true;
    t.p.einst.fahrzeug_wechseln = false;
    t.starten("Zeit", "1", {1, 2});
    t.maschine.laufen(61000);
    const rennhergang h = hergang_lesen(datei());
    const auto mit = [&](vorgang was) {
        return std::count_if(h.alle.begin(), h.alle.end(), [was](const geschehen& g) { return g.was == was; });
    };
    EXPECT_EQ(mit(vorgang::ende), 1);
    EXPECT_EQ(mit(vorgang::letzte), 0);
}

TEST_F(Rennhergang, EinSchalterVerlangtKeineZweitePause) {
    t.p.einst.chaosampel_an = false;
    t.p.einst.chaos_schalter = true;
    t.starten("Zeit", "5", {1, 2});
    const auto an = [this](int ms) {  // a device repeats the switch with each poll
        for (; ms > 0; --ms) {
            t.p.ereignisse.ereignis_melden(art::chaostaster);
            t.maschine.laufen(1);
        }
        t.p.ereignisse.ereignis_weg(art::chaostaster);
    };
    t.maschine.laufen(3000);
    an(4000);
    t.maschine.laufen(600);
    ASSERT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    an(3000);
    ASSERT_TRUE(t.p.rennen.zustand.chaos_aktiv) << "as soon as the lock is over";
    t.rennende();
    const rennhergang h = hergang_lesen(datei());
    EXPECT_EQ(std::count_if(h.alle.begin(), h.alle.end(), [](auto& g) { return g.was == vorgang::pause; }), 2);
    EXPECT_TRUE(std::none_of(h.alle.begin(), h.alle.end(), [](auto& g) { return g.was == vorgang::pause_verlangt; }));
}

TEST_F(Rennhergang, VerworfeneUeberfahrtenStehenEinmalDa) {
    t.p.einst.chaosampel_an = false;
    t.p.einst.sensor_timeout = 1000ms;
    t.starten("Runden", "9", {1, 2});
    t.runde_nach(1000, "12");
    t.maschine.laufen(6000);
    t.taste("c");
    const auto druck = [this](zeit_ms nach, std::string_view tasten) {  // stamped as the window system does
        t.maschine.laufen(nach);
        for (const char zeichen : tasten) {
            t.p.rennen.befehle.taste(zeichen, 0);
        }
    };
    druck(500, "1");  // still rolls over the line
    druck(30, "1");
    druck(4000, "12");
    druck(40, "12");
    druck(40, "3");
    druck(1000, "1");
    t.bahn().Command3.klicken();
    t.p.ereignisse.ueberfahrt_melden(art::rundenzaehlung[2], t.maschine.jetzt() - 2000);  // told late
    t.p.ereignisse.ereignis_melden(art::rundenzaehlung[2], t.p.rennen.zustand.start_zeit - 500);
    druck(600, "c");
    t.maschine.laufen(20);
    t.bahn().Command3.klicken();
    t.runde_nach(2400, "1");
    t.rennende();
    const rennhergang h = hergang_lesen(datei());
    EXPECT_EQ(std::count_if(h.alle.begin(), h.alle.end(), [](auto& g) { return g.was == vorgang::pause_verlangt; }), 2);
    EXPECT_EQ(std::count_if(h.alle.begin(), h.alle.end(), [](auto& g) { return g.was == vorgang::pause; }), 1);
    const auto gruende = [&](int spur) {
        std::vector<ablehnung> alle;
        for (const geschehen& g : h.abgelehnte(spur)) {
            alle.push_back(g.grund());
        }
        return alle;
    };
    EXPECT_EQ(gruende(1), (std::vector{ablehnung::pause, ablehnung::pause, ablehnung::zu_schnell}));
    EXPECT_EQ(gruende(2), (std::vector{ablehnung::pause, ablehnung::pause, ablehnung::pause}));
    EXPECT_TRUE(gruende(3).empty());
    EXPECT_EQ(test::nachrechnen(t.p, t.maschine), "");
}

TEST_F(Rennhergang, GruendeInWorten) {
    t.starten("Runden", "9", {1, 2});
    inhalt_ = datei();
    const rennhergang h = hergang_lesen(protokoll({"t0 500",
                                                   ".> Gruen 10000",
                                                   ".> Fruehstart 1 9000",
                                                   "t0 3000",
                                                   ".> Abgelehnt 1 3 12000 22400 0",
                                                   ".> Strafe 1 5 1",
                                                   ".> Abgelehnt 1 3 13000 23400 0",
                                                   ".> Abgelehnt 2 6 14000 31000 0",
                                                   ".> Abgelehnt 2 7 15000 0 0",
                                                   ".> Abgelehnt 2 9 16000 0 0",
                                                   ".> Abgelehnt 2 99 17000 0 0",
                                                   "verschieben 8000 -500",
                                                   "t0 9000",
                                                   ".> Runde 2 12 5432 18500",
                                                   "ereignis 9100 16 1",
                                                   "ereignis 9200 16 1",
                                                   "ereignis 9900 16 1",
                                                   ".> Strafe 2 10 0",
                                                   ".> Runde 2 13 5010 24010",
                                                   ".> Ende 25000 1",
                                                   ".> Runde 2 14 5010 29020",
                                                   "t0 30000",
                                                   "# Korrektur Spur 1"}));
    EXPECT_EQ(von(h, 1), (std::vector<std::string>{
                             "-0:01,000 Frühstart", "0:02,000 Sperre nach Frühstart bis 0:12,4",
                             "0:02,000 Strafe: 5 s ohne Strom", "0:03,000 Sperre nach der Pause bis 0:13,4",
                             "0:08,600 Gerät meldet Rundenzählung (2-mal)", "0:09,400 Gerät meldet Rundenzählung"}));
    std::vector<std::string> zweite = von(h, 2);
    EXPECT_EQ(zweite.back(), "0:19,520 im Ziel");
    zweite.pop_back();
    EXPECT_EQ(
        zweite.back(),
        "0:19,520 Runde 14: 5,010 s, darin 0,010 s Zuschlag (1 ms je Sekunde Zeitstrafe), noch nach dem Ende gezählt");
    zweite.pop_back();
    EXPECT_EQ(zweite, (std::vector<std::string>{
                          "0:04,000 Tankstrafe bis 0:21,0", "0:05,000 im Ziel", "0:06,000 nicht gezählt: Pause",
                          "0:07,000 ", "0:09,000 Runde 12: 5,432 s", "0:09,400 Zeitstrafe: 10 s",
                          "0:14,510 Runde 13: 5,010 s, darin 0,010 s Zuschlag (1 ms je Sekunde Zeitstrafe)"}));
    EXPECT_EQ(h.alle.back().text, "Korrektur Spur 1");
}

TEST_F(Rennhergang, WerImAnfangDerPauseRollteIstHinterDemEndeNichtImZiel) {
    t.starten("Runden", "9", {1, 2});
    inhalt_ = datei();
    const rennhergang h = hergang_lesen(
        protokoll({"t0 500", ".> Gruen 10000", ".> Pause 15000", ".> Durchfahrt 1 15200", ".> Ende 16000 0",
                   ".> Runde 1 1 5000 16000", ".> Runde 1 2 600 16600", ".> Runde 2 1 6000 16300"}));
    std::vector<int> im_ziel;
    for (const geschehen& g : h.alle) {
        if (g.was == vorgang::ziel) {
            im_ziel.push_back(g.spur);
        }
    }
    EXPECT_EQ(im_ziel, (std::vector<int>{2, 1})) << "each with a crossing behind it";
}

TEST_F(Rennhergang, StromlosBisErWiederkommt) {
    t.starten("Runden", "9", {1, 2});
    inhalt_ = datei();
    const rennhergang h = hergang_lesen(protokoll(
        {"t0 100", ".> StromAus 1", "ampel_abbrechen 300", "t0 500", ".> StromAus 2", "t0 600", ".> Gruen 10000",
         "t0 5600", ".> StromAn 2", "t0 6600", ".> StromAus 1", "t0 9600", ".> Ende 19000 0"}));
    std::vector<zeit_ms> bis;
    for (const geschehen& g : h.alle) {
        if (g.was == vorgang::strom_aus) {
            bis.push_back(g.bis);
        }
    }
    EXPECT_EQ(bis, (std::vector<zeit_ms>{-300, 5000, 9000})) << "an aborted light, a false start, the end";
}

TEST_F(Rennhergang, JedesGehoertDemDerDamalsDortFuhr) {
    t.starten("Runden", "3", {1, 2, 3});
    inhalt_ = datei();
    const rennhergang h = hergang_lesen(protokoll(
        {"t0 500", ".> Gruen 10000", ".> Runde 1 1 5000 15000", "umsetzen 9000 3 1 2 4 5 6", ".> Runde 1 2 5000 20000",
         "umsetzen 9500 3 1 2 4 5 6", ".> Runde 1 3 5000 25000", ".> Runde 4 1 5000 26000"}));
    std::vector<std::string> wer;
    for (const geschehen& g : h.alle) {
        if (g.was == vorgang::runde) {
            wer.push_back(h.fahrername(g));
        }
    }
    const auto& namen = t.p.param.fahrer_name;
    EXPECT_EQ(wer, (std::vector<std::string>{namen[1], namen[3], namen[2], ""}));
}

TEST_F(Rennhergang, ErtraegtJedenInhalt) {
    t.starten("Runden", "3", {1, 2});
    t.runde_nach(6000, "12");
    t.runde_nach(6000, "12");
    inhalt_ = datei();
    const std::size_t ganz = hergang_lesen(inhalt_).alle.size();
    const rennhergang torn = hergang_lesen(std::string_view(inhalt_).substr(0, inhalt_.size() - 1));
    EXPECT_FALSE(torn.ganz);
    EXPECT_LT(torn.alle.size(), ganz + 1);
    EXPECT_FALSE(hergang_lesen("").kopf || hergang_lesen(std::string(100000, '#')).kopf);

    std::mt19937 z(4711);
    const std::vector<std::string> zahlen{
        "9223372036854775807", "-9223372036854775808", "1125899906842624", "-1", "x", ""};
    const std::vector<std::string> worte{".> Runde",    ".> Abgelehnt", ".> Pause",   ".> Gruen",  ".> Weiter",
                                         ".> Tankt",    "verschieben",  "taste",      ".u",        ".4 ereignis",
                                         ".> StromAus", "...",          "ueberfahrt", ".> Sektor", "umsetzen 1"};
    for (int i = 0; i < 1000; ++i) {
        std::vector<std::string> zeilen;
        for (int n = 0; n < 12; ++n) {
            std::string zeile = worte[z() % worte.size()];
            for (auto felder = z() % 6; felder > 0; --felder) {
                zeile += " " + (z() % 2 == 0 ? std::to_string(z() % 8) : zahlen[z() % zahlen.size()]);
            }
            zeilen.push_back(zeile);
        }
        const rennhergang h = hergang_lesen(protokoll(zeilen));
        EXPECT_TRUE(h.ganz);
        for (const geschehen& g : h.alle) {
            EXPECT_TRUE(g.spur >= 0 && g.spur <= spuren_max);
            worte_.von(g);
            h.fahrername(g);
            hergang_zeit(g.seit_gruen, 3, ',');
        }
    }
}

}  // namespace
}  // namespace tarvel
