#include "hardware/ausgaben.h"

#include <sstream>

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using ausgang = schaltung::ausgang;

/// Output routines with a device at every place, all writing into one journal, and the IO board's ports 1 to 4.
class Ausgaben : public testing::Test {
protected:
    struct geraet : ausgabe_geraet {
        std::string* journal = nullptr;
        char kennung = ' ';
        void schalten(const schaltung& befehl) override {
            std::ostringstream text;
            text << kennung << ":" << befehl << " ";
            *journal += text.str();
        }
    };

    void SetUp() override {
        constexpr std::array plaetze{ausgabe_platz::at_2560, ausgabe_platz::timekeeper, ausgabe_platz::druckeranschluss,
                                     ausgabe_platz::modul_4x4};
        for (std::size_t i = 0; i < plaetze.size(); ++i) {
            geraete.at(i).journal = &journal;
            geraete.at(i).kennung = "ATD4"[i];
            a.anschliessen(plaetze.at(i), geraete.at(i));
        }
        a.bericht.senden = [this](std::span<const std::uint8_t> bytes) {
            journal += "IO ";
            gesendet = {bytes[1], bytes[2], bytes[3], bytes[4]};
            EXPECT_EQ(bytes[0], 0);
            return true;
        };
        a.bericht.belegung.zuweisen(33, 24);
        a.bericht.belegung.zuweisen(40, 25);
        a.bericht.belegung.zuweisen(41, 26);
    }
    std::string journal_von(const std::function<void()>& tat) {
        journal.clear();
        tat();
        return journal;
    }

    using ports = std::array<int, 4>;

    einstellungen einst;
    ausgaben a{einst};
    std::array<geraet, 4> geraete;
    std::string journal;
    ports gesendet{};
};

TEST_F(Ausgaben, JedeRoutineErreichtAlleGeraeteInFesterFolge) {
    EXPECT_EQ(journal_von([&] { a.ampelnRon(2); }), "4:rot2 an D:rot2 an T:rot2 an A:rot2 an IO ");
    EXPECT_EQ(journal_von([&] { a.ampelnGRoff(); }), "IO 4:gruen0 aus D:gruen0 aus T:gruen0 aus A:gruen0 aus ");
    EXPECT_EQ(journal_von([&] { a.relais_on(6); }), "4:strom6 aus D:strom6 aus T:strom6 aus A:strom6 aus IO ");
    a.trennen(ausgabe_platz::druckeranschluss);
    EXPECT_EQ(journal_von([&] { a.rennende_signal(true); }), "4:rennende0 an T:rennende0 an A:rennende0 an IO ");
}

TEST_F(Ausgaben, BildDesBerichtsIstAktivBeiNull) {
    const auto nach = [this](const std::function<void()>& tat) {
        tat();
        return gesendet;
    };
    EXPECT_EQ(nach([&] { a.einschalten(); }), (ports{255, 255, 0x0F, 0xF9}));
    EXPECT_EQ(nach([&] { a.ampelnRon(1); }), (ports{0x7F, 255, 0x0F, 0xF9}));
    EXPECT_EQ(nach([&] { a.ampelnRon(5); }), (ports{0x77, 255, 0x0F, 0xF9}));
    EXPECT_EQ(nach([&] { a.ampelnRon(0); }), (ports{0x07, 255, 0x0F, 0xF9}));
    EXPECT_EQ(nach([&] { a.relais_on(1); }), (ports{0x07, 255, 0x8F, 0xF9}));
    EXPECT_EQ(nach([&] { a.relais_on(6); }), (ports{0x07, 255, 0x8F, 0xFD}));
    EXPECT_EQ(nach([&] { a.zieleinfahrt_melden(); }), (ports{0x07, 255, 0x8F, 0xFC}));
    EXPECT_EQ(nach([&] { a.ruhezustand(); }), (ports{0xFB, 255, 0x0F, 0xF8}));
    EXPECT_EQ(nach([&] { a.rennende_signal(false); }), (ports{0xFB, 255, 0x0F, 0xF9}));
    EXPECT_EQ(nach([&] { a.kalibrieren(); }), (ports{255, 255, 255, 255}));
}

