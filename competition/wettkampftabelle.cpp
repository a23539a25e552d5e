#include "competition/wettkampftabelle.h"

#include "competition/rangfolge.h"
#include "core/text.h"
#include "results/ergebnisdatei.h"

namespace tarvel {
namespace {

/// Fields of a line, with the separator between them.
class feldreihe {
public:
    explicit feldreihe(const trennzeichen_tabelle& trennzeichen) : trennzeichen_(trennzeichen) {}

    feldreihe& feld(const std::string& text) {
        zeile_ += (leer_ ? "" : trennzeichen_[2]) + text;
        leer_ = false;
        return *this;
    }
    feldreihe& name(const std::string& text) {
        return feld(ohne_trenner(std::string(links(text, listenname_breite)), trennzeichen_[2]));
    }
    feldreihe& zeit(zeit_ms dauer) { return feld(zeit_formatieren(dauer, true, trennzeichen_)); }
    feldreihe& nummern(int von, int bis) {
        for (int nummer = von; nummer <= bis; ++nummer) {
            feld(std::to_string(nummer));
        }
        return *this;
    }
    const std::string& zeile() const { return zeile_; }

private:
    const trennzeichen_tabelle& trennzeichen_;
    std::string zeile_;
    bool leer_ = true;
};

std::string fahrer_zeile(int rang, const std::string& name, const fahrer_stand& stand,
                         const trennzeichen_tabelle& trennzeichen) {
    feldreihe reihe(trennzeichen);
    reihe.feld(std::to_string(rang)).name(name);
    for (const fahrt& auf : stand.auf) {
        reihe.feld(std::to_string(auf.runden));
    }
    for (const fahrt& auf : stand.auf) {
        reihe.feld(zahl_text(als_meter(auf.meter), '.'));
    }
    for (const int spur : alle_spuren) {
        reihe.zeit(stand.fahrer_beste(spur));
    }
    return reihe.zeit(stand.fahrer_zeit(0)).zeile();
}

std::string jeder_fahrer_zeile(int platz, const std::string& name, const jeder_zeile& stand, int heats,
                               const trennzeichen_tabelle& trennzeichen) {
    constexpr std::size_t runden_breite = 3;
    feldreihe reihe(trennzeichen);
    reihe.feld(std::to_string(platz) + ".").name(name);
    for (int nummer = 0; nummer <= heats; ++nummer) {
        reihe.feld(std::string(rechts(zahl_mit_platz(stand.jeder_runden(nummer)), runden_breite)));
    }
    for (int nummer = 1; nummer <= heats; ++nummer) {
        reihe.zeit(stand.jeder_beste(nummer));
    }
    return reihe.zeit(stand.gesamtzeit()).zeile();
}

}  // namespace

std::vector<std::string> wettkampf_tabelle_schreiben(const wettkampf& w, const wettkampf_worte& wort,
                                                     const trennzeichen_tabelle& trennzeichen) {
    feldreihe kopf(trennzeichen);
    kopf.feld("Nr").feld(wort.name).feld(wort.runden).nummern(1, spuren_max);
    kopf.feld(wort.meter).nummern(1, spuren_max).feld(wort.beste_runde).nummern(2, spuren_max).feld(wort.gesamtzeit);
    std::vector<std::string> zeilen{w.wettkampf_name, kopf.zeile()};
    const auto staende = w.staende();
    int rang = 0;
    for (const int platz : fahrer_in_rangfolge(w, sortier_modus::meter)) {
        const fahrer_stand& stand = staende.at(static_cast<std::size_t>(platz - 1));
        zeilen.push_back(fahrer_zeile(++rang, w.name(platz), stand, trennzeichen));
    }
    zeilen.emplace_back(magie_wettkampf);
    return zeilen;
}

std::vector<std::string> jeder_tabelle_schreiben(const wettkampf& w, const wettkampf_worte& wort,
                                                 const trennzeichen_tabelle& trennzeichen) {
    feldreihe kopf(trennzeichen);
    kopf.feld("Nr").feld(wort.name).feld(wort.runden).feld(wort.einzelrunden).feld(wort.beste_runde);
    std::vector<std::string> zeilen{w.wettkampf_name, kopf.feld(wort.gesamtzeit).zeile()};
    int platz = 0;
    for (const jeder_zeile& stand : w.jeder_tabelle()) {
        ++platz;
        zeilen.push_back(jeder_fahrer_zeile(platz, w.name(platz), stand, w.heats_je_fahrer(), trennzeichen));
    }
    zeilen.emplace_back(magie_jeder_gegen_jeden);
    return zeilen;
}

std::vector<std::string> tabelle_schreiben(const wettkampf& w, const wettkampf_worte& wort,
                                           const trennzeichen_tabelle& trennzeichen) {
    const bool jeder = w.modus == wettkampf_modus::jeder_gegen_jeden;
    return (jeder ? jeder_tabelle_schreiben : wettkampf_tabelle_schreiben)(w, wort, trennzeichen);
}

ergebnisangabe angabe_von(const wettkampf& w) {
    ergebnisangabe angabe{w.beginn, ergebnisangabe::art::wettkampf, w.wettkampf_name, 0, {}};
    const std::vector<int> folge = fahrer_in_rangfolge(w, w.wertung);
    for (const int platz : folge) {
        angabe.fahrer.push_back(w.name(platz));
    }
    if (!folge.empty()) {
        angabe.runden = w.staende().at(static_cast<std::size_t>(folge.front() - 1)).fahrer_runden(0);
    }
    return angabe;
}

}  // namespace tarvel
