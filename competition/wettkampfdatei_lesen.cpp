#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "competition/wettkampfdatei.h"
#include "competition/wettkampfzusatz.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr int jeder_max = jeder_zeile::fahrer_max;
constexpr std::size_t kopf_zeilen = 20;
constexpr std::size_t tabelle_zeilen = std::size_t{tabelle_max + 1} * (spuren_max + 2);
constexpr std::size_t zeiger_zeilen = 2;
constexpr std::size_t jeder_zeilen = std::size_t{jeder_max + 1} * (2 * jeder_zeile::heats_max + 3);
constexpr std::int64_t zahl_max = 100000000000;

/// The tables as the file has them, index 1 to 100 and lane 0 to 6.
struct tabellen {
    std::array<std::array<std::string, spuren_max + 1>, tabelle_max + 1> rennplan;
    std::array<fahrer_stand, tabelle_max + 1> stand;
    std::array<std::string, tabelle_max + 1> teilnehmer;
    std::array<int, tabelle_max + 1> rennen_gefahren{};
    std::array<jeder_zeile, jeder_max + 1> jeder;
};

template <class Reihe>
auto& an(Reihe& reihe, int nummer) {
    return reihe.at(static_cast<std::size_t>(nummer));
}

int ganz(std::string_view text) {
    return static_cast<int>(ganzzahl_lesen(text, 0, 99999));
}

/// A name and the numbers around it. Commas that an alien name has are its own.
struct namenszeile {
    std::string name;
    std::vector<std::string_view> davor;
    std::vector<std::string_view> danach;
};

std::optional<namenszeile> namenszeile_lesen(std::string_view zeile, std::size_t davor, std::size_t danach) {
    const auto werte = werte_der_zeile(zeile);
    if (werte.size() < davor + 1 + danach) {
        return std::nullopt;
    }
    const auto ab = werte.begin() + static_cast<std::ptrdiff_t>(davor);
    const auto bis = werte.end() - static_cast<std::ptrdiff_t>(danach);
    namenszeile neu{{}, {werte.begin(), ab}, {bis, werte.end()}};
    std::for_each(ab, bis, [&](std::string_view stueck) { neu.name += stueck; });
    neu.name = wettkampf_text(neu.name);
    return neu;
}

class leser {
public:
    leser(std::span<const std::string> zeilen, const wettkampf_annahme& annahme) : zeilen_(zeilen), annahme_(annahme) {}

    std::optional<wettkampf> lesen() {
        const auto zusatz = zusatz_lesen(zeilen_.subspan(kopf_zeilen + tabelle_zeilen + zeiger_zeilen));
        if (!zusatz) {
            return std::nullopt;
        }
        zusatz_ = *zusatz;
        w_.modus = zusatz_.vorhanden ? zusatz_.modus : annahme_.modus;
        w_.qualifying_an = zusatz_.qualifying_an;
        w_.wertung = zusatz_.wertung;
        w_.rennlaenge = zusatz_.rennlaenge;
        w_.beginn = zusatz_.beginn;
        w_.renndauern = zusatz_.renndauern;
        if (!kopf() || !tabelle() || !jeder() || !startliste() || !plan() || !teile() || !gefahrene() || !stand()) {
            return std::nullopt;
        }
        ergebnisse();
        return std::move(w_);
    }

private:
    bool ist_jeder() const { return w_.modus == wettkampf_modus::jeder_gegen_jeden; }
    /// Value of the head, from 1.
    const std::string& wert(std::size_t nummer) const { return zeilen_[nummer - 1]; }
    bool wahr(std::size_t nummer) const {
        const std::string_view text = gekuerzt(wert(nummer));
        return text == "Wahr" || (text == annahme_.wahr && !text.empty());
    }

    bool kopf() {
        constexpr std::size_t erste_spur = 12;
        w_.wettkampf_name = wettkampf_text(wert(1));
        anzahl_ = zahl_zwischen(wert(ist_jeder() ? 6 : 5), 1, ist_jeder() ? jeder_max : tabelle_max).value_or(0);
        w_.plan.rennen_teilnehmer = std::clamp(ganz(wert(6)), 1, std::max(anzahl_, 1));
        rennen_ = zahl_zwischen(wert(7), 1, tabelle_max).value_or(0);
        w_.aktuelles_rennen = std::clamp(ganz(wert(2)), 1, std::max(rennen_, 1));
        w_.zwischenstand_an = wahr(11);
        for (const int spur : alle_spuren) {
            w_.spur_aktiv[spur] = wahr(erste_spur + static_cast<std::size_t>(spur) - 1);
        }
        spuren_ = static_cast<int>(std::count(w_.spur_aktiv.begin(), w_.spur_aktiv.end(), true));
        return anzahl_ != 0 && rennen_ != 0 && spuren_ != 0;
    }

