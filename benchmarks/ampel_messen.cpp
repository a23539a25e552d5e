// Measures one start on the real event loop: when each lamp is switched, how soon a false start is acted on, and how
// long its power cut lasts. Prints the times and their distance from the nominal ones. Usage: ampel_messen

#include <QApplication>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <vector>

#include "benchmarks/messprogramm.h"

namespace {

using uhr = std::chrono::steady_clock;

struct protokoll : tarvel::ausgabe_geraet {
    struct zeile {
        double ms;
        tarvel::schaltung befehl;
    };

    void schalten(const tarvel::schaltung& befehl) override { zeilen.push_back({seit_start(), befehl}); }
    double seit_start() const { return std::chrono::duration<double, std::milli>(uhr::now() - start).count(); }
    /// Time of the first such switching, -1 for none.
    double zeit(const tarvel::schaltung& befehl) const {
        for (const zeile& z : zeilen) {
            if (z.befehl == befehl) {
                return z.ms;
            }
        }
        return -1;
    }

    uhr::time_point start = uhr::now();
    std::vector<zeile> zeilen;
};

void ausgeben(const char* was, double ms, double soll) {
    std::printf("%-30s %10.2f ms   Soll %8.0f   Abweichung %+6.2f ms\n", was, ms, soll, ms - soll);
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication anwendung(argc, argv);
    messung::messprogramm m;
    if (!m.starten()) {
        return 1;
    }
    using ausgang = tarvel::schaltung::ausgang;
    m.p.einst.start_ampel_modus = tarvel::ampelwahl::fuenf_rot_gruen;
    m.p.einst.fruehstart_option = tarvel::fruehstart_aktion::stromunterbrechung;
    m.p.einst.fruehstart_strafzeit = std::chrono::seconds(5);
    protokoll geraet;
    m.p.ausgaben.anschliessen(tarvel::ausgabe_platz::timekeeper, geraet);
    m.p.form1.Command1.klicken();

    double taste = 0;
    QTimer::singleShot(1000, [&] {  // the race window is up by then
        geraet.zeilen.clear();
        geraet.start = uhr::now();
        m.p.rennen.bahn1.Command1.klicken();
    });
    QTimer::singleShot(6100, [&] {
        taste = geraet.seit_start();
        m.p.startampel.taste('2');
    });
    QTimer::singleShot(18500, [] { QApplication::exit(); });
    QApplication::exec();

    constexpr double erste = 3500;
    constexpr double schritt = 1500;
    double vorher = 0;
    for (int lampe = 1; lampe <= 5; ++lampe) {
        const double an = geraet.zeit({ausgang::ampel_rot, lampe, true});
        ausgeben(lampe == 1 ? "rot 1 nach dem Knopf" : "rot nach dem vorigen", an - vorher,
                 lampe == 1 ? erste : schritt);
        vorher = an;
    }
    const double gruen = geraet.zeit({ausgang::ampel_gruen, 0, true});
    ausgeben("grün nach dem letzten Rot", gruen - vorher, schritt);
    ausgeben("Frühstart: Strom aus nach", geraet.zeit({ausgang::bahnstrom, 2, false}) - taste, 2);
    ausgeben("Strom wieder da nach grün", geraet.zeit({ausgang::bahnstrom, 2, true}) - gruen, 5000);
    return 0;
}
