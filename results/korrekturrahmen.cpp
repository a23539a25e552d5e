#include "results/korrekturrahmen.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr int name_laenge_max = 60;
constexpr int zahl_laenge_max = 12;

bool sind_ziffern(std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Digits, and one decimal mark.
bool ist_meterzahl(std::string_view text) {
    const bool zeichen = text.find_first_not_of("0123456789.,") == std::string_view::npos;
    return zeichen && !text.empty() &&
           std::count_if(text.begin(), text.end(), [](char c) { return c > '9' || c < '0'; }) <= 1 &&
           text.find_first_of("0123456789") != std::string_view::npos;
}

/// Where the thousandths are set off, by the program's mark or a usual one; none without a mark.
std::optional<std::pair<std::string, std::string>> am_komma(const std::string& text,
                                                            const trennzeichen_tabelle& trennzeichen) {
    for (const std::string& komma : {trennzeichen[1], std::string(","), std::string(".")}) {
        const std::size_t stelle = komma.empty() ? std::string::npos : text.rfind(komma);
        if (stelle != std::string::npos && (komma != trennzeichen[0] || komma == trennzeichen[1])) {
            return std::pair(text.substr(0, stelle), text.substr(stelle + komma.size()));
        }
    }
    return std::nullopt;
}

/// As a person types it: [hours:][minutes:]seconds, and up to three decimals: "8,5" are eight seconds and a half. No
/// text is no time; none for anything else.
std::optional<zeit_ms> getippte_zeit(const std::string& text, const trennzeichen_tabelle& trennzeichen) {
    constexpr std::size_t stellen = 3;
    if (text.empty()) {
        return 0;
    }
    auto [vorne, hinten] = am_komma(text, trennzeichen).value_or(std::pair(text, std::string("0")));
    const std::string doppelpunkt = vorne.find(':') != std::string::npos ? std::string(":") : trennzeichen[0];
    const auto teile = felder_teilen(vorne, doppelpunkt);
    if (hinten.empty() || hinten.size() > stellen || !sind_ziffern(hinten) || teile.size() > 3) {
        return std::nullopt;
    }
    zeit_ms sekunden = 0;
    for (std::size_t i = 0; i < teile.size(); ++i) {
        const bool stunden = teile.size() - i == 3;
        const zeit_ms zahl = ganzzahl_lesen(teile[i], 0, 9999);
        if (teile[i].empty() || !sind_ziffern(teile[i]) || teile[i].size() > (stunden ? 4 : 2) ||
            (!stunden && zahl > 59)) {
            return std::nullopt;
        }
        sekunden = sekunden * 60 + zahl;
    }
    hinten.append(stellen - hinten.size(), '0');
    return sekunden * 1000 + ganzzahl_lesen(hinten, 0, 999);
}

std::vector<std::string> alle_klassen(const std::string& bisher) {
    std::vector<std::string> klassen;
    for (const auto& [von, bis] : {std::pair{'A', 'Z'}, {'1', '9'}, {'0', '0'}}) {
        for (char klasse = von; klasse <= bis; ++klasse) {
            klassen.emplace_back(1, klasse);
        }
    }
    if (std::find(klassen.begin(), klassen.end(), bisher) == klassen.end()) {
        klassen.push_back(bisher);
    }
    return klassen;
}

}  // namespace

korrekturrahmen::korrekturrahmen(const renneinrichtung& einrichtung) : einrichtung_(einrichtung) {
    Frame2.sichtbar(false);
    Text2.laenge_max(name_laenge_max);
    for (std::size_t i = 0; i < teile_max; ++i) {
        aus_runden.at(i).laenge_max(zahl_laenge_max);
        aus_beste.at(i).laenge_max(zahl_laenge_max);
        if (i > 0) {
            aus_runden.at(i).bei_aenderung = [this] { summe_bilden(0); };
        }
    }
    for (std::size_t i = 0; i < aus_meter.size(); ++i) {
        aus_meter.at(i).laenge_max(zahl_laenge_max);
        if (i > 0) {
            aus_meter.at(i).bei_aenderung = [this] { summe_bilden(1); };
        }
    }
    for (feld* teil : {&w_aus_min, &w_aus_sec}) {
        teil->laenge_max(2);
    }
    w_aus_std.laenge_max(4);
    w_aus_hun.laenge_max(3);
    meter_berechnen.bei_klick = [this] { meter_neu_berechnen(); };
}

