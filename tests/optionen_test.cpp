#include "programm/at2560_verdrahtung.h"
#include "programm/tx_verdrahtung.h"
#include "tests/optionen_probe.h"
#include "tests/plattform/test_ftdi.h"

namespace tarvel {
namespace {

using e = einstellungen;
using f = einstellungsfenster;
using test::bleibt;

class Optionen : public test::OptionenProbe {};

TEST_F(Optionen, WasAusAnderenWertenFolgt) {
    EXPECT_EQ(einst.ampel_takt, 1500ms);
    nach_wahl("start_ampel_combo", 6);
    EXPECT_EQ(einst.ampel_takt, 500ms);
    nach_kreuz("fahrzeug_wechseln");
    EXPECT_FALSE(einst.fahrzeug_wechseln);
    nach_kreuz("opt_centermode");
    EXPECT_TRUE(einst.fahrzeug_wechseln);

    waehlen("sektor_anzeige", 1);
    nach_wahl("topspeed_anzeige", 1);
    EXPECT_EQ(einst.topspeed_anzeige, sektor_ort::gross);
    nach_wahl("sektor_anzeige", 2);
    EXPECT_EQ(einst.topspeed_anzeige, sektor_ort::klein);

    nach_kreuz("nachtrennen");
    EXPECT_EQ(einst.nachtrennen_modus, nachtrennen::rennen);
    nach_kreuz("nachtampel");
    EXPECT_EQ(einst.nachtrennen_modus, nachtrennen::rennen_und_ampel);
    nach_kreuz("nachtrennen");  // the light of a night race goes with it
    EXPECT_EQ(einst.nachtrennen_modus, nachtrennen::aus);
}

TEST_F(Optionen, WasDieDateiNichtAnnimmtNimmtAuchDasFensterNicht) {
    const std::string vorher = element<feld>("uart_datei").text();
    EXPECT_TRUE(nach_eingabe("uart_datei", "").empty());
    EXPECT_EQ(element<feld>("uart_datei").text(), vorher);
    element<soundfeld>("sound_dateien_1").datei.eingeben("");
    element<soundfeld>("sound_dateien_55").datei.eingeben("");
    uebernehmen();
    programm neu(t.maschine.dienste());
    neu.starten();
    EXPECT_EQ(neu.einst.sound_dateien[1], "");
    EXPECT_EQ(neu.einst.sound_dateien[55], "-") << "an empty line would bring the old sound back";
}

TEST_F(Optionen, PortlistenSagenWasAngeschlossenIst) {
    t.maschine.anschluesse.da = {2, 5, 99};
    t.maschine.anschluesse.bekannt = {{2, {"RS232", "/dev/ttyS1", ""}},
                                      {5, {"USB 1a86:7523", "ttyUSB0", "USB Serial"}}};
    fenster.schliessen();
    oeffnen();
    auto& ports = element<auswahl>("cu_comport");
    ASSERT_EQ(ports.zusaetze().size(), ports.eintraege().size());
    EXPECT_EQ(ports.zusaetze().at(2), "RS232 (/dev/ttyS1)");
    EXPECT_EQ(ports.zusaetze().at(5), "USB Serial (ttyUSB0)");
    EXPECT_EQ(ports.zusaetze().at(1), "") << "nothing there";
    ports.waehlen(5);
    uebernehmen();
    EXPECT_EQ(einst.cu.anschluss.cu_modus, 5) << "what stands behind a port is none of its name";
}

TEST_F(Optionen, WechselschemaJedeSpurNurEinmal) {
    for (const char* text : {"", "1-1", "1-2-3-4-5-6-6", "0-1-2-3-4-5-6", "1-2-3-4-5-6-P-1", "Unfug"}) {
        const auto gezeigt = nach_eingabe("wechsel_schema", text);
        ASSERT_EQ(gezeigt.size(), 1U) << text;
        EXPECT_EQ(gezeigt[0].text, std::string("Schema ungültig") + bleibt);
        EXPECT_EQ(einst.wechsel_schema, (std::array<int, 8>{0, 1, 6, 5, 4, 3, 2, 7}));
    }
    EXPECT_TRUE(nach_eingabe("wechsel_schema", "3-1").empty());
    EXPECT_EQ(einst.wechsel_schema, (wechsel_folge{0, 3, 1, 2, 4, 5, 6, 7})) << "the others follow";
    EXPECT_TRUE(nach_eingabe("wechsel_schema", "P123456").empty());
    EXPECT_EQ(einst.wechsel_schema, (std::array<int, 8>{0, 7, 1, 2, 3, 4, 5, 6}));
}

TEST_F(Optionen, AbbrechenAendertNichts) {
    const auto vorher = t.p.datei.schreiben();
    tippen("t_inhalt_w", "99");
    fenster.hardware[3].umschalten();
    fenster.fahrerseite.name.eingeben("Berta");
    fenster.Command2.klicken();
    EXPECT_TRUE(offen()) << "the answer was no";
    EXPECT_EQ(fenster.fahrerseite.name.text(), "Berta");
    fenster.fahrzeugseite.namen.auswaehlen(0);
    fenster.fahrzeugseite.entfernen.klicken();
    t.maschine.antwort = true;
    fenster.Command2.klicken();
    EXPECT_EQ(t.maschine.fragen_gestellt.back().text,
              "Fahrerverwaltung, Fahrzeugverwaltung: Die Änderungen der Liste sind nicht übernommen. Verwerfen?");
    EXPECT_FALSE(offen());
    EXPECT_EQ(t.p.datei.schreiben(), vorher);
    oeffnen();
    EXPECT_EQ(element<feld>("t_inhalt_w").text(), "60");
    EXPECT_TRUE(fenster.hardware[0].gesetzt());
    EXPECT_EQ(fenster.fahrerseite.namen.zeilen().size(), 6U);
}

TEST_F(Optionen, AbbrechenNimmtAuchZurueckWasDerAssistentInKraftGesetztHat) {
    waehlen("uart_baud", 0);
    element<befehl>("uart_einrichten").klicken();
    EXPECT_EQ(einst.uart.uart_baud, "4800");
    t.p.geraete.von<at2560_verdrahtung>().uart_einstellungen.abbrechen.klicken();
    fenster.Command2.klicken();
    EXPECT_EQ(einst.uart.uart_baud, "57600");
    oeffnen();
    waehlen("uart_baud", 1);
    element<befehl>("uart_einrichten").klicken();
    ASSERT_TRUE(t.p.geraete.von<at2560_verdrahtung>().uart_einstellungen.zugang->einstellungen_speichern());
    fenster.Command2.klicken();
    EXPECT_EQ(einst.uart.uart_baud, "9600") << "the wizard has kept it in the file";
}

TEST_F(Optionen, UmgekehrteVerdrahtungGiltMitDemUebernehmen) {
    nach_kreuz("bahnstabsch");
    EXPECT_FALSE(geraet.ist_an(ausgang::bahnstrom, 3)) << "the lane has power";
    nach_kreuz("opt_ampel");
    EXPECT_TRUE(geraet.ist_an(ausgang::ampel_rot, 2));
    EXPECT_FALSE(geraet.ist_an(ausgang::ampel_gruen, 0));
    t.p.form1.bahnstrom_aus();
    nach_kreuz("bahnstabsch");
    EXPECT_FALSE(geraet.ist_an(ausgang::bahnstrom, 3)) << "switched off by hand, and stays so";
}

TEST_F(Optionen, GesperrterAnschlussWirdGenannt) {
    t.maschine.anschluesse.gesperrt = "/var/lock/LCK..ttyUSB0";
    t.maschine.meldungen_gezeigt.clear();
    fenster.hardware.at(static_cast<std::size_t>(hardware_art::at_2560)).umschalten();
    fenster.Command1.klicken();
    EXPECT_TRUE(letzte_meldung().starts_with(t.p.txt.meldung[27]));
    EXPECT_TRUE(letzte_meldung().ends_with("/var/lock/LCK..ttyUSB0")) << letzte_meldung();
}

TEST_F(Optionen, EineMesshardwareZurZeit) {
    t.maschine.anschluesse.da = {einst.uart.uart_port};
    const test::test_ftdi ftdi;
    ftdi.eintragen(t.maschine.bibliotheken);
    t.maschine.druckerport.register_werte[einst.lpt.anschluss.lpt_adresse + 1] = 0;
    for (const std::size_t nummer : {3U, 4U, 5U, 6U, 7U, 0U}) {
        fenster.hardware.at(nummer).umschalten();
        uebernehmen();
        EXPECT_TRUE(fenster.hardware.at(nummer).gesetzt()) << nummer;
        EXPECT_EQ(std::count_if(fenster.hardware.begin(), fenster.hardware.end(),
                                [](const haken& eine) { return eine.gesetzt(); }),
                  1);
        EXPECT_EQ(einst.hardware.hw_4x4_modus, nummer == 4 ? modul_4x4::modus_1 : modul_4x4::aus);
        EXPECT_EQ(einst.hardware.hw_simulation, nummer == 0 || nummer > 5) << nummer;
        const std::string zusatz = nummer == 4   ? ": Digital IR-Modus – keine Verbindung"
                                   : nummer == 5 ? ": Analog"
                                   : nummer == 6 ? " – keine Verbindung"
                                                 : "";
        EXPECT_EQ(t.p.form1.modus_label.text(), t.p.txt.hardware_name.at(nummer) + zusatz);
    }
}

/// Gives the control another value that it accepts.
void aendern(optionszeile& zeile) {
    if (auto* kasten = std::get_if<haken>(&zeile.element)) {
        kasten->aktiviert(true);
        kasten->gesetzt(!kasten->gesetzt());
    } else if (auto* eingabe = std::get_if<feld>(&zeile.element)) {
        const std::string alt = eingabe->text();
        const bool zahl = !alt.empty() && alt.find_first_not_of("0123456789,") == std::string::npos;
        const std::string zeichen{'#', '%', '&'};
        eingabe->text(zeile.name.starts_with("trennzeichen")
                          ? zeichen.substr(static_cast<std::size_t>(zeile.name.back() - '0'), 1)
                      : !zahl      ? alt + "x"
                      : alt == "3" ? "4"
                                   : "3");
    } else if (auto* liste = std::get_if<auswahl>(&zeile.element)) {
        liste->platz((liste->platz() + 1) % static_cast<int>(liste->eintraege().size()));
    } else if (auto* farbe_element = std::get_if<farbfeld>(&zeile.element)) {
        farbe_element->wert(farbe_element->wert() ^ 0x010203U);
    } else if (auto* sound = std::get_if<soundfeld>(&zeile.element)) {
        sound->datei.text("sound\\neu.wav");
    }
}

TEST_F(Optionen, JederWertWirdGeaendertBehaltenUndWiedergeladen) {
    ASSERT_TRUE(t.p.bestzeiten.speichern(t.p.ablage, "klub"));
    t.maschine.datei_schreiben("Wechselschema.ws", "#Neu\r\n123456P\r\n");
    fenster.Command2.klicken();
    oeffnen();
    const std::vector<std::string> vorher = t.p.datei.schreiben();
    for (int nummer = 0; nummer < f::seiten_anzahl; ++nummer) {
        if (optionsseite* seite = fenster.zeilenseite(nummer)) {
            for (const auto& gruppe : seite->gruppen) {
                for (const auto& zeile : gruppe->zeilen) {
                    aendern(*zeile);
                }
            }
        }
    }
    element<feld>("wechsel_schema").text("P-1-6-5-4-3-2");
    element<feld>("t_inhalt_w").text("40");
    element<feld>("lpt_text").text("278");
    element<haken>("opt_centermode").gesetzt(false);  // it would set another value back
    t.maschine.anschluesse.da = {3};                  // of a module that does not answer yet
    fenster.hardware[4].umschalten();
    waehlen("optModus", 2);
    t.maschine.meldungen_gezeigt.clear();
    fenster.Command1.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt, meldungen{});
    const std::vector<std::string> nachher = t.p.datei.schreiben();

