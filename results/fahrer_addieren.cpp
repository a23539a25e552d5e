#include "results/fahrer_addieren.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "race/rundenspeicher.h"

namespace tarvel {
namespace {

constexpr std::size_t erste_rundenzeit = 5;  // of a single race's line: the way to the first crossing

/// The lap times of a line and what is behind them: the nothing after the last separator.
std::size_t rundenzeiten(const ergebnisfelder& felder) {
    const bool mit_ende = felder.size() > erste_rundenzeit && felder.back().empty();
    return felder.size() - std::min(felder.size(), erste_rundenzeit) - (mit_ende ? 1 : 0);
}

class addierer {
public:
    explicit addierer(const ergebnistabelle& tabelle)
        : typ_(tabelle.typ), trennzeichen_(tabelle.trennzeichen), trenner_(tabelle.trennzeichen[2]) {}

    /// Whether every lap had room.
    bool addieren(fahrerzeile& a, rennblock& block, const fahrerzeile& b, const rennblock& block_b) const {
        bool alle = true;
        const zeit_ms gesamtzeit = gesamtzeit_lesen(a.felder, a.spalten) + gesamtzeit_lesen(b.felder, b.spalten);
        werte_addieren(a, b);
        if (typ_ == ergebnis_typ::einzelrennen) {
            block_addieren(block, rundenzeiten(a.felder), block_b, rundenzeiten(b.felder));
            alle = runden_anhaengen(a.felder, b.felder);
        }
        gesamtzeit_schreiben(a.felder, a.spalten, gesamtzeit, trennzeichen_);
        blockfeld_setzen(block, blockreihe::gesamtzeit, 1, a.felder[a.spalten.gesamtzeit], trenner_);
        return alle;
    }

private:
    void werte_addieren(fahrerzeile& a, const fahrerzeile& b) const {
        const auto je_feld = [&](const feldbereich& bereich, const auto& summe) {
            for (std::size_t i = bereich.ab; i < bereich.ende(); ++i) {
                a.felder[i] = summe(a.felder[i], b.felder[i]);
            }
        };
        const bool ohne_runde_a = ergebnisrunden_lesen(a.felder[a.spalten.runden.ab]) == 0;
        const bool ohne_runde_b = ergebnisrunden_lesen(b.felder[b.spalten.runden.ab]) == 0;
        je_feld(a.spalten.runden, [this](const auto& x, const auto& y) { return runden(x, y); });
        je_feld(a.spalten.meter, [this](const auto& x, const auto& y) { return meter(x, y); });
        je_feld(a.spalten.beste, [=](const auto& x, const auto& y) {
            return ohne_runde_a == ohne_runde_b ? schnellere(x, y) : ohne_runde_a ? y : x;
        });
    }

    std::string runden(const std::string& x, const std::string& y) const {
        return runden_schreiben(typ_, ergebnisrunden_lesen(x) + ergebnisrunden_lesen(y));
    }
    std::string meter(const std::string& x, const std::string& y) const {
        return meter_schreiben(typ_, ergebnismeter_lesen(x, trennzeichen_) + ergebnismeter_lesen(y, trennzeichen_));
    }
    static std::string schnellere(const std::string& x, const std::string& y) {
        const zeit_ms eine = ergebniszeit_lesen(x);
        const zeit_ms andere = ergebniszeit_lesen(y);
        return andere > 0 && (eine == 0 || andere < eine) ? y : x;
    }

    /// Whether all of them had room.
    static bool runden_anhaengen(ergebnisfelder& a, const ergebnisfelder& b) {
        const std::size_t vorhanden = rundenzeiten(a);
        const std::size_t ab = erste_rundenzeit + (vorhanden > 0 ? 1 : 0);
        a.resize(erste_rundenzeit + vorhanden);
        const std::size_t ende = erste_rundenzeit + rundenzeiten(b);
        std::size_t i = ab;
        for (; i < ende && a.size() <= erste_rundenzeit + static_cast<std::size_t>(runden_max); ++i) {
            a.push_back(b[i]);
        }
        a.emplace_back();
        return i >= ende;
    }

