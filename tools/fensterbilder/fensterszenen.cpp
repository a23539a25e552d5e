#include "tools/fensterbilder/szenen.h"

#include "hardware/iow_profil.h"
#include "programm/at2560_verdrahtung.h"
#include "programm/iow_verdrahtung.h"
#include "programm/race_control_verdrahtung.h"
#include "programm/tx_verdrahtung.h"
#include "tests/plattform/test_ftdi.h"
#include "tests/plattform/test_iowkit.h"

namespace tarvel {
namespace {

template <int nummer>
QWidget& optionsseite_zeigen(buehne& b) {
    b.p.einstellungsfenster.oeffnen(static_cast<einstellungsfenster::seitennummer>(nummer));
    return *b.o.einstellungen;
}

/// The wizard of the AT-2560 on this page, after four sensors have been heard.
template <int seite>
QWidget& uart_assistent(buehne& b) {
    b.t.maschine.anschluesse.da = {1, 3};
    optionsseite_zeigen<7>(b);
    std::get<befehl>(b.p.einstellungsfenster.zeile("uart_einrichten").element).klicken();
    uart_einstellungen& w = b.p.geraete.von<at2560_verdrahtung>().uart_einstellungen;
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
        b.t.maschine.laufen(at_bootzeit.count());
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
    return *b.o.uart_einstellungen;
}

/// The unit at COM3 has booted; sensors and a button have told something, and somebody tries outputs.
QWidget& uart_probe_fenster(buehne& b) {
    b.t.maschine.anschluesse.da = {1, 3};
    at_profil profil;
    profil.at_ereignis.at(static_cast<std::size_t>(at_zeile::chaos_allgemein)) = "S2";
    profil.at_ereignis.at(static_cast<std::size_t>(at_zeile::zwischenzeit(1, 1))) = "S22";
    at_profil_speichern(b.p.ablage, at_standarddatei, profil);
    optionsseite_zeigen<7>(b);
    std::get<auswahl>(b.p.einstellungsfenster.zeile("uart_port").element).platz(3);
    std::get<befehl>(b.p.einstellungsfenster.zeile("uart_pruefen").element).klicken();
    uart_probe& w = b.p.geraete.von<at2560_verdrahtung>().uart_probe;
    b.t.maschine.laufen(at_bootzeit.count());
    w.ampel.at(1).umschalten();
    w.strom[1].umschalten();
    b.t.maschine.anschluesse.senden(3, ":S40,812;:S13,1001;:S2,2417;");
    return *b.o.uart_probe;
}

/// The options with this hardware chosen.
template <int nummer>
QWidget& messhardware(buehne& b) {
    optionsseite_zeigen<7>(b);
    b.p.einstellungsfenster.hardware.at(nummer).umschalten();
    return *b.o.einstellungen;
}

/// A 4x4 USB module at COM3 that answers like one.
void modul_4x4_anstecken(buehne& b) {
    b.t.maschine.anschluesse.da = {1, 3};
    b.t.maschine.anschluesse.geraet = [&b](int nummer, std::string_view bytes) {
        if (nummer == 3 && bytes.find('v') != std::string_view::npos) {
            b.t.maschine.anschluesse.senden(3, "V1.40 4x4\rmod4\r");
        }
    };
}

QWidget& frm_main_fenster(buehne& b) {
    modul_4x4_anstecken(b);
    optionsseite_zeigen<7>(b);
    std::get<befehl>(b.p.einstellungsfenster.zeile("tx_einrichten").element).klicken();
    b.t.maschine.laufen(2500);
    b.p.geraete.von<tx_verdrahtung>().frm_main.chkBahnStrom[2].umschalten();
    b.t.maschine.anschluesse.senden(3, "1?\r3?\rRC2\r");
    return *b.o.frm_main;
}

/// The board is there, a car stands in a sensor, and somebody has switched a lamp.
QWidget& usbtest_fenster(buehne& b) {
    static test::test_iowkit brett;
    brett.steckt = true;
    brett.kontakte = brett.gemeldet = 0;
    brett.eintragen(b.t.maschine.bibliotheken);
    b.p.fenster.zeigen(fenstername::usbtest);
    for (const unsigned pin : {0U, 13U, 12U, 15U}) {
        brett.kontakte = 1U << pin;
        b.t.maschine.laufen(50);
    }
    b.p.geraete.von<iow_verdrahtung>().usbtest.c[7].umschalten();
    return *b.o.usbtest;
}

/// An evening is prepared: those who are there are on the start list.
QWidget& wettkampf(buehne& b, int fahrer) {
    for (const char* name : {"Jörg Hansen", "Anna", "Käthe", "Björn", "Uwe Petersen"}) {
        b.p.fahrerliste.hinzufuegen(name);
    }
    b.p.form1.Command3.klicken();
    b.p.wettkampf1.Text1.eingeben("Vereinsabend im November");
    for (int nummer = 0; nummer < fahrer; ++nummer) {
        b.p.wettkampf1.rennliste.auswaehlen(1);
        b.p.wettkampf1.Command16.klicken();
    }
    b.p.wettkampf1.auswahlliste.auswaehlen(1);
    return *b.o.wettkampf1;
}

const std::vector<szeneneintrag> alle_fensterszenen{
    {"hauptfenster", [](buehne& b) -> QWidget& { return b.o.form1; }},
    {"hauptfenster_angebot",
     [](buehne& b) -> QWidget& {
         renneinrichtung zuletzt = b.p.einrichtung;
         zuletzt.bahn[1].fahrer = "Anna";
         zuletzt.bahn[2].fahrer = "Carl-Friedrich von Gauß";
         b.p.form1.letztes_mal_anbieten(zuletzt);
         return b.o.form1;
     }},
    {"hauptfenster_control_unit",
     [](buehne& b) -> QWidget& {
         b.p.einst.hardware.hw_cu = true;
         b.p.geraete.hardware_starten(false);
         b.p.form1.t_aktiv.umschalten();
         return b.o.form1;
     }},
    {"cu_eigenschaften",
     [](buehne& b) -> QWidget& {
         b.p.fenster.zeigen(fenstername::cu_eigenschaften);
         return *b.o.cu;
     }},
    {"einstellungen_race_control", messhardware<2>},
    {"rc_einstellungen",
     [](buehne& b) -> QWidget& {
         optionsseite_zeigen<7>(b);
         auto& fenster = b.p.geraete.von<race_control_verdrahtung>().rc_einstellungen;
         fenster.oeffnen("COM7");
         fenster.doInit.klicken();
         return *b.o.rc;
     }},
    {"timekeeper",
     [](buehne& b) -> QWidget& {
         static test::test_ftdi ftdi;
         ftdi.eintragen(b.t.maschine.bibliotheken);
         b.p.fenster.zeigen(fenstername::timekeeper);
         ftdi.wartet = "\x02Timekeeper_active\x03\x02V1.42\x03";
         for (int i = 0; i < 30; ++i) {
             ftdi.wartet +=
                 "\x02"
                 "D" +
                 std::to_string(1 + i % 14) + '\x17' + std::to_string(4711 + i * 617) + '\x03';
             b.t.maschine.laufen(60);
         }
         return *b.o.timekeeper;
     }},
    {"hauptfenster_liste",
     [](buehne& b) -> QWidget& {
         b.p.zuletzt_gefahren.gefahren(b.p.ablage, {"Jonas", "Käthe", "Oma Inge"});
         b.p.form1.command_liste.klicken();
         return b.o.form1;
     }},
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
    {"wettkampf_vorbereiten", [](buehne& b) -> QWidget& { return wettkampf(b, 7); }},
    {"wettkampf_leer", [](buehne& b) -> QWidget& { return wettkampf(b, 0); }},
    {"wettkampf_gruppen",
     [](buehne& b) -> QWidget& {
         b.p.einst.gruppen = {true, true, true};
         b.p.einst.wechsel_schema = *wechsel_folge_lesen("1-2-3-4-5-6-P");
         b.p.form1.t_aktiv.gesetzt(true);
         return wettkampf(b, 5);
     }},
    {"tastatur",
     [](buehne& b) -> QWidget& {
         b.p.form1.command_tasten.klicken();
         return *b.o.tastatur;
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
         std::get<befehl>(b.p.einstellungsfenster.zeile("uart_datei_waehlen").element).klicken();
         return *b.o.uart_profildatei;
     },
     true},
    {"uart_probe", uart_probe_fenster},
    {"usbtest", usbtest_fenster},
    {"usbtest_oeffnen",
     [](buehne& b) -> QWidget& {
         for (const char* name : {"tvk_usb.iow", "klubbahn.iow"}) {
             iow_profil_speichern(b.p.ablage, name, iow_werkseinstellung());
         }
         b.p.fenster.zeigen(fenstername::usbtest);
         b.p.geraete.von<iow_verdrahtung>().usbtest.Command8.klicken();
         return *b.o.usbtest;
     }},
    {"druckeranschluss",
     [](buehne& b) -> QWidget& {
         b.t.maschine.druckerport.register_werte = {{0x378, 0x21}, {0x379, 0xC0}, {0x37A, 4}};
         b.p.fenster.zeigen(fenstername::drucker_fenster);
         return *b.o.druckeranschluss;
     }},
    {"einstellungen_iow",
     [](buehne& b) -> QWidget& {
         b.p.einst.hardware.hw_iow = true;
         return optionsseite_zeigen<7>(b);
     }},
    {"einstellungen_lpt",
     [](buehne& b) -> QWidget& {
         b.p.einst.hardware.hw_lpt = true;
         return optionsseite_zeigen<7>(b);
     }},
    {"einstellungen_at2560",
     [](buehne& b) -> QWidget& {
         b.p.einst.hardware.hw_uart = true;
         return optionsseite_zeigen<7>(b);
     }},
    {"frm_main", frm_main_fenster},
    {"form5",
     [](buehne& b) -> QWidget& {
         b.t.maschine.anschluesse.da = {3};
         b.p.einst.hardware.hw_4x4_modus = modul_4x4::modus_4;
         b.p.geraete.hardware_starten(false);
         return *b.o.form5;
     },
     true},
    {"s6_modus",
     [](buehne& b) -> QWidget& {
         b.p.geraete.von<tx_verdrahtung>().startmodus_fragen();
         return *b.o.s6_frage;
     },
     true},
    {"s6_neustart",
     [](buehne& b) -> QWidget& {
         b.p.geraete.von<tx_verdrahtung>().s6_fragefenster.neustart_anbieten({});
         return *b.o.s6_frage;
     },
     true},
    {"einstellungen_4x4",
     [](buehne& b) -> QWidget& {
         b.p.einst.hardware.hw_4x4_modus = modul_4x4::modus_4;
         return optionsseite_zeigen<7>(b);
     }},
    {"laden",
     [](buehne& b) -> QWidget& {
         b.p.form1.Command7.klicken();
         return *b.o.speichern;
     },
     true},
    {"programmstart",
     [](buehne& b) -> QWidget& {
         b.p.fenster.entladen(fenstername::Update_form);  // it stays until its time is over
         b.p.fenster.zeigen(fenstername::Update_form);
         return b.o.update_form;
     },
     true},
    {"version",
     [](buehne& b) -> QWidget& {
         b.p.fenster.zeigen(fenstername::Form3);
         return b.o.form3;
     },
     true},
    {"bildwahl",
     [](buehne& b) -> QWidget& {
         optionsseite_zeigen<einstellungsfenster::seite_fahrer>(b);
         b.p.einstellungsfenster.fahrerseite.anderes_bild.klicken();
         return *b.o.bildwahl;
     },
     true},
    {"liste_speichern",
     [](buehne& b) -> QWidget& {
         optionsseite_zeigen<einstellungsfenster::seite_fahrer>(b);
         b.p.einstellungsfenster.fahrerseite.Liste_speichern.klicken();
         return *b.o.fahrerspeichern;
     },
     true},
};

}  // namespace

const std::vector<szeneneintrag>& fensterszenen() {
    return alle_fensterszenen;
}

}  // namespace tarvel
