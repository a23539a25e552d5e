#include <gtest/gtest.h>

#include <QLibrary>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <thread>

#include "platform_qt/feines_wecken.h"
#include "platform_qt/qt_dienste.h"
#include "programm/iow_verdrahtung.h"
#include "tests/plattform/testprogramm.h"
#include "tools/simulator/anschluss.h"
#include "tools/simulator/at2560.h"
#include "tools/simulator/at2560_pins.h"
#include "tools/simulator/control_unit.h"
#include "tools/simulator/m4x4.h"
#include "ui/oberflaeche.h"

namespace tarvel {
namespace {

constexpr int com = 7;

/// Length of the races in seconds; a long one on demand.
int dauer_s() {
    constexpr int kurz = 12;
    const int lang = qEnvironmentVariableIntValue("TARVEL_LANGLAUF");
    return lang > 0 ? lang : kurz;
}

/// A simulated device on a thread of its own, at the other end of a pseudo-terminal.
class geraet_am_kabel {
public:
    geraet_am_kabel(simulator::geraet& geraet, const std::filesystem::path& ordner)
        : geraet_(geraet), kabel_({ordner.string(), com, {}, 19200}) {
        EXPECT_EQ(kabel_.oeffnen(), "");
        geraet_.senden = [this](std::string_view bytes) {
            verspaetung_ = std::max(verspaetung_, uhr_.jetzt() - beginn_ - geraet_.uhr());
            kabel_.schreiben(bytes);
        };
        lauf_ = std::jthread([this](const std::stop_token& ende) { laufen(ende); });
    }
    /// Its cars stand still from now on.
    void anhalten() {
        lauf_.request_stop();
        lauf_.join();
    }

    /// By how much a busy machine has held it up itself, at most.
    zeit_ms verspaetung() const { return verspaetung_; }

private:
    void laufen(const std::stop_token& ende) {
        const qt::FeinesWecken wecken;
        beginn_ = uhr_.jetzt();
        bool verbunden = false;
        while (!ende.stop_requested()) {
            if (verbunden != kabel_.verbunden()) {
                verbunden = !verbunden;
                if (verbunden) {
                    geraet_.verbunden();
                }
            }
            const std::string bytes = kabel_.lesen(1);
            geraet_.weiter(uhr_.jetzt());
            geraet_.empfangen(bytes);
        }
    }

