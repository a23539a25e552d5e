#include "tools/fensterbilder/szenen.h"

#include <algorithm>

#include "hardware/at2560.h"

namespace tarvel {
namespace {

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

/// Two sectors: the time of each in large, its speed in small.
void sektoren_messen(buehne& b) {
    b.p.einst.sektor_an = {true, true, true, true};
    b.p.einst.sektor_anzeige = 2;
    b.p.einst.topspeed_anzeige = 1;
    for (auto& laenge : b.p.einst.sektor_laenge) {
        std::fill(laenge.begin(), laenge.end(), "4.2");
    }
}

/// One lane that pauses, in the view of its own.
QWidget& pause_allein(buehne& b) {
    b.p.einst.chaosampel_an = false;
    b.rundenrennen(40000, "30", {3});
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

const std::vector<szeneneintrag> alle{
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
         b.rundenrennen(64000, "30", {2, 5});
         return b.o.bahn1;
     }},
    {"rennen_eine_spur",
     [](buehne& b) -> QWidget& {
         b.rundenrennen(64000, "30", {4});
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
         b.rundenrennen(64000, "30", {1, 3, 5});
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
    {"rennen_sektoren",
     [](buehne& b) -> QWidget& {
         sektoren_messen(b);
         b.rennen(62000);
         return b.o.bahn1;
     }},
    {"rennen_sektoren_zeilen",
     [](buehne& b) -> QWidget& {
         sektoren_messen(b);
         b.p.einst.darstellung_zeile = true;
         b.rennen(62000);
         return b.o.bahn1;
     }},
    {"rennen_mit_einfahrzeit",
     [](buehne& b) -> QWidget& {
         b.p.param.einfahrzeit = true;
         b.p.param.naechstes_rennen = "Gerd, Hanna, Ingo Petersen, Jule, Karl-Heinz, Lena";
         b.einrichten("Zeit", "5", {1, 2, 3, 4, 5, 6});
         return b.o.bahn1;
     }},
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

}  // namespace

const std::vector<szeneneintrag>& szenen() {
    return alle;
}

}  // namespace tarvel
