#include <algorithm>

#include "competition/wettkampf1.h"
#include "core/text.h"
#include "core/zeit.h"

namespace tarvel {
namespace {

constexpr const char* nichts = "–";

int rennen_je_fahrer(const rennplan& plan) {
    int anzahl = 0;
    for (int nummer = 1; nummer <= plan.rennen_gesamt(); ++nummer) {
        anzahl += plan.spur_von(nummer, 1) != 0 ? 1 : 0;
    }
    return anzahl;
}

}  // namespace

planvorgabe wettkampf1::plan_vorgeben() const {
    const einstellungen& einst = um_.einst;
    return {wettkampf_modus_bestimmen(einst.w_wechselmodus, einst.wechsel_schema, einst.gruppen),
            static_cast<int>(start_.anzahl()), um_.param.spur_aktiv, einst.wechsel_schema, einst.centermode};
}

std::string wettkampf1::mangel_text(planmangel mangel) const {
    switch (mangel) {
        case planmangel::zu_wenige_fahrer:
            return wort_.zu_wenige;
        case planmangel::zu_viele_fahrer:
            return wort_.zu_viele;
        case planmangel::keine_spur:
            return wort_.keine_spur;
        case planmangel::nicht_zwei_spuren:
            return wort_.nicht_zwei;
        default:
            return {};
    }
}

std::string wettkampf1::dauer_text(zeit_ms dauer) const {
    const zeit_teile teile = zeit_zerlegen(dauer);
    const std::string stunden = teile.stunden > 0 ? std::to_string(teile.stunden) + " " + wort_.stunden + " " : "";
    const std::string sekunden = teile.sekunden > 0 ? ":" + ziffern(teile.sekunden, 2) : "";
    return stunden + std::to_string(teile.minuten) + sekunden + " " + wort_.minuten;
}

void wettkampf1::plan_zeigen() {
    const planvorgabe vorgabe = plan_vorgeben();
    const planmangel mangel = plan_pruefen(vorgabe);
    const int passen = planfahrer_max(vorgabe.aktiv);
    for (const int spur : alle_spuren) {
        spurfarbe.at(feld_index(spur)).sichtbar(vorgabe.aktiv[spur]);
    }
    plan_wert[plan_art].text(wort_.modus.at(static_cast<std::size_t>(vorgabe.modus)));
    plan_wert[plan_spuren].text(std::to_string(std::count(vorgabe.aktiv.begin(), vorgabe.aktiv.end(), true)));
    plan_wert[plan_laenge].text(um_.param.ist_zeitrennen() ? dauer_text(um_.param.renndauer_ms)
                                                           : um_.welt.txt.runden(um_.param.renn_laenge.runden()));
    if (mangel == planmangel::keiner) {
        planwerte_zeigen(rennplan_erstellen(vorgabe));
    } else {
        for (const planzeile zeile : {plan_rennen, plan_je_fahrer, plan_frei, plan_dauer}) {
            plan_wert.at(zeile).text(nichts);
        }
    }
    const bool zu_lang = mangel == planmangel::keiner && vorgabe.fahrer > passen;
    plan_hinweis.text(zu_lang ? wort_.passen_nicht + " " + std::to_string(passen) : mangel_text(mangel));
    plan_hinweis.sichtbar(!plan_hinweis.text().empty());
}

void wettkampf1::planwerte_zeigen(const rennplan& plan) {
    const auto frei = std::count_if(plan.teilnehmer.begin(), plan.teilnehmer.end(),
                                    [](const startplatz& platz) { return platz.ist_fueller(); });
    const bool mehrteilig = plan.teile > 1;
    plan_wert[plan_rennen].text(std::to_string(plan.rennen_gesamt()) +
                                (mehrteilig ? " × " + std::to_string(plan.teile) + " " + wort_.teile : ""));
    plan_wert[plan_je_fahrer].text(std::to_string(rennen_je_fahrer(plan) * plan.teile));
    plan_wert[plan_frei].text(frei == 0 ? wort_.keine : std::to_string(frei));
    // laps say nothing of how long it takes
    const zeit_ms fahrzeit = um_.param.renndauer_ms * plan.rennen_gesamt() * plan.teile;
    plan_wert[plan_dauer].text(um_.param.ist_zeitrennen() ? dauer_text(fahrzeit) : std::string(nichts));
}

std::string wettkampf1::titel_ohne_kommas() const {
    std::string neu = von_1252(nach_1252(Text1.text()));
    std::erase(neu, ',');
    neu = gekuerzt(neu);
    return neu.empty() ? wort_.titel_standard : neu;
}

/// Those behind the last place in the plan are named before anything begins.
bool wettkampf1::ueberzaehlige_genehmigt(std::size_t passen) {
    if (start_.anzahl() <= passen) {
        return true;
    }
    std::string text = wort_.passen_nicht + " " + std::to_string(passen) + ". " + wort_.fallen_heraus;
    for (std::size_t i = passen; i < start_.anzahl(); ++i) {
        text += "\n" + start_.eintraege()[i].name;
    }
    return um_.welt.meldungen.fragen(text, um_.welt.txt.titel[0]);
}

void wettkampf1::wettkampf_starten(bool qualifying) {
    if (!gekuerzt(auswahl.text()).empty() && !name_hinzufuegen()) {
        return;  // typed, and meant to take part
    }
    if (rennen_uebergeben(um_.einrichtung, um_.einst, rennumfang::wettkampf, um_.param) != einrichtungsfehler::keiner) {
        um_.welt.meldungen.zeigen(um_.welt.txt.meldung[13], um_.welt.txt.titel[1]);
        return;
    }
    planvorgabe plan = plan_vorgeben();
    if (const planmangel mangel = plan_pruefen(plan); mangel != planmangel::keiner) {
        melden(mangel_text(mangel));
        auswahl.fokus_setzen();
        return;
    }
    const auto passen = static_cast<std::size_t>(planfahrer_max(plan.aktiv));
    if (!ueberzaehlige_genehmigt(passen)) {
        return;
    }
    wettkampfvorgabe vorgabe{titel_ohne_kommas(), {}, {}, plan, qualifying};
    const namensliste alle = start_.als_namensliste(um_.fahrerliste.listenart());
    for (std::size_t i = 0; i < std::min(passen, start_.anzahl()); ++i) {
        vorgabe.fahrer.push_back(start_.eintraege()[i].name);
        vorgabe.bilder.push_back(alle.bilddatei(um_.welt.ablage, i));
    }
    vorgabe.plan.fahrer = static_cast<int>(vorgabe.fahrer.size());
    um_.folgen.beginnen(vorgabe);
}

}  // namespace tarvel