    simulator::geraet& geraet_;
    simulator::anschluss kabel_;
    const qt::QtUhr uhr_;
    zeit_ms beginn_ = 0;
    zeit_ms verspaetung_ = 0;
    std::jthread lauf_;
};

/// Six cars with laps of a second and a half to two and a half.
simulator::rennen_einstellung schnelle_wagen() {
    simulator::rennen_einstellung rennen;
    rennen.wagen.resize(spuren_max);
    zeit_ms rundenzeit = 1500;
    for (simulator::wagen_einstellung& w : rennen.wagen) {
        w.rundenzeit = rundenzeit += 150;
    }
    return rennen;
}

/// The program with its windows, in real time and with real ports. Nobody has to answer a message.
struct Geraeterennen : testing::Test {
    static plattform::dienste dienste(qt::QtDienste& echt, test::test_plattform& test) {
        const plattform::dienste e = echt.dienste();
        const plattform::dienste t = test.dienste();
        return {e.uhr,         e.zeitgeber, t.meldungen,   t.klang,       t.kalender,
                t.bildschirm,  t.prozess,   t.zufall,      e.serienports, e.bibliotheken,
                e.druckerport, e.abtaster,  t.dateisystem, e.anhaenge,    test.ordner()};
    }
    void SetUp() override {
        p.starten();
        maschine.meldungen_gezeigt.clear();
        p.einst.beste_modus = bestzeit_speicherung::aus;
        p.einst.zielmodus_erster = true;
        p.einst.fruehstart_option = fruehstart_aktion::ohne;
        p.einst.start_ampel_modus = ampelwahl::keine;
        p.einst.hardware = {};
    }
    /// A dialog, a drawing: the loop stands still again and again.
    void schleife_aufhalten() {
        QObject::connect(&aufenthalt, &QTimer::timeout, [this] {
            const zeit_ms von = uhr.jetzt();
            QThread::msleep(aufenthalt_ms);
            aufenthalte.emplace_back(von, uhr.jetzt());
        });
        aufenthalt.start(900);  // often enough that many of a few laps fall into it
    }
    /// What waits for the loop has a stamp of just after it stood still, and never one of meanwhile: however busy the
    /// machine is, that shows who has stamped.
    void stempel_sind_nicht_von_der_schleife() {
        constexpr zeit_ms gleich_danach_ms = 20;
        int waehrenddessen = 0;
        int gleich_danach = 0;
        for (const int spur : alle_spuren) {
            for (int runde = 0; runde <= p.rennen.zustand.konto.runden(spur); ++runde) {
                const zeit_ms stempel = p.rennen.zustand.konto.stempel(spur, runde);
                for (const auto& [von, bis] : aufenthalte) {
                    waehrenddessen += stempel > von && stempel < bis ? 1 : 0;
                    gleich_danach += stempel >= bis && stempel < bis + gleich_danach_ms ? 1 : 0;
                }
            }
        }
        EXPECT_GT(waehrenddessen, gleich_danach) << "a lap waits for the loop";
    }
    void fahren() {
        p.form1.rennart.eingeben(p.txt.text_zeit);
        p.form1.renndauer.eingeben(std::to_string(dauer_s() / 60) + "," +
                                   std::to_string(100 + dauer_s() % 60).substr(1));
        p.form1.wertmin.eingeben("0.5");
        for (const int spur : alle_spuren) {
            if (haken& fahrt_mit = p.form1.spur.at(feld_index(spur)); !fahrt_mit.gesetzt()) {
                fahrt_mit.umschalten();
            }
        }
        p.form1.Command1.klicken();
        p.rennen.bahn1.Command1.klicken();
        const int laengstens_ms = (dauer_s() + 20) * 1000;
        EXPECT_TRUE(QTest::qWaitFor([&] { return p.fenster.ist_offen(fenstername::auswertung); }, laengstens_ms));
        EXPECT_TRUE(maschine.meldungen_gezeigt.empty()) << maschine.meldungen_gezeigt.front();
        QTest::qWait(200);  // until the log is on the disk
        EXPECT_EQ(test::nachrechnen(p, maschine), "");
    }
    /// Each lap as the device has seen it, and none that was driven in time is missing.
    void vergleichen(const simulator::geraet& geraet, zeit_ms genauigkeit = 0) {
        int alle = 0;
        zeit_ms schlechteste = 0;
        for (const int spur : alle_spuren) {
            std::vector<zeit_ms> stempel;
            for (const simulator::ueberfahrt& u : geraet.fahrten()) {
                if (u.wagen == spur && u.sensor == 1) {
                    stempel.push_back(u.stempel);
                }
            }
            const int runden = p.rennen.zustand.konto.runden(spur);
            ASSERT_GT(runden, 0);
            ASSERT_LT(static_cast<std::size_t>(runden), stempel.size());
            for (int runde = 1; runde <= runden; ++runde) {
                const auto i = static_cast<std::size_t>(runde);
                const zeit_ms fehler = p.rennen.zustand.konto.rundenzeit(spur, runde) - stempel[i] + stempel[i - 1];
                schlechteste = std::max(schlechteste, std::abs(fehler));
                ASSERT_LE(std::abs(fehler), genauigkeit) << spur << " " << runde;
            }
            const zeit_ms letzte = p.rennen.zustand.konto.stempel(spur, runden);
            constexpr zeit_ms laengste_runde = 2700;
            EXPECT_GT(letzte + laengste_runde, p.rennen.zustand.renn_ende_zeit) << "a lap is missing at the end";
            alle += runden;
        }
        std::printf("%d Runden in %d s, jede auf %d ms (erlaubt %d)\n", alle, dauer_s(), static_cast<int>(schlechteste),
                    static_cast<int>(genauigkeit));
    }

