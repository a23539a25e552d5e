#include <algorithm>

#include "competition/abendblick.h"
#include "competition/rangfolge.h"
#include "competition/wettkampfdatei.h"
#include "competition/wettkampftabelle.h"
#include "tests/fuzz/dateiarten.h"

namespace tarvel::test {
namespace {

constexpr const char* standdatei = "stand.wtk";

std::optional<wettkampf> stand_gelesen(const dateien& ablage, const wettkampf_annahme& annahme) {
    return wettkampf_lesen(ablage.zeilen_lesen(standdatei, 10000).value_or(std::vector<std::string>{}), annahme);
}

/// All that the windows do with it, to the end of the evening.
void zu_ende_fahren(wettkampf w) {
    fordern(w.plaetze() > 0 && w.plaetze() <= 100 && w.rennen_gesamt() > 0, "a competition without drivers or races");
    fordern(w.aktuelles_rennen >= 1 && w.aktuelles_rennen <= w.rennen_gesamt(), "the current race is none");
    const int teile = w.rennen_gesamt() * w.plan.teile;
    for (int teil = 0; w.naechstes_offenes_rennen(); ++teil) {
        fordern(teil < teile && abend_blicken(w).noch > 0, "the evening has no end");
        fordern(w.ergebnis_eintragen(rennergebnis{}, {1, w.uebergabe().teil, w.uebergabe().teil}),
                "an open race takes no result");
    }
    fordern(w.ende_pruefen() && w.uebergabe().rennen == 0, "the evening is over but has not ended");
    const auto fahrer = fahrer_in_rangfolge(w, w.wertung).size();
    fordern(w_auswertung_schreiben(w, w.wertung, trennzeichen_standard).size() == fahrer,
            "a driver drops off the rows");
    fordern(rangschreiben(w, w.wertung, trennzeichen_standard).size() == fahrer, "a driver drops off the ranking");
    fordern(tabelle_schreiben(w, {}, trennzeichen_standard).size() >= fahrer + 3, "a driver drops off the table");
    fordern(w.wiederholen(1) && w.aktuelles_rennen == 1 && !w.ende_pruefen(), "a race cannot be repeated");
}

}  // namespace

bool wettkampfstand_lesen(werkbank& bank, const std::string& bytes) {
    bank.legen(standdatei, bytes);
    wettkampf_annahme annahme{bank.t.p.txt, wettkampf_modus::jeder_gegen_jeden};
    auto erstes = stand_gelesen(bank.eingang, annahme);
    annahme.modus = wettkampf_modus::am_stueck_verteilt;
    erstes = erstes ? erstes : stand_gelesen(bank.eingang, annahme);
    if (!erstes) {
        return false;
    }
    const auto zeilen = wettkampf_zeilen(*erstes, trennzeichen_standard);
    fordern(bank.ausgang.zeilen_schreiben(standdatei, zeilen), "a competition cannot be written");
    annahme.modus = wettkampf_modus::einmal;  // it is in the file now
    const auto wieder = stand_gelesen(bank.ausgang, annahme);
    fordern(wieder == erstes, "a competition changes on the way through its file");
    fordern(wettkampf_zeilen(*wieder, trennzeichen_standard) == zeilen, "and its file with it");
    zu_ende_fahren(*wieder);
    return true;
}

std::vector<std::vector<std::string>> volle_wettkampfstaende(const texte& txt) {
    std::vector<std::vector<std::string>> alle;
    for (const auto modus : {wettkampf_modus::am_stueck_verteilt, wettkampf_modus::jeder_gegen_jeden}) {
        planvorgabe vorgabe;
        vorgabe.modus = modus;
        vorgabe.aktiv[2] = vorgabe.aktiv[4] = true;
        vorgabe.centermode = true;
        auto w = wettkampf_beginnen(vorgabe, std::vector<std::string>{"Jörg", "Anna", "Ben"}, "Pokal", txt).value();
        for (int teil = 0; teil < 3; ++teil) {
            w.ergebnis_eintragen(
                {{fahrt{}, fahrt{10, 80000 + teil, 10250, 7900}, fahrt{}, fahrt{9, 79000, 9775, 8100}}});
            w.naechstes_offenes_rennen();
        }
        w.zurueckstellen(w.rennen_gesamt());
        w.renndauern = {300000};
        std::vector<std::string> zeilen = wettkampf_zeilen(w, trennzeichen_standard);
        alle.push_back(zeilen);
        zeilen.erase(std::find(zeilen.begin(), zeilen.end(), "[Wettkampfzusatz 1]"), zeilen.end());
        alle.push_back(zeilen);
    }
    return alle;
}

}  // namespace tarvel::test