void korrekturrahmen::sprache(sprachliste& texte) {
    texte.text("Rundenkorrektur", Frame2).text("Name", Label_name).text("Klasse", lbl_klasse);
    const auto spalte = [&texte](std::string_view deutsch, bezeichnung& titel, auto& felder) {
        texte.text(deutsch, [&titel, &felder](const std::string& neu) {
            titel.text(neu);
            for (feld& eines : felder) {
                eines.ansage(neu);
            }
        });
    };
    spalte("Runden", Label_runden, aus_runden);
    spalte("Meter", Label_meter, aus_meter);
    spalte("beste Runde", Label_beste, aus_beste);
    texte.text("Gesamtzeit", Label_zeit).text("Meter neu berechnen", meter_berechnen);
    texte.text("Änderung eintragen", Command14).text("abbrechen", Command15);
    texte.text("gesamt", wort_.gesamt).text("Spur", wort_.spur).text("Heat", wort_.heat);
    const std::array<std::string_view, 4> einheiten{"Std", "Min", "Sek", "Tausendstel"};
    const std::array<feld*, 4> felder{&w_aus_std, &w_aus_min, &w_aus_sec, &w_aus_hun};
    for (std::size_t i = 0; i < einheiten.size(); ++i) {
        texte.text(einheiten.at(i), [this, i, ziel = felder.at(i)](const std::string& neu) {
            Label_einheit.at(i).text(neu);
            ziel->ansage(Label_zeit.text() + ", " + neu);
        });
    }
    texte.tipp("Runden mal Länge der Spur", meter_berechnen);
}

bool korrekturrahmen::oeffnen(const ergebnistabelle& tabelle, std::size_t zeile) {
    const auto eintrag = eintrag_lesen(tabelle, zeile);
    if (!eintrag) {
        return false;
    }
    alt_ = *eintrag;
    zeile_ = zeile;
    trennzeichen_ = tabelle.trennzeichen;
    fuellen(tabelle);
    laengen_suchen(tabelle);
    Frame2.sichtbar(true);
    Text2.fokus_setzen();
    return true;
}

void korrekturrahmen::schliessen() {
    Frame2.sichtbar(false);
}

void korrekturrahmen::fuellen(const ergebnistabelle& tabelle) {
    const auto fahrer = fahrerzeile_von(tabelle, tabelle.zeilen[zeile_]);
    Text2.text(alt_.name);
    const bool klassen = fahrer->spalten.klasse.has_value();
    lbl_klasse.sichtbar(klassen);
    cbo_klasse.sichtbar(klassen);
    cbo_klasse.eintraege(alle_klassen(alt_.klasse));
    cbo_klasse.text(alt_.klasse);
    teile_zeigen(fahrer->spalten, tabelle.typ == ergebnis_typ::jeder_gegen_jeden);
    const auto setzen = [](feld& ziel, std::string& merken, const std::string& text) {
        ziel.text(text);
        merken = text;
    };
    for (std::size_t i = 0; i < std::min(alt_.runden.size(), teile_max); ++i) {
        setzen(aus_runden.at(i), runden_texte_.at(i), std::to_string(alt_.runden[i]));
    }
    for (std::size_t i = 0; i < alt_.meter.size(); ++i) {
        setzen(aus_meter.at(i), meter_texte_.at(i), zahl_text(alt_.meter[i], ','));
    }
    for (std::size_t i = 0; i < std::min(alt_.beste.size(), teile_max); ++i) {
        setzen(aus_beste.at(i), beste_texte_.at(i), ergebniszeit(alt_.beste[i], trennzeichen_));
    }
    const zeit_teile zeit = zeit_zerlegen(alt_.gesamtzeit);
    setzen(w_aus_std, zeit_texte_[0], zeit.stunden < 100 ? ziffern(zeit.stunden, 2) : std::to_string(zeit.stunden));
    setzen(w_aus_min, zeit_texte_[1], ziffern(zeit.minuten, 2));
    setzen(w_aus_sec, zeit_texte_[2], ziffern(zeit.sekunden, 2));
    setzen(w_aus_hun, zeit_texte_[3], ziffern(zeit.millisekunden, 3));
}

void korrekturrahmen::teile_zeigen(const ergebnisspalten& spalten, bool heats) {
    teile_ = std::min(spalten.teile(), teile_max - 1);
    for (std::size_t i = 0; i < teile_max; ++i) {
        const bool da = i <= teile_;
        const std::string titel = i == 0 ? wort_.gesamt : (heats ? wort_.heat : wort_.spur) + " " + std::to_string(i);
        Label_teil.at(i).text(teile_ == 0 ? std::string() : titel);
        Label_teil.at(i).sichtbar(da && teile_ > 0);
        aus_runden.at(i).sichtbar(da);
        aus_beste.at(i).sichtbar(da && (i > 0 || teile_ == 0));
        const auto benennen = [&](feld& ziel, const bezeichnung& was) { ziel.ansage(was.text() + " " + titel); };
        benennen(aus_runden.at(i), Label_runden);
        benennen(aus_beste.at(i), Label_beste);
        if (i < aus_meter.size()) {
            aus_meter.at(i).sichtbar(da && spalten.meter.anzahl > 0);
            benennen(aus_meter.at(i), Label_meter);
        }
    }
    Label_meter.sichtbar(spalten.meter.anzahl > 0);
    meter_berechnen.sichtbar(spalten.meter.anzahl > 0);
}

/// A race holds its own; for the others those of the main window are taken. Which lane a line of a day race is of
/// nobody knows, so that they have to be the same.
void korrekturrahmen::laengen_suchen(const ergebnistabelle& tabelle) {
    laenge_.fill(0);
    spuren<double> bahn;
    for (const int spur : alle_spuren) {
        std::string text = einrichtung_.bahn[spur].laenge;
        werte_pruefen2(text);
        bahn[spur] = zahl_lesen(text);
    }
    if (tabelle.typ == ergebnis_typ::einzelrennen) {
        const rennblock& block = tabelle.zeilen[zeile_].block;
        laenge_[0] = ergebnismeter_lesen(blockfeld(block, blockreihe::spurlaenge, 1, trennzeichen_[2]), trennzeichen_);
    } else if (teile_ == spuren_max) {
        for (const int spur : alle_spuren) {
            laenge_.at(static_cast<std::size_t>(spur)) = bahn[spur];
        }
    } else if (std::all_of(bahn.begin(), bahn.end(), [&bahn](double eine) { return eine == bahn[1]; })) {
        laenge_[0] = bahn[1];
    }
    const auto ab = laenge_.begin() + (teile_ > 0 ? 1 : 0);
    meter_berechnen.aktiviert(std::all_of(ab, ab + static_cast<std::ptrdiff_t>(std::max<std::size_t>(teile_, 1)),
                                          [](double eine) { return eine > 0; }));
}

void korrekturrahmen::meter_neu_berechnen() {
    double summe = 0;
    for (std::size_t i = teile_ > 0 ? 1 : 0; i <= teile_; ++i) {
        const double meter = static_cast<double>(ergebnisrunden_lesen(aus_runden.at(i).text())) * laenge_.at(i);
        aus_meter.at(i).text(zahl_text(meter, ','));
        summe += meter;
    }
    aus_meter[0].text(zahl_text(summe, ','));
}

/// The total follows its lanes, if it was their sum: 0 of the laps, 1 of the metres.
void korrekturrahmen::summe_bilden(std::size_t was) {
    const auto nachziehen = [this](auto& felder, const auto& alt, const auto& lesen, const auto& schreiben) {
        double vorher = 0;
        double jetzt = 0;
        for (std::size_t i = 1; i < alt.size() && i < felder.size(); ++i) {
            vorher += static_cast<double>(alt[i]);
            jetzt += lesen(felder.at(i).text());
        }
        if (alt.size() == teile_ + 1 && std::abs(vorher - static_cast<double>(alt[0])) < 0.01) {
            felder[0].text(schreiben(jetzt));
        }
    };
    if (was == 0) {
        nachziehen(
            aus_runden, alt_.runden,
            [](const std::string& text) { return static_cast<double>(ergebnisrunden_lesen(text)); },
            [](double summe) { return std::to_string(std::llround(summe)); });
    } else {
        nachziehen(
            aus_meter, alt_.meter, [this](const std::string& text) { return ergebnismeter_lesen(text, trennzeichen_); },
            [](double summe) { return zahl_text(summe, ','); });
    }
}

bool korrekturrahmen::zeit_lesen(zeit_ms& zeit) {
    const std::array<feld*, 4> felder{&w_aus_std, &w_aus_min, &w_aus_sec, &w_aus_hun};
    constexpr std::array<zeit_ms, 4> wert{3600000, 60000, 1000, 1};
    constexpr std::array<zeit_ms, 4> bis{9999, 59, 59, 999};
    zeit_ms summe = 0;
    bool beruehrt = false;
    for (std::size_t i = 0; i < felder.size(); ++i) {
        const std::string& text = felder.at(i)->text();
        const zeit_ms zahl = ganzzahl_lesen(text, 0, 99999);
        const bool unveraendert = text == zeit_texte_.at(i);
        if (!unveraendert && (text.empty() || !sind_ziffern(text) || zahl > bis.at(i))) {
            felder.at(i)->fokus_setzen();
            return false;
        }
        beruehrt = beruehrt || !unveraendert;
        summe += zahl * wert.at(i);
    }
    zeit = beruehrt ? summe : zeit;
    return true;
}

std::optional<ergebniseintrag> korrekturrahmen::eintrag() {
    ergebniseintrag neu = alt_;
    neu.name = Text2.text();
    if (gekuerzt(neu.name).empty() && neu.name != alt_.name) {
        Text2.fokus_setzen();
        return std::nullopt;
    }
    if (cbo_klasse.sichtbar()) {
        neu.klasse = cbo_klasse.text();
    }
    const auto alle_lesen = [](auto& felder, const auto& texte, auto& werte, const auto& lesen) {
        for (std::size_t i = 0; i < werte.size() && i < felder.size(); ++i) {
            if (felder.at(i).text() != texte.at(i) && !lesen(felder.at(i), werte[i])) {
                felder.at(i).fokus_setzen();
                return false;
            }
        }
        return true;
    };
    const auto runden = [](feld& eingabe, std::int64_t& wert) {
        wert = ergebnisrunden_lesen(eingabe.text());
        return !eingabe.text().empty() && sind_ziffern(eingabe.text());
    };
    const auto meter = [this](feld& eingabe, double& wert) {
        wert = ergebnismeter_lesen(eingabe.text(), trennzeichen_);
        return ist_meterzahl(eingabe.text());
    };
    const auto zeit = [this](feld& eingabe, zeit_ms& wert) {
        const auto getippt = getippte_zeit(eingabe.text(), trennzeichen_);
        wert = getippt.value_or(wert);
        return getippt.has_value();
    };
    const bool gut = alle_lesen(aus_runden, runden_texte_, neu.runden, runden) &&
                     alle_lesen(aus_meter, meter_texte_, neu.meter, meter) &&
                     alle_lesen(aus_beste, beste_texte_, neu.beste, zeit) && zeit_lesen(neu.gesamtzeit);
    return gut ? std::optional(neu) : std::nullopt;
}

}  // namespace tarvel
