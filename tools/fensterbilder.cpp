// Draws the program's windows in given states: fensterbilder <folder> [<size>] [<scene>...]
// Without a screen, unless QT_QPA_PLATFORM names one: the theme of a desktop only shows there.
// A size is written as 1024x768; without one, each scene is drawn in all of the usual ones. Without scenes, all.

#include <QApplication>
#include <QPainter>
#include <QTest>
#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "hardware/at2560.h"
#include "tests/plattform/testprogramm.h"
#include "ui/oberflaeche.h"
#include "ui/stil.h"

namespace tarvel {
namespace {

namespace fs = std::filesystem;

const std::vector<QSize> uebliche_groessen{{1024, 768}, {1280, 1024}, {1920, 1080}, {3840, 2160}};

/// A program with its windows on a virtual clock, and a club that drives.
struct buehne {
    buehne() {
        constexpr std::array<const char*, spuren_max> namen{"Anna",         "Ben Olsen",    "Carl-Friedrich von Gauß",
                                                            "Dora Schmidt", "Emil Lindner", "Frieda"};
        for (const int spur : alle_spuren) {  // the club's drivers look like those of a fresh installation
            const std::string bild = std::string("pictures/") + namen.at(feld_index(spur)) + ".jpg";
            p.ablage.kopieren("pictures/Fahrer " + std::to_string(spur) + ".jpg", bild);
        }
        p.fahrerliste.eingebaut({namen.begin(), namen.end()});
        p.fahrerliste.laden(p.ablage, "keine Datei");  // so that these names are its rows
        p.fahrerliste.bilder_uebernehmen(p.ablage, "nopic");
        p.fahrzeugliste.bilder_uebernehmen(p.ablage, "");
        p.form1.listen_zeigen();
        p.einst.fahrzeugbild_an = true;
        for (const int spur : alle_spuren) {
            const std::size_t i = feld_index(spur);
            if (!p.form1.spur.at(i).gesetzt()) {
                p.form1.spur.at(i).umschalten();
            }
            p.form1.fahrer.at(i).eingeben(namen.at(i));
            p.form1.auto_.at(i).eingeben(p.form1.auto_.at(i).eintraege().at(i + 1));
            p.bestzeiten.einfuegen(spur, {6900 + 40 * spur, namen.at(i), "Viper", "12.09.2026"});
        }
        p.form1.bilder_anzeigen();
        p.form1.beste_zeiten_anzeigen();
        p.einst.zielmodus_erster = true;
        p.einst.runde_beenden = false;
        t.mit_bestzeiten = true;
        p.fenster.zeigen("Form1");
    }

    /// The program once its files are there: some windows read them when they are made.
    static programm& mit_daten(test::testprogramm& t) {
        const fs::path daten = TARVEL_QUELLEN "/data";
        fs::copy(daten, t.maschine.ordner(), fs::copy_options::recursive | fs::copy_options::overwrite_existing);
        return t.p;
    }

    /// Sets up a race on these lanes and opens its window.
    void einrichten(const char* rennart, const char* dauer, std::initializer_list<int> spuren) {
        t.einrichten(rennart, dauer, spuren);
        aktiv_ = spuren;
    }

    /// Drives for this long: a lap of about seven seconds on each lane, of which no two are the same.
    void fahren(zeit_ms dauer) {
        const zeit_ms ende = t.maschine.jetzt() + dauer;
        for (const int spur : aktiv_) {
            naechste_[spur] = std::max(naechste_[spur], t.maschine.jetzt() + 900 + zeit_ms{90} * spur);
        }
        while (true) {
            const int spur = *std::min_element(aktiv_.begin(), aktiv_.end(),
                                               [this](int a, int b) { return naechste_[a] < naechste_[b]; });
            if (naechste_[spur] > ende) {
                break;
            }
            t.runde_nach(naechste_[spur] - t.maschine.jetzt(), std::to_string(spur));
            const int runde = t.spur(spur).runden;
            naechste_[spur] += 6950 + 45 * spur + streuung(spur, runde) + (runde == 8 && spur == 3 ? 9000 : 0);
        }
        t.maschine.laufen(std::max<zeit_ms>(ende - t.maschine.jetzt(), 1));
    }

