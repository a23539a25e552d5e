// What the log costs the race: its tick and a crossing as the machine and a device bring them, with a log and without;
// how large the log of an hour is, and how soon that hour is driven again.

#include <benchmark/benchmark.h>

#include <algorithm>

#include "benchmarks/anforderungen.h"
#include "programm/rennprotokoll.h"
#include "programm/rennspieler.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel {
namespace {

/// Takes lines without a file.
struct leere_senke final : protokollsenke {
    void anhaengen(std::string_view zeile) override {
        bytes += zeile.size();
        benchmark::DoNotOptimize(zeile.data());
    }
    std::size_t bytes = 0;
};

/// Remembers the machine's timers, so that one can be fired by itself, through the log.
class zeitgeberfang final : public plattform::zeitgeber_dienst {
public:
    explicit zeitgeberfang(plattform::zeitgeber_dienst& echte) : echte_(echte) {}
    std::unique_ptr<plattform::zeitgeber> erzeugen(plattform::zeitgeber_art art, dauer_ms intervall) override {
        auto zeitgeber = echte_.erzeugen(art, intervall);
        alle.push_back(zeitgeber.get());
        return zeitgeber;
    }
    std::vector<plattform::zeitgeber*> alle;

private:
    plattform::zeitgeber_dienst& echte_;
};

/// A race of six lanes that runs, with its log or without.
struct messrennen {
    explicit messrennen(bool mit_protokoll) {
        p.rennprotokoll.fuehren = false;
        p.starten();
        p.einst.start_ampel_modus = ampelwahl::keine;
        p.einst.beste_modus = bestzeit_speicherung::aus;
        p.einst.sound_an = false;
        p.form1.stddauer.text("24");
        p.form1.rennart.eingeben("Zeit");
        p.form1.renndauer.eingeben("59");
        for (haken& spur : p.form1.spur) {
            spur.gesetzt(true);
        }
        p.form1.Command1.klicken();
        if (mit_protokoll) {
            p.rennen.protokoll.schreiben(senke, uhr.jetzt(), [this] { return uhr.jetzt(); });
        }
        p.rennen.bahn1.Command1.klicken();
        maschine.laufen(1000);
        const auto ist_renntakt = [this](plattform::zeitgeber* z) {
            const zeit_ms vorher = p.ereignisse.messzeit;
            maschine.uhr_stellen(1);
            if (z->laeuft() && z->bei_tick) {
                z->bei_tick();
            }
            return p.ereignisse.messzeit != vorher;
        };
        renntakt = *std::find_if(fang.alle.begin(), fang.alle.end(), ist_renntakt);
    }
    messrennen(const messrennen&) = delete;
    messrennen& operator=(const messrennen&) = delete;
    ~messrennen() { p.rennen.protokoll.aufhoeren(); }

    test::test_plattform maschine;
    plattform::dienste echte = maschine.dienste();
    const plattform::uhr& uhr = echte.uhr;
    zeitgeberfang fang{echte.zeitgeber};
    leere_senke senke;
    programm p{{echte.uhr, fang, echte.meldungen, echte.klang, echte.kalender, echte.bildschirm, echte.prozess,
                echte.zufall, echte.serienports, echte.bibliotheken, echte.druckerport, echte.abtaster,
                echte.dateisystem, echte.anhaenge, echte.programmordner}};
    plattform::zeitgeber* renntakt = nullptr;
};

void tick_mit_protokoll(benchmark::State& lauf) {
    messrennen r(lauf.range(0) == 1);
    const std::size_t vorher = anforderungen_bisher();
    for (auto _ : lauf) {
        r.maschine.uhr_stellen(1);
        r.renntakt->bei_tick();
    }
    lauf.counters["Anforderungen"] = static_cast<double>(anforderungen_bisher() - vorher);
}
BENCHMARK(tick_mit_protokoll)->Arg(0)->Arg(1);

/// A device tells a crossing, and the next tick counts it.
void ueberfahrt_mit_protokoll(benchmark::State& lauf) {
    messrennen r(lauf.range(0) == 1);
    const std::size_t bytes_vorher = r.senke.bytes;
    for (auto _ : lauf) {
        lauf.PauseTiming();
        r.maschine.uhr_stellen(8000);
        r.renntakt->bei_tick();
        lauf.ResumeTiming();
        r.p.ereignisse.ereignis_melden(art::rundenzaehlung[1], r.uhr.jetzt());
        r.renntakt->bei_tick();
    }
    lauf.counters["Bytes"] = static_cast<double>(r.senke.bytes - bytes_vorher) / static_cast<double>(lauf.iterations());
}
BENCHMARK(ueberfahrt_mit_protokoll)->Arg(0)->Arg(1)->Iterations(5000);

/// One doing with what it decides.
void ein_geschehen(benchmark::State& lauf) {
    mitschrift m;
    leere_senke senke;
    zeit_ms jetzt = 0;
    const int ereignis = m.eingang("ereignis", 2, [&m](const mitschrift::werte& w) {
        m.vermerken("Runde", {1, 17, 8123, w[1]});
    });
    m.schreiben(senke, 0, [&jetzt] { return ++jetzt; });
    for (auto _ : lauf) {
        m.geschieht(ereignis, {1, jetzt});
    }
}
BENCHMARK(ein_geschehen);

void stunde_fahren(test::testprogramm& t) {
    t.p.form1.t_aktiv.umschalten();
    t.p.einst.sektor_an = {true, true, true, true};
    t.p.form1.stddauer.text("1");
    t.starten("Zeit", "0", {1, 2, 3, 4, 5, 6});
    while (!t.p.rennen.zustand.rennen_beendet) {
        for (int spur = 1; spur <= spuren_max; ++spur) {
            t.runde_nach(1300 + 7 * spur, std::to_string(spur));
        }
    }
}

void eine_stunde_noch_einmal(benchmark::State& lauf) {
    test::testprogramm t;
    stunde_fahren(t);
    std::string name = t.p.rennprotokoll.dateiname();
    std::replace(name.begin(), name.end(), '\\', '/');
    const std::string inhalt = t.maschine.datei_lesen(name);
    for (auto _ : lauf) {
        rennspieler spieler(t.maschine.ordner(), inhalt);
        spieler.vor(spieler.ende(), 100000000);
        benchmark::DoNotOptimize(spieler.stelle());
    }
    lauf.counters["kB"] = static_cast<double>(inhalt.size()) / 1000;
}
BENCHMARK(eine_stunde_noch_einmal)->Unit(benchmark::kMillisecond)->Iterations(3);

void spieler_von_vorn(benchmark::State& lauf) {
    test::testprogramm t;
    t.starten("Zeit", "1", {1});
    std::string name = t.p.rennprotokoll.dateiname();
    std::replace(name.begin(), name.end(), '\\', '/');
    rennspieler spieler(t.maschine.ordner(), t.maschine.datei_lesen(name));
    for (auto _ : lauf) {
        spieler.von_vorn();
        spieler.alten_vergessen();
    }
}
BENCHMARK(spieler_von_vorn)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvel
