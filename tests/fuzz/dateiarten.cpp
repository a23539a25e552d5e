#include "tests/fuzz/dateiarten.h"

#include <algorithm>
#include <cstddef>

#include "core/text.h"
#include "hardware/tastenbelegung.h"

namespace tarvel::test {
namespace {

std::string als_bytes(const std::vector<std::string>& zeilen) {
    std::string bytes;
    for (const std::string& zeile : zeilen) {
        bytes += nach_1252(zeile) + "\r\n";
    }
    return bytes;
}

/// A file of an older version, which ends early and has the words of another language.
std::string alte_einstellungen(std::vector<std::string> zeilen) {
    constexpr std::ptrdiff_t ende = 306;
    zeilen.resize(ende);
    zeilen[0] = "Tarvel Version 1.82";
    std::replace(zeilen.begin(), zeilen.end(), std::string("Wahr"), std::string("True"));
    std::replace(zeilen.begin(), zeilen.end(), std::string("Falsch"), std::string("False"));
    zeilen.emplace_back("{EOF}");
    return als_bytes(zeilen);
}

std::string volle_liste(const std::string& kopf) {
    std::vector<std::string> zeilen{kopf};
    for (int nummer = 1; nummer <= 100; ++nummer) {
        zeilen.push_back("F" + std::to_string(nummer));
    }
    zeilen.emplace_back("{pic}");
    zeilen.insert(zeilen.end(), 100, "bild");
    zeilen.emplace_back("{ende}");
    return als_bytes(zeilen);
}

std::string alle_tasten(werkbank& bank) {
    tastenbelegung belegung;
    belegung.vorbelegen(belegung_stufe::alle);
    fordern(belegung.tastenbelegung_speichern(bank.ausgang), "keys cannot be written");
    return bank.t.maschine.datei_lesen("ausgang/tvk_taste.ini");
}

/// The German files of the main window and of the shared texts: fields in one, lines in the other.
std::vector<std::string> sprachdateien(werkbank& bank) {
    std::vector<std::string> bytes;
    for (const sprachliste& sprache : bank.t.p.sprachdateien()) {
        if (sprache.datei().ends_with("_m1.txt") || sprache.datei().ends_with("_m2.txt")) {
            bytes.push_back(als_bytes(sprache.deutsche_datei()));
        }
    }
    return bytes;
}

}  // namespace

std::vector<dateiart> dateiarten(werkbank& bank) {
    const std::vector<std::string> zeilen = bank.t.p.datei.schreiben();
    const std::string einstellungen = als_bytes(zeilen);
    return {
        {"einstellungen", {einstellungen, alte_einstellungen(zeilen)}, einstellungen_lesen},
        {"wettkampfdatei",
         {"Wettkampfdatei: Vereinsmeister\r\n" + einstellungen + "Teilnehmer\r\n 2 \r\n"},
         wettkampfdatei_lesen},
        {"namensliste",
         {"Fahrerliste:\r\nJ\xF6rg\r\nAnna\r\n{pic}\r\njoerg\r\n\r\n{ende}\r\n", volle_liste("Fahrerliste:"),
          bank.t.maschine.datei_lesen("Listen/fahrzeuge.kfz")},
         namensliste_lesen},
        {"trennzeichen", {" 58 \r\n 44 \r\n 59 \r\n", "183,46,124"}, trennzeichen_lesen},
        {"werbezeile", {"\"Bahn, Bier und Benzin\"\r\n", "Bahn und Bier\r\n"}, werbezeile_lesen},
        {"startdatei",
         {"2\r\n5\r\nEinstellungen\\einstellungen.ini\r\n0\r\n\r\n",
          "\"2\", 6 ,\"Einstellungen\\klub.ini\",\"0\",\"\"\r\n"},
         startdatei_lesen},
        {"tasten", {alle_tasten(bank)}, tasten_lesen},
        {"sprache", sprachdateien(bank), sprache_lesen},
    };
}

}  // namespace tarvel::test