TEST_F(Ausgaben, UmkehrungTauschtLampenUndAusgangDesStroms) {
    einst.ampel_invers = true;
    einst.bahnstrom_invers = true;
    a.einschalten();
    EXPECT_EQ(gesendet, (ports{255, 255, 255, 255})) << "the lanes have power in this wiring too";
    EXPECT_EQ(journal_von([&] { a.ampelnRon(0); }), "4:rot0 aus D:rot0 aus T:rot0 aus A:rot0 aus IO ");
    EXPECT_EQ(gesendet, (ports{255, 255, 255, 255}));
    EXPECT_EQ(journal_von([&] { a.ampelnGRoff(); }), "IO 4:gruen0 an D:gruen0 an T:gruen0 an A:gruen0 an ");
    EXPECT_EQ(journal_von([&] { a.relais_on(2); }), "4:strom2 an D:strom2 an T:strom2 an A:strom2 an IO ");
    EXPECT_EQ(gesendet, (ports{0xFB, 255, 0xBF, 255}));
    EXPECT_EQ(journal_von([&] { a.relais_off(0); }), "4:strom0 aus D:strom0 aus T:strom0 aus A:strom0 aus IO ");
}

TEST_F(Ausgaben, ChaosHinUndZurueckLaesstDasBildWieVorher) {
    a.einschalten();
    a.ampelnGRon();
    a.relais_on(3);  // has come home
    const ports vorher = gesendet;
    journal_von([&] { a.chaos_an(); });
    EXPECT_EQ(gesendet, (ports{0x05, 255, 0xFF, 0xFF})) << "red on, green off, chaos lamp on, no power";
    EXPECT_TRUE(journal.ends_with("IO 4:chaos0 an D:chaos0 an T:chaos0 an A:chaos0 an ")) << journal;
    journal_von([&] { a.chaos_aus(); });
    EXPECT_EQ(gesendet, vorher);
    EXPECT_TRUE(journal.starts_with("4:chaos0 aus D:chaos0 aus T:chaos0 aus A:chaos0 aus ")) << journal;
}

TEST_F(Ausgaben, WasEsNichtGibtAendertNichts) {
    a.einschalten();
    const ports vorher = gesendet;
    EXPECT_EQ(journal_von([&] {
                  a.ampelnRon(6);
                  a.ampelnRoff(-1);
                  a.relais_on(7);
              }),
              "");
    a.bericht.belegung.leeren();
    a.ampelnRon(0);
    a.relais_on(0);
    EXPECT_EQ(gesendet, vorher);
    EXPECT_FALSE(a.bericht.iow_schreibfehler());
    a.bericht.senden = {};
    a.ampelnGRon();
    EXPECT_TRUE(a.bericht.iow_schreibfehler());
}

TEST(AusgabenImProgramm, StromVonHandKalibrierungUndEnde) {
    test::testprogramm t;
    test::ausgabe_protokoll geraet;
    t.p.ausgaben.anschliessen(ausgabe_platz::at_2560, geraet);
    t.p.form1.bahnstrom_aus();
    EXPECT_EQ(geraet.befehle,
              (std::vector<schaltung>{{ausgang::bahnstrom, 0, false}, {ausgang::ampel_gruen, 0, false}}));
    t.p.einst.sensorkalibrierung = true;
    t.einrichten("Zeit", "1", {1});
    EXPECT_FALSE(t.p.ausgaben.bericht.ist_an(art::bahnstrom[1])) << "all outputs rest while the sensors are calibrated";
    t.bahn().Command1.klicken();
    EXPECT_TRUE(t.p.ausgaben.bericht.ist_an(art::bahnstrom[1])) << "but nobody races without power";
    geraet.befehle.clear();
    t.p.programm_beenden();
    ASSERT_GE(geraet.befehle.size(), 3U);
    EXPECT_EQ(geraet.befehle[0], (schaltung{ausgang::bahnstrom, 0, true}));
    EXPECT_EQ(geraet.befehle[1], (schaltung{ausgang::ampel_rot, 0, false}));
    EXPECT_EQ(geraet.befehle[2], (schaltung{ausgang::ampel_gruen, 0, true}));
    EXPECT_TRUE(t.p.ausgaben.bericht.ist_an(art::bahnstrom[1]));
}

}  // namespace
}  // namespace tarvel
