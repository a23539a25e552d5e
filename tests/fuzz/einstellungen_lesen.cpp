#include <array>
#include <span>
#include <stdexcept>
#include <vector>

#include "core/einstellungsdatei.h"
#include "core/einstellungstabelle.h"
#include "tests/fuzz/dateiarten.h"

namespace tarvel::test {
namespace {

constexpr const char* klubdatei = "Einstellungen/einstellungen.ini";
constexpr const char* wieder = "Einstellungen/wieder.ini";

/// What other parts count on as an index, a choice or a divisor.
struct feldgrenze {
    const char* name;
    zahlzugriff zahl;
    int min;
    int max;
};

const std::vector<feldgrenze>& grenzen() {
    static const std::vector<feldgrenze> alle{
        {"start_option", wert(&einstellungen::start_option), 1, 3},
        {"fruehstart_option", wert(&einstellungen::fruehstart_option), 0, 5},
        {"nachtrennen_modus", wert(&einstellungen::nachtrennen_modus), 0, 2},
        {"auswertung_nach", wert(&einstellungen::auswertung_nach), 0, 3},
        {"tank_art", wert(&einstellungen::tank_art), 1, 2},
        {"tank_straf_option", wert(&einstellungen::tank_straf_option), 0, 4},
        {"tank_inhalt", wert(&einstellungen::tank_inhalt), 1, 100},
        {"tank_verbrauch", wert(&einstellungen::tank_verbrauch), 1, 30},
        {"tank_rundenzeit", wert(&einstellungen::tank_rundenzeit), 1, 300},
        {"tank_strafzeit", wert(&einstellungen::tank_strafzeit), 1, 6000},
        {"tanksensor_justierung", wert(&einstellungen::tanksensor_justierung), 12, 100},
        {"chaos_strafzeit", wert(&einstellungen::chaos_strafzeit), -999, 9999},
        {"cu_modus",
         wert(&einstellungen::cu, &control_unit_einstellungen::anschluss, &control_unit_anschluss::cu_modus), 0, 20},
        {"uart_port", wert(&einstellungen::uart, &at2560_anschluss::uart_port), 0, 16},
        {"w_wechselmodus", wert(&einstellungen::w_wechselmodus), 1, 3},
        {"training_art", wert(&einstellungen::training_art), 0, 2},
        {"sektor_anzeige", wert(&einstellungen::sektor_anzeige), 0, 2},
        {"topspeed_anzeige", wert(&einstellungen::topspeed_anzeige), 0, 2},
        {"beste_modus", wert(&einstellungen::beste_modus), 0, 2},
        {"snd_beste_runde", wert(&einstellungen::snd_beste_runde), 1, 10},
    };
    return alle;
}

template <class Werte>
void fordern_zwischen(const Werte& werte, int min, int max, const char* was) {
    for (const int wert : werte) {
        fordern(wert >= min && wert <= max, was);
    }
}

void werte_pruefen(programm& p) {
    const einstellungen& einst = p.einst;
    constexpr int ereignis_max = 59;
    for (const feldgrenze& g : grenzen()) {
        fordern_zwischen(std::array{g.zahl({p.einst, p.einrichtung, p.txt})}, g.min, g.max, g.name);
    }
    fordern_zwischen(einst.lpt.lpt_eingang, 0, ereignis_max, "lpt_eingang");
    fordern_zwischen(einst.lpt.lpt_ausgang, 0, ereignis_max, "lpt_ausgang");
    fordern_zwischen(einst.s6.s6_eingang, 0, ereignis_max, "s6_eingang");
    for (const auto& modi : einst.s6.s6_eingang_modus) {
        fordern_zwischen(modi, 0, ereignis_max, "s6_eingang_modus");
    }
    fordern_zwischen(einst.rc.rc_sensor, 13, 16, "rc_sensor");
    fordern_zwischen(einst.cu.cu_spur_wert, 0, 15, "cu_spur_wert");
    fordern_zwischen(std::span(einst.wechsel_schema).subspan(1), 1, 7, "wechsel_schema");
    const messhardware& hw = einst.hardware;
    fordern_zwischen(std::array{static_cast<int>(hw.hw_4x4_modus)}, 3, 7, "hw_4x4_modus");
    const bool geraet = hw.hw_iow || hw.hw_race_control || hw.hw_lpt || hw.hw_timekeeper || hw.hw_4x4();
    fordern(hw.hw_simulation != geraet, "simulation beside a device, or neither");
}

/// As the program reads a file at its start: nothing of the file before is left.
bool laden(programm& p, std::string_view name) {
    p.einst = {};
    p.datei.einstellungen_standard_setzen();
    p.datei.einstellungsdatei_einlesen(name);
    p.datei.einstellungsdatei_pruefen();
    if (p.datei.fehler_laden()) {
        return false;
    }
    p.datei.einstellungen_uebernehmen(std::nullopt);
    return true;
}

/// Writes the settings, reads them again and names a line that does not come back.
void hin_und_zurueck(programm& p) {
    constexpr std::size_t tankwarnung = 250;  // may be a fraction: written with a comma, where reading stops
    const std::vector<std::string> vorher = p.datei.schreiben();
    p.datei.einstellungen_speichern(wieder);
    fordern(!p.datei.fehler_laden(), "settings cannot be written");
    fordern(laden(p, wieder), "what the program has written it refuses");
    const std::vector<std::string> nachher = p.datei.schreiben();
    for (std::size_t i = 0; i < vorher.size(); ++i) {
        if (i != tankwarnung && nachher.at(i) != vorher[i]) {
            throw std::logic_error("line " + std::to_string(i + 1) + " of the settings was \"" + vorher[i] +
                                   "\" and comes back as \"" + nachher[i] + "\"");
        }
    }
}

}  // namespace

bool einstellungen_lesen(werkbank& bank, const std::string& bytes) {
    programm& p = bank.t.p;
    bank.legen(klubdatei, bytes);
    if (!laden(p, klubdatei)) {
        return false;
    }
    werte_pruefen(p);
    hin_und_zurueck(p);
    const std::vector<std::string> gelesen = p.datei.schreiben();
    p.form1.vor_dem_speichern_pruefen();  // as the operator saves them
    if (p.datei.schreiben() != gelesen) {
        hin_und_zurueck(p);
    }
    return true;
}

bool wettkampfdatei_lesen(werkbank& bank, const std::string& bytes) {
    einstellungsdatei& d = bank.t.p.datei;
    bank.legen(klubdatei, bytes);
    d.einstellungsdatei_einlesen(klubdatei, true);
    d.einstellungsdatei_pruefen();
    const bool angenommen = !d.fehler_laden();
    const einstellungs_zeilen zeilen = d.zeilen();
    const std::vector<std::string> rest = d.rest();

    const std::size_t ende = bytes.find('\n');
    bank.legen(wieder, ende == std::string::npos ? "" : bytes.substr(ende + 1));
    d.einstellungsdatei_einlesen(wieder);
    d.einstellungsdatei_pruefen();
    fordern(!d.fehler_laden() == angenommen && d.zeilen() == zeilen && d.rest() == rest,
            "the line in front makes another file of it");
    return angenommen;
}

}  // namespace tarvel::test
