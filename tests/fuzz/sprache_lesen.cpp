#include "core/sprache.h"

#include <array>

#include "core/felder.h"
#include "tests/fuzz/dateiarten.h"

namespace tarvel::test {
namespace {

constexpr std::string_view unberuehrt = "\n";  // stands for a built-in text, and in no file

/// Reads the file into texts of its own. True if every text was there.
bool texte_lesen(werkbank& bank, std::string_view datei, sprachliste::form form) {
    constexpr std::size_t zeile_max = std::size_t{4000} * 3;  // in bytes of UTF-8
    std::array<std::string, 40> texte;
    sprachliste sprache(datei, form);
    for (std::string& text : texte) {
        sprache.text(unberuehrt, text);
    }
    sprache.anwenden(bank.eingang);
    bool zu_ende = false;
    for (const std::string& text : texte) {
        const bool deutsch = text == unberuehrt;
        fordern(deutsch || !zu_ende, "a text behind the end of its file");
        fordern(deutsch || text.find('\n') == std::string::npos, "a text of several lines");
        fordern(text.size() <= zeile_max, "a text longer than a line");
        zu_ende = deutsch;
    }
    return !zu_ende;
}

}  // namespace

bool sprache_lesen(werkbank& bank, std::string_view bytes) {
    const auto ordner = bank.ordner() / "language";
    std::filesystem::create_directories(ordner);
    bank.legen("language/language_m1.txt", bytes);
    bank.legen("language/language_m2.txt", bytes);
    const bool als_zeilen = texte_lesen(bank, "language/language_m1.txt", sprachliste::form::zeilen);
    const bool als_felder = texte_lesen(bank, "language/language_m2.txt", sprachliste::form::felder);
    fordern(als_felder || !als_zeilen, "a line is at least one field");

    programm& p = bank.t.p;
    p.txt.sprache_m1_laden(bank.eingang);
    p.form1.sprache_m2().anwenden(bank.eingang);
    p.form1.rennart_geaendert();
    std::filesystem::remove_all(ordner);
    p.txt.sprache_m1_laden(bank.eingang);
    p.form1.sprache_m2().anwenden(bank.eingang);
    fordern(p.txt.text_runden == "Runden" && p.form1.Command1.text() == "Einzelrennen",
            "without its file a text is not German");
    return als_felder;
}

}  // namespace tarvel::test
