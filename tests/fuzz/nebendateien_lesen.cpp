#include "core/nebendateien.h"

#include <algorithm>
#include <array>

#include "core/text.h"
#include "hardware/tastenbelegung.h"
#include "tests/fuzz/dateiarten.h"

namespace tarvel::test {
namespace {

/// Most fields are written without quotes, and quotes in a field are changed, so not every text comes back.
bool kommt_zurueck(const std::string& text) {
    constexpr std::size_t mit_zitat_max = 3998;  // of the bytes of a line
    return text.find_first_of(",\"") == std::string::npos && gekuerzt(text) == text && laenge(text) <= mit_zitat_max;
}

std::array<std::string, 5> felder(const s6_start& start) {
    return {start.zustand, start.modus, start.einstell_datei, start.naechster_zustand, start.naechster_modus};
}

std::array<int, tastenbelegung::zeile_max + 1> codes(const tastenbelegung& belegung) {
    std::array<int, tastenbelegung::zeile_max + 1> werte{};
    for (std::size_t zeile = 0; zeile < werte.size(); ++zeile) {
        werte.at(zeile) = belegung.taste(static_cast<int>(zeile));
    }
    return werte;
}

}  // namespace

bool trennzeichen_lesen(werkbank& bank, std::string_view bytes) {
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

bool werbezeile_lesen(werkbank& bank, std::string_view bytes) {
    constexpr std::size_t zeile_max = 4000;
    const std::string vorher = "\n";  // no file holds it
    std::string text = vorher;
    bank.legen("tvk.ini", bytes);
    tvk_ini_laden(bank.eingang, text);
    if (text == vorher) {
        return false;
    }
    fordern(!text.empty() && laenge(text) <= zeile_max, "advertising is one line");
    fordern(!text.starts_with('"'), "advertising keeps its quotes");
    fordern(text.find('\n') == std::string::npos, "advertising has a line end in it");
    fordern(von_1252(nach_1252(text)) == text, "advertising has characters that no file of the program holds");
    return true;
}

bool startdatei_lesen(werkbank& bank, std::string_view bytes) {
    bank.legen("tvk_s6.ini", bytes);
    const s6_start start = s6_laden(bank.eingang);
    fordern(!start.zustand.empty() && !start.einstell_datei.empty(), "a start without its state or its settings");
    const std::filesystem::path ort = bank.eingang.pfad(start.einstell_datei);
    fordern(ort.empty() || *ort.lexically_relative(bank.ordner()).begin() != "..",
            "the settings lie outside the program folder");
    fordern(s6_speichern(bank.ausgang, start), "start file cannot be written");
    const std::array<std::string, 5> vorher = felder(start);
    const bool zitat = std::any_of(vorher.begin(), vorher.end(), [](const auto& f) { return f.starts_with('"'); });
    fordern(!zitat, "a field keeps its quotes");
    fordern(!std::all_of(vorher.begin(), vorher.end(), kommt_zurueck) || felder(s6_laden(bank.ausgang)) == vorher,
            "a start changes on the way through its file");
    return start.zustand == "2";
}

bool tasten_lesen(werkbank& bank, std::string_view bytes) {
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
