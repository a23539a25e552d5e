#include "tools/fensterbilder/buehne.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "hardware/ereignisse.h"

namespace tarvel {
namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, spuren_max> namen{"Anna",         "Ben Olsen",    "Carl-Friedrich von Gauß",
                                                    "Dora Schmidt", "Emil Lindner", "Frieda"};

/// The program once its files are there: some windows read them when they are made.
programm& mit_daten(test::testprogramm& t) {
    const fs::path daten = TARVEL_QUELLEN "/data";
    fs::copy(daten, t.maschine.ordner(), fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    return t.p;
}

/// Always the same, but without a pattern that the eye finds.
zeit_ms streuung(int spur, int runde) {
    const auto wirr = static_cast<unsigned>(spur * 7919 + runde * 104729) * 2654435761U;
    return (wirr >> 20U) % 380;
}

}  // namespace

buehne::buehne(const erscheinung& wie) : p(mit_daten(t)) {
    t.erscheinen(wie);
    klub_anmelden();
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
    p.fenster.zeigen(fenstername::Form1);
}

/// The club's drivers look like those of a fresh installation.
void buehne::klub_anmelden() {
    for (const int spur : alle_spuren) {
        const std::string bild = std::string("pictures/") + namen.at(feld_index(spur)) + ".jpg";
        p.ablage.kopieren("pictures/Fahrer " + std::to_string(spur) + ".jpg", bild);
    }
    p.fahrerliste.eingebaut({namen.begin(), namen.end()});
    p.fahrerliste.laden(p.ablage, "keine Datei");  // so that these names are its rows
    p.fahrerliste.bilder_uebernehmen(p.ablage, "nopic");
    p.fahrzeugliste.bilder_uebernehmen(p.ablage, "");
    p.form1.listen_zeigen();
}

void buehne::einrichten(const char* rennart, const char* dauer, std::initializer_list<int> spuren) {
    t.einrichten(rennart, dauer, spuren);
    aktiv_ = spuren;
}

void buehne::fahren(zeit_ms dauer) {
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
        sensor_treffen(spur);
    }
    t.maschine.laufen(std::max<zeit_ms>(ende - t.maschine.jetzt(), 1));
}

void buehne::sensor_treffen(int spur) {
    constexpr std::array<double, 3> anteil{0.28, 0.38,
                                           0.34};  // of a lap, behind the line and behind each sector sensor
    const int sensor = std::exchange(sensor_[spur], p.einst.sektor_an[0] ? (sensor_[spur] + 1) % 3 : 0);
    const zeit_ms bis_dahin = naechste_[spur] - t.maschine.jetzt();
    if (sensor == 0) {
        t.runde_nach(bis_dahin, std::to_string(spur));
    } else {
        t.maschine.laufen(bis_dahin);
        p.ereignisse.ereignis_melden(erste_zwischenzeit + 2 * (spur - 1) + sensor - 1);
    }
    const int runde = t.runden(spur);
    const zeit_ms rundenzeit = 6950 + 45 * spur + streuung(spur, runde) + (runde == 8 && spur == 3 ? 9000 : 0);
    naechste_[spur] +=
        p.einst.sektor_an[0]
            ? static_cast<zeit_ms>(anteil.at(static_cast<std::size_t>(sensor)) * static_cast<double>(rundenzeit))
            : rundenzeit;
}

void buehne::rennen(zeit_ms gefahren, std::initializer_list<int> spuren) {
    einrichten("Zeit", "5", spuren);
    t.bahn().Command1.klicken();
    fahren(gefahren);
}

void buehne::rundenrennen(zeit_ms gefahren, const char* runden, std::initializer_list<int> spuren) {
    einrichten("Runden", runden, spuren);
    t.bahn().Command1.klicken();
    fahren(gefahren);
}

void buehne::control_unit_anschliessen() {
    constexpr int com = 7;
    t.maschine.anschluesse.da = {com};
    p.einst.hardware = {};
    p.einst.hardware.hw_cu = true;
    p.einst.cu.anschluss.cu_modus = com;
    p.einst.cu.cu_sondermodus = false;
    t.maschine.anschluesse.geraet = [this](int nummer, std::string_view /*bytes*/) {
        const bool steht = p.rennen.zustand.chaos_aktiv;
        t.maschine.anschluesse.senden(nummer, steht ? "?:77777700100000000$" : "?:77777700000000000$");
    };
    p.geraete.hardware_starten(false);
}

}  // namespace tarvel
