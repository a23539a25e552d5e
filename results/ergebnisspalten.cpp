#include "results/ergebnisspalten.h"

#include "core/spuren.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr ergebnisspalten einzelspalten{{}, {}, 0, {1, 1}, {2, 1}, {3, 1}, 4, 6};
constexpr ergebnisspalten tagesspalten{{}, 0, 1, {2, 1}, {3, 1}, {4, 1}, 5};
constexpr ergebnisspalten wettkampfspalten{0, {}, 1, {2, spuren_max + 1}, {9, spuren_max + 1}, {16, spuren_max}, 22};

/// Heats have their laps and then their best laps, as many of the one as of the other.
std::optional<ergebnisspalten> jeder_spalten(std::size_t felder) {
    constexpr std::size_t ohne_heats = 4;
    if (felder < ohne_heats || felder % 2 != 0) {
        return std::nullopt;
    }
    const std::size_t heats = (felder - ohne_heats) / 2;
    return ergebnisspalten{0, {}, 1, {2, heats + 1}, {}, {heats + 3, heats}, felder - 1};
}

}  // namespace

std::optional<ergebnisspalten> spalten_von(ergebnis_typ typ, std::size_t felder) {
    const auto ab = [felder](const ergebnisspalten& spalten) {
        return felder > spalten.gesamtzeit ? std::optional(spalten) : std::nullopt;
    };
    switch (typ) {
        case ergebnis_typ::einzelrennen:
            return ab(einzelspalten);
        case ergebnis_typ::tagesrennen:
            return ab(tagesspalten);
        case ergebnis_typ::wettkampf:
            return ab(wettkampfspalten);
        case ergebnis_typ::jeder_gegen_jeden:
            return jeder_spalten(felder);
        case ergebnis_typ::unbekannt:
            break;
    }
    return std::nullopt;
}

zeilenwerte werte_von(const ergebnisfelder& felder, const ergebnisspalten& spalten,
                      const trennzeichen_tabelle& trennzeichen) {
    zeilenwerte werte;
    werte.runden = ergebnisrunden_lesen(felder.at(spalten.runden.ab));
    if (spalten.meter.anzahl > 0) {
        werte.meter = ergebnismeter_lesen(felder.at(spalten.meter.ab), trennzeichen);
    }
    // who is out keeps his best lap in the file, but has none that counts
    for (std::size_t i = spalten.beste.ab; werte.runden > 0 && i < spalten.beste.ende(); ++i) {
        const zeit_ms beste = ergebniszeit_lesen(felder.at(i));
        if (beste > 0 && (werte.beste == 0 || beste < werte.beste)) {
            werte.beste = beste;
        }
    }
    werte.gesamtzeit = gesamtzeit_lesen(felder, spalten);
    return werte;
}

namespace {

zeit_ms rundensumme(const ergebnisfelder& felder, const ergebnisspalten& spalten) {
    zeit_ms summe = 0;
    for (std::size_t i = spalten.erste_runde.value_or(felder.size()); i < felder.size(); ++i) {
        summe += ergebniszeit_lesen(felder[i]);
    }
    return summe;
}

}  // namespace

zeit_ms gesamtzeit_lesen(const ergebnisfelder& felder, const ergebnisspalten& spalten) {
    const std::string& text = felder.at(spalten.gesamtzeit);
    const zeit_ms zeit = ergebniszeit_lesen(text);
    if (!spalten.erste_runde || nennt_stunden(text)) {
        return zeit;
    }
    return mit_stunden(zeit, rundensumme(felder, spalten));
}

dauer_s strafzeit_lesen(const ergebnisfelder& felder, const ergebnisspalten& spalten) {
    return spalten.erste_runde ? strafzeit_von(gesamtzeit_lesen(felder, spalten), rundensumme(felder, spalten))
                               : dauer_s(0);
}

void gesamtzeit_schreiben(ergebnisfelder& felder, const ergebnisspalten& spalten, zeit_ms zeit,
                          const trennzeichen_tabelle& trennzeichen) {
    std::string& text = felder.at(spalten.gesamtzeit);
    text = ergebniszeit(zeit, trennzeichen);
    if (gesamtzeit_lesen(felder, spalten) != zeit) {
        text.insert(0, "0" + trennzeichen[0]);  // less than its laps: no hour is missing
    }
}

std::string runden_schreiben(ergebnis_typ typ, std::int64_t runden) {
    if (typ == ergebnis_typ::wettkampf) {
        return std::to_string(runden);
    }
    constexpr std::size_t heat_breite = 3;  // with its blank, as long as that leaves every digit
    std::string text = zahl_mit_platz(runden);
    if (typ == ergebnis_typ::jeder_gegen_jeden && text.size() > heat_breite) {
        text.erase(0, 1);
    }
    return text;
}

std::string meter_schreiben(ergebnis_typ typ, double meter) {
    return typ == ergebnis_typ::wettkampf ? zahl_text(meter, '.') : zahl_fest(meter, '.');
}

}  // namespace tarvel