    bool tabelle() {
        std::size_t i = kopf_zeilen;
        for (int nummer = 0; nummer <= tabelle_max; ++nummer) {
            for (int spur = 0; spur <= spuren_max; ++spur) {
                const auto zeile = namenszeile_lesen(zeilen_[i++], 0, 4);
                if (!zeile) {
                    return false;
                }
                an(an(t_.rennplan, nummer), spur) = zeile->name;
                an(an(t_.stand, nummer).auf, spur) = {
                    ganz(zeile->danach[0]), ganzzahl_lesen(zeile->danach[1], 0, zahl_max),
                    zentimeter_aus(zahl_lesen(zeile->danach[2])), ganzzahl_lesen(zeile->danach[3], 0, zahl_max)};
            }
            const auto zeile = namenszeile_lesen(zeilen_[i++], 1, 1);
            if (!zeile) {
                return false;
            }
            an(t_.teilnehmer, nummer) = zeile->name;
            an(t_.rennen_gefahren, nummer) = ganz(zeile->danach[0]);
        }
        return true;
    }

    bool jeder() {
        std::size_t i = kopf_zeilen + tabelle_zeilen + zeiger_zeilen;
        if (!ist_jeder()) {
            return true;
        }
        if (zeilen_.size() < i + jeder_zeilen) {
            return false;
        }
        for (jeder_zeile& seine : t_.jeder) {
            for (fahrt& heat : seine.heat) {
                heat.runden = ganz(zeilen_[i]);
                heat.beste = ganzzahl_lesen(zeilen_[i + 1], 0, zahl_max);
                i += 2;
            }
            seine.heat[0].zeit = ganzzahl_lesen(zeilen_[i++], 0, zahl_max);
        }
        return true;
    }

    bool startliste() {
        int fahrer = 0;
        for (int platz = 1; platz <= anzahl_; ++platz) {
            const std::string& name = an(t_.teilnehmer, platz);
            if (name.empty() || platz_von(name) != 0) {
                return false;
            }
            w_.teilnehmer.push_back(name);
            const bool frei = annahme_.txt.ist_freier_platz(name);
            w_.plan.teilnehmer.push_back(frei ? startplatz{0, fuellernummer(name)} : startplatz{++fahrer, 0});
        }
        w_.bilder.resize(w_.teilnehmer.size());
        if (zusatz_.vorhanden) {
            w_.plan.teilnehmer = zusatz_.teilnehmer;
            w_.bilder = zusatz_.bilder;
        }
        return w_.plan.teilnehmer.size() == w_.teilnehmer.size();
    }

    /// Stands behind what all fillers are called.
    static int fuellernummer(std::string_view name) {
        return zahl_zwischen(name.substr(name.rfind(' ') + 1), 1, tabelle_max).value_or(1);
    }

    int platz_von(const std::string& name) const {
        const auto dort = std::find(w_.teilnehmer.begin(), w_.teilnehmer.end(), name);
        return dort == w_.teilnehmer.end() ? 0 : static_cast<int>(dort - w_.teilnehmer.begin()) + 1;
    }

    bool plan() {
        std::vector<int> heats(w_.teilnehmer.size());
        for (int rennen = 1; rennen <= rennen_; ++rennen) {
            startfeld feld;
            for (const int spur : alle_spuren) {
                const std::string& name = an(an(t_.rennplan, rennen), spur);
                const int wer = platz_von(name);
                if (!name.empty() && (wer == 0 || !w_.spur_aktiv[spur])) {
                    return false;
                }
                const bool doppelt = wer != 0 && std::find(feld.begin(), feld.end(), wer) != feld.end();
                feld[spur] = wer;
                if (ist_jeder() && wer != 0 && (doppelt || ++an(heats, wer - 1) > jeder_zeile::heats_max)) {
                    return false;
                }
            }
            w_.plan.rennen.push_back(feld);
        }
        return true;
    }

    bool teile() {
        constexpr std::array am_stueck{wettkampf_modus::am_stueck, wettkampf_modus::am_stueck_verteilt,
                                       wettkampf_modus::schema_am_stueck, wettkampf_modus::schema_am_stueck_verteilt};
        constexpr std::size_t centermode = 18;
        if (zusatz_.vorhanden) {
            w_.plan.teile = zusatz_.teile;
            w_.plan.herkunft = zusatz_.herkunft;
        } else if (wahr(centermode) && std::find(am_stueck.begin(), am_stueck.end(), w_.modus) != am_stueck.end()) {
            w_.plan.teile = spuren_;
            w_.plan.herkunft = wechsel_nachfolger(annahme_.folge, w_.spur_aktiv);
        }
        return w_.plan.teile == 1 || (w_.plan.teile == spuren_ && !ist_jeder() && jeder_zieht_um());
    }

