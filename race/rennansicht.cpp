#include "race/rennansicht.h"

#include <algorithm>
#include <string>

#include "core/zeit.h"
#include "race/rundenanzeige.h"

namespace tarvel {
namespace {

constexpr const char* leere_zeit = "00:00:000";
constexpr farbe warnfarbe = 0x5A5AFF;  // a red that small letters can bear on black
/// The club's picture stands for a driver without one.
constexpr const char* bild_ohne_fahrerbild = "tvkpic2.jpg";

}  // namespace

void zaehler_verkleinern(bahn1& bahn, int spur, int runden) {
    bezeichnung& zaehler = bahn.zaehler[spur];
    if (runden >= 1000 && bahn.zeilenansicht()) {
        zaehler.links(bahn.zaehler_links / 2);
    } else if (runden >= 100) {
        zaehler.schriftgroesse((runden >= 1000 ? 0.6 : 0.8) * bahn.zaehler_schrift);
    }
}

void rennansicht::fusszeile_setzen(const std::string& text, bool warnung) {
    um_.bahn.werbe_label.text(text);
    um_.bahn.werbe_label.schriftfarbe(warnung ? warnfarbe : um_.einst.farben_schrift[2]);
}

void rennansicht::geraetealarm_setzen(const std::string& text) {
    bezeichnung& alarm = um_.bahn.geraetealarm;
    alarm.text(text);
    if (!text.empty() && !alarm.sichtbar()) {
        um_.sounds.spielen(sound::pause_beginnt);
    }
    alarm.sichtbar(!text.empty());
}

void rennansicht::oeffnen() {
    if (um_.einst.darstellung_zeile) {
        zeilenansicht_oeffnen();
    } else if (std::count_if(alle_spuren.begin(), alle_spuren.end(), [this](int spur) { return zu_sehen(spur); }) > 1) {
        spaltenansicht_oeffnen();
    } else {
        einfahrer_ansicht_oeffnen();
    }
}

bool rennansicht::zu_sehen(int spur) const {
    return um_.param.spur_aktiv[spur] || um_.teil_von->leer_gezeigt(spur);
}

void rennansicht::zeilenansicht_oeffnen() {
    um_.bahn.zaehler_links = entwurf::zaehler_links;
    ansicht_oeffnen(ansicht_art::zeilen);
}

void rennansicht::spaltenansicht_oeffnen() {
    um_.bahn.zaehler_links = 0;
    ansicht_oeffnen(ansicht_art::spalten);
}

void rennansicht::einfahrer_ansicht_oeffnen() {
    um_.bahn.zaehler_links = 0;
    ansicht_oeffnen(ansicht_art::einfahrer);
}

void rennansicht::ansicht_oeffnen(ansicht_art art) {
    bahn1& bahn = um_.bahn;
    texte_setzen();
    bahn.zaehler_schrift = entwurf::zaehler_schrift;
    bahn.tank_balkenhoehe = entwurf::balkenhoehe;
    for (const int spur : alle_spuren) {
        spur_oeffnen(spur);
    }
    bestzeit_anzeige();
    bilder_setzen();
    const auto gibt_es = [this](const bild& b) { return um_.ablage.gibt_es(b.datei()); };
    ansicht_inhalt inhalt;
    inhalt.art = art;
    for (const int spur : alle_spuren) {
        inhalt.spur_aktiv[spur] = zu_sehen(spur);
    }
    if (um_.param.tank_aktiv) {
        inhalt.tank = um_.einst.tankanzeige_grafisch ? tankanzeige_art::balken : tankanzeige_art::zahl;
    }
    inhalt.fahrzeugbild = um_.einst.fahrzeugbild_an;
    inhalt.bestzeit = std::any_of(bahn.bestzeit_label.begin(), bahn.bestzeit_label.end(),
                                  [](const bezeichnung& label) { return label.sichtbar(); });
    inhalt.grosse_zeit = um_.einst.grosse_zeit;
    const std::string naechste = um_.teil_von->naechste_fahrer();
    inhalt.einfahrzeit = um_.teil_von->wer_startet() == starter::einfahrzeit;
    inhalt.naechstes_rennen = !naechste.empty();
    inhalt.logobild = gibt_es(bahn.logobild);
    inhalt.wrpic1 = gibt_es(bahn.wrpic1);
    inhalt.wrpic2 = gibt_es(bahn.wrpic2);
    bahn.Command6.sichtbar(inhalt.einfahrzeit);
    bahn.Label_naechstesrennen.sichtbar(inhalt.naechstes_rennen);
    bahn.Label5.sichtbar(inhalt.naechstes_rennen);
    bahn.Label5.text(naechste);
    bahn.ansicht.inhalt(inhalt);
    bahn.Nachtabschaltung.sichtbar(false);
    const bool rest_zaehlt = um_.ist_rundenrennen() && um_.param.renn_ziel != ziel_ohne_ende;
    bahn.restrunden.sichtbar(rest_zaehlt);
    bahn.Label_restrunden.sichtbar(rest_zaehlt);
    bahn.uhr2.uhrframe.sichtbar(!rest_zaehlt);  // both clocks would show the same
}

void rennansicht::spur_oeffnen(int spur) {
    bahn1& bahn = um_.bahn;
    const std::size_t index = feld_index(spur);
    const bool dabei = um_.param.spur_aktiv[spur];
    const bool gezeigt = dabei || um_.teil_von->leer_gezeigt(spur);
    const bool mit_bild = dabei && !um_.teil_von->ist_fueller(spur);
    bahn.namenslabel[spur].text(um_.param.fahrer_name[spur]);
    bahn.namenslabel[spur].sichtbar(gezeigt);
    bahn.bahnshape[spur].sichtbar(gezeigt);
    for (steuerelement* element :
         {static_cast<steuerelement*>(&bahn.zaehler[spur]), static_cast<steuerelement*>(&bahn.lrunde[spur]),
          static_cast<steuerelement*>(&bahn.brunde[spur]), static_cast<steuerelement*>(&bahn.t_liste[index])}) {
        element->sichtbar(dabei);
    }
    bahn.Image1[spur].sichtbar(mit_bild);
    bahn.Image2[spur].sichtbar(mit_bild && um_.einst.fahrzeugbild_an);
    bahn.t_liste[index].vormerken(runden_max + 1);
    bahn.frame_tank[spur].sichtbar(dabei && um_.param.tank_aktiv);
    bahn.t_bahn[spur].sichtbar(!um_.einst.tankanzeige_grafisch);
    bahn.tankbalken[index].sichtbar(um_.einst.tankanzeige_grafisch);
}

void rennansicht::bilder_setzen() {
    bahn1& bahn = um_.bahn;
    const namensliste::art& fahrer = um_.fahrerliste.listenart();
    const bool vereinsbild = um_.ablage.gibt_es(bild_ohne_fahrerbild);
    for (const int spur : alle_spuren) {
        um_.fahrzeugliste.bild_zeigen(um_.ablage, um_.param.fahrzeug_name[spur], bahn.Image2[spur]);
        um_.fahrerliste.bild_zeigen(um_.ablage, um_.param.fahrer_name[spur], bahn.Image1[spur]);
        if (vereinsbild && bahn.Image1[spur].datei() == fahrer.bildordner + "/" + fahrer.standardbild) {
            bahn.Image1[spur].datei(bild_ohne_fahrerbild);
        }
        if (um_.param.spur_aktiv[spur]) {  // the same file may hold another picture since the last race
            bahn.Image1[spur].neu_laden();
            bahn.Image2[spur].neu_laden();
        }
    }
    for (std::size_t i = 0; i < bahn.ampel_rt.size(); ++i) {
        bahn.ampel_rt.at(i).datei("ampel/rt_an.gif");
        bahn.ampel_ge.at(i).datei("ampel/ge_an.gif");
        bahn.ampel_gr.at(i).datei("ampel/gr_an.gif");
    }
    const auto vom_verein = [this](bild& ort, const std::string& datei) {
        ort.datei(datei);
        ort.neu_laden();
        ort.sichtbar(um_.ablage.gibt_es(datei));
    };
    vom_verein(bahn.logobild, "pictures/logobild.jpg");
    vom_verein(bahn.wrpic1, "pictures/wrpic1.jpg");
    vom_verein(bahn.wrpic2, "pictures/wrpic2.jpg");
}

void rennansicht::bestzeit_anzeige() {
    bahn1& bahn = um_.bahn;
    const auto zeit = [this](const bestzeit& b) { return zeit_formatieren(b.ms, true, um_.einst.trennzeichen); };
    for (const int spur : alle_spuren) {
        const bestzeit& beste = um_.bestzeiten.eintrag(1, spur);
        const bool zeigen =
            um_.param.spur_aktiv[spur] && um_.einst.beste_modus != bestzeit_speicherung::aus && !beste.leer();
        bahn.bestzeit_label[spur].text(zeigen ? bahn.wort.bestzeit + zeit(beste) : std::string());
        bahn.bestzeit_label[spur].tipp(  // it stands under one driver, and may be another's
            zeigen ? beste.name + "   " + beste.fahrzeug + "   " + beste.datum : std::string());
        bahn.bestzeit_label[spur].sichtbar(zeigen);
    }
    const bestzeit& rekord = um_.bestzeiten.gesamt();
    bahn.bestzeit_gesamt.text(
        rekord.leer() ? "" : bahn.wort.rekord + zeit(rekord) + "   " + rekord.name + "   " + rekord.datum);
    in_der_rekordzeile("");
}

void rennansicht::in_der_rekordzeile(const std::string& folge) {
    bahn1& bahn = um_.bahn;
    bahn.ergebnisfolge.text(folge);
    bahn.ergebnisfolge.sichtbar(!folge.empty());
    const bool mit_rekord = um_.einst.beste_modus != bestzeit_speicherung::aus && !bahn.bestzeit_gesamt.text().empty();
    bahn.bestzeit_gesamt.sichtbar(mit_rekord && folge.empty());
}

void rennansicht::farben_setzen() {
    bahn1& bahn = um_.bahn;
    bahn.hintergrund.hintergrund(um_.einst.farben_ampel[1]);
    for (const int spur : alle_spuren) {
        const farbe spurfarbe = um_.einst.farben_spur[spur];
        bahn.namenslabel[spur].schriftfarbe(spurfarbe);
        bahn.lrunde[spur].schriftfarbe(spurfarbe);
        bahn.frame_tank[spur].schriftfarbe(spurfarbe);
        bahn.brunde[spur].schriftfarbe(spurfarbe);
        bahn.l_PosAnz.at(feld_index(spur)).schriftfarbe(spurfarbe);
        bahn.zaehler[spur].schriftfarbe(um_.einst.farben_schrift[2]);
        bahn.straflabel[spur].schriftfarbe(um_.einst.farben_schrift[2]);
        for (bezeichnung* titel : {&bahn.bestzeit_label[spur], &bahn.Label_platz[spur], &bahn.Label_schuld[spur],
                                   &bahn.Label_lrunde[spur], &bahn.Label_brunde[spur], &bahn.rueckstand[spur]}) {
            titel->schriftfarbe(um_.einst.farben_schrift[2]);
        }
        bahn.t_liste.at(feld_index(spur)).schriftfarbe(um_.einst.farben_schrift[2]);
        bahn.bahnshape[spur].hintergrund(um_.einst.farben_ampel[1]);
        bahn.bahnshape[spur].schriftfarbe(spurfarbe);
    }
    for (rennuhr_felder* uhr : {&bahn.uhr1, &bahn.uhr2}) {
        uhr->uhrframe.schriftfarbe(um_.einst.farben_schrift[2]);
        for (bezeichnung* teil : {&uhr->stunden, &uhr->minuten, &uhr->sekunden, &uhr->tausendstel, &uhr->nach_stunden,
                                  &uhr->nach_minuten, &uhr->nach_sekunden}) {
            teil->schriftfarbe(um_.einst.farben_schrift[2]);
        }
    }
    for (bezeichnung* label : {&bahn.bestzeit_gesamt, &bahn.ergebnisfolge, &bahn.nachlauflabel, &bahn.ziel_label,
                               &bahn.Label_naechstesrennen, &bahn.Label5, &bahn.werbe_label, &bahn.restrunden,
                               &bahn.Label_restrunden, &bahn.ch_Label1, &bahn.ch_Label2, &bahn.ch_Label3}) {
        label->schriftfarbe(um_.einst.farben_schrift[2]);
    }
}

void rennansicht::kleine_ampel(int spur, kleines_licht licht) {
    const bool dabei = um_.param.spur_aktiv[spur];
    um_.bahn.ampel_rt.at(feld_index(spur)).sichtbar(dabei && licht == kleines_licht::rot);
    um_.bahn.ampel_ge.at(feld_index(spur)).sichtbar(dabei && licht == kleines_licht::gelb);
    um_.bahn.ampel_gr.at(feld_index(spur)).sichtbar(dabei && licht == kleines_licht::gruen);
}

void rennansicht::anzeigen_leeren() {
    bahn1& bahn = um_.bahn;
    for (const int spur : alle_spuren) {
        bahn.zaehler[spur].text("0");
        bahn.zaehler[spur].schriftgroesse(bahn.zaehler_schrift);
        bahn.zaehler[spur].links(bahn.zaehler_links);
        bahn.zaehler[spur].schriftfarbe(um_.einst.farben_schrift[2]);
        bahn.lrunde[spur].text(leere_zeit);
        bahn.brunde[spur].text(leere_zeit);
        bahn.Label_lrunde[spur].text(bahn.wort.letzte_runde);
        bahn.Label_brunde[spur].text(bahn.wort.beste_runde);
        bahn.straflabel[spur].sichtbar(false);
        bahn.t_liste.at(feld_index(spur)).leeren();
        bahn.bahnshape[spur].randfarbe(std::nullopt);
        kleine_ampel(spur, kleines_licht::rot);
    }
}

void rennansicht::stand_zeigen() {
    bahn1& bahn = um_.bahn;
    const rundenkonto& konto = um_.zustand.konto;
    const trennzeichen_tabelle& trennzeichen = um_.einst.trennzeichen;
    for (const int spur : alle_spuren) {
        const int runden = konto.runden(spur);
        const bool disqualifiziert = um_.zustand.spur[spur].disqualifiziert;
        if (disqualifiziert) {
            bahn.zaehler[spur].text(disqualifiziert_text);
        }
        if (runden < 0) {
            continue;
        }
        if (!disqualifiziert) {
            bahn.zaehler[spur].text(std::to_string(runden));
        }
        bahn.zaehler[spur].schriftfarbe(um_.einst.farben_spur[spur]);
        if (runden >= 100) {
            zaehler_verkleinern(bahn, spur, 100);
        }
        if (runden >= 1000) {
            zaehler_verkleinern(bahn, spur, 1000);
        }
        if (runden > 0) {
            letzte_runde_zeigen(bahn, spur, konto.rundenzeit(spur, runden), trennzeichen);
            beste_runde_zeigen(bahn, spur, konto.beste(spur), trennzeichen);
        }
        liste& rundenliste = bahn.t_liste.at(feld_index(spur));
        for (int runde = 0; rundenliste.sichtbar() && runde <= runden; ++runde) {
            kurz_auflisten(rundenliste, runde, konto.rundenzeit(spur, runde), trennzeichen);
        }
        rundenliste.markieren(runden);
    }
}

void rennansicht::freigeben() {
    for (const int spur : alle_spuren) {
        if (!um_.zustand.spur[spur].strom_aus) {
            kleine_ampel(spur, kleines_licht::gruen);
        }
    }
}

void rennansicht::bildschirm_dunkel() {
    um_.bahn.Nachtabschaltung.sichtbar(!um_.bahn.Nachtabschaltung.sichtbar());
}

}  // namespace tarvel