    static constexpr int aufenthalt_ms = 300;
    /// A machine that is busy itself may hold a stamp up, but not as long as the loop stands still.
    static constexpr zeit_ms nicht_die_schleife = aufenthalt_ms / 2;

    QTimer aufenthalt;
    std::vector<std::pair<zeit_ms, zeit_ms>> aufenthalte;  ///< the machine's clock, from and to
    const qt::QtUhr uhr{};
    test::test_plattform maschine;
    qt::QtDienste echt{maschine.ordner()};
    programm p{dienste(echt, maschine)};
    ui::Oberflaeche o{p};
};

TEST_F(Geraeterennen, ControlUnit) {
    simulator::control_unit_einstellung einst;
    einst.rennen = schnelle_wagen();
    einst.rennen.uhr_start = 0xFFFFFFFF - 8000;  // its clock overflows in the race
    einst.lampentakt = 300;
    einst.vorspann_promille = 100;
    simulator::control_unit geraet(einst);
    geraet_am_kabel kabel(geraet, maschine.ordner());
    p.einst.hardware.hw_cu = true;
    p.einst.cu.anschluss.cu_modus = com;
    p.einst.cu.cu_sondermodus = true;
    p.geraete.hardware_starten(false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return p.geraete.verbunden(); }));
    fahren();
    kabel.anhalten();
    vergleichen(geraet);
}

TEST_F(Geraeterennen, At2560) {
    maschine.datei_schreiben("tvk_at2560.uart", simulator::at2560_profil());
    simulator::at2560_einstellung einst;
    einst.rennen = schnelle_wagen();
    einst.bootzeit = 2500;
    simulator::at2560 geraet(einst);
    geraet_am_kabel kabel(geraet, maschine.ordner());
    p.einst.hardware.hw_uart = true;
    p.einst.uart.uart_port = com;
    p.geraete.hardware_starten(false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return p.form1.inhalt.sichtbar(); }));
    fahren();
    kabel.anhalten();
    vergleichen(geraet);
}

/// A library that stands in for a vendor's, beside the program, which loads it itself.
struct Bibliotheksrennen : Geraeterennen {
    /// Puts it there; its name.
    QString hinlegen(const std::filesystem::path& datei) const {
        const std::filesystem::path hier = maschine.ordner() / datei.filename();
        copy_file(datei, hier);
        return QString::fromStdU16String(hier.u16string());
    }
    /// `hoechstens` ms may a lap be off.
    void fahren_mit(const std::filesystem::path& datei, bool messhardware::*geraet, zeit_ms hoechstens) {
        QLibrary bibliothek(hinlegen(datei));
        auto* const einstellen = reinterpret_cast<void (*)(const char*)>(bibliothek.resolve("SimulatorEinstellen"));
        auto* const runden = reinterpret_cast<int (*)(int, int*, int)>(bibliothek.resolve("SimulatorRunden"));
        ASSERT_TRUE(einstellen != nullptr && runden != nullptr) << bibliothek.errorString().toStdString();
        einstellen("--rundenzeit 1700 --streuung 200 --saat 3");
        p.einst.hardware.*geraet = true;
        p.geraete.hardware_starten(false);
        ASSERT_TRUE(p.geraete.verbunden());
        maschine.meldungen_gezeigt.clear();
        p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
        schleife_aufhalten();
        fahren();
        std::vector<zeit_ms> abweichungen;
        for (const int spur : {1, 2, 3, 4}) {
            std::array<int, 1000> wahr{};
            const int gefahren = runden(spur, wahr.data(), static_cast<int>(wahr.size()));
            ASSERT_GT(p.rennen.zustand.konto.runden(spur), dauer_s() / 3);
            ASSERT_LE(p.rennen.zustand.konto.runden(spur), gefahren);
            for (int runde = 1; runde <= p.rennen.zustand.konto.runden(spur); ++runde) {
                const zeit_ms gemessen = p.rennen.zustand.konto.rundenzeit(spur, runde);
                abweichungen.push_back(std::abs(gemessen - wahr.at(static_cast<std::size_t>(runde) - 1)));
            }
        }
        std::sort(abweichungen.begin(), abweichungen.end());
        EXPECT_LE(abweichungen.back(), hoechstens);
        if (hoechstens > 0) {
            stempel_sind_nicht_von_der_schleife();
        }
        const auto bis_zwei = std::upper_bound(abweichungen.begin(), abweichungen.end(), 2) - abweichungen.begin();
        std::printf("%d Runden in %d s, jede auf %d ms, %d auf 2 ms\n", static_cast<int>(abweichungen.size()),
                    dauer_s(), static_cast<int>(abweichungen.back()), static_cast<int>(bis_zwei));
    }
};