    /// Each lane in use gives its driver to one other.
    bool jeder_zieht_um() const {
        const auto& von = w_.plan.herkunft;
        return std::all_of(alle_spuren.begin(), alle_spuren.end(), [&](int spur) {
            const auto oft = std::count(von.begin(), von.end(), spur);
            return w_.spur_aktiv[spur] ? von[spur] != 0 && oft == 1 : von[spur] == 0 && oft == 0;
        });
    }

    bool gefahrene() {
        if (!zusatz_.vorhanden) {
            aus_dem_plan();
            return true;
        }
        for (const gefahrener_teil& einer : zusatz_.gefahren) {
            const bool naechster = einer.teil == w_.fortsetzung_nummer(einer.rennen) + 1;
            if (einer.rennen > rennen_ || einer.teil > w_.plan.teile || !naechster) {
                return false;
            }
            w_.gefahren.push_back(einer);
        }
        return true;
    }

    void aus_dem_plan() {
        for (int rennen = 1; rennen <= rennen_; ++rennen) {
            const int begonnen = rennen == w_.aktuelles_rennen ? std::min(ganz(wert(20)), w_.plan.teile - 1) : 0;
            const bool ganzes = an(t_.rennen_gefahren, rennen) == static_cast<int>(rennstatus::gefahren);
            for (int teil = 1; teil <= (ganzes ? w_.plan.teile : begonnen); ++teil) {
                w_.gefahren.push_back({rennen, teil, {}});
            }
        }
    }

    bool stand() {
        for (int rennen = 1; rennen <= rennen_; ++rennen) {
            const auto status = static_cast<rennstatus>(an(t_.rennen_gefahren, rennen));
            if (status == rennstatus::zurueckgestellt) {
                w_.zurueckgestellte.insert(rennen);
            }
            if (status != w_.rennen_gefahren(rennen)) {
                return false;
            }
        }
        return true;
    }

    void ergebnisse() {
        std::vector<int> heats(w_.teilnehmer.size());
        for (const gefahrener_teil& einer : w_.gefahren) {
            for (const int wer : w_.plan.feld(einer.rennen)) {
                if (wer != 0) {
                    ++an(heats, wer - 1);
                }
            }
        }
        for (gefahrener_teil& einer : w_.gefahren) {
            const startfeld feld = w_.plan.feld(einer.rennen, einer.teil);
            for (const int spur : alle_spuren) {
                const int wer = feld[spur];
                fahrt neu;
                if (wer != 0 && !w_.ist_fueller(wer)) {
                    neu = ist_jeder() ? heat(wer, w_.plan.heat(einer.rennen, spur), an(heats, wer - 1))
                                      : std::exchange(an(an(t_.stand, wer).auf, spur), fahrt{});
                    neu.zeit = zusatz_.vorhanden ? einer.fahrten[spur].zeit : neu.zeit;
                    neu.meter = zusatz_.vorhanden ? einer.fahrten[spur].meter : neu.meter;
                }
                einer.fahrten[spur] = begrenzt(neu);
            }
        }
    }

    /// The format holds times and metres of all heats together: each gets the same of them.
    fahrt heat(int wer, int nummer, int gefahrene) const {
        const jeder_zeile& seine = an(t_.jeder, wer);
        return {seine.jeder_runden(nummer), seine.gesamtzeit() / gefahrene,
                an(t_.stand, wer).fahrer_meter(0) / gefahrene, seine.jeder_beste(nummer)};
    }

    std::span<const std::string> zeilen_;
    const wettkampf_annahme& annahme_;
    wettkampf_zusatz zusatz_;
    tabellen t_;
    wettkampf w_;
    int anzahl_ = 0;  ///< of places
    int rennen_ = 0;
    int spuren_ = 0;
};

}  // namespace

std::optional<wettkampf> wettkampf_lesen(const std::vector<std::string>& zeilen, const wettkampf_annahme& annahme) {
    const auto kopf = std::find_if(zeilen.begin(), zeilen.end(),
                                   [](const std::string& zeile) { return gekuerzt(zeile) == wettkampfdatei_kopf; });
    const auto rest = static_cast<std::size_t>(zeilen.end() - kopf);
    if (rest <= kopf_zeilen + tabelle_zeilen + zeiger_zeilen) {
        return std::nullopt;
    }
    return leser(std::span(zeilen).last(rest - 1), annahme).lesen();
}

}  // namespace tarvel