    std::set<std::size_t> unveraendert;  // but for the titles and blank lines
    for (std::size_t z = 1; z <= 343; ++z) {
        const std::string& zeile = nachher.at(z + 1);
        if (zeile == vorher.at(z + 1) && !zeile.empty() && !zeile.starts_with('[')) {
            unveraendert.insert(z);
        }
    }
    // The fields of the main window, the words of the file, the flags of the other hardware, and the centre mode.
    EXPECT_EQ(unveraendert,
              (std::set<std::size_t>{2,   3,   4,   5,   8,   9,   10,  11,  14,  15,  16,  17,  20,  21,  22,
                                     23,  26,  27,  28,  29,  30,  33,  57,  66,  67,  68,  114, 115, 181, 182,
                                     183, 218, 219, 220, 221, 224, 225, 226, 227, 230, 245, 252, 298}));

    programm neu(t.maschine.dienste());
    neu.starten();
    neu.geraete.von<tx_verdrahtung>().s6_fragefenster.schliessen();  // it asks now, and the settings hold
    EXPECT_EQ(t.maschine.meldungen_gezeigt, meldungen{});
    EXPECT_EQ(neu.datei.schreiben(), nachher);
    EXPECT_EQ(neu.einst.trennzeichen, (trennzeichen_tabelle{"#", "%", "&"}));
}

TEST_F(Optionen, WerDieSpaltenMitEinemZeichenDerZeitenTrenntWirdGewarnt) {
    for (const auto& [sekunden, spalten, gewarnt] :
         {std::tuple(",", ",", true), {",", ".", true}, {",", ";", false}, {";", ";", true}}) {
        tippen("trennzeichen_1", sekunden);
        tippen("trennzeichen_2", spalten);
        t.maschine.meldungen_gezeigt.clear();
        uebernehmen();
        EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), gewarnt ? 1U : 0U) << sekunden << spalten;
        EXPECT_EQ(t.p.einst.trennzeichen[2], spalten) << "as typed";
    }
}

