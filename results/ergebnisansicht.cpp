#include "results/ergebnisansicht.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "core/text.h"
#include "results/ergebnissortierung.h"

namespace tarvel {
namespace {

constexpr std::size_t erstes_feld = 5;
constexpr std::size_t vor_den_runden = 8;
constexpr std::size_t name_mindestens = 18;
constexpr std::size_t rundenspalte_min = 11;  // of the table of laps
constexpr const char* nichts = "–";

std::string linksbuendig(std::string_view text, std::size_t breite) {
    std::string feld(links(text, breite - 1));
    return feld.append(breite - laenge(feld), ' ');
}

std::string rechtsbuendig(std::string_view text, std::size_t breite) {
    const std::string_view gekuerzter = links(text, breite - 1);
    return std::string(breite - laenge(gekuerzter), ' ').append(gekuerzter);
}

struct spalte {
    std::string kopf;
    std::size_t breite;  ///< with a blank
    bool text;           ///< begins at the left
    std::function<std::string(const ergebniszeile&, const fahrerzeile&)> zelle;
};

class bilder {
public:
    bilder(const ergebnistabelle& tabelle, const ansicht_worte& wort, const detailwahl& wahl)
        : t_(tabelle), wort_(wort), wahl_(wahl) {
        for (std::size_t i = 0; i < t_.zeilen.size(); ++i) {
            auto fahrer = t_.zeilen[i].ergebnis ? fahrerzeile_von(t_, t_.zeilen[i]) : std::nullopt;
            if (fahrer && !ausgeblendet(*fahrer)) {
                fahrer_.emplace_back(i, std::move(*fahrer));
            }
        }
    }

    ergebnisansicht bilden() {
        spalten_waehlen();
        if (namen_.breite > name_mindestens) {
            figuren_zusammenruecken();
        }
        ergebnisansicht ansicht;
        ansicht.namen = namen_;
        ansicht.namen.zeilen = fahrer_.size();
        ansicht.kopf = {reihe([](const spalte& s) { return s.kopf; }), true};
        for (const auto& [nummer, fahrer] : fahrer_) {
            const ergebniszeile& zeile = t_.zeilen[nummer];
            ansicht.zeilen.push_back(
                {reihe([&, &wer = fahrer](const spalte& s) { return s.zelle(zeile, wer); }), false, nummer});
        }
        if (t_.typ == ergebnis_typ::einzelrennen && wahl_.runden) {
            rundentabelle(ansicht);
        }
        return ansicht;
    }

private:
    /// What their columns have to spare, long names need.
    void figuren_zusammenruecken() {
        constexpr std::size_t abstand = 2;
        for (spalte& s : spalten_) {
            std::size_t noetig = laenge(s.kopf);
            for (const auto& [nummer, fahrer] : fahrer_) {
                noetig = std::max(noetig, laenge(s.zelle(t_.zeilen[nummer], fahrer)));
            }
            s.breite = s.text ? s.breite : std::min(s.breite, noetig + abstand);
        }
    }

    bool ausgeblendet(const fahrerzeile& fahrer) const {
        const auto& klasse = fahrer.spalten.klasse;
        return klasse && wahl_.ohne_klassen.contains(fahrer.felder[*klasse]);
    }

    template <class Zelle>
    std::string reihe(const Zelle& zelle) const {
        std::string text;
        for (const spalte& s : spalten_) {
            const std::string inhalt = zelle(s);
            text += s.text ? linksbuendig(inhalt, s.breite) : rechtsbuendig(inhalt, s.breite);
        }
        return text;
    }

    std::string zeit(const std::string& feld) const { return zeit(ergebniszeit_lesen(feld)); }
    std::string zeit(zeit_ms dauer) const { return dauer > 0 ? ergebniszeit(dauer, t_.trennzeichen) : nichts; }
    std::string meter(const std::string& feld) const {
        return zahl_fest(ergebnismeter_lesen(feld, t_.trennzeichen), ',') + " m";
    }