TEST_F(Bibliotheksrennen, Timekeeper) {
    fahren_mit(TARVEL_FTD2XX, &messhardware::hw_timekeeper, 0);
}

TEST_F(Bibliotheksrennen, Iow40) {
    fahren_mit(TARVEL_IOWKIT, &messhardware::hw_iow, nicht_die_schleife);
}

/// A board that hangs in a call: the operator closes its window, and would wait for ever.
TEST_F(Bibliotheksrennen, EineHaengendePlatineHaeltWederIhrFensterNochDenWechselAuf) {
    QLibrary bibliothek(hinlegen(TARVEL_IOWKIT));
    auto* const haengen = reinterpret_cast<void (*)(int)>(bibliothek.resolve("SimulatorHaengen"));
    ASSERT_TRUE(haengen != nullptr) << bibliothek.errorString().toStdString();
    p.einst.hardware.hw_iow = true;
    p.geraete.hardware_starten(false);
    ASSERT_TRUE(p.geraete.verbunden());
    usbtest& w = p.geraete.von<iow_verdrahtung>().usbtest;
    const auto zustand = [&](const char* text) {
        return QTest::qWaitFor([&] { return w.zustand.text().find(text) != std::string::npos; }, 20000);
    };
    p.fenster.zeigen(fenstername::usbtest);
    ASSERT_TRUE(zustand("IO-Warrior 40"));
    haengen(1);
    w.c.at(7).umschalten();
    EXPECT_TRUE(zustand("nimmt nichts mehr an"));
    constexpr zeit_ms nicht_fuer_immer = 3000;  // on a busy machine
    const zeit_ms vorher = uhr.jetzt();
    w.Command6.klicken();
    p.einst.hardware = {};
    p.geraete.hardware_starten(false);
    p.fenster.zeigen(fenstername::usbtest);
    EXPECT_LT(uhr.jetzt() - vorher, nicht_fuer_immer);
    EXPECT_TRUE(zustand("nimmt nichts mehr an"));
    haengen(0);
    EXPECT_TRUE(zustand("IO-Warrior 40")) << "it is back";
}

TEST_F(Bibliotheksrennen, Druckeranschluss) {
    fahren_mit(TARVEL_INPOUT32, &messhardware::hw_lpt, nicht_die_schleife);
}

TEST_F(Geraeterennen, Modul4x4) {
    simulator::m4x4_einstellung einst;
    einst.rennen = schnelle_wagen();
    simulator::m4x4 geraet(einst);
    geraet_am_kabel kabel(geraet, maschine.ordner());
    p.einst.hardware.hw_4x4_modus = modul_4x4::modus_1;
    p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    p.geraete.hardware_starten(false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return p.geraete.verbunden(); }));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !p.fenster.ist_offen(fenstername::Form5); }));
    schleife_aufhalten();
    fahren();
    kabel.anhalten();
    vergleichen(geraet, nicht_die_schleife + kabel.verspaetung());
    stempel_sind_nicht_von_der_schleife();
}

}  // namespace
}  // namespace tarvel