TEST_F(Optionen, TrennzeichenDateiWirdGemeldetUndNurNachAenderungGeschrieben) {
    fenster.Command2.klicken();
    t.maschine.datei_schreiben("trennzeichen.ini", "Unfug");
    t.maschine.meldungen_gezeigt.clear();
    oeffnen();
    EXPECT_EQ(t.maschine.meldungen_gezeigt, (meldungen{{t.p.txt.meldung[25], "Fehlermeldung"}}));
    uebernehmen();
    EXPECT_EQ(t.maschine.datei_lesen("trennzeichen.ini"), " 58 \r\n 44 \r\n 59 \r\n");
    t.maschine.datei_schreiben("trennzeichen.ini", "58,44,59\r\n");
    uebernehmen();
    EXPECT_EQ(t.maschine.datei_lesen("trennzeichen.ini"), "58,44,59\r\n") << "nothing has changed";
    t.maschine.nicht_schreibbar = "trennzeichen.ini";
    tippen("trennzeichen_0", ".");
    t.maschine.meldungen_gezeigt.clear();
    fenster.Command1.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt, (meldungen{{t.p.txt.meldung[24], "Fehlermeldung"}}));
    EXPECT_TRUE(offen()) << "the operator sees that it is not saved";
    EXPECT_EQ(t.maschine.datei_lesen("trennzeichen.ini"), "58,44,59\r\n");
}

