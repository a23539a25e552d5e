#include "results/einzelrennen_datei.h"

#include <array>
#include <functional>
#include <utility>

#include "core/text.h"
#include "core/texte.h"
#include "results/ergebnisdatei.h"

namespace tarvel {
namespace {

/// One lane takes five fields of a line, so that a table program shows the lanes side by side.
using feldblock = std::array<std::string, 5>;

/// The class of a driver, or the one typed in front of his name, with its separator; class "0" if he has none.
std::pair<std::string, std::string> klasse_und_name(const rennergebnis::spur& s, const std::string& trenner) {
    const std::string& fahrer = s.fahrer;
    if (!s.klasse.empty()) {
        return {s.klasse + trenner, fahrer};
    }
    const std::string_view klasse = links(fahrer, 1);
    const std::string_view rest = std::string_view(fahrer).substr(klasse.size());
    if (trenner.empty() || klasse == trenner || !rest.starts_with(trenner)) {
        return {"0" + trenner, fahrer};
    }
    return {std::string(klasse) + trenner, std::string(rest.substr(trenner.size()))};
}

class schreiber {
public:
    schreiber(const rennergebnis& ergebnis, const ergebnis_worte& wort, const trennzeichen_tabelle& trennzeichen)
        : e_(ergebnis), wort_(wort), trennzeichen_(trennzeichen), trenner_(trennzeichen[2]) {}

    std::vector<std::string> zeilen() {
        kopf();
        direktvergleich();
        kennzahlen();
        aus_.emplace_back(";;");
        rundenzeiten();
        for (const std::string_view zeile : {std::string_view(), programm_name, magie_einzelrennen, web_adresse}) {
            aus_.emplace_back(zeile);
        }
        return std::move(aus_);
    }

private:
    using spur = rennergebnis::spur;

    std::string zeit(zeit_ms dauer) const { return zeit_formatieren(dauer, true, trennzeichen_); }

    std::string name(const std::string& text) const { return ohne_trenner(text, trenner_); }

    void block_zeile(const std::function<feldblock(const spur&)>& block) {
        std::string zeile;
        for (const spur& s : e_.spuren) {
            for (const std::string& feld : block(s)) {
                zeile += feld + trenner_;
            }
        }
        aus_.push_back(std::move(zeile));
    }

    void kopf() {
        aus_.push_back(wort_.rennergebnis + trenner_ + e_.datum + trenner_ + e_.uhrzeit);
        aus_.push_back(e_.tanken ? wort_.tanken_aktiv : "");
        aus_.insert(aus_.end(), {"", wort_.direktvergleich, ""});
    }

    void direktvergleich() {
        for (const spur& s : e_.spuren) {
            std::string zeile = name(s.fahrer);
            for (const std::string& feld :
                 {zahl_mit_platz(s.rundenzahl()), zahl_fest(s.meter, '.'), zeit(s.beste), zeit(s.gesamtzeit)}) {
                zeile += trenner_ + feld;
            }
            zeile += trenner_;
            for (const rennergebnis::runde& runde : s.runden) {
                zeile += zeit(runde.zeit) + trenner_;
            }
            aus_.push_back(std::move(zeile));
        }
        aus_.insert(aus_.end(), {"", ""});
    }

    void kennzahlen() {
        const auto paar = [](std::string erstes, std::string zweites) {
            return feldblock{std::move(erstes), std::move(zweites)};
        };
        block_zeile([&](const spur& s) { return feldblock{wort_.spur + " " + std::to_string(s.nummer)}; });
        block_zeile([&](const spur& s) { return feldblock{name(s.fahrer)}; });
        block_zeile([&](const spur& s) { return feldblock{name(s.fahrzeug)}; });
        block_zeile([&](const spur& s) {
            return paar(wort_.rundenzahl, s.disqualifiziert ? wort_.disqualifiziert : zahl_mit_platz(s.rundenzahl()));
        });
        block_zeile([&](const spur& s) { return paar(wort_.spurlaenge, name(s.laenge)); });
        block_zeile([&](const spur& s) {
            const auto& laenge = s.sektorlaenge;
            return feldblock{wort_.sektorlaenge, name(laenge[0]), name(laenge[1]), name(laenge[2])};
        });
        block_zeile([&](const spur& s) { return paar(wort_.restmeter, zahl_text(s.restmeter, '.')); });
        block_zeile([&](const spur& s) { return paar(wort_.gesamtmeter, zahl_fest(s.meter, '.')); });
        block_zeile([&](const spur& s) { return paar(wort_.gesamtzeit, zeit(s.gesamtzeit)); });
    }

    void rundenzeiten() {
        for (int runde = 0; runde < e_.rundenzeilen; ++runde) {
            block_zeile([&](const spur& s) { return rundenblock(s, static_cast<std::size_t>(runde)); });
        }
    }

    feldblock rundenblock(const spur& s, std::size_t runde) const {
        feldblock block;
        if (runde >= s.runden.size()) {
            return block;
        }
        block[0] = zeit(s.runden[runde].zeit);
        for (std::size_t i = 0; i < s.runden[runde].sektoren.size(); ++i) {
            if (const zeit_ms dauer = s.runden[runde].sektoren.at(i); dauer != 0) {
                block.at(i + 1) = zeit(dauer);
            }
        }
        return block;
    }

    const rennergebnis& e_;
    const ergebnis_worte& wort_;
    const trennzeichen_tabelle& trennzeichen_;
    std::string trenner_;
    std::vector<std::string> aus_;
};

}  // namespace

std::vector<std::string> einzelrennen_zeilen(const rennergebnis& ergebnis, const ergebnis_worte& wort,
                                             const trennzeichen_tabelle& trennzeichen) {
    return schreiber(ergebnis, wort, trennzeichen).zeilen();
}

std::vector<std::string> tages_zeilen(const rennergebnis& ergebnis, const trennzeichen_tabelle& trennzeichen) {
    std::vector<std::string> zeilen;
    for (const rennergebnis::spur& s : ergebnis.spuren) {
        const auto [klasse, name] = klasse_und_name(s, trennzeichen[2]);
        std::string zeile = klasse + ohne_trenner(name, trennzeichen[2]);
        for (const std::string& feld :
             {zahl_mit_platz(s.rundenzahl()), zahl_fest(s.meter, '.'), zeit_formatieren(s.beste, true, trennzeichen),
              zeit_formatieren(s.gesamtzeit, true, trennzeichen)}) {
            zeile += trennzeichen[2] + feld;
        }
        zeilen.push_back(std::move(zeile));
    }
    return zeilen;
}

}  // namespace tarvel
