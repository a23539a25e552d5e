#include "competition/rangfolge.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "core/text.h"

namespace tarvel {
namespace {

/// Above 0 if the later one is better and goes ahead, below 0 if it is worse, 0 if the next key decides.
using schluessel = int (*)(const fahrt& vorderer, const fahrt& hinterer);

int mehr(std::int64_t vorderer, std::int64_t hinterer) {
    return static_cast<int>(hinterer > vorderer) - static_cast<int>(hinterer < vorderer);
}

int meter_vorn(const fahrt& a, const fahrt& b) {
    return mehr(a.meter, b.meter);
}

int runden_vorn(const fahrt& a, const fahrt& b) {
    return mehr(a.runden, b.runden);
}

/// Who has no time has not driven, and does not pass anyone for it.
int kuerzer(zeit_ms vorderer, zeit_ms hinterer) {
    return hinterer == 0 && vorderer != 0 ? -1 : mehr(hinterer, vorderer);
}

int zeit_vorn(const fahrt& a, const fahrt& b) {
    return kuerzer(a.zeit, b.zeit);
}

int beste_vorn(const fahrt& a, const fahrt& b) {
    return kuerzer(a.beste, b.beste);
}

int beste_zuerst(const fahrt& a, const fahrt& b) {
    return a.beste == 0 && b.beste != 0 ? 1 : beste_vorn(a, b);
}

using schluesselfolge = std::array<schluessel, 4>;
constexpr schluesselfolge nach_metern{meter_vorn, runden_vorn, zeit_vorn, beste_vorn};
constexpr schluesselfolge nach_runden{runden_vorn, meter_vorn, zeit_vorn, beste_vorn};
constexpr schluesselfolge nach_bester{beste_zuerst, meter_vorn, runden_vorn, zeit_vorn};

bool geht_vor(const schluesselfolge& folge, const fahrt& hinterer, const fahrt& vorderer) {
    for (const schluessel einer : folge) {
        if (const int urteil = einer(vorderer, hinterer); urteil != 0) {
            return urteil > 0;
        }
    }
    return false;
}

/// Neighbours change places, as often as there are entries: where times are missing there is no order that any sort
/// would find, and the outcome is that of this one.
std::vector<int> sortiert(std::span<const fahrer_stand> staende, const schluesselfolge& folge) {
    std::vector<int> liste(staende.size());
    std::iota(liste.begin(), liste.end(), 1);
    const auto stand = [&](std::size_t stelle) -> const fahrt& {
        return staende[static_cast<std::size_t>(liste.at(stelle) - 1)].auf.front();
    };
    bool getauscht = true;
    for (std::size_t durchgang = 0; getauscht && durchgang < liste.size(); ++durchgang) {
        getauscht = false;
        for (std::size_t k = 0; k + 1 < liste.size(); ++k) {
            if (geht_vor(folge, stand(k + 1), stand(k))) {
                std::swap(liste[k], liste[k + 1]);
                getauscht = true;
            }
        }
    }
    return liste;
}

std::string meter_text(zentimeter wert) {
    return zahl_fest(als_meter(wert), ',');
}

std::string gekappt(const std::string& text, std::size_t breite) {
    return std::string(links(text, breite));
}

/// The columns behind the name: one for each lane, or for each heat.
std::vector<fahrt> einzelne(const wettkampf& w, const fahrer_stand& stand, const jeder_zeile& heats) {
    if (w.modus == wettkampf_modus::jeder_gegen_jeden) {
        return {heats.heat.begin() + 1, heats.heat.begin() + 1 + w.heats_je_fahrer()};
    }
    return {stand.auf.begin() + 1, stand.auf.end()};
}

}  // namespace

const std::vector<int>& ranglisten::nach(sortier_modus wertung) const {
    if (wertung == sortier_modus::meter) {
        return rangfolge;
    }
    return wertung == sortier_modus::beste ? rangfolge_beste : rangfolge_runden;
}

ranglisten rangfolge_berechnen(std::span<const fahrer_stand> staende) {
    return {sortiert(staende, nach_metern), sortiert(staende, nach_runden), sortiert(staende, nach_bester)};
}

std::vector<int> fahrer_in_rangfolge(const wettkampf& w, sortier_modus wertung) {
    std::vector<int> plaetze = rangfolge_berechnen(w.staende()).nach(wertung);
    std::erase_if(plaetze, [&](int platz) { return w.ist_fueller(platz); });
    return plaetze;
}

namensspalten rangspalten(const wettkampf& w) {
    constexpr std::size_t hinter_dem_platz = 4;
    return {{hinter_dem_platz}, namensbreite(w.teilnehmer, listenname_breite), listenname_breite};
}

std::vector<std::string> rangschreiben(const wettkampf& w, sortier_modus wertung,
                                       const trennzeichen_tabelle& trennzeichen, std::size_t namen) {
    constexpr int zweistellig = 10;
    const auto staende = w.staende();
    std::vector<std::string> zeilen;
    int rang = 0;
    for (const int platz : fahrer_in_rangfolge(w, wertung)) {
        const fahrt& stand = staende.at(static_cast<std::size_t>(platz - 1)).auf.front();
        ++rang;
        std::string zeile = std::to_string(rang) + (rang >= zweistellig ? ". " : ".  ");
        zeile += aufgefuellt(links(w.name(platz), namen), namen);
        zeile += "   " + aufgefuellt(std::to_string(stand.runden), 6) + aufgefuellt(meter_text(stand.meter), 9);
        zeile += zeit_formatieren(wertung == sortier_modus::beste ? stand.beste : stand.zeit, true, trennzeichen);
        zeilen.push_back(std::move(zeile));
    }
    return zeilen;
}

std::vector<auswertung_zeile> w_auswertung_schreiben(const wettkampf& w, sortier_modus wertung,
                                                     const trennzeichen_tabelle& trennzeichen) {
    const auto zeit_text = [&](zeit_ms dauer) { return gekappt(zeit_formatieren(dauer, true, trennzeichen), 15); };
    const auto staende = w.staende();
    const auto heats = w.jeder_tabelle();
    std::vector<auswertung_zeile> zeilen;
    for (const int platz : fahrer_in_rangfolge(w, wertung)) {
        const auto stelle = static_cast<std::size_t>(platz - 1);
        const fahrt& gesamt = staende.at(stelle).auf.front();
        auswertung_zeile zeile;
        zeile.platz = gekappt(std::to_string(zeilen.size() + 1) + ".", 4);
        zeile.ganzer_name = w.name(platz);
        zeile.name = gekappt(zeile.ganzer_name, 18);
        zeile.runden = gekappt(std::to_string(gesamt.runden), 8);
        zeile.meter = gekappt(meter_text(gesamt.meter), 8);
        for (const fahrt& eine : einzelne(w, staende.at(stelle), heats.at(stelle))) {
            zeile.je.push_back({gekappt(std::to_string(eine.runden), 6), zeit_text(eine.beste)});
        }
        zeile.gesamtzeit = zeit_text(gesamt.zeit);
        zeilen.push_back(std::move(zeile));
    }
    return zeilen;
}

std::vector<wettkampf_balken> balken(const wettkampf& w, sortier_modus wertung) {
    const auto staende = w.staende();
    std::vector<wettkampf_balken> alle;
    for (const int platz : fahrer_in_rangfolge(w, wertung)) {
        const fahrer_stand& stand = staende.at(static_cast<std::size_t>(platz - 1));
        wettkampf_balken einer{w.name(platz), {}, stand.fahrer_runden(0)};
        for (const int spur : alle_spuren) {
            einer.runden[spur] = stand.fahrer_runden(spur);
        }
        alle.push_back(std::move(einer));
    }
    return alle;
}

std::vector<std::string> qualifying_uebernehmen(const wettkampf& w) {
    std::vector<std::string> namen;
    for (const int platz : fahrer_in_rangfolge(w, w.wertung)) {
        namen.push_back(w.name(platz));
    }
    return namen;
}

}  // namespace tarvel