TEST_F(Optionen, WahlFuerDenRennbildschirmGiltFuerJedeEinstellungsdatei) {
    uebernehmen();
    const std::vector<std::string> vorher = t.p.datei.schreiben();
    for (const char* name : {"rennbild_worte", "rennbild_schirm_2"}) {
        kreuzen(name);
    }
    uebernehmen();
    const rennbildwahl gewaehlt{false, false, true};
    EXPECT_EQ(einst.rennbild, gewaehlt);
    EXPECT_EQ(t.p.datei.schreiben(), vorher) << "in a file of its own";
    programm neu(t.maschine.dienste());
    neu.starten();
    EXPECT_EQ(neu.einst.rennbild, gewaehlt);
    for (const char* inhalt : {"", "Falsch\r\nFalsch", "Falsch\r\n1\r\nWahr\r\n"}) {
        t.maschine.datei_schreiben("tvk_rennbild.ini", inhalt);
        programm ohne(t.maschine.dienste());
        ohne.starten();
        EXPECT_EQ(ohne.einst.rennbild, rennbildwahl{}) << inhalt;
    }
}

TEST_F(Optionen, SpeichertInDieGeltendeDatei) {
    t.p.form1.Command5.klicken();
    t.p.speichernfenster.name.eingeben("klub");
    t.p.speichernfenster.Command1.klicken();
    EXPECT_TRUE(nach_eingabe("t_inhalt_w", "77").empty());
    EXPECT_NE(t.maschine.datei_lesen("Einstellungen/klub.ini").find("\r\n 77 \r\n"), std::string::npos);
    EXPECT_EQ(t.maschine.datei_lesen("Einstellungen/einstellungen.ini").find("\r\n 77 \r\n"), std::string::npos);
}