    void rennen(zeit_ms gefahren, std::initializer_list<int> spuren = {1, 2, 3, 4, 5, 6}) {
        einrichten("Zeit", "5", spuren);
        t.bahn().Command1.klicken();
        fahren(gefahren);
    }

    /// A whole race to its result.
    void ergebnis(const char* runden, std::initializer_list<int> spuren) {
        einrichten("Runden", runden, spuren);
        t.bahn().Command1.klicken();
        fahren(150000);
    }

    /// Always the same, but without a pattern that the eye finds.
    static zeit_ms streuung(int spur, int runde) {
        const auto wirr = static_cast<unsigned>(spur * 7919 + runde * 104729) * 2654435761U;
        return (wirr >> 20U) % 380;
    }

    test::testprogramm t;
    programm& p = mit_daten(t);
    ui::Oberflaeche o{p};

private:
    std::vector<int> aktiv_;
    spuren<zeit_ms> naechste_;
};

template <int nummer>
QWidget& optionsseite_zeigen(buehne& b) {
    b.p.einstellungsfenster.oeffnen(static_cast<einstellungsfenster::seitennummer>(nummer));
    return b.o.einstellungen;
}

/// The start light in its second red phase.
QWidget& ampel(buehne& b) {
    b.einrichten("Runden", "20", {1, 2, 3});
    b.p.einst.start_ampel_modus = 1;
    b.t.bahn().Command1.klicken();
    b.t.maschine.laufen(5500);
    return b.o.form2;
}

QWidget& pause(buehne& b, std::initializer_list<int> spuren = {1, 2, 3, 4, 5, 6}) {
    b.rennen(40000, spuren);
    b.t.bahn().Command3.klicken();
    b.t.maschine.laufen(3000);
    return b.o.bahn1;
}

/// Without the light.
QWidget& pause_ohne_ampel(buehne& b) {
    b.p.einst.chaosampel_an = false;
    return pause(b);
}

template <bool zeilen, int... spuren>
QWidget& pause_mit_tank(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.p.form1.t_aktiv.gesetzt(true);
    return pause(b, {spuren...});
}

template <zeit_ms gefahren = 31000>
QWidget& tanken(buehne& b) {
    b.p.form1.t_aktiv.gesetzt(true);
    b.p.einst.tank_inhalt = 60;
    b.rennen(gefahren);
    return b.o.bahn1;
}

/// One lane that pauses, in the view of its own.
QWidget& pause_allein(buehne& b) {
    b.p.einst.chaosampel_an = false;
    b.einrichten("Runden", "30", {3});
    b.t.bahn().Command1.klicken();
    b.fahren(40000);
    b.t.bahn().Command3.klicken();
    b.t.maschine.laufen(3000);
    return b.o.bahn1;
}

/// The wizard of the AT-2560 on this page, after four sensors have been heard.
template <int seite>
QWidget& uart_assistent(buehne& b) {
    b.t.maschine.anschluesse.da = {1, 3};
    optionsseite_zeigen<7>(b);
    b.p.einstellungsfenster.uart_einrichten();
    uart_einstellungen& w = b.p.uart_einstellungen;
    const auto sagt = [&](const char* bytes) { b.t.maschine.anschluesse.senden(3, bytes); };
    b.t.maschine.waehrend_meldung = [&b, nummer = 0]() mutable {
        b.t.maschine.anschluesse.da = nummer++ == 0 ? std::set<int>{1} : std::set<int>{1, 3};
    };
    b.t.maschine.antwort = true;
    w.port_ermitteln.klicken();
    for (int nummer = 0; nummer < seite; ++nummer) {
        if (nummer == uart_einstellungen::seite_anzahl) {
            w.sensoranzahl.eingeben("8");
        }
        w.weiter.klicken();
        b.t.maschine.laufen(at_bootzeit_ms);
        if (nummer + 1 == uart_einstellungen::seite_sensoren) {
            sagt(":S13,1001;:S11,2417;:S9,3830;:S7,5222;");
            for (std::size_t i = 0; i < 4; ++i) {
                w.sensoren.at(i).funktion.waehlen(1);
            }
        } else if (nummer + 1 == uart_einstellungen::seite_chaos) {
            w.chaos_anzahl.waehlen(4);
            w.stecker.waehlen(1);
            sagt(":S2,9001;:S3,9100;");
        }
    }
    return b.o.uart_einstellungen;
}

using szene = QWidget& (*)(buehne&);
struct szeneneintrag {
    const char* name;
    szene zeigen;
    bool eigene_groesse = false;  ///< the window is as large as it wants to be
};

const std::vector<szeneneintrag> szenen{
    {"hauptfenster", [](buehne& b) -> QWidget& { return b.o.form1; }},
    {"hauptfenster_control_unit",
     [](buehne& b) -> QWidget& {
         b.p.einst.hardware.hw_cu = true;
         b.p.geraete.hardware_starten(false);
         b.p.form1.t_aktiv.umschalten();
         return b.o.form1;
     }},
    {"cu_eigenschaften",
     [](buehne& b) -> QWidget& {
         b.p.fenster.zeigen("cu_eigenschaften");
         return b.o.cu;
     }},
    {"rennen_vor_dem_start",
     [](buehne& b) -> QWidget& {
         b.einrichten("Zeit", "5", {1, 2, 3, 4, 5, 6});
         return b.o.bahn1;
     }},
    {"rennen",
     [](buehne& b) -> QWidget& {
         b.rennen(64000);
         return b.o.bahn1;
     }},
    {"rennen_ohne_fahrzeugbilder",
     [](buehne& b) -> QWidget& {
         b.p.einst.fahrzeugbild_an = false;
         b.rennen(64000);
         return b.o.bahn1;
     }},
    {"rennen_zwei_spuren",
     [](buehne& b) -> QWidget& {
         b.einrichten("Runden", "30", {2, 5});
         b.t.bahn().Command1.klicken();
         b.fahren(64000);
         return b.o.bahn1;
     }},
    {"rennen_eine_spur",
     [](buehne& b) -> QWidget& {
         b.einrichten("Runden", "30", {4});
         b.t.bahn().Command1.klicken();
         b.fahren(64000);
         return b.o.bahn1;
     }},
    {"rennen_zeilen",
     [](buehne& b) -> QWidget& {
         b.p.einst.darstellung_zeile = true;
         b.rennen(64000);
         return b.o.bahn1;
     }},
    {"rennen_drei_spuren",
     [](buehne& b) -> QWidget& {
         b.p.einst.grosse_zeit = true;
         b.einrichten("Runden", "30", {1, 3, 5});
         b.t.bahn().Command1.klicken();
         b.fahren(64000);
         return b.o.bahn1;
     }},
    {"rennen_tanken", tanken<>},
    {"rennen_tank_leer", tanken<49000>},
    {"rennen_tanken_liter",
     [](buehne& b) -> QWidget& {
         b.p.einst.tankanzeige_grafisch = false;
         return tanken<>(b);
     }},
    {"rennen_tanken_zeilen",
     [](buehne& b) -> QWidget& {
         b.p.einst.darstellung_zeile = true;
         return tanken<>(b);
     }},
    {"rennen_pause", pause_ohne_ampel},
    {"rennen_pause_ampel", pause_mit_tank<false, 1, 2, 3, 4, 5, 6>},
    {"rennen_pause_ampel_vier_spuren", pause_mit_tank<false, 1, 2, 3, 4>},
    {"rennen_pause_ampel_zwei_spuren", pause_mit_tank<false, 2, 5>},
    {"rennen_pause_ampel_zeilen", pause_mit_tank<true, 1, 2, 3, 4, 5, 6>},
    {"rennen_pause_zeilen",
     [](buehne& b) -> QWidget& {
         b.p.einst.darstellung_zeile = true;
         return pause_ohne_ampel(b);
     }},
    {"rennen_pause_eine_spur", pause_allein},
    {"rennen_nachlauf",
     [](buehne& b) -> QWidget& {
         b.p.einst.zielmodus_erster = false;
         b.einrichten("Zeit", "1", {1, 2, 3, 4});
         b.t.bahn().Command1.klicken();
         b.fahren(61500);
         return b.o.bahn1;
     }},
    {"startampel", ampel, true},
    {"startampel_im_rennen",
     [](buehne& b) -> QWidget& {
         ampel(b);
         return b.o.bahn1;
     }},
    {"kleine_ampel",
     [](buehne& b) -> QWidget& {
         b.ergebnis("8", {1, 2, 3});
         b.p.auswertung.cmd3_fortsetzung();
         return b.o.k_ampel;
     },
     true},
    {"auswertung",
     [](buehne& b) -> QWidget& {
         b.ergebnis("14", {1, 2, 3, 4, 5, 6});
         return b.o.auswertung;
     }},
    {"auswertung_zwei_spuren",
     [](buehne& b) -> QWidget& {
         b.ergebnis("14", {2, 5});
         return b.o.auswertung;
     }},
    {"auswertung_meter",
     [](buehne& b) -> QWidget& {
         b.ergebnis("14", {1, 2, 3, 4, 5, 6});
         b.p.auswertung.Command6.klicken();
         return b.o.auswertung;
     }},
    {"rundenverlauf",
     [](buehne& b) -> QWidget& {
         b.ergebnis("14", {1, 2, 3, 4, 5, 6});
         b.p.auswertung.Command_verlauf.klicken();
         return b.o.auswertung;
     }},
    {"bestzeiten",
     [](buehne& b) -> QWidget& {
         b.p.bestzeiten.leeren();
         b.ergebnis("14", {1, 2, 3, 4, 5, 6});
         b.p.auswertung.Command5.klicken();
         return b.o.bestzeiten;
     },
     true},
    {"bestzeitverwaltung",
     [](buehne& b) -> QWidget& {
         b.p.beste_zeiten_verwaltung.oeffnen();
         return b.o.bestzeitverwaltung;
     }},
    {"ergebnis_speichern",
     [](buehne& b) -> QWidget& {
         b.ergebnis("8", {1, 2});
         b.p.auswertung.Command4.klicken();
         return b.o.rundenspeichern;
     },
     true},
    {"einstellungen_start", optionsseite_zeigen<0>},
    {"einstellungen_wettkampf", optionsseite_zeigen<1>},
    {"einstellungen_tanken", optionsseite_zeigen<2>},
    {"einstellungen_sektoren", optionsseite_zeigen<3>},
    {"einstellungen_fahrer", optionsseite_zeigen<4>},
    {"einstellungen_fahrzeuge", optionsseite_zeigen<5>},
    {"einstellungen_bestzeiten", optionsseite_zeigen<6>},
    {"einstellungen_hardware", optionsseite_zeigen<7>},
    {"einstellungen_sounds", optionsseite_zeigen<8>},
    {"einstellungen_farben", optionsseite_zeigen<9>},
    {"einstellungen_trennzeichen", optionsseite_zeigen<10>},
    {"tastatur",
     [](buehne& b) -> QWidget& {
         b.p.form1.command_tasten.klicken();
         return b.o.tastatur;
     },
     true},
    {"uart_port", uart_assistent<uart_einstellungen::seite_port>},
    {"uart_anzahl", uart_assistent<uart_einstellungen::seite_anzahl>},
    {"uart_sensoren", uart_assistent<uart_einstellungen::seite_sensoren>},
    {"uart_chaos", uart_assistent<uart_einstellungen::seite_chaos>},
    {"uart_fertig", uart_assistent<uart_einstellungen::seite_fertig>},
    {"uart_wartehinweis",
     [](buehne& b) -> QWidget& {
         b.p.form1.wartehinweis(true);
         return b.o.form1;
     }},
    {"uart_profildatei",
     [](buehne& b) -> QWidget& {
         for (const char* name : {"tvk_at2560.uart", "klubbahn.uart"}) {
             at_profil_speichern(b.p.ablage, name, {});
         }
         b.p.einstellungsfenster.uart_datei_waehlen();
         return b.o.uart_profildatei;
     },
     true},
    {"einstellungen_at2560",
     [](buehne& b) -> QWidget& {
         b.p.einst.hardware.hw_uart = true;
         return optionsseite_zeigen<7>(b);
     }},
    {"laden",
     [](buehne& b) -> QWidget& {
         b.p.form1.Command7.klicken();
         return b.o.speichern;
     },
     true},
};

/// The window, and the light that stands in front of it.
QPixmap aufnehmen(buehne& b, QWidget& fenster) {
    QPixmap bild = fenster.grab();
    for (ui::Fenster* ampel : {static_cast<ui::Fenster*>(&b.o.form2), static_cast<ui::Fenster*>(&b.o.k_ampel)}) {
        if (&fenster == &b.o.bahn1 && ampel->isVisible()) {
            ampel->aufschlagen();  // again, for the window has another size now
            QPainter(&bild).drawPixmap(ampel->pos() - fenster.pos(), ampel->grab());
        }
    }
    return bild;
}

bool zeichnen(const szeneneintrag& gewuenscht, const QString& ordner, const std::vector<QSize>& groessen) {
    buehne b;
    QWidget& fenster = gewuenscht.zeigen(b);
    bool gut = true;
    for (const QSize& groesse : gewuenscht.eigene_groesse ? std::vector{fenster.size()} : groessen) {
        fenster.showNormal();  // the race window fills its screen otherwise
        fenster.resize(groesse);
        QTest::qWait(60);  // layouts settle in several turns of the loop
        b.o.takt.ausfuehren();
        QTest::qWait(60);
        const QString masse = QString("%1x%2").arg(groesse.width()).arg(groesse.height());
        const QString datei = ordner + "/" + gewuenscht.name +
                              (gewuenscht.eigene_groesse || groessen.size() == 1 ? QString() : "_" + masse) + ".png";
        gut = aufnehmen(b, fenster).save(datei) && gut;
    }
    return gut;
}

}  // namespace
}  // namespace tarvel

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tarvel::ui::stil::anwenden(anwendung);
    QStringList argumente = QApplication::arguments().mid(1);
    if (argumente.isEmpty()) {
        std::fprintf(stderr, "fensterbilder <Ordner> [<Breite>x<Hoehe>] [<Szene>...]\n");
        return 2;
    }
    const QString ordner = argumente.takeFirst();
    std::vector<QSize> groessen = tarvel::uebliche_groessen;
    const QStringList masse = argumente.isEmpty() ? QStringList() : argumente.front().split('x');
    if (masse.size() == 2 && masse[0].toInt() > 0 && masse[1].toInt() > 0) {
        groessen = {QSize(masse[0].toInt(), masse[1].toInt())};
        argumente.removeFirst();
    }
    std::filesystem::create_directories(ordner.toStdU16String());
    bool gut = true;
    const bool alle = argumente.isEmpty();
    for (const auto& szene : tarvel::szenen) {
        if (alle || argumente.removeAll(szene.name) > 0) {
            gut = tarvel::zeichnen(szene, ordner, groessen) && gut;
        }
    }
    for (const QString& unbekannt : argumente) {
        std::fprintf(stderr, "keine Szene: %s\n", unbekannt.toUtf8().constData());
        gut = false;
    }
    return gut ? 0 : 1;
}
