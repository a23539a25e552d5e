#include <algorithm>
#include <array>
#include <stdexcept>

#include "core/einstellungsdatei.h"
#include "core/einstellungstabelle.h"
#include "core/text.h"
#include "hardware/ereignisse.h"
#include "tests/fuzz/dateiarten.h"

namespace tarvel::test {
namespace {

constexpr std::string_view datei = "Einstellungen/einstellungen.ini";
constexpr std::string_view wieder = "Einstellungen/wieder.ini";
constexpr std::size_t zeile_tankwarnung = 250;  // the only fraction: it is written with a comma, where reading stops

/// What other parts count on as an index, a choice or a divisor.
struct grenze {
    const char* name;
    int einstellungen::*feld;
    int min;
    int max;
};

constexpr std::array<grenze, 20> grenzen{{
    {"start_option", &einstellungen::start_option, 1, 3},
    {"fruehstart_option", &einstellungen::fruehstart_option, 0, 5},
    {"nachtrennen_modus", &einstellungen::nachtrennen_modus, 0, 2},
    {"auswertung_nach", &einstellungen::auswertung_nach, 0, 3},
    {"tank_art", &einstellungen::tank_art, 1, 2},
    {"tank_straf_option", &einstellungen::tank_straf_option, 0, 4},
    {"tank_inhalt", &einstellungen::tank_inhalt, 1, 100},
    {"tank_verbrauch", &einstellungen::tank_verbrauch, 1, 30},
    {"tank_rundenzeit", &einstellungen::tank_rundenzeit, 1, 300},
    {"tank_strafzeit", &einstellungen::tank_strafzeit, 1, 6000},
    {"tanksensor_justierung", &einstellungen::tanksensor_justierung, 12, 100},
    {"chaos_strafzeit", &einstellungen::chaos_strafzeit, -999, 9999},
    {"cu_modus", &einstellungen::cu_modus, 0, 20},
    {"uart_port", &einstellungen::uart_port, 0, 16},
    {"w_wechselmodus", &einstellungen::w_wechselmodus, 1, 3},
    {"training_art", &einstellungen::training_art, 0, 2},
    {"sektor_anzeige", &einstellungen::sektor_anzeige, 0, 2},
    {"topspeed_anzeige", &einstellungen::topspeed_anzeige, 0, 2},
    {"beste_modus", &einstellungen::beste_modus, 0, 2},
    {"snd_beste_runde", &einstellungen::snd_beste_runde, 1, 10},
}};

template <class Werte>
void fordern_zwischen(const Werte& werte, int min, int max, const char* was) {
    for (const int wert : werte) {
        fordern(wert >= min && wert <= max, was);
    }
}

void werte_pruefen(const einstellungen& einst) {
    constexpr int ereignis_max = 59;
    static_assert(ereignis_max < ereignis_tabelle::zeilen_anzahl);
    for (const grenze& g : grenzen) {
        fordern(einst.*g.feld >= g.min && einst.*g.feld <= g.max, g.name);
    }
    fordern_zwischen(einst.lpt_eingang, 0, ereignis_max, "lpt_eingang");
    fordern_zwischen(einst.lpt_ausgang, 0, ereignis_max, "lpt_ausgang");
    fordern_zwischen(einst.s6_eingang, 0, ereignis_max, "s6_eingang");
    for (const auto& modi : einst.s6_eingang_modus) {
        fordern_zwischen(modi, 0, ereignis_max, "s6_eingang_modus");
    }
    fordern_zwischen(einst.rc_sensor, 13, 16, "rc_sensor");
    fordern_zwischen(einst.cu_spur_wert, 0, 15, "cu_spur_wert");
    fordern(einst.wechsel_schema[0] == 0, "wechsel_schema has a row 0");
    fordern_zwischen(std::array<int, 2>{einst.hardware.hw_4x4_modus, 3}, 3, 7, "hw_4x4_modus");
    for (std::size_t i = 1; i < einst.wechsel_schema.size(); ++i) {
        fordern(einst.wechsel_schema.at(i) >= 1 && einst.wechsel_schema.at(i) <= 7, "wechsel_schema");
    }
    for (const farbe wert : einst.farben_spur) {
        fordern(wert <= 0xFFFFFF, "farben_spur");
    }
    const messhardware& hw = einst.hardware;
    const bool geraet = hw.hw_iow || hw.hw_race_control || hw.hw_lpt || hw.hw_timekeeper || hw.hw_4x4_modus > 3;
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
    p.datei.einstellungen_uebernehmen(0);
    return true;
}

/// Names the line in which they differ. A value that reads like the end of the file is the last one that comes back.
void gleiche_zeilen_fordern(const std::vector<std::string>& vorher, const std::vector<std::string>& nachher) {
    fordern(vorher.size() == nachher.size(), "settings lose lines");
    const auto ende = std::find(vorher.begin(), vorher.end(), "{EOF}");
    const auto [alt, neu] = std::mismatch(vorher.begin(), ende, nachher.begin());
    if (alt != ende) {
        throw std::logic_error("line " + std::to_string(alt - vorher.begin() + 1) + " of the settings was \"" + *alt +
                               "\" and comes back as \"" + *neu + "\"");
    }
}

/// What must become of the lines once they are read: all stay but a fraction, unless it is mended to itself again.
std::vector<std::string> nach_dem_lesen(std::vector<std::string> zeilen, const std::vector<std::string>& gelesen) {
    std::string& warnung = zeilen.at(zeile_tankwarnung);
    if (warnung != gelesen.at(zeile_tankwarnung)) {
        warnung = warnung.substr(0, warnung.find(',')) + " ";
    }
    return zeilen;
}

/// The file's lines after it was written and read again.
std::vector<std::string> schreiben_und_lesen(werkbank& bank) {
    programm& p = bank.t.p;
    p.datei.einstellungen_speichern(wieder);
    fordern(!p.datei.fehler_laden(), "settings cannot be written");
    fordern(laden(p, wieder), "what the program has written it refuses");
    return p.datei.schreiben();
}

}  // namespace

bool einstellungen_lesen(werkbank& bank, std::string_view bytes) {
    programm& p = bank.t.p;
    bank.legen(datei, bytes);
    if (!laden(p, datei)) {
        return false;
    }
    werte_pruefen(p.einst);
    const std::vector<std::string> erste = p.datei.schreiben();
    const std::vector<std::string> zweite = schreiben_und_lesen(bank);
    gleiche_zeilen_fordern(nach_dem_lesen(erste, zweite), zweite);

    p.form1.vor_dem_speichern_pruefen();  // as the operator saves them
    const std::vector<std::string> berichtigt = p.datei.schreiben();
    if (berichtigt != erste) {
        gleiche_zeilen_fordern(berichtigt, schreiben_und_lesen(bank));
    }
    return true;
}

bool wettkampfdatei_lesen(werkbank& bank, std::string_view bytes) {
    einstellungsdatei& d = bank.t.p.datei;
    bank.legen(datei, bytes);
    d.einstellungsdatei_einlesen(datei, true);
    d.einstellungsdatei_pruefen();
    const bool angenommen = !d.fehler_laden();
    const einstellungs_zeilen zeilen = d.zeilen();
    const std::vector<std::string> rest = d.rest();

    const std::size_t ende = bytes.find('\n');
    bank.legen(wieder, ende == std::string_view::npos ? "" : bytes.substr(ende + 1));
    d.einstellungsdatei_einlesen(wieder);
    d.einstellungsdatei_pruefen();
    fordern(!d.fehler_laden() == angenommen && d.zeilen() == zeilen && d.rest() == rest,
            "the line in front makes another file of it");
    return angenommen;
}

}  // namespace tarvel::test