TEST_F(Optionen, SoundsAusDemOrdnerZurAuswahlUndZumAnhoeren) {
    t.maschine.datei_schreiben("sound/rs.wav", "RIFF");
    t.maschine.datei_schreiben("musik/hymne.WAV", "RIFF");
    fenster.seitenliste.auswaehlen(f::seite_sounds);
    auto& start = element<soundfeld>("sound_dateien_2");
    auto& ende = element<soundfeld>("sound_dateien_3");
    EXPECT_EQ(start.datei.eintraege(), (std::vector<std::string>{"sound\\rs.wav"}));
    EXPECT_FALSE(ende.abspielen.aktiviert()) << "there is no such file";
    start.abspielen.klicken();
    EXPECT_EQ(t.maschine.sounds, (std::vector<std::string>{"sound\\rs.wav"}));
    ende.datei.eingeben("musik\\hymne.WAV");
    ende.abspielen.klicken();
    EXPECT_EQ(t.maschine.sounds.back(), "musik\\hymne.WAV");
    tippen("sound_ordner", "musik");
    fenster.seitenliste.auswaehlen(f::seite_sounds);
    EXPECT_EQ(start.datei.eintraege(), (std::vector<std::string>{"musik\\hymne.WAV"}));
}

struct grenze {
    const char* name;
    const char* meldung;  ///< what it is about
    const char* darunter;
    const char* unten;
    const char* oben;
    const char* darueber;
    std::size_t zeile;        ///< Z in the settings file
    const char* gespeichert;  ///< there, at the upper limit
};

TEST_F(Optionen, GrenzenMitMeldungLassenDenAltenWertUndNehmenDieAnderen) {
    const auto zeile = [this](const grenze& g) { return t.p.datei.schreiben().at(g.zeile + 1); };
    for (const grenze& g : {
             grenze{"f_strafzeit", "Stromunterbrechung", "-1", "0", "300", "301", 44, " 30000 "},
             {"t_wartezeit", "Wartezeit bis Tankbeginn", "-0,1", "0", "60", "60,1", 39, " 6000 "},
             {"t_inhalt_w", "Tankinhalt", "0", "1", "100", "101", 36, " 100 "},
             {"t_verbrauch_w", "Benzinverbrauch", "", "1", "30", "31", 37, " 30 "},
             {"t_rundenzeit_w", "Durchschn. Rundenzeit", "viel", "1", "300", "301", 38, " 300 "},
             {"t_warnung", "in Box bei Literzahl", "0,9", "1", "50", "50,1", 249, " 50 "},
             {"w_zeit1", "Wartezeit bis Rennbeginn", "0", "1", "300", "301", 109, " 300000 "},
             {"w_zeit2", "Wartezeit nach Einfahrfunktion", "0", "1", "300", "301", 110, " 300000 "},
             {"t_strafzeit", "Strafzeit bei leerem Tank", "-1", "0", "60", "61", 40, " 6000 "},
             {"chaos_durch", "Timeout bei Sensordurchfahrt", "-1", "0", "10", "10,5", 62, " 10000 "},
         }) {
        SCOPED_TRACE(g.name);
        for (const char* text : {g.darunter, g.darueber}) {
            const std::string vorher = zeile(g);
            kreuzen("formelcheck");
            const bool soll = element<haken>("formelcheck").gesetzt();
            const meldungen gezeigt = nach_eingabe(g.name, text);
            ASSERT_EQ(gezeigt.size(), 1U) << text;
            EXPECT_NE(gezeigt[0].text.find(g.meldung), std::string::npos) << gezeigt[0];
            EXPECT_TRUE(gezeigt[0].text.ends_with(bleibt)) << gezeigt[0];
            EXPECT_EQ(gezeigt[0].titel, "Parameter außerhalb gültiger Werte");
            EXPECT_EQ(zeile(g), vorher) << text;
            EXPECT_EQ(einst.runde_beenden, soll) << "the other values are taken over";
        }
        nach_eingabe(g.name, g.unten);
        EXPECT_EQ(element<feld>(g.name).text(), g.unten);
        EXPECT_TRUE(nach_eingabe(g.name, g.oben).empty());
        EXPECT_EQ(zeile(g), g.gespeichert);
    }
    EXPECT_EQ(nach_eingabe("f_strafzeit", "fünf").at(0).text,
              "Stromunterbrechung Sekunden: Hier steht keine Zahl. Die alte Einstellung wird beibehalten.");
    EXPECT_EQ(einst.fruehstart_schritte, 300s);
    einst.fruehstart_strafzeit = dauer_hs(10);  // what a start leaves behind
    nach_eingabe("f_strafzeit", "0.1");
    EXPECT_EQ(einst.fruehstart_schritte, 300s);
}