    void block_addieren(rennblock& a, std::size_t reihen_a, const rennblock& b, std::size_t reihen_b) const {
        const auto feld = [&](blockreihe reihe, const auto& summe) {
            const std::string neu = summe(blockfeld(a, reihe, 1, trenner_), blockfeld(b, reihe, 1, trenner_));
            blockfeld_setzen(a, reihe, 1, neu, trenner_);
        };
        feld(blockreihe::rundenzahl, [this](const auto& x, const auto& y) { return rundenzahl(x, y); });
        feld(blockreihe::restmeter, [this](const auto& x, const auto& y) { return meter(x, y); });
        feld(blockreihe::gesamtmeter, [this](const auto& x, const auto& y) { return meter(x, y); });
        a.resize(kennzahlen_anzahl + reihen_a, leerer_block(trenner_));
        for (std::size_t i = reihen_a > 0 ? 1 : 0; i < reihen_b && a.size() <= kennzahlen_anzahl + runden_max; ++i) {
            a.push_back(kennzahlen_anzahl + i < b.size() ? b[kennzahlen_anzahl + i] : leerer_block(trenner_));
        }
    }

    /// Who is out in one race has the laps of the other.
    std::string rundenzahl(const std::string& x, const std::string& y) const {
        const auto ist_zahl = [](const std::string& text) {
            return text.find_first_of("0123456789") != std::string::npos;
        };
        return ist_zahl(x) || ist_zahl(y) ? runden(x, y) : x;
    }

    ergebnis_typ typ_;
    const trennzeichen_tabelle& trennzeichen_;
    const std::string& trenner_;
};

/// Laps that do not fit into the file any more keep their times in the driver's line.
void auf_umfang_kuerzen(ergebnistabelle& tabelle) {
    const std::size_t umfang = tabelle.umfang();
    std::size_t laengster = kennzahlen_anzahl;
    for (const ergebniszeile& zeile : tabelle.zeilen) {
        laengster = std::max(laengster, zeile.block.size());
    }
    const std::size_t zu_viele = umfang - std::min(umfang, ergebnistabelle::zeilen_max);
    tabelle.gekuerzt = tabelle.gekuerzt || zu_viele > 0;
    for (ergebniszeile& zeile : tabelle.zeilen) {
        zeile.block.resize(std::min(zeile.block.size(), laengster - std::min(zu_viele, laengster)));
    }
}

}  // namespace

void gleiche_fahrer_addieren(ergebnistabelle& tabelle, bool mit_klasse) {
    struct summe {
        ergebniszeile zeile;
        std::optional<fahrerzeile> fahrer;
        bool geaendert = false;
    };
    std::vector<summe> summen;
    std::map<std::tuple<std::string, std::string, std::size_t>, std::size_t> erste;
    const addierer rechner(tabelle);
    for (ergebniszeile& zeile : tabelle.zeilen) {
        auto fahrer = zeile.ergebnis ? fahrerzeile_von(tabelle, zeile) : std::nullopt;
        if (fahrer) {
            const auto& [felder, spalten] = *fahrer;
            const std::string klasse = mit_klasse && spalten.klasse ? felder[*spalten.klasse] : std::string();
            const std::size_t breite = tabelle.typ == ergebnis_typ::jeder_gegen_jeden ? felder.size() : 0;
            const auto [stelle, neu] = erste.try_emplace({felder[spalten.name], klasse, breite}, summen.size());
            if (!neu) {
                summe& ziel = summen[stelle->second];
                const bool alle = rechner.addieren(*ziel.fahrer, ziel.zeile.block, *fahrer, zeile.block);
                tabelle.gekuerzt = tabelle.gekuerzt || !alle;
                ziel.geaendert = true;
                continue;
            }
        }
        summen.push_back({std::move(zeile), std::move(fahrer), false});
    }
    tabelle.zeilen.clear();
    for (summe& eine : summen) {
        if (eine.geaendert) {
            eine.zeile.text = felder_verbinden(eine.fahrer->felder, tabelle.trennzeichen[2]);
            tabelle.addiert = true;
        }
        tabelle.zeilen.push_back(std::move(eine.zeile));
    }
    if (tabelle.typ == ergebnis_typ::einzelrennen) {
        auf_umfang_kuerzen(tabelle);
    }
}

}  // namespace tarvel
