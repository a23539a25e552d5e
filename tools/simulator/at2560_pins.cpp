#include "tools/simulator/at2560_pins.h"

#include <utility>
#include <vector>

namespace tarvel::simulator {
namespace {

using pins = at2560_pins;
const std::string nicht_belegt = "Snv";

std::string ereignis(int pin) {
    return "S" + std::to_string(pin);
}

/// The file as it grows, line by line.
struct befehlsdatei {
    std::string text;

    void zeile(const std::string& inhalt) { text += inhalt + "\r\n"; }
    void wert(const std::string& schluessel, const std::string& inhalt) {
        zeile("#" + schluessel);
        zeile(inhalt);
    }
    /// On and off.
    void schalter(const std::string& ueberschrift, const std::string& befehl) {
        zeile(ueberschrift);
        zeile(befehl + "1");
        zeile(befehl + "0");
    }
    void je_spur(const std::string& vor, const std::array<int, 6>& belegung) {
        for (std::size_t i = 0; i < belegung.size(); ++i) {
            wert(vor + std::to_string(i + 1), ereignis(belegung[i]));
        }
    }
};

/// The pins that have to report.
std::string is_befehl() {
    std::string text = "IS," + std::to_string(pins::chaos_gemeinsam);
    for (const auto* belegung :
         {&pins::ziel, &pins::tank_ein, &pins::tank_aus, &pins::sektor_1, &pins::sektor_2, &pins::chaos}) {
        for (const int pin : *belegung) {
            text += "." + std::to_string(pin);
        }
    }
    return text;
}

void befehle_schreiben(befehlsdatei& d) {
    d.zeile("##Befehlszeichen");
    d.wert("Zeichen zum Starten einer Befehlssequenz", ":");
    d.wert("Zeichen zum Trennen von Event und Wert", ".");
    d.wert("Zeichen zwischen Event und Timecode", ",");
    d.wert("Zeichen zum Beenden einer Befehlssequenz", ";");
    d.zeile("##allgemeine Befehle");
    d.wert("Hardwarereset", "R");
    d.wert("Seriennummer", "V");
    d.wert("Rennstart", "S");
    d.wert("aktuellen Timecode anfordern", "T");
    d.wert("IS Befehl", is_befehl());
    d.zeile("##Ausgabebefehle");
    for (const char lampe : {'1', '2', '3', '4', '5'}) {
        d.schalter(std::string("#Ampel rot ") + lampe, std::string("A") + lampe);
    }
    d.schalter("#Ampel gruen", "A6");
    d.schalter("#Ampel rot alle", "A0");
    d.schalter("##Signalausgabe bei Rennende", "E");
    d.schalter("##Ausgabe bei Chaos", "C");
    for (const char spur : {'1', '2', '3', '4', '5', '6'}) {
        d.schalter(std::string("#Bahnstrom ") + spur, std::string("P") + spur);
    }
    d.schalter("#Bahnstrom alle", "P0");
}

void ereignisse_schreiben(befehlsdatei& d) {
    d.je_spur("StartZiel Spur ", pins::ziel);
    for (std::size_t i = 0; i < pins::ziel.size(); ++i) {
        const std::string spur = "Tanksensor Spur " + std::to_string(i + 1);
        d.wert(spur + " ein", ereignis(pins::tank_ein.at(i)));
        d.wert(spur + " aus", ereignis(pins::tank_aus.at(i)));
    }
    for (std::size_t i = 0; i < pins::ziel.size(); ++i) {
        const std::string spur = "Zwischenzeit Spur " + std::to_string(i + 1);
        d.wert(spur + " Sensor 1", ereignis(pins::sektor_1.at(i)));
        d.wert(spur + " Sensor 2", ereignis(pins::sektor_2.at(i)));
    }
    d.wert("Chaos allgemein", ereignis(pins::chaos_gemeinsam));
    d.je_spur("Chaos Spur ", pins::chaos);
    for (const char sensor : {'1', '2', '3', '4', '5', '6', '7', '8'}) {
        d.wert(std::string("Soundsensor ") + sensor, nicht_belegt);
    }
}

}  // namespace

std::string at2560_profil() {
    befehlsdatei d;
    d.zeile("Tarvel UART Einstellungsdatei");
    d.zeile("");
    befehle_schreiben(d);
    ereignisse_schreiben(d);
    return d.text;
}

}  // namespace tarvel::simulator