TEST_F(Optionen, KommaUndPunktSindDasselbe) {
    nach_eingabe("t_wartezeit", "1,25");
    EXPECT_EQ(einst.tank_wartezeit, dauer_hs(125));
    EXPECT_EQ(element<feld>("t_wartezeit").text(), "1,25");
    nach_eingabe("t_wartezeit", "2.5");
    EXPECT_EQ(einst.tank_wartezeit, dauer_hs(250));
    nach_eingabe("sektor_laenge_2_6", "3,5");
    EXPECT_EQ(einst.sektor_laenge[2][6], "3.5");
}

TEST_F(Optionen, StilleKorrekturen) {
    const auto pruefen = [this](const char* name, const char* text, auto e::*wert, auto soll) {
        EXPECT_TRUE(nach_eingabe(name, text).empty());
        EXPECT_EQ(einst.*wert, soll) << name << " " << text;
    };
    pruefen("snd_beste", "0", &e::snd_beste_runde, 5);
    pruefen("snd_beste", "10", &e::snd_beste_runde, 10);
    pruefen("snd_beste", "11", &e::snd_beste_runde, 5);
    pruefen("txt_justierung_aufeinemsensortanken", "11", &e::tanksensor_justierung, 12);
    pruefen("txt_justierung_aufeinemsensortanken", "101", &e::tanksensor_justierung, 100);
    pruefen("e_ch_strafzeit", "123456", &e::chaos_strafzeit, 1234s);
    pruefen("w_edauertext", "0", &e::w_edauer, 2);
    pruefen("w_edauertext", "100", &e::w_edauer, 10);
    for (const char* adresse : {"2f8", "XYZ"}) {
        EXPECT_EQ(nach_eingabe("lpt_text", adresse).size(), adresse[0] == 'X' ? 1U : 0U);
        EXPECT_EQ(einst.lpt.anschluss.lpt_adresse, 0x2F8) << adresse;
    }
    waehlen("w_edauer1", 1);
    pruefen("w_edauertext", "0", &e::w_edauer, 60);
    pruefen("w_edauertext", "1000", &e::w_edauer, 999);
    EXPECT_EQ(nach_eingabe("txt_trainingwechseldauer", "1001").size(), 1U) << "the file takes 999";
    EXPECT_EQ(einst.training_wechseldauer, 1000s);
}

TEST_F(Optionen, WasDieDateiNichtSoWiedergibtWirdGesagt) {
    EXPECT_EQ(nach_eingabe("t_warnung", "9,5").size(), 1U);
    EXPECT_TRUE(nach_eingabe("t_warnung", "9").empty());
    EXPECT_EQ(nach_eingabe("t_strafzeit", "0").size(), 1U);
    EXPECT_TRUE(nach_eingabe("t_strafzeit", "1").empty());
    EXPECT_EQ(nach_eingabe("t_inhalt_w", "13").size(), 1U);
    EXPECT_EQ(einst.tank_warnung, 3) << "the file allows 8.5 litres of it";
}

}  // namespace
}  // namespace tarvel
