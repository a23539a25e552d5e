#include "results/einzelrennen_datei.h"

#include <algorithm>
#include <array>
#include <functional>

#include "core/text.h"
#include "core/zeit.h"
#include "results/ergebnisdatei.h"

namespace tarvel {
namespace {

/// One lane takes five fields of a line, so that a table program shows the lanes side by side.
using feldblock = std::array<std::string, 5>;

class schreiber {
public:
    explicit schreiber(const ergebnis_quelle& q) : q_(q), trenner_(q.um.einst.trennzeichen[2]) {}

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
    const einstellungen& einst() const { return q_.um.einst; }
    std::string zeit(zeit_ms dauer) const { return zeit_formatieren(dauer, true, einst().trennzeichen); }
    std::string runden(int spur) const { return zahl_mit_platz(q_.stand.runden(spur)); }

    /// A separator within a name would move the columns.
    std::string name(std::string text) const {
        const std::string ersatz = trenner_ == " " ? "_" : " ";
        std::size_t stelle = text.find(trenner_);
        while (!trenner_.empty() && stelle != std::string::npos) {
            text.replace(stelle, trenner_.size(), ersatz);
            stelle = text.find(trenner_, stelle + ersatz.size());
        }
        return text;
    }

    template <class Tun>
    void je_aktiver_spur(Tun tun) const {
        for (const int spur : alle_spuren) {
            if (q_.um.param.spur_aktiv[spur]) {
                tun(spur);
            }
        }
    }

    void block_zeile(const std::function<feldblock(int)>& block) {
        std::string zeile;
        je_aktiver_spur([&](int spur) {
            for (const std::string& feld : block(spur)) {
                zeile += feld + trenner_;
            }
        });
        aus_.push_back(std::move(zeile));
    }

    void kopf() {
        const std::string& ende = q_.um.zustand.rennen_ende_uhrzeit;
        const std::size_t strich = ende.find('-');
        const std::string uhrzeit = strich == std::string::npos ? "" : ende.substr(strich + 1);
        aus_.push_back(q_.wort.rennergebnis + trenner_ + ende.substr(0, strich) + trenner_ + uhrzeit);
        aus_.push_back(q_.um.param.tank_aktiv ? q_.wort.tanken_aktiv : "");
        aus_.insert(aus_.end(), {"", q_.wort.direktvergleich, ""});
    }

    void direktvergleich() {
        je_aktiver_spur([&](int spur) {
            std::string zeile = name(q_.um.param.fahrer_name[spur]);
            for (const std::string& feld : {runden(spur), q_.stand.meter_text(spur, '.'),
                                            zeit(q_.stand.beste_runde(spur)), zeit(q_.stand.gesamtzeit(spur))}) {
                zeile += trenner_ + feld;
            }
            zeile += trenner_;
            for (int runde = 0; runde <= q_.um.zustand.konto.runden(spur); ++runde) {
                zeile += zeit(q_.um.zustand.konto.rundenzeit(spur, runde)) + trenner_;
            }
            aus_.push_back(std::move(zeile));
        });
        aus_.insert(aus_.end(), {"", ""});
    }

    void kennzahlen() {
        const ergebnis_worte& wort = q_.wort;
        const renn_parameter& param = q_.um.param;
        const auto paar = [](std::string erstes, std::string zweites) {
            return feldblock{std::move(erstes), std::move(zweites)};
        };
        block_zeile([&](int spur) { return feldblock{wort.spur + " " + std::to_string(spur)}; });
        block_zeile([&](int spur) { return feldblock{name(param.fahrer_name[spur])}; });
        block_zeile([&](int spur) { return feldblock{name(param.fahrzeug_name[spur])}; });
        block_zeile([&](int spur) {
            return paar(wort.rundenzahl,
                        q_.um.zustand.spur[spur].disqualifiziert ? wort.disqualifiziert : runden(spur));
        });
        block_zeile([&](int spur) { return paar(wort.spurlaenge, name(q_.um.param.spurlaenge_text[spur])); });
        block_zeile([&](int spur) { return sektorlaengen(spur); });
        block_zeile([&](int spur) { return paar(wort.restmeter, zahl_text(q_.stand.restmeter(spur), '.')); });
        block_zeile([&](int spur) { return paar(wort.gesamtmeter, q_.stand.meter_text(spur, '.')); });
        block_zeile([&](int spur) { return paar(wort.gesamtzeit, zeit(q_.stand.gesamtzeit(spur))); });
    }

    feldblock sektorlaengen(int spur) const {
        feldblock block{q_.wort.sektorlaenge};
        for (std::size_t sektor = 1; sektor <= sektoren_max; ++sektor) {
            if (einst().sektor_an.at(sektor)) {
                block.at(sektor) = name(einst().sektor_laenge.at(sektor)[spur]);
            }
        }
        return block;
    }

    void rundenzeiten() {
        int meiste = -1;
        for (const int spur : alle_spuren) {
            meiste = std::max(meiste, q_.um.zustand.konto.runden(spur));
        }
        for (int runde = 0; runde <= meiste; ++runde) {
            block_zeile([&](int spur) { return rundenblock(spur, runde); });
        }
    }

    feldblock rundenblock(int spur, int runde) const {
        feldblock block;
        if (runde > q_.um.zustand.konto.runden(spur)) {
            return block;
        }
        block[0] = zeit(q_.um.zustand.konto.rundenzeit(spur, runde));
        for (int sektor = 1; runde > 0 && sektor <= sektoren_max; ++sektor) {
            const zeit_ms dauer = q_.sektor.sektorzeit(spur, sektor, runde);
            if (einst().sektor_an.at(static_cast<std::size_t>(sektor)) && dauer != 0) {
                block.at(static_cast<std::size_t>(sektor)) = zeit(dauer);
            }
        }
        return block;
    }

    const ergebnis_quelle& q_;
    std::string trenner_;
    std::vector<std::string> aus_;
};

}  // namespace

std::vector<std::string> einzelrennen_zeilen(const ergebnis_quelle& quelle) {
    return schreiber(quelle).zeilen();
}

std::vector<std::string> tages_zeilen(const ergebnis_quelle& quelle) {
    const trennzeichen_tabelle& trennzeichen = quelle.um.einst.trennzeichen;
    std::vector<std::string> zeilen;
    for (const int spur : alle_spuren) {
        if (!quelle.um.param.spur_aktiv[spur]) {
            continue;
        }
        const std::string& fahrer = quelle.um.param.fahrer_name[spur];
        const bool mit_klasse = std::string_view(fahrer).substr(links(fahrer, 1).size()).starts_with(trennzeichen[2]);
        std::string zeile = mit_klasse ? fahrer : "0" + trennzeichen[2] + fahrer;
        for (const std::string& feld : {zahl_mit_platz(quelle.stand.runden(spur)), quelle.stand.meter_text(spur, '.'),
                                        zeit_formatieren(quelle.stand.beste_runde(spur), true, trennzeichen),
                                        zeit_formatieren(quelle.stand.gesamtzeit(spur), true, trennzeichen)}) {
            zeile += trennzeichen[2] + feld;
        }
        zeilen.push_back(std::move(zeile));
    }
    return zeilen;
}

}  // namespace tarvel
