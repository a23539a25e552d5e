#include "results/ergebniskorrektur.h"

namespace tarvel {
namespace {

ergebniseintrag eintrag_von(const fahrerzeile& fahrer, const trennzeichen_tabelle& trennzeichen) {
    const auto& [felder, spalten] = fahrer;
    ergebniseintrag eintrag;
    eintrag.klasse = spalten.klasse ? felder[*spalten.klasse] : std::string();
    eintrag.name = felder[spalten.name];
    for (std::size_t i = spalten.runden.ab; i < spalten.runden.ende(); ++i) {
        eintrag.runden.push_back(ergebnisrunden_lesen(felder[i]));
    }
    for (std::size_t i = spalten.meter.ab; i < spalten.meter.ende(); ++i) {
        eintrag.meter.push_back(ergebnismeter_lesen(felder[i], trennzeichen));
    }
    if (spalten.teile() > 0) {
        eintrag.beste.push_back(0);
    }
    for (std::size_t i = spalten.beste.ab; i < spalten.beste.ende(); ++i) {
        eintrag.beste.push_back(ergebniszeit_lesen(felder[i]));
    }
    eintrag.gesamtzeit = gesamtzeit_lesen(felder, spalten);
    return eintrag;
}

/// What the rows of the lane repeat.
void block_nachtragen(ergebniszeile& zeile, const ergebniseintrag& alt, const ergebniseintrag& neu,
                      const fahrerzeile& fahrer, const std::string& trenner) {
    const auto& [felder, spalten] = fahrer;
    if (neu.name != alt.name) {
        blockfeld_setzen(zeile.block, blockreihe::fahrer, 0, felder[spalten.name], trenner);
    }
    if (neu.runden != alt.runden) {
        blockfeld_setzen(zeile.block, blockreihe::rundenzahl, 1, felder[spalten.runden.ab], trenner);
    }
    if (neu.meter != alt.meter) {
        blockfeld_setzen(zeile.block, blockreihe::gesamtmeter, 1, felder[spalten.meter.ab], trenner);
    }
    if (neu.gesamtzeit != alt.gesamtzeit) {
        blockfeld_setzen(zeile.block, blockreihe::gesamtzeit, 1, felder[spalten.gesamtzeit], trenner);
    }
}

}  // namespace

std::optional<ergebniseintrag> eintrag_lesen(const ergebnistabelle& tabelle, std::size_t zeile) {
    if (zeile >= tabelle.zeilen.size() || !tabelle.zeilen[zeile].ergebnis) {
        return std::nullopt;
    }
    const auto fahrer = fahrerzeile_von(tabelle, tabelle.zeilen[zeile]);
    return fahrer ? std::optional(eintrag_von(*fahrer, tabelle.trennzeichen)) : std::nullopt;
}

void eintrag_schreiben(ergebnistabelle& tabelle, std::size_t nummer, const ergebniseintrag& neu) {
    const auto alt = eintrag_lesen(tabelle, nummer);
    if (!alt || *alt == neu) {
        return;
    }
    ergebniszeile& zeile = tabelle.zeilen[nummer];
    fahrerzeile fahrer = *fahrerzeile_von(tabelle, zeile);
    auto& [felder, spalten] = fahrer;
    const std::string& trenner = tabelle.trennzeichen[2];
    const auto je_feld = [&felder = felder](const feldbereich& bereich, const auto& vorher, const auto& nachher,
                                            const auto& schreiben) {
        const std::size_t versatz = vorher.size() - bereich.anzahl;
        for (std::size_t i = versatz; i < vorher.size() && i < nachher.size(); ++i) {
            if (vorher[i] != nachher[i]) {
                felder[bereich.ab + i - versatz] = schreiben(nachher[i]);
            }
        }
    };
    if (spalten.klasse && neu.klasse != alt->klasse) {
        felder[*spalten.klasse] = ohne_trenner(neu.klasse, trenner);
    }
    if (neu.name != alt->name) {
        felder[spalten.name] = ohne_trenner(neu.name, trenner);
    }
    const auto zeit = [&](zeit_ms dauer) { return ergebniszeit(dauer, tabelle.trennzeichen); };
    je_feld(spalten.runden, alt->runden, neu.runden, [&](auto n) { return runden_schreiben(tabelle.typ, n); });
    je_feld(spalten.meter, alt->meter, neu.meter, [&](double n) { return meter_schreiben(tabelle.typ, n); });
    je_feld(spalten.beste, alt->beste, neu.beste, zeit);
    if (neu.gesamtzeit != alt->gesamtzeit) {
        gesamtzeit_schreiben(felder, spalten, neu.gesamtzeit, tabelle.trennzeichen);
    }
    zeile.text = felder_verbinden(felder, trenner);
    block_nachtragen(zeile, *alt, neu, fahrer, trenner);
}

}  // namespace tarvel
