#include "competition/wettkampfdatei.h"

#include <algorithm>

#include "competition/rangfolge.h"
#include "competition/wettkampfzusatz.h"
#include "core/einstellungstabelle.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view schlusszeile = "Ende der Wettkampfdaten";

std::string wort(bool wert) {
    return wert ? "Wahr" : "Falsch";
}

class schreiber {
public:
    schreiber(const wettkampf& w, const trennzeichen_tabelle& trennzeichen) : w_(w), trennzeichen_(trennzeichen) {}

    std::vector<std::string> zeilen() {
        aus_ = {"", std::string(wettkampfdatei_kopf)};
        kopf();
        for (int i = 0; i <= tabelle_max; ++i) {
            for (int spur = 0; spur <= spuren_max; ++spur) {
                fahrer_und_rennen(i, spur);
            }
            aus_.push_back(zahl_mit_platz(rang(i)) + "," + teilnehmer(i) + "," +
                           zahl_mit_platz(static_cast<int>(w_.rennen_gefahren(i))));
        }
        jeder();
        aus_.insert(aus_.end(), {"", std::string(schlusszeile)});
        const auto zusatz = zusatz_zeilen(w_);
        aus_.insert(aus_.end(), zusatz.begin(), zusatz.end());
        return std::move(aus_);
    }

private:
    bool ist_jeder() const { return w_.modus == wettkampf_modus::jeder_gegen_jeden; }
    /// Where each meets each, the list goes on with the same names up to the number of races.
    int teilnehmer_anzahl() const { return ist_jeder() ? std::max(w_.rennen_gesamt(), w_.plaetze()) : w_.plaetze(); }

    std::string teilnehmer(int i) const {
        return i < 1 || i > teilnehmer_anzahl() ? "" : w_.name((i - 1) % w_.plaetze() + 1);
    }

    int rang(int i) const {
        if (i < 1 || i > w_.plaetze()) {
            return i < 1 || i > teilnehmer_anzahl() ? 0 : i;
        }
        return rangfolge_.at(static_cast<std::size_t>(i - 1));
    }

    void zahl(std::int64_t wert) { aus_.push_back(zahl_mit_platz(wert)); }

    void kopf() {
        const schnellste_runde beste = w_.beste_runde();
        const bool ende = w_.ende_pruefen();
        aus_.push_back(w_.wettkampf_name);
        zahl(w_.aktuelles_rennen);
        aus_.push_back(wort(ende));
        zahl(std::count(w_.spur_aktiv.begin(), w_.spur_aktiv.end(), true));
        zahl(teilnehmer_anzahl());
        zahl(w_.plan.rennen_teilnehmer);
        zahl(w_.rennen_gesamt());
        aus_.push_back(beste.beste_runde_text(trennzeichen_));
        aus_.push_back(w_.beste_runde_name());
        zahl(beste.beste_runde_ms);
        aus_.push_back(wort(w_.zwischenstand_an));
        for (const bool aktiv : w_.spur_aktiv) {
            aus_.push_back(wort(aktiv));
        }
        const bool bewegte_wagen = w_.plan.teile > 1;
        aus_.push_back(wort(bewegte_wagen));
        aus_.push_back(wort(!bewegte_wagen || ende));  // `einzelrennen_an`
        zahl(ende ? 0 : w_.fortsetzung_nummer(w_.aktuelles_rennen) % w_.plan.teile);
    }

    void fahrer_und_rennen(int i, int spur) {
        const std::string wer = i == 0 || spur == 0 ? "" : w_.name(w_.plan.feld(i)[spur]);
        const bool vorhanden = i >= 1 && i <= w_.plaetze();
        const fahrer_stand stand = vorhanden ? staende_.at(static_cast<std::size_t>(i - 1)) : fahrer_stand{};
        aus_.push_back(wer + "," + zahl_mit_platz(stand.fahrer_runden(spur)) + "," +
                       zahl_mit_platz(stand.fahrer_zeit(spur)) + ", " +
                       zahl_text(als_meter(stand.fahrer_meter(spur)), '.') + "," +
                       zahl_mit_platz(stand.fahrer_beste(spur)));
    }

    void jeder() {
        const auto aktiv = [&](int ab) {
            const auto* const erste =
                std::find_if(alle_spuren.begin(), alle_spuren.end(), [&](int s) { return s > ab && w_.spur_aktiv[s]; });
            return !ist_jeder() || erste == alle_spuren.end() ? 0 : *erste;
        };
        zahl(aktiv(0));
        zahl(aktiv(0) == 0 ? 0 : aktiv(aktiv(0)));
        const auto tabelle = ist_jeder() ? w_.jeder_tabelle() : std::vector<jeder_zeile>{};
        for (int i = 0; ist_jeder() && i <= jeder_zeile::fahrer_max; ++i) {
            const bool vorhanden = i >= 1 && i <= w_.plaetze();
            const jeder_zeile stand = vorhanden ? tabelle.at(static_cast<std::size_t>(i - 1)) : jeder_zeile{};
            for (int heat = 0; heat <= jeder_zeile::heats_max; ++heat) {
                zahl(stand.jeder_runden(heat));
                zahl(stand.jeder_beste(heat));
            }
            zahl(stand.gesamtzeit());
        }
    }

    const wettkampf& w_;
    const trennzeichen_tabelle& trennzeichen_;
    const std::vector<fahrer_stand> staende_ = w_.staende();
    const std::vector<int> rangfolge_ = rangfolge_berechnen(staende_).rangfolge;
    std::vector<std::string> aus_;
};

}  // namespace

std::vector<std::string> wettkampf_zeilen(const wettkampf& w, const trennzeichen_tabelle& trennzeichen) {
    return schreiber(w, trennzeichen).zeilen();
}

bool wettkampf_speichern(const dateien& ablage, std::string_view datei, const einstellungsdatei& einstellungen,
                         const wettkampf& w, const trennzeichen_tabelle& trennzeichen) {
    std::vector<std::string> zeilen = einstellungen.schreiben_fuer_wettkampf(w.wettkampf_name);
    const auto stand = wettkampf_zeilen(w, trennzeichen);
    zeilen.insert(zeilen.end(), stand.begin(), stand.end());
    return ablage.zeilen_schreiben(datei, zeilen);
}

std::optional<wettkampf> wettkampf_laden(einstellungsdatei& einstellungen, std::string_view datei, gruppenwahl gewaehlt,
                                         const texte& txt, einstellungen_aus_datei wie, version_melden melden) {
    einstellungen.einstellungsdatei_einlesen(datei, true, melden);
    if (!einstellungen.fehler_laden()) {
        einstellungen.einstellungsdatei_pruefen(pruefweise::festgehaltenes);
    }
    if (einstellungen.fehler_laden()) {
        return std::nullopt;
    }
    wettkampf_annahme annahme{txt};
    annahme.folge = einstellungen.wechselschema().value_or(wechsel_standard);
    annahme.modus = wettkampf_modus_bestimmen(einstellungen.wettkampfweise(), annahme.folge, gewaehlt);
    annahme.wahr = einstellungen.zeilen().at(z::wahr_wort);
    auto gelesen = wettkampf_lesen(einstellungen.rest(), annahme);
    if (gelesen && wie == einstellungen_aus_datei::uebernehmen) {
        einstellungen.einstellungen_uebernehmen(std::nullopt);
    }
    return gelesen;
}

}  // namespace tarvel
