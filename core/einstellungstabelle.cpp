#include "core/einstellungstabelle.h"

#include <array>

#include "core/text.h"

namespace tarvel {
namespace {

using namespace pruefung;
using ziel = einstellungs_ziel;
using e = einstellungen;
using re = renneinrichtung;
using iow = iow_anschluss;
using rc = race_control_einstellungen;
using rc_anschluss = race_control_anschluss;
using lpt = druckeranschluss_einstellungen;
using lpt_anschluss = druckeranschluss_anschluss;
using s6 = modul_4x4_einstellungen;
using tk = timekeeper_anschluss;
using cu = control_unit_einstellungen;
using cu_anschluss = control_unit_anschluss;
using uart = at2560_anschluss;

constexpr wahr_laden nur_wahr = wahr_laden::nur_wahr;

/// Collects the lines from line 0 on; each call gives the next line.
class tabelle {
public:
    tabelle& operator<<(einstellungszeile neu) {
        zeilen_.push_back(std::move(neu));
        return *this;
    }
    std::vector<einstellungszeile> fertig() { return std::move(zeilen_); }

private:
    std::vector<einstellungszeile> zeilen_;
};

std::string sound_standard(int nummer) {
    struct reihe {
        int erste;
        int anzahl;
        std::string_view stamm;
        int beginn;   ///< number in the first file's name; -1 for a name without number
        int schritt;  ///< from one file's number to the next
    };
    constexpr std::array<reihe, 18> reihen{{
        {1, 1, "rv", -1, 0},
        {2, 1, "rs", -1, 0},
        {3, 1, "re", -1, 0},
        {4, 1, "ra", -1, 0},
        {5, 2, "cp", 1, 1},
        {7, 6, "sr", 1, 1},
        {13, 6, "fs", 1, 1},
        {19, 6, "ds", 1, 1},
        {25, 6, "tw", 1, 1},
        {31, 6, "tl", 1, 1},
        {37, 1, "rd", -1, 0},
        {46, 1, "as", -1, 0},
        {47, 1, "ez", -1, 0},
        {48, 1, "sd", -1, 0},
        {49, 1, "m", 5, 0},
        {50, 2, "m", 2, -1},
        {52, 2, "s", 30, -10},
        {54, 10, "s", 10, -1},
    }};
    for (const reihe& r : reihen) {
        if (nummer >= r.erste && nummer < r.erste + r.anzahl) {
            const int zahl = r.beginn + (nummer - r.erste) * r.schritt;
            return "sound\\" + std::string(r.stamm) + (r.beginn < 0 ? "" : std::to_string(zahl)) + ".wav";
        }
    }
    return "";  // free for the user
}

einstellungszeile sound(int nummer, std::size_t mindestens) {
    return zeile::text(element(&e::sound_dateien, static_cast<std::size_t>(nummer)), sound_standard(nummer),
                       mindestens);
}

/// A word of the language stands in the file as it is in the program: read in another language it is no name.
void wort_statt_name(einstellungszeile& zeile, std::string_view eingebaut, std::string texte::*wort) {
    zeile.laden = [davor = zeile.laden, eingebaut, wort](const ziel& a, const std::string& text) {
        davor(a, text == eingebaut ? a.txt.*wort : text);
    };
    zeile.schreiben = [davor = zeile.schreiben, eingebaut, wort](const ziel& a) {
        const std::string text = davor(a);
        return text == a.txt.*wort ? std::string(eingebaut) : text;
    };
}

/// Title, four values and a blank line of a lane. The default names are those of the language.
void fahrer_block(tabelle& t, int spur) {
    using bahn = renneinrichtung::spur;
    einstellungszeile fahrer = zeile::eingabe(einrichtung(spur, &bahn::fahrer), "");
    fahrer.standard_aus_texten = [spur](const texte& txt) { return txt.fahrer_standard[spur]; };
    wort_statt_name(fahrer, "kein Fahrer", &texte::kein_fahrer);
    einstellungszeile fahrzeug = zeile::eingabe(einrichtung(spur, &bahn::fahrzeug), "");
    fahrzeug.standard_aus_texten = [](const texte& txt) { return txt.standardfahrzeug_text; };
    wort_statt_name(fahrzeug, "Standardfahrzeug", &texte::standardfahrzeug_text);
    t << zeile::titel("[Fahrer" + std::to_string(spur) + "]", true)
      << zeile::kasten(einrichtung(spur, &bahn::dabei), spur <= 4, false, nur_eines_von({"0", "1"}))
      << zeile::zahleneingabe(einrichtung(spur, &bahn::laenge), "25", ablehnen_ausser(1, 10000)) << std::move(fahrer)
      << std::move(fahrzeug) << zeile::leer();
}

/// The race kind is kept as a number, whatever its words are in the language of the day.
einstellungszeile rennart() {
    return {nur_eines_von({"2", "3"}),
            [](const ziel& a, const std::string& text) {
                a.einrichtung.art = zahl_lesen(text) == 3 ? renn_art::runden : renn_art::zeit;
            },
            [](const ziel& a) { return std::to_string(static_cast<int>(a.einrichtung.art)); }, "2"};
}

/// Above half a tank the warning makes no sense; two litres more are allowed.
zeilen_urteil tankwarnung_pruefen(einstellungs_zeilen& zeilen, int z) {
    const double inhalt = zahl_lesen(zeilen.at(z::tank_inhalt));
    std::string& zeile = zeilen.at(static_cast<std::size_t>(z));
    const double warnung = zahl_lesen(zeile);
    if (warnung < 1 || warnung > inhalt / 2 + 2) {
        zeile = zahl_text(inhalt / 4, '.');
    }
    return zeilen_urteil::gut;
}

einstellungszeile auswertung_nach() {
    einstellungszeile neu = zeile::ganzzahl(wert(&e::auswertung_nach), 2);
    neu.laden = [](const ziel& a, const std::string& text) {
        if (text.empty()) {
            return;
        }
        const double zahl = zahl_lesen(text);
        a.einst.auswertung_nach = zahl < 0 || zahl > 3 ? sortier_modus::runden : static_cast<sortier_modus>(zahl);
    };
    return neu;
}

einstellungszeile tanksensor_justierung() {
    einstellungszeile neu = zeile::ganzzahl(wert(&e::tanksensor_justierung), 20);
    neu.laden = [](const ziel& a, const std::string& text) {
        const double zahl = zahl_lesen(text);
        a.einst.tanksensor_justierung = zahl < 12 || zahl > 100 ? 20 : static_cast<int>(zahl);
    };
    return neu;
}

einstellungszeile chaos_strafzeit() {
    const auto kuerzen = [](einstellungs_zeilen& zeilen, int z) {
        std::string& zeile = zeilen.at(static_cast<std::size_t>(z));
        zeile = std::string(links(zeile, 4));
        return zeilen_urteil::gut;
    };
    return zeile::ganzzahl(wert(&e::chaos_strafzeit), 10, kuerzen, {-999, 9999});
}

einstellungszeile sektor_laenge(std::size_t sektor, int spur) {
    return zeile::text([sektor, spur](const ziel& a) -> std::string& { return a.einst.sektor_laenge.at(sektor)[spur]; },
                       "0");
}

/// Lines that are taken over as a group once all lines are there.
einstellungszeile gruppenzeile(einstellungszeile neu) {
    neu.laden = {};
    return neu;
}

void rennen(tabelle& t) {  // Z 25 to Z 64
    einstellungszeile tank_strafzeit = zeile::ganzzahl(wert(&e::tank_strafzeit), 1000, ablehnen_ausser(1, 6000));
    tank_strafzeit.gilt_wie_es_galt = true;  // the options allow 0, and say that a settings file does not
    t << zeile::titel("[allgemein]", true) << zeile::eingabe(einrichtung(&re::massstab), "43", ablehnen_ausser(1, 500))
      << zeile::eingabe(einrichtung(&re::stunden), "0")
      << zeile::zahleneingabe(einrichtung(&re::dauer), "5", ablehnen_ausser(0, 9999)) << rennart()
      << zeile::zahleneingabe(einrichtung(&re::mindestrunde), "5", ablehnen_ausser(0, 59)) << zeile::leer();
    t << zeile::titel("[Tankoptionen]", true)
      << zeile::kasten(einrichtung(&re::tanken), false, true, ablehnen_ausser(0, 1))
      << zeile::ganzzahl(wert(&e::tank_art), 1, ablehnen_ausser(1, 2))
      << zeile::ganzzahl(wert(&e::tank_straf_option), 3, ablehnen_ausser(0, 4))
      << zeile::ganzzahl(wert(&e::tank_inhalt), 60, ablehnen_ausser(1, 100))
      << zeile::ganzzahl(wert(&e::tank_verbrauch), 7, ablehnen_ausser(1, 30))
      << zeile::ganzzahl(wert(&e::tank_rundenzeit), 8, ablehnen_ausser(1, 300))
      << zeile::ganzzahl(wert(&e::tank_wartezeit), 100, ablehnen_ausser(0, 6000)) << std::move(tank_strafzeit)
      << zeile::leer();
    t << zeile::titel("[Fruehstart]", true) << zeile::ganzzahl(wert(&e::fruehstart_option), 3, ablehnen_ausser(0, 5))
      << zeile::ganzzahl(wert(&e::fruehstart_strafzeit), 500, ablehnen_ausser(0, 30000)) << zeile::leer();
    t << zeile::titel("[Startoptionen]", true) << zeile::ganzzahl(wert(&e::start_option), 1, ablehnen_ausser(1, 3))
      << zeile::wahrheit(wert(&e::zielmodus_erster), true, wahr_laden::beide, true)
      << zeile::wahrheit(wert(&e::fahrzeug_wechseln), true, wahr_laden::beide, true)
      << zeile::ganzzahl(wert(&e::start_ampel_modus), 1)
      << zeile::wahrheit(wert(&e::start_zeit_sensor), false, nur_wahr, true) << zeile::leer();
    t << zeile::titel("[Speicheroptionen]", true)
      << zeile::wahrheit(wert(&e::aut_speichern), true, wahr_laden::beide, true)
      << zeile::wahrheit(wert(&e::aut_loeschen), true, wahr_laden::beide, true)
      << zeile::ganzzahl(wert(&e::nachtrennen_modus), 0, ablehnen_ausser(0, 2)) << zeile::frei() << zeile::leer();
    t << zeile::titel("[Sonstige]", true) << zeile::ganzzahl(wert(&e::tank_runden_modus), 0)
      << zeile::wahrheit(wert(&e::sound_an), true, wahr_laden::beide, true)
      << zeile::ganzzahl(wert(&e::sensor_timeout), 2000, ablehnen_ausser(0, 10000))
      << zeile::wahrheit(wert(&e::runde_beenden), false, wahr_laden::nicht_falsch, true) << zeile::leer();
}

void messgeraete(tabelle& t) {  // Z 65 to Z 101
    t << zeile::titel("[Hardwareeinstellungen]", true)
      << zeile::wahrheit(hardware(&messhardware::hw_iow), false, nur_wahr, true)
      << zeile::wahrheit(hardware(&messhardware::hw_race_control), false, nur_wahr, true)
      << zeile::wahrheit(hardware(&messhardware::hw_lpt), false, nur_wahr, true)
      << zeile::wahrheit(wert(&e::rc, &rc::rc_rev_zz), false, nur_wahr, true)
      << zeile::wahrheit(wert(&e::rc, &rc::rc_rev_sz), false, nur_wahr, true)
      << zeile::ganzzahl(wert(&e::rc, &rc::rc_level), 65, ablehnen_ausser(0, 130))
      << zeile::ganzzahl(wert(&e::rc, &rc::rc_delay_ms), 25, ablehnen_ausser(0, 50))
      << zeile::ganzzahl(wert(&e::rc, &rc::rc_post_ms), 7, ablehnen_ausser(0, 15))
      << zeile::wahrheit(wert(&e::rc, &rc::rc_schalter), true, nur_wahr, true)
      << zeile::ganzzahl(wert(&e::rc, &rc::rc_wert), 0)
      << zeile::text(wert(&e::rc, &rc::anschluss, &rc_anschluss::rc_com_port), "COM1")
      << zeile::wahrheit(wert(&e::rc, &rc::rc_tank_sensor34), false, nur_wahr, true)
      << zeile::wahrheit(wert(&e::rc, &rc::rc_ziel_sensor34), false, nur_wahr, true)
      << zeile::wahrheit(wert(&e::rc, &rc::rc_mod1), false, nur_wahr, false) << zeile::leer();
    t << zeile::titel("[LPT-Port Einstellungen]", false)
      << zeile::ganzzahl(wert(&e::lpt, &lpt::anschluss, &lpt_anschluss::lpt_adresse), 888);
    constexpr std::array<int, 5> eingaenge{16, 15, 14, 13, 0};
    for (std::size_t i = 0; i < eingaenge.size(); ++i) {
        t << zeile::ereignis(element(wert(&e::lpt, &lpt::lpt_eingang), i + 1), eingaenge.at(i));
    }
    constexpr std::array<int, 12> ausgaenge{8, 7, 6, 5, 4, 3, 2, 1, 0, 0, 0, 0};
    for (std::size_t i = 0; i < ausgaenge.size(); ++i) {
        t << zeile::ereignis(element(wert(&e::lpt, &lpt::lpt_ausgang), i + 1), ausgaenge.at(i));
    }
    t << zeile::wahrheit(wert(&e::bahnstrom_invers), false, nur_wahr, false) << zeile::leer();
}

void wettkampf(tabelle& t) {  // Z 102 to Z 116
    t << zeile::titel("[Wettkampfeinstellungen]", false)
      << zeile::ganzzahl(wert(&e::w_wechselmodus), 1, ablehnen_ausser(1, 3))
      << zeile::wahrheit(wert(&e::freie_slots), false, nur_wahr, true)
      << zeile::wahrheit(wert(&e::w_einfahren_an), false, nur_wahr, true)
      << zeile::wahrheit(wert(&e::w_edauer_runden), true, nur_wahr, true) << zeile::ganzzahl(wert(&e::w_edauer), 2)
      << zeile::wahrheit(wert(&e::w_autom), false, nur_wahr, true)
      << zeile::ganzzahl(wert(&e::w_zeit1), 30000, ablehnen_ausser(1000, 300000))
      << zeile::ganzzahl(wert(&e::w_zeit2), 30000, ablehnen_ausser(1000, 300000))
      << zeile::wahrheit(wert(&e::w_speichern), false, nur_wahr, true) << zeile::leer();
    t << zeile::titel("[Boolean-Grundwerte]", false) << zeile::titel("Wahr", false) << zeile::titel("Falsch", false)
      << zeile::leer();
}

void farben_und_sounds(tabelle& t) {  // Z 117 to Z 177
    t << zeile::titel("[Farbeinstellungen]", false);
    constexpr std::array<farbe, 4> spurfarben{255, 65280, 16744576, 65535};
    for (std::size_t i = 0; i < spurfarben.size(); ++i) {
        t << zeile::farbwert(je_spur(&e::farben_spur, static_cast<int>(i) + 1), spurfarben.at(i), true);
    }
    constexpr std::array<farbe, 3> ampel{0, 4210752, 16744576};
    for (std::size_t i = 0; i < ampel.size(); ++i) {
        t << zeile::farbwert(element(&e::farben_ampel, i + 1), ampel.at(i), false);
    }
    constexpr std::array<farbe, 2> schrift{65535, 16777215};
    for (std::size_t i = 0; i < schrift.size(); ++i) {
        t << zeile::farbwert(element(&e::farben_schrift, i + 1), schrift.at(i), false);
    }
    t << zeile::leer() << zeile::titel("[Soundeinstellungen]", false);
    for (int nummer = 1; nummer <= 47; ++nummer) {
        t << sound(nummer, 0);
    }
    t << zeile::ganzzahl(wert(&e::snd_beste_runde), 5, reparieren_ausser(1, 10, "5")) << zeile::leer();
}

void modul_4x4(tabelle& t) {  // Z 178 to Z 216
    t << zeile::titel("[4x4 USB Einstellungen]", false)
      << zeile::ganzzahl(hardware(&messhardware::hw_4x4_modus), 3, reparieren_ausser(3, 7, "7"))
      << zeile::wahrheit(wert(&e::s6, &s6::s6_option), false, nur_wahr, true) << zeile::frei() << zeile::frei()
      << zeile::frei();
    constexpr std::array<int, 8> eingaenge{16, 15, 14, 13, 31, 29, 27, 25};
    for (std::size_t i = 0; i < eingaenge.size(); ++i) {
        t << zeile::ereignis(element(wert(&e::s6, &s6::s6_eingang), i + 1), eingaenge.at(i));
    }
    constexpr std::array<std::array<int, 6>, 4> modi{
        {{16, 15, 14, 13, 34, 35}, {16, 15, 14, 13, 34, 35}, {32, 30, 28, 26, 36, 38}, {31, 29, 27, 25, 37, 39}}};
    for (const int spur : alle_spuren) {
        for (std::size_t modus = 0; modus < modi.size(); ++modus) {
            t << zeile::ereignis(
                [spur, modus](const ziel& a) -> int& { return a.einst.s6.s6_eingang_modus[spur].at(modus + 1); },
                modi.at(modus).at(feld_index(spur)));
        }
    }
    t << zeile::leer();
}

void ab_version_1(tabelle& t) {  // Z 229 to Z 255
    t << zeile::titel("[Timekeeper]", false)
      << zeile::wahrheit(hardware(&messhardware::hw_timekeeper), false, nur_wahr, false)
      << zeile::text(wert(&e::tk, &tk::tk_datei), "tvk_tk") << zeile::leer();
    t << zeile::titel("[sonstige ab Version 1]", false)
      << zeile::wahrheit(wert(&e::darstellung_zeile), false, nur_wahr, false)
      << zeile::wahrheit(wert(&e::tankanzeige_grafisch), true, nur_wahr, false)
      << zeile::text(wert(&e::iow, &iow::iow_datei), "tvk_usb.iow")
      << zeile::ganzzahl(wert(&e::fruehstart_schritte), 10)
      << zeile::wahrheit(wert(&e::chaosampel_an), true, nur_wahr, false)
      << zeile::wahrheit(wert(&e::fahrzeugbild_an), false, nur_wahr, false)
      << zeile::wahrheit(wert(&e::chaos_schalter), false, nur_wahr, false)
      << zeile::wahrheit(wert(&e::blinken_an), true, nur_wahr, false)
      << zeile::wahrheit(wert(&e::sensorkalibrierung), false, nur_wahr, false)
      << zeile::text(wert(&e::beste_datei), "bestefile", 1) << zeile::ganzzahl(wert(&e::beste_modus), 2, {}, {0, 2})
      << zeile::wahrheit(wert(&e::centermode), false, nur_wahr, false)
      << zeile::farbwert(je_spur(&e::farben_spur, 5), 12632256, true)
      << zeile::farbwert(je_spur(&e::farben_spur, 6), 16711935, true)
      << zeile::wahrheit(wert(&e::zeit_methode_alt), false, nur_wahr, false)
      << zeile::bruch(wert(&e::tank_warnung), "10", tankwarnung_pruefen) << zeile::leer();
    t << zeile::titel("[CU Carrera Control Unit]", false)
      << zeile::wahrheit(hardware(&messhardware::hw_cu), false, nur_wahr, false)
      << zeile::ganzzahl(wert(&e::cu, &cu::anschluss, &cu_anschluss::cu_modus), 0, {}, {0, 20})
      << zeile::wahrheit(wert(&e::cu, &cu::cu_option), false, nur_wahr, false) << zeile::leer();
}

void erweitert(tabelle& t) {  // Z 256 to Z 299
    t << zeile::titel("[Erweiterte Einstellungen]", false) << zeile::farbwert(wert(&e::farbe_ampel_rot_aus), 128, true)
      << zeile::farbwert(wert(&e::farbe_ampel_gruen_aus), 32768, true)
      << zeile::wahrheit(wert(&e::grosse_zeit), false, nur_wahr, false)
      << zeile::wahrheit(wert(&e::fenstermodus), false, nur_wahr, false)
      << zeile::ganzzahl(wert(&e::sektor_anzeige), 1, {}, {0, 2})
      << zeile::ganzzahl(wert(&e::topspeed_anzeige), 0, {}, {0, 2})
      << zeile::wahrheit(wert(&e::real_speed), false, nur_wahr, false);
    for (std::size_t sektor = 1; sektor <= 3; ++sektor) {
        t << zeile::wahrheit(element(&e::sektor_an, sektor), false, nur_wahr, false);
        for (const int spur : alle_spuren) {
            t << sektor_laenge(sektor, spur);
        }
    }
    t << sound(48, 1);
    constexpr std::array<int, 4> sensoren{16, 15, 14, 13};
    for (std::size_t i = 0; i < sensoren.size(); ++i) {
        t << zeile::ganzzahl(element(wert(&e::rc, &rc::rc_sensor), i), sensoren.at(i), {}, {13, 16});
    }
    t << zeile::wahrheit(wert(&e::ampel_invers), false, nur_wahr, false) << zeile::leer();
    t << zeile::titel("[UART USB Einstellungen]", false)
      << zeile::ganzzahl(wert(&e::uart, &uart::uart_port), 3, reparieren_ausser(0, 16, "3"))
      << zeile::text(wert(&e::uart, &uart::uart_baud), "57600", 0,
                     reparieren_wenn_keins({"4800", "9600", "19200", "38400", "57600", "115200"}, "57600"))
      << zeile::ganzzahl(wert(&e::uart, &uart::uart_datenbits), 8, reparieren_ausser(4, 8, "8"))
      << zeile::text(wert(&e::uart, &uart::uart_parity), "N", 0, reparieren_wenn_nicht_in("EONMSO", "N"))
      << zeile::text(wert(&e::uart, &uart::uart_stopbits), "1", 0, reparieren_wenn_keins({"1", "1.5", "1,5", "2"}, "1"))
      << zeile::wahrheit(hardware(&messhardware::hw_uart), false, nur_wahr, false) << zeile::leer();
}

void ab_version_183(tabelle& t) {  // Z 300 to Z 347
    t << zeile::titel("[Trainingseinstellungen]", false) << zeile::ganzzahl(wert(&e::training_art), 1, {}, {0, 2})
      << zeile::ganzzahl(wert(&e::training_wechseldauer), 30, {}, {0, 999})
      << zeile::ganzzahl(wert(&e::training_weiter), 1, {}, {0, 1}) << zeile::leer();
    t << zeile::titel("[sonstige ab Version 1.83]", false) << zeile::text(wert(&e::sound_ordner), "", 1);
    for (int nummer = 49; nummer <= 64; ++nummer) {
        t << sound(nummer, 1);
    }
    const einstellungszeile schema_name =
        gruppenzeile(zeile::text(wert(&e::wechselschema_name), wechsel_standard_text));
    t << schema_name;
    for (std::size_t i = 1; i < wechsel_standard.size(); ++i) {
        t << gruppenzeile(zeile::ganzzahl(element(&e::wechsel_schema, i), wechsel_standard.at(i)));
    }
    t << schema_name << zeile::wahrheit(wert(&e::cu, &cu::cu_tankautomatik), true, wahr_laden::falsch_loescht, false)
      << chaos_strafzeit() << zeile::wahrheit(wert(&e::chaos_strafe_strom), true, wahr_laden::nicht_falsch, false)
      << auswertung_nach() << zeile::text(wert(&e::uart, &uart::uart_datei), "tvk_at2560.uart", 6)
      << zeile::wahrheit(wert(&e::cu, &cu::cu_sondermodus), true, wahr_laden::nicht_falsch, false);
    for (const int spur : alle_spuren) {
        t << gruppenzeile(zeile::ganzzahl(je_spur(wert(&e::cu, &cu::cu_spur_wert), spur), 15));
    }
    t << tanksensor_justierung() << zeile::leer() << zeile::titel(einstellungs_ende, false)
      << zeile::titel("Tarvel 2026", false);
}

std::vector<einstellungszeile> aufbauen() {
    tabelle t;
    t << zeile::titel(std::string(einstellungs_kopf) + std::string(programm_version), false);
    for (const int spur : {1, 2, 3, 4}) {
        fahrer_block(t, spur);
    }
    rennen(t);
    messgeraete(t);
    wettkampf(t);
    farben_und_sounds(t);
    modul_4x4(t);
    fahrer_block(t, 5);
    fahrer_block(t, 6);
    ab_version_1(t);
    erweitert(t);
    ab_version_183(t);
    return t.fertig();
}

}  // namespace

const std::vector<einstellungszeile>& einstellungstabelle() {
    static const std::vector<einstellungszeile> zeilen = aufbauen();
    return zeilen;
}

}  // namespace tarvel
