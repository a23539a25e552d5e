#include <algorithm>
#include <string>

#include "results/ergebnisansicht.h"
#include "results/ergebniskorrektur.h"
#include "results/ergebnissortierung.h"
#include "results/fahrer_addieren.h"
#include "results/fahrervergleich.h"
#include "tests/fuzz/dateiarten.h"

namespace tarvel::test {
namespace {

constexpr const char* tabellendatei = "betrachtet.csv";

std::optional<ergebnistabelle> gelesen(const dateien& ablage, const trennzeichen_tabelle& trennzeichen) {
    return ergebnistabelle_lesen(
        ablage.zeilen_lesen(tabellendatei, 1000000, 200000).value_or(std::vector<std::string>{}), trennzeichen);
}

/// All that the window does with it.
void ansehen(const ergebnistabelle& tabelle) {
    const auto ansicht = ergebnisansicht_bilden(tabelle, {}, {true, true, true, {}});
    for (const ergebnisansicht::zeile& zeile : ansicht.zeilen) {
        fordern(!zeile.ergebnis || eintrag_lesen(tabelle, *zeile.ergebnis).has_value(), "a driver who is none");
    }
    for (const fahrerstreuung& s : fahrervergleich(tabelle)) {
        fordern(s.beste > 0 && s.beste <= s.viertel && s.viertel <= s.median && s.median <= s.dreiviertel &&
                    s.beste <= s.laengste_uebliche,
                "times of a driver out of order");
    }
    for (std::size_t rennen = 0; rennen < std::min<std::size_t>(tabelle.rennen.size(), 3); ++rennen) {
        rennen_von(tabelle, rennen, sortier_modus::meter);
    }
}

void speichern_und_lesen(const werkbank& bank, const ergebnistabelle& tabelle) {
    const auto zeilen = tabelle.alle_zeilen();
    fordern(zeilen.size() == tabelle.umfang() && zeilen.size() <= ergebnistabelle::zeilen_max,
            "more lines than there is room for");
    fordern(bank.ausgang.zeilen_schreiben(tabellendatei, zeilen), "a table cannot be written");
    const auto wieder = gelesen(bank.ausgang, tabelle.trennzeichen);
    fordern(wieder && wieder->typ == tabelle.typ && wieder->alle_zeilen() == zeilen,
            "a table changes on the way through its file");
}

bool mit_trennzeichen_betrachten(werkbank& bank, const trennzeichen_tabelle& trennzeichen) {
    auto tabelle = gelesen(bank.eingang, trennzeichen);
    if (!tabelle) {
        return false;
    }
    ansehen(*tabelle);
    speichern_und_lesen(bank, *tabelle);
    const auto vorher = tabelle->alle_zeilen();
    for (std::size_t i = 0; i < tabelle->zeilen.size(); ++i) {
        if (const auto eintrag = eintrag_lesen(*tabelle, i)) {
            eintrag_schreiben(*tabelle, i, *eintrag);
        }
    }
    fordern(tabelle->alle_zeilen() == vorher, "a correction of nothing changes a line");
    hinzufuegen(*tabelle, ergebnistabelle(*tabelle));
    for (const auto nach : {sortier_modus::meter, sortier_modus::runden, sortier_modus::beste}) {
        sortieren(*tabelle, nach);
        const auto sortiert = tabelle->alle_zeilen();
        sortieren(*tabelle, nach);
        fordern(tabelle->alle_zeilen() == sortiert, "what is in order is put into another one");
    }
    speichern_und_lesen(bank, *tabelle);
    gleiche_fahrer_addieren(*tabelle, true);
    ansehen(*tabelle);
    speichern_und_lesen(bank, *tabelle);
    return true;
}

}  // namespace

bool tabelle_betrachten(werkbank& bank, const std::string& bytes) {
    const std::vector<trennzeichen_tabelle> andere{{":", ".", ","}, {".", "'", "|"}, {":", ".", "\t"}, {"", "", ""}};
    bank.legen(tabellendatei, bytes);
    mit_trennzeichen_betrachten(bank, andere[bytes.size() % andere.size()]);
    return mit_trennzeichen_betrachten(bank, trennzeichen_standard);
}

}  // namespace tarvel::test
