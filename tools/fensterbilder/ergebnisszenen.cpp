#include <algorithm>
#include <random>

#include "competition/wettkampftabelle.h"
#include "results/einzelrennen_datei.h"
#include "results/w_auswertung2.h"
#include "tests/ergebnistabelle_probe.h"
#include "tests/plattform/vereinswettkampf.h"
#include "tools/fensterbilder/szenen.h"
#include "ui/vergleichsbild.h"
#include "ui/w_auswertung2_fenster.h"

namespace tarvel {
namespace {

const std::vector<std::string> klub{
    "Anna", "Ben Olsen", "Carl-Friedrich von Gauß", "Dora Schmidt", "Emil Lindner", "Frieda", "Gustav", "Hilde"};
const std::string tagesordner = "Ergebnisse\\Tagesrennen\\";

/// A race of a club: no two laps are the same, and now and then somebody leaves the track.
rennergebnis klubrennen(unsigned nummer, std::size_t fahrer) {
    std::mt19937 wuerfel(nummer);
    std::vector<std::string> namen;
    for (std::size_t i = 0; i < fahrer; ++i) {
        namen.push_back(klub[(i + nummer) % klub.size()]);
    }
    rennergebnis e = test::rennen_mit(namen, 24, "1" + std::to_string(nummer) + ":14:27");
    for (rennergebnis::spur& s : e.spuren) {
        const auto grund = static_cast<zeit_ms>(6700 + 90 * ((static_cast<unsigned>(s.nummer) * 7 + nummer) % 6));
        s.runden.resize(s.runden.size() - wuerfel() % 4);
        s.gesamtzeit = s.beste = 0;
        for (std::size_t i = 1; i < s.runden.size(); ++i) {
            const zeit_ms abflug = wuerfel() % 14 == 0 ? 4000 : 0;
            s.runden[i].zeit =
                grund + static_cast<zeit_ms>(wuerfel() % (250 + 80 * static_cast<unsigned>(s.nummer))) + abflug;
            s.gesamtzeit += s.runden[i].zeit;
            s.beste = s.beste == 0 ? s.runden[i].zeit : std::min(s.beste, s.runden[i].zeit);
        }
        s.runden[0].zeit = 900 + 70 * s.nummer;
        s.meter = s.rundenzahl() * 10.5 + 1.2 * s.nummer;
        s.laenge = "10.5";
    }
    return e;
}

w_auswertung2& tagesrennen_zeigen(buehne& b) {
    std::vector<std::string> zeilen;
    for (unsigned rennen = 1; rennen <= 3; ++rennen) {
        rennergebnis e = klubrennen(rennen, 6);
        for (rennergebnis::spur& s : e.spuren) {
            s.fahrer.insert(0, s.fahrer < "D" ? "A;" : s.fahrer < "F" ? "B;" : "1;");
        }
        const auto neue = tages_zeilen(e, trennzeichen_standard);
        zeilen.insert(zeilen.end(), neue.begin(), neue.end());
    }
    b.p.ablage.zeilen_schreiben(tagesordner + "Clubabend November.csv", test::tageszeilen(zeilen));
    b.p.w_auswertung2.datei_zeigen(tagesordner + "Clubabend November.csv");
    return b.p.w_auswertung2;
}

w_auswertung2& rennen_zeigen(buehne& b, unsigned wie_viele) {
    const std::string ordner = "Ergebnisse\\Einzelrennen\\";
    for (unsigned nummer = 1; nummer <= wie_viele; ++nummer) {
        b.p.ablage.zeilen_schreiben(ordner + "Vorlauf " + std::to_string(nummer) + ".csv",
                                    test::rennzeilen(klubrennen(nummer, 6)));
    }
    b.p.w_auswertung2.datei_zeigen(ordner + "Vorlauf 1.csv");
    for (unsigned nummer = 1; nummer < wie_viele; ++nummer) {
        b.p.w_auswertung2.File1.auswaehlen(static_cast<int>(nummer));
        b.p.w_auswertung2.Command2.klicken();
    }
    return b.p.w_auswertung2;
}

w_auswertung2& wettkampf_zeigen(buehne& b, wettkampf_modus modus, int fahrer, std::initializer_list<int> lanes) {
    wettkampf w = test::vereinswettkampf::neu(modus, fahrer, lanes);
    test::vereinswettkampf::fahren(w, 1000);
    const std::string datei = "Ergebnisse\\Wettkampf\\Vereinspokal-211120261403.csv";
    b.p.ablage.zeilen_schreiben(datei, tabelle_schreiben(w, {}, trennzeichen_standard));
    b.p.w_auswertung2.datei_zeigen(datei);
    return b.p.w_auswertung2;
}

using m = wettkampf_modus;

const std::vector<szeneneintrag> alle_ergebnisszenen{
    {"betrachter_leer",
     [](buehne& b) -> QWidget& {
         b.p.fenster.zeigen(fenstername::w_auswertung2);
         return *b.o.w_auswertung2;
     }},
    {"betrachter_rennen",
     [](buehne& b) -> QWidget& {
         rennen_zeigen(b, 1).Command10.klicken();
         return *b.o.w_auswertung2;
     }},
    {"betrachter_drei_rennen",
     [](buehne& b) -> QWidget& {
         w_auswertung2& w = rennen_zeigen(b, 3);
         w.Command22.klicken();
         w.Command3.klicken();
         return *b.o.w_auswertung2;
     }},
    {"betrachter_tagesrennen",
     [](buehne& b) -> QWidget& {
         tagesrennen_zeigen(b).Command3.klicken();
         return *b.o.w_auswertung2;
     }},
    {"betrachter_korrektur",
     [](buehne& b) -> QWidget& {
         w_auswertung2& w = tagesrennen_zeigen(b);
         w.auswertung_schoen.auswaehlen(2);
         w.Command18.klicken();
         return *b.o.w_auswertung2;
     }},
    {"betrachter_wettkampf",
     [](buehne& b) -> QWidget& {
         w_auswertung2& w = wettkampf_zeigen(b, m::rotation, 12, {1, 2, 3, 4});
         w.Command10.klicken();
         w.Command11.klicken();
         return *b.o.w_auswertung2;
     }},
    {"betrachter_wettkampf_korrektur",
     [](buehne& b) -> QWidget& {
         w_auswertung2& w = wettkampf_zeigen(b, m::rotation, 12, {1, 2, 3, 4});
         w.auswertung_schoen.auswaehlen(1);
         w.Command18.klicken();
         return *b.o.w_auswertung2;
     }},
    {"betrachter_jeder",
     [](buehne& b) -> QWidget& {
         w_auswertung2& w = wettkampf_zeigen(b, m::jeder_gegen_jeden, 8, {2, 5});
         w.Command10.klicken();
         w.Command16.klicken();
         return *b.o.w_auswertung2;
     }},
    {"betrachter_blatt",
     [](buehne& b) -> QWidget& {
         rennen_zeigen(b, 2).Command_blick[1].klicken();
         return *b.o.w_auswertung2;
     }},
    {"betrachter_verlauf",
     [](buehne& b) -> QWidget& {
         rennen_zeigen(b, 2).Command_blick[2].klicken();
         return *b.o.w_auswertung2;
     }},
    {"betrachter_vergleich",
     [](buehne& b) -> QWidget& {
         rennen_zeigen(b, 3).Command_blick[3].klicken();
         return *b.o.w_auswertung2;
     }},
};

}  // namespace

const std::vector<szeneneintrag>& ergebnisszenen() {
    return alle_ergebnisszenen;
}

}  // namespace tarvel
