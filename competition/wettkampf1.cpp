#include "competition/wettkampf1.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::size_t gesamt_max = namensliste::namen_max;
constexpr std::size_t start_max = 99;
constexpr int titel_laenge_max = 60;

}  // namespace

wettkampf1::wettkampf1(umgebung um)
    : fensterlogik(um.welt.fenster, um.welt.ablage, fenstername::wettkampf1),
      um_(um),
      gesamt_(um.welt.txt, gesamt_max),
      start_(um.welt.txt, start_max),
      links_{gesamt_, rennliste, "wettkampfliste.lst"},
      rechts_{start_, auswahlliste, "wettkampf.lst"} {
    Text1.laenge_max(titel_laenge_max);
    auswahl.frei(true);
    auswahl.laenge_max(namensliste::name_laenge_max);
    auswahl.vorschlagen = [this](const std::string& getippt) {
        return namensvorschlaege(getippt, um_.zuletzt_gefahren.mit_liste(um_.fahrerliste));
    };
    auswahl.bei_aenderung = [this] { auswahl_Change(); };
    listen_verbinden();
    befehle_verbinden();
}

void wettkampf1::listen_verbinden() {
    const auto waehlbar = [this](liste& diese, liste& andere, befehl& hinueber) {
        diese.bei_auswahl = [this, &andere] {
            andere.markieren(-1);  // a command acts on one driver
            auswahl_folgen();
        };
        diese.bei_doppelklick = [&hinueber] { hinueber.klicken(); };
    };
    waehlbar(rennliste, auswahlliste, Command16);
    waehlbar(auswahlliste, rennliste, Command18);
}

void wettkampf1::befehle_verbinden() {
    Command1.bei_klick = [this] { name_hinzufuegen(); };
    Command2.bei_klick = [this] { streichen(); };
    Command7.bei_klick = [this] { alle_streichen(); };
    Command10.bei_klick = [this] { hoch_oder_runter(-1); };
    Command12.bei_klick = [this] { hoch_oder_runter(1); };
    Command13.bei_klick = [this] { mischen(); };
    Command16.bei_klick = [this] { verschieben(links_, rechts_); };
    Command17.bei_klick = [this] { alle_verschieben(links_, rechts_); };
    Command18.bei_klick = [this] { verschieben(rechts_, links_); };
    Command19.bei_klick = [this] { alle_verschieben(rechts_, links_); };
    Command15.bei_klick = [this] { ersetzen(rechts_, links_); };
    Command20.bei_klick = [this] { ersetzen(links_, rechts_); };
    Command21.bei_klick = [this] { listen_tauschen(); };
    Command5.bei_klick = [this] { laden_oeffnen(rechts_); };
    Command6.bei_klick = [this] { speichern_oeffnen(rechts_); };
    Command22.bei_klick = [this] { laden_oeffnen(links_); };
    Command23.bei_klick = [this] { speichern_oeffnen(links_); };
    Command14.bei_klick = [this] { bildnamen_zuordnen(); };
    Command24.bei_klick = [this] { bild_neu_zuordnen(); };
    Command3.bei_klick = [this] { wettkampf_starten(false); };
    Command11.bei_klick = [this] { wettkampf_starten(true); };
    Command9.bei_klick = [this] { um_.folgen.laden(); };
    Command25.bei_klick = [this] { um_.welt.fenster.zeigen(fenstername::w_auswertung2, anzeige_art::modal); };
    Command8.bei_klick = [this] {
        if (einstellungen_oeffnen) {
            einstellungen_oeffnen();
        }
    };
    Command4.bei_klick = [this] { schliessen(); };
}

void wettkampf1::oeffnen() {
    um_.welt.fenster.zeigen(fenstername::wettkampf1, anzeige_art::modal);
    auswahl.fokus_setzen();
}

void wettkampf1::laden() {
    texte_lesen();
    ansagen_setzen();
    farben_wettkampf1_einstellen();
    if (gekuerzt(Text1.text()).empty()) {
        Text1.text(wort_.titel_standard);
    }
    auswahl.text("");
    fahrerliste_uebernehmen();
    listen_schreiben();
}

void wettkampf1::farben_wettkampf1_einstellen() {
    for (const int spur : alle_spuren) {
        form& fleck = spurfarbe.at(feld_index(spur));
        fleck.hintergrund(um_.einst.farben_spur[spur]);
        fleck.text(std::to_string(spur));
    }
}

void wettkampf1::fahrerliste_uebernehmen() {
    gesamt_.leeren();
    bekannte_.clear();
    neue_fahrer_aufnehmen();
}