    void spalten_waehlen() {
        const bool rennen = t_.typ == ergebnis_typ::einzelrennen;
        if (hat_plaetze()) {
            platzspalte();
        }
        constexpr std::size_t hinter_dem_namen = 2;
        std::vector<std::string> namen;
        for (const auto& [nummer, fahrer] : fahrer_) {
            namen.push_back(fahrer.felder[fahrer.spalten.name]);
        }
        const std::size_t davor = spalten_.empty() ? 0 : spalten_.front().breite;
        namen_ = {{davor}, namensbreite(namen, name_mindestens), name_mindestens};
        spalten_.push_back({wort_.name, namen_.breite + hinter_dem_namen, true,
                            [breite = namen_.breite](const ergebniszeile& /*zeile*/, const fahrerzeile& fahrer) {
                                return eingepasst(fahrer.felder[fahrer.spalten.name], breite);
                            }});
        if (t_.typ == ergebnis_typ::tagesrennen) {
            spalten_.push_back({wort_.klasse, 7, true, [](const ergebniszeile& /*zeile*/, const fahrerzeile& fahrer) {
                                    return fahrer.felder[*fahrer.spalten.klasse];
                                }});
        }
        if (rennen) {
            rennspalten();
        }
        wertespalten();
    }

    /// A day's file and races side by side have places only when they are sorted.
    bool hat_plaetze() const {
        return std::any_of(fahrer_.begin(), fahrer_.end(), [this](const auto& paar) {
            return paar.second.spalten.platz || t_.zeilen[paar.first].platz > 0;
        });
    }

    /// A round robin's file numbers its drivers as they stand in the start list, until they are sorted.
    bool nummern_sind_plaetze() const {
        if (t_.typ != ergebnis_typ::jeder_gegen_jeden) {
            return true;
        }
        ergebnistabelle sortiert = t_;
        sortieren(sortiert, sortier_modus::runden);
        return std::equal(sortiert.zeilen.begin(), sortiert.zeilen.end(), t_.zeilen.begin(),
                          [](const ergebniszeile& a, const ergebniszeile& b) { return a.text == b.text; });
    }

    void platzspalte() {
        const std::string& kopf = nummern_sind_plaetze() ? wort_.platz : wort_.nummer;
        spalten_.push_back({kopf, erstes_feld, true, [](const ergebniszeile& zeile, const fahrerzeile& fahrer) {
                                return fahrer.spalten.platz ? fahrer.felder[*fahrer.spalten.platz]
                                       : zeile.platz > 0    ? std::to_string(zeile.platz) + "."
                                                            : std::string();
                            }});
    }

    bool mehrere_rennen() const { return t_.rennen.size() > 1 && !t_.addiert; }

    void rennspalten() {
        if (mehrere_rennen()) {
            spalten_.push_back({wort_.rennen, 8, false, [](const ergebniszeile& zeile, const fahrerzeile& /*fahrer*/) {
                                    return std::to_string(zeile.rennen + 1);
                                }});
        }
        if (!t_.addiert) {
            blockspalte(wort_.spur, 6, blockreihe::spur, 0,
                        [](const std::string& feld) { return feld.substr(feld.find_last_not_of("0123456789") + 1); });
        }
    }

    void blockspalte(const std::string& kopf, std::size_t breite, blockreihe welche, std::size_t feld,
                     std::function<std::string(const std::string&)> schreiben) {
        spalten_.push_back({kopf, breite, false,
                            [this, welche, feld, schreiben = std::move(schreiben)](const ergebniszeile& zeile,
                                                                                   const fahrerzeile& /*fahrer*/) {
                                return schreiben(blockfeld(zeile.block, welche, feld, t_.trennzeichen[2]));
                            }});
    }

