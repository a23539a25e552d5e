#include <algorithm>
#include <array>

#include "core/nebendateien.h"
#include "core/text.h"
#include "hardware/tastenbelegung.h"
#include "tests/fuzz/dateiarten.h"

namespace fs = std::filesystem;

namespace tarvel::test {
namespace {

bool liste_lesen(const werkbank& bank, const char* kopfwort, std::string_view datei) {
    using eintraege = std::vector<listeneintrag>;
    namensliste liste({kopfwort, "pictures", "nopic.jpg"});
    liste.eingebaut({"A"});
    if (!liste.laden(bank.eingang, datei)) {
        fordern(liste.eintraege() == eintraege{{"A", ""}}, "an unusable list leaves its names");
        return false;
    }
    eintraege gelesen = liste.eintraege();
    fordern(gelesen.size() <= namensliste::namen_max, "more names than rows");
    fordern(liste.speichern(bank.ausgang, datei), "list cannot be written");
    fordern(liste.laden(bank.ausgang, datei), "a list that the program has written it refuses");
    gelesen.erase(std::find_if(gelesen.begin(), gelesen.end(), [](const auto& e) { return e.name.empty(); }),
                  gelesen.end());
    fordern(liste.eintraege() == gelesen, "a list changes on the way through its file");
    return true;
}

std::array<std::string, 5> felder(const s6_start& start) {
    return {start.zustand, start.modus, start.einstell_datei, start.naechster_zustand, start.naechster_modus};
}

/// Most fields are written without quotes, and quotes in a field are changed, so not every text comes back.
bool kommt_zurueck(const std::string& text) {
    return text.find_first_of(",\"") == std::string::npos && gekuerzt(text) == text && laenge(text) + 2 <= zeile_max;
}

std::array<int, tastenbelegung::zeile_max + 1> codes(const tastenbelegung& belegung) {
    std::array<int, tastenbelegung::zeile_max + 1> werte{};
    std::generate(werte.begin(), werte.end(), [&, zeile = 0]() mutable { return belegung.taste(zeile++); });
    return werte;
}

}  // namespace

bool namensliste_lesen(werkbank& bank, const std::string& bytes) {
    bank.legen("namen.lst", bytes);
    const bool fahrer = liste_lesen(bank, "Fahrerliste:", "namen.lst");
    const bool fahrzeuge = liste_lesen(bank, "Fahrzeugliste:", "namen.lst");
    fordern(!fahrer || !fahrzeuge, "a list of drivers is no list of vehicles");
    return fahrer || fahrzeuge;
}

bool trennzeichen_lesen(werkbank& bank, const std::string& bytes) {
    const trennzeichen_tabelle vorher{"(", "€", ")"};
    trennzeichen_tabelle werte = vorher;
    bank.legen("trennzeichen.ini", bytes);
    if (!trennzeichen_laden(bank.eingang, werte)) {
        fordern(werte == vorher, "an unusable file changes the separators");
        return false;
    }
    for (const std::string& zeichen : werte) {
        const int code = ansi_code(zeichen).value_or(0);
        fordern(code >= ' ' || code == '\t', "a separator is one character that can be seen");
    }
    trennzeichen_tabelle zurueck = vorher;
    fordern(trennzeichen_speichern(bank.ausgang, werte), "separators cannot be written");
    fordern(trennzeichen_laden(bank.ausgang, zurueck) && zurueck == werte,
            "separators change on the way through their file");
    return true;
}

bool werbezeile_lesen(werkbank& bank, const std::string& bytes) {
    const std::string vorher = "\n";  // no file holds it
    std::string text = vorher;
    bank.legen("tvk.ini", bytes);
    tvk_ini_laden(bank.eingang, text);
    if (text == vorher) {
        return false;
    }
    fordern(!text.empty() && ist_eine_zeile(text), "advertising is one line");
    fordern(!text.starts_with('"'), "advertising keeps its quotes");
    fordern(von_1252(nach_1252(text)) == text, "advertising has characters that no file of the program holds");
    return true;
}

bool startdatei_lesen(werkbank& bank, const std::string& bytes) {
    bank.legen("tvk_s6.ini", bytes);
    const s6_start start = s6_laden(bank.eingang);
    fordern(!start.zustand.empty() && !start.einstell_datei.empty(), "a start without its state or its settings");
    const fs::path ort = bank.eingang.pfad(start.einstell_datei);
    fordern(ort.empty() || *ort.lexically_relative(bank.t.maschine.ordner()).begin() != "..",
            "the settings lie outside the program folder");
    fordern(s6_speichern(bank.ausgang, start), "start file cannot be written");
    const auto vorher = felder(start);
    fordern(std::none_of(vorher.begin(), vorher.end(), [](const auto& f) { return f.starts_with('"'); }),
            "a field keeps its quotes");
    fordern(!std::all_of(vorher.begin(), vorher.end(), kommt_zurueck) || felder(s6_laden(bank.ausgang)) == vorher,
            "a start changes on the way through its file");
    return start.zustand == "2";
}

bool tasten_lesen(werkbank& bank, const std::string& bytes) {
    tastenbelegung belegung;
    const auto vorher = codes(belegung);
    bank.legen("tvk_taste.ini", bytes);
    if (!belegung.tastenbelegung_laden(bank.eingang)) {
        fordern(codes(belegung) == vorher, "an unusable file changes the keys");
        return false;
    }
    for (const int code : codes(belegung)) {
        fordern(code >= 1 && code <= 255, "a key code that no key has");
    }
    tastenbelegung zurueck;
    fordern(belegung.tastenbelegung_speichern(bank.ausgang), "keys cannot be written");
    fordern(zurueck.tastenbelegung_laden(bank.ausgang) && codes(zurueck) == codes(belegung),
            "keys change on the way through their file");
    return true;
}

}  // namespace tarvel::test