void wettkampf1::neue_fahrer_aufnehmen() {
    std::vector<std::string> namen;
    for (const listeneintrag& eintrag : um_.fahrerliste.eintraege()) {
        namen.push_back(eintrag.name);
        const bool bekannt = std::any_of(bekannte_.begin(), bekannte_.end(),
                                         [&](const listeneintrag& e) { return e.name == eintrag.name; });
        if (!bekannt && !start_.zeile_von(startlistenname(eintrag.name))) {
            gesamt_.hinzufuegen(eintrag);
        }
    }
    bekannte_ = um_.fahrerliste.eintraege();
    auswahl.eintraege(namen);
}

void wettkampf1::optionen_geschlossen() {
    neue_fahrer_aufnehmen();
    farben_wettkampf1_einstellen();
    rennen_uebergeben(um_.einrichtung, um_.einst, rennumfang::wettkampf, um_.param);
    seite* wo = markierte_seite();
    const int zeile = wo != nullptr ? wo->anzeige.markiert() : -1;
    listen_schreiben(wo != nullptr ? *wo : rechts_, zeile);
}

void wettkampf1::listen_schreiben() {
    listen_schreiben(rechts_, -1);
}

void wettkampf1::listen_schreiben(const seite& wo, int zeile) {
    rennliste.leeren();
    for (const listeneintrag& eintrag : gesamt_.eintraege()) {
        rennliste.hinzufuegen(eintrag.name);
    }
    auswahlliste.leeren();
    constexpr std::size_t zweistellig = 10;
    const std::string ziffernbreite = "\u2007";
    for (std::size_t i = 0; i < start_.anzahl(); ++i) {
        const bool einruecken = i + 1 < zweistellig && start_.anzahl() >= zweistellig;  // names begin below each other
        auswahlliste.hinzufuegen((einruecken ? ziffernbreite : "") + std::to_string(i + 1) + "   " +
                                 start_.eintraege()[i].name);
    }
    wo.anzeige.markieren(zeile);
    label_anzahl.text(anzahl_text(gesamt_.anzahl()));
    label_anzahl2.text(anzahl_text(start_.anzahl()));
    auswahl_folgen();
    plan_zeigen();
}

wettkampf1::seite* wettkampf1::markierte_seite() {
    return rennliste.markiert() >= 0 ? &links_ : auswahlliste.markiert() >= 0 ? &rechts_ : nullptr;
}

void wettkampf1::auswahl_folgen() {
    const int hier = auswahlliste.markiert();
    const bool links_leer = gesamt_.anzahl() == 0;
    const bool rechts_leer = start_.anzahl() == 0;
    Command16.aktiviert(rennliste.markiert() >= 0);
    Command17.aktiviert(!links_leer);
    Command18.aktiviert(hier >= 0);
    Command19.aktiviert(!rechts_leer);
    Command15.aktiviert(!links_leer);
    Command20.aktiviert(!rechts_leer);
    Command21.aktiviert(!links_leer || !rechts_leer);
    Command10.aktiviert(hier > 0);
    Command12.aktiviert(hier >= 0 && hier + 1 < static_cast<int>(start_.anzahl()));
    Command13.aktiviert(start_.anzahl() > 1);
    Command2.aktiviert(hier >= 0);
    Command7.aktiviert(!rechts_leer);
    Command23.aktiviert(!links_leer);
    Command6.aktiviert(!rechts_leer);
    const seite* wo = markierte_seite();
    Command24.aktiviert(wo != nullptr);
    bild_zeigen(wo == nullptr ? nullptr : &wo->inhalt.eintraege().at(static_cast<std::size_t>(wo->anzeige.markiert())));
}

void wettkampf1::bild_zeigen(const listeneintrag* wer) {
    namensliste einer(um_.fahrerliste.listenart());
    if (wer != nullptr) {
        einer.hinzufuegen(wer->name);
        einer.bild_setzen(0, wer->bild);
    }
    Label_bild.text(wer != nullptr ? wer->name : std::string());
    einer.bild_zeigen(um_.welt.ablage, Label_bild.text(), Image1);
    Image1.neu_laden();
}

listeneintrag wettkampf1::eintrag_von(const std::string& name) const {
    if (const auto zeile = gesamt_.zeile_von(name)) {
        return gesamt_.eintraege()[*zeile];
    }
    const auto& alle = um_.fahrerliste.eintraege();
    const auto gefunden =
        std::find_if(alle.begin(), alle.end(), [&](const listeneintrag& e) { return startlistenname(e.name) == name; });
    return {name, gefunden == alle.end() ? std::string() : gefunden->bild};
}

/// Whose name is typed is seen.
void wettkampf1::auswahl_Change() {
    const std::string name = startlistenname(auswahl.text());
    if (name.empty()) {
        auswahl_folgen();
    } else {
        const listeneintrag eintrag = eintrag_von(name);
        Command24.aktiviert(false);
        bild_zeigen(&eintrag);
    }
}

}  // namespace tarvel