    /// Totals, and behind each those of the lanes or heats.
    void wertespalten() {
        const std::size_t teile = meiste_teile();
        const auto runden = [](const std::string& feld) { return std::to_string(ergebnisrunden_lesen(feld)); };
        const auto als_meter = [this](const std::string& feld) { return meter(feld); };
        const auto als_zeit = [this](const std::string& feld) { return zeit(feld); };
        const bool heats = t_.typ == ergebnis_typ::jeder_gegen_jeden;
        const std::string teil = (heats ? wort_.heat : wort_.spur) + " ";
        wertespalte(wort_.runden, 9, &ergebnisspalten::runden, 0, runden);
        for (std::size_t i = 1; wahl_.runden && i <= teile; ++i) {
            if (teil_gefahren(i)) {
                wertespalte(teil + std::to_string(i), 8, &ergebnisspalten::runden, i, runden);
            }
        }
        if (!heats) {
            wertespalte(wort_.meter, 14, &ergebnisspalten::meter, 0, als_meter);
            for (std::size_t i = 1; wahl_.meter && i <= teile; ++i) {
                if (teil_gefahren(i)) {
                    wertespalte(teil + std::to_string(i), 13, &ergebnisspalten::meter, i, als_meter);
                }
            }
        }
        if (t_.typ == ergebnis_typ::einzelrennen && wahl_.meter) {
            const auto wie_er_steht = [](std::string feld) {
                std::replace(feld.begin(), feld.end(), '.', ',');  // as all the others
                return feld.empty() ? nichts : feld + " m";
            };
            blockspalte(wort_.laenge, 12, blockreihe::spurlaenge, 1, wie_er_steht);
            blockspalte(wort_.restmeter, 12, blockreihe::restmeter, 1, wie_er_steht);
        }
        spalten_.push_back({wort_.beste, 13, false, [this](const ergebniszeile& /*zeile*/, const fahrerzeile& fahrer) {
                                return zeit(werte_von(fahrer.felder, fahrer.spalten, t_.trennzeichen).beste);
                            }});
        for (std::size_t i = 1; wahl_.beste && i <= teile; ++i) {
            if (teil_gefahren(i)) {
                wertespalte(teil + std::to_string(i), 11, &ergebnisspalten::beste, i - 1, als_zeit);
            }
        }
        spalten_.push_back({wort_.gesamtzeit, 15, false, [this](const ergebniszeile& /*zeile*/, const fahrerzeile& f) {
                                return zeit(gesamtzeit_lesen(f.felder, f.spalten));
                            }});
        strafspalte();
    }

    /// Only where there is one: it explains a total.
    void strafspalte() {
        const auto sekunden = [](const fahrerzeile& f) { return strafzeit_lesen(f.felder, f.spalten).count(); };
        const bool eine = std::any_of(fahrer_.begin(), fahrer_.end(),
                                      [&sekunden](const auto& paar) { return sekunden(paar.second) > 0; });
        if (!t_.addiert && eine) {
            spalten_.push_back(
                {wort_.strafzeit, 14, false, [sekunden](const ergebniszeile& /*zeile*/, const fahrerzeile& fahrer) {
                     return sekunden(fahrer) > 0 ? std::to_string(sekunden(fahrer)) + " s" : std::string();
                 }});
        }
    }

    void wertespalte(const std::string& kopf, std::size_t breite, feldbereich ergebnisspalten::*bereich, std::size_t i,
                     std::function<std::string(const std::string&)> schreiben) {
        spalten_.push_back(
            {kopf, breite, false,
             [bereich, i, schreiben = std::move(schreiben)](const ergebniszeile& /*zeile*/, const fahrerzeile& fahrer) {
                 const feldbereich& felder = fahrer.spalten.*bereich;
                 return i < felder.anzahl ? schreiben(fahrer.felder[felder.ab + i]) : std::string();
             }});
    }

    std::size_t meiste_teile() const {
        std::size_t teile = 0;
        for (const auto& [nummer, fahrer] : fahrer_) {
            teile = std::max(teile, fahrer.spalten.teile());
        }
        return teile;
    }

    /// A lane that was not in use has nothing to show.
    bool teil_gefahren(std::size_t i) const {
        return std::any_of(fahrer_.begin(), fahrer_.end(), [i](const auto& paar) {
            const auto& [felder, spalten] = paar.second;
            return i < spalten.runden.anzahl && (ergebnisrunden_lesen(felder[spalten.runden.ab + i]) > 0 ||
                                                 ergebniszeit_lesen(felder[spalten.beste.ab + i - 1]) > 0);
        });
    }

