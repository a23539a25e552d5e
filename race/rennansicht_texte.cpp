#include <array>
#include <cstddef>
#include <string>

#include "core/text.h"
#include "core/zeit.h"
#include "race/rennansicht.h"

namespace tarvel {
namespace {

void uhr_texte(rennuhr_felder& uhr, const trennzeichen_tabelle& trennzeichen) {
    uhr.nach_stunden.text(trennzeichen[0]);
    uhr.nach_minuten.text(trennzeichen[0]);
    uhr.nach_sekunden.text(trennzeichen[1]);
}

}  // namespace

void rennansicht::texte_setzen() {
    bahn1& bahn = um_.bahn;
    sprache_r().anwenden(um_.ablage);
    bahn.uhr1.uhrframe.text(um_.ist_zeitrennen() ? bahn.wort.restzeit : bahn.wort.rennzeit);
    bahn.uhr2.uhrframe.text(bahn.wort.rennzeit);
    uhr_texte(bahn.uhr1, um_.einst.trennzeichen);
    uhr_texte(bahn.uhr2, um_.einst.trennzeichen);
    ziel_zeigen();
    ansagen_setzen();
}

void rennansicht::ziel_zeigen() {
    const std::string ziel = ziel_text(um_.param.renn_ziel);
    if (um_.teil_von->zur_uebung()) {
        const std::string& training = um_.bahn.wort.training.at(static_cast<std::size_t>(um_.einst.training_art));
        um_.bahn.titel.text(training);
        um_.bahn.ziel_label.text(training + " · " + ziel);
    } else {
        um_.bahn.ziel_label.text(ziel);
    }
}

std::string rennansicht::ziel_text(const rennziel& ziel) const {
    if (!ziel.ist_zeit()) {
        return ziel == ziel_ohne_ende ? um_.bahn.wort.ohne_ende : um_.txt.runden(ziel.runden());
    }
    const bahn1& bahn = um_.bahn;
    const zeit_teile dauer = zeit_zerlegen(ziel.ms());
    const std::string stunden =
        dauer.stunden > 0 ? std::to_string(dauer.stunden) + " " + bahn.wort.stunden + " " : std::string();
    return stunden + std::to_string(dauer.minuten) + um_.einst.trennzeichen[0] + ziffern(dauer.sekunden, 2) + " " +
           bahn.wort.minuten;
}

void rennansicht::ansagen_setzen() {
    bahn1& bahn = um_.bahn;
    bahn.wort.letzte_runde = bahn.Label_lrunde[1].text();  // sectors may take their place
    bahn.wort.beste_runde = bahn.Label_brunde[1].text();
    for (const int spur : alle_spuren) {
        const std::size_t index = feld_index(spur);
        const auto ansagen = [&](steuerelement& element, const std::string& was) {
            element.ansage(bahn.wort.spur + " " + std::to_string(spur) + ": " + was);
        };
        bahn.Label_spur[spur].text(std::to_string(spur));
        bahn.Label_spur[spur].tipp(bahn.wort.spur);
        ansagen(bahn.namenslabel[spur], bahn.wort.fahrer);
        ansagen(bahn.zaehler[spur], bahn.wort.runden);
        ansagen(bahn.lrunde[spur], bahn.Label_lrunde[spur].text());
        ansagen(bahn.brunde[spur], bahn.Label_brunde[spur].text());
        ansagen(bahn.straflabel[spur], bahn.wort.strafzeit);
        ansagen(bahn.l_PosAnz.at(index), bahn.Label_platz[spur].text());
        ansagen(bahn.t_liste.at(index), bahn.wort.rundenliste);
        ansagen(bahn.ch_strafzeit_hacken[spur], bahn.wort.strafzeit);
        ansagen(bahn.lage[spur], bahn.wort.lage);
        ansagen(bahn.rueckstand[spur], bahn.wort.rueckstand);
        ansagen(bahn.hinweis[spur], bahn.wort.hinweis);
    }
    bahn.ch_Text1.ansage(bahn.wort.strafzeit);
}

sprachliste rennansicht::sprache_r() {
    bahn1& bahn = um_.bahn;
    sprachliste texte("language\\language_r.txt");
    texte.ueberschrift("Rennbildschirm").text("Rennbildschirm", bahn.titel);
    texte.text("Rennstart", bahn.Command1).text("Rennabbruch", bahn.Command2).text("Rennende", bahn.Command4);
    texte.text("Nachlaufzeit", bahn.nachlauflabel);
    texte.text("Restzeit", bahn.wort.restzeit).text("Rennzeit", bahn.wort.rennzeit);
    texte.text("h", bahn.wort.stunden).text("min", bahn.wort.minuten);
    texte.text("Spur", bahn.wort.spur).fuer_alle("Platz", bahn.Label_platz);
    texte.fuer_alle("letzte Runde", bahn.Label_lrunde).fuer_alle("beste Runde", bahn.Label_brunde);
    texte.text("Fahrer", bahn.wort.fahrer).text("Runden", bahn.wort.runden);
    texte.text("Rundenliste", bahn.wort.rundenliste).text("Strafzeit", bahn.wort.strafzeit);
    texte.fuer_alle("Tankinhalt", bahn.frame_tank);
    texte.text("Chaos / Pause", bahn.wort.pause).text("Chaos/Pause", bahn.wort.pause_wieder);
    texte.text("Rennen fortsetzen", bahn.wort.fortsetzen);
    texte.text("Weiter", bahn.wort.weiter).text("Die Strafzeit für Fahrer mit", bahn.ch_Label1);
    texte.text("beträgt ", bahn.ch_Label2).text("Sekunden.", bahn.ch_Label3);
    texte.tipp_fuer_alle("Klicken um Strafzeit zuzuordnen!", bahn.ch_strafzeit_hacken);
    texte.text("Startampel", bahn.wort.startampel).text("Frühstart", bahn.wort.fruehstart);
    texte.text("Best: ", bahn.wort.bestzeit);
    texte.text("Zum Rennstart bitte die Starttaste an der CU oder Blackbox 2x drücken!!!", bahn.wort.cu_start);
    texte.text("Pause: Weiter mit der Starttaste der Control Unit oder mit „Weiter“.", bahn.wort.cu_pause);
    texte.text("Einfahrzeit starten", bahn.Command6).text("Nächstes Rennen:", bahn.Label_naechstesrennen);
    texte.text("Hell mit der Taste", bahn.wort.nacht);
    texte.text("Prestage", bahn.wort.prestage).text("Stage", bahn.wort.stage);
    texte.text("Die Zeitmessung ist nicht verbunden, nur die Tasten zählen Runden. Das Rennen trotzdem starten?",
               bahn.wort.ohne_messung);
    texte.text("Das Rennen läuft. Wirklich ohne Ergebnis abbrechen?", bahn.wort.ohne_ergebnis);
    texte.text("ohne Ende", bahn.wort.ohne_ende).text("Protokoll", bahn.Command_protokoll);
    texte.text("Das Protokoll des Rennens ist nicht ganz geschrieben. Ist die Platte voll oder gesperrt?",
               bahn.wort.ohne_protokoll);
    texte.text("Wirklich? Noch einmal drücken", bahn.wort.wirklich);
    texte.text("Das Rennen läuft. Wirklich mit dem Stand von jetzt beenden?", bahn.wort.ohne_rest);
    return lageworte_nennen(texte);
}

sprachliste& rennansicht::lageworte_nennen(sprachliste& texte) {
    bahn1& bahn = um_.bahn;
    texte.fuer_alle("schuld", bahn.Label_schuld).text("noch Runden", bahn.Label_restrunden);
    texte.text("Bahnrekord: ", bahn.wort.rekord).text("Lage", bahn.wort.lage);
    constexpr std::array<const char*, lagen_anzahl> lagen{"",     "PAUSE", "FRÜH\u00ADSTART",      "STRAFE", "BOX",
                                                          "LEER", "ZIEL",  "DISQUALI\u00ADFIZIERT"};
    for (std::size_t i = 1; i < lagen.size(); ++i) {
        texte.text(lagen.at(i), bahn.wort.lagen.at(i));
    }
    bahn.wort.zurueck.eintragen(texte.text("Rückstand", bahn.wort.rueckstand));
    texte.text("Hinweis", bahn.wort.hinweis).text("zu kurz", bahn.wort.zu_kurz);
    texte.text("noch in der Box", bahn.wort.noch_in_der_box).text("vor Grün", bahn.wort.vor_gruen);
    texte.text("Runde wartet", bahn.wort.runde_wartet);
    constexpr std::array<const char*, 3> trainings{"normales Training", "Intervaltraining", "Dauertraining"};
    for (std::size_t i = 0; i < trainings.size(); ++i) {
        texte.text(trainings.at(i), bahn.wort.training.at(i));
    }
    constexpr std::array<const char*, 6> folgen{"ohne Strafe",     "Start wird wiederholt", "disqualifiziert",
                                                "%1 s ohne Strom", "1 Runde Abzug",         "%1 s Zeitstrafe"};
    for (std::size_t i = 0; i < folgen.size(); ++i) {
        texte.text(folgen.at(i), bahn.wort.fruehstart_folgen.at(i));
    }
    texte.text("zählt nicht", bahn.wort.in_der_pause).text("ohne Strom", bahn.wort.noch_ohne_strom);
    texte.text("Neue Pause erst 2,5 s nach „Weiter“", bahn.wort.pause_gesperrt);
    texte.text("Rennen abgebrochen. „Fortsetzen“ holt es zurück.", bahn.wort.zurueckholen);
    return texte.text("noch gesperrt", bahn.wort.noch_gesperrt)
        .text("s Strafe", bahn.wort.sekunden_strafe)
        .text("erst ab", bahn.wort.erst_ab)
        .text("Nach gewerteter Zeit vorn:", bahn.wort.nach_zeit_vorn)
        .text("Sektor", bahn.wort.sektor)
        .text("Topspeed", bahn.wort.topspeed);
}

}  // namespace tarvel