    /// As wide as the names, but all of them no wider than the lines above: short ones get their room first.
    std::vector<std::size_t> rundenspalten(const ergebnisansicht& ansicht) const {
        std::vector<std::size_t> breiten(fahrer_.size(), rundenspalte_min);
        const std::size_t vergeben = vor_den_runden + fahrer_.size() * rundenspalte_min;
        std::size_t rest = laenge(ansicht.kopf.text) - std::min(laenge(ansicht.kopf.text), vergeben);
        std::multimap<std::size_t, std::size_t> wuensche;
        for (std::size_t i = 0; i < fahrer_.size(); ++i) {
            const fahrerzeile& fahrer = fahrer_[i].second;
            wuensche.emplace(std::max(laenge(fahrer.felder[fahrer.spalten.name]) + 2, rundenspalte_min), i);
        }
        for (const auto& [wunsch, i] : wuensche) {
            const std::size_t mehr = std::min(wunsch - rundenspalte_min, rest);
            breiten[i] += mehr;
            rest -= mehr;
        }
        return breiten;
    }

    void rundentabelle(ergebnisansicht& ansicht) const {
        constexpr std::size_t erste = 5;
        const std::vector<std::size_t> breiten = rundenspalten(ansicht);
        std::string kopf = linksbuendig(wort_.runde, vor_den_runden);
        std::string rennen = linksbuendig(wort_.rennen, vor_den_runden);
        std::size_t reihen = 0;
        for (std::size_t i = 0; i < fahrer_.size(); ++i) {
            const auto& [nummer, fahrer] = fahrer_[i];
            rennen += rechtsbuendig(std::to_string(t_.zeilen[nummer].rennen + 1), breiten[i]);
            const std::string& name = fahrer.felder[fahrer.spalten.name];
            kopf += rechtsbuendig(gekuerzt(eingepasst(name, breiten[i] - 2)), breiten[i]);
            reihen = std::max(reihen, fahrer.felder.size() - erste);
        }
        ansicht.zeilen.push_back({});
        if (mehrere_rennen()) {
            ansicht.zeilen.push_back({std::move(rennen), true});
        }
        ansicht.zeilen.push_back({std::move(kopf), true});
        for (std::size_t runde = 0; runde < reihen; ++runde) {
            std::string text = linksbuendig(runde == 0 ? wort_.start : std::to_string(runde) + ".", vor_den_runden);
            bool leer = true;
            for (std::size_t i = 0; i < fahrer_.size(); ++i) {
                const ergebnisfelder& felder = fahrer_[i].second.felder;
                const bool da = erste + runde < felder.size() && !felder[erste + runde].empty();
                text += rechtsbuendig(da ? zeit(felder[erste + runde]) : std::string(), breiten[i]);
                leer = leer && !da;
            }
            if (!leer) {
                ansicht.zeilen.push_back({std::move(text), false});
            }
        }
    }

    const ergebnistabelle& t_;
    const ansicht_worte& wort_;
    const detailwahl& wahl_;
    std::vector<std::pair<std::size_t, fahrerzeile>> fahrer_;  ///< with their places in the table
    std::vector<spalte> spalten_;
    namensspalten namen_;
};

}  // namespace

ergebnisansicht ergebnisansicht_bilden(const ergebnistabelle& tabelle, const ansicht_worte& wort,
                                       const detailwahl& wahl) {
    return bilder(tabelle, wort, wahl).bilden();
}

detailwahl moegliche_details(const ergebnistabelle& tabelle) {
    switch (tabelle.typ) {
        case ergebnis_typ::einzelrennen:
            return {true, true, false, {}};
        case ergebnis_typ::wettkampf:
            return {true, true, true, {}};
        case ergebnis_typ::jeder_gegen_jeden:
            return {true, false, true, {}};
        case ergebnis_typ::tagesrennen:
        case ergebnis_typ::unbekannt:
            break;
    }
    return {};
}

}  // namespace tarvel
