#include <algorithm>
#include <utility>

#include "competition/wettkampf1.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view listenordner = "Listen";

/// Of the row that was there, the one below it, or the last.
int nach_streichen(const teilnehmerliste& inhalt, int zeile) {
    return std::min(zeile, static_cast<int>(inhalt.anzahl()) - 1);
}

}  // namespace

std::string wettkampf1::mangel_text(namensmangel mangel, const std::string& name) const {
    switch (mangel) {
        case namensmangel::wie_fueller:
            return name + " " + wort_.platzhalter;
        case namensmangel::vergeben:
            return wort_.enthalten + name;
        case namensmangel::voll:
            return wort_.voll;
        default:
            return {};
    }
}

void wettkampf1::nicht_uebernommen_melden(const std::vector<std::string>& namen) {
    constexpr std::size_t namen_je_meldung = 20;  // a box stays smaller than the screen
    if (namen.empty()) {
        return;
    }
    std::string text = wort_.nicht_uebernommen;
    for (std::size_t i = 0; i < std::min(namen.size(), namen_je_meldung); ++i) {
        text += "\n" + namen[i];
    }
    melden(namen.size() > namen_je_meldung ? text + "\n…" : text);
}

/// False leaves what was typed in its field.
bool wettkampf1::name_hinzufuegen() {
    const std::string name = startlistenname(auswahl.text());
    const namensmangel mangel = start_.pruefen(name);
    auswahl.fokus_setzen();
    if (mangel != namensmangel::keiner) {
        if (mangel != namensmangel::leer) {
            melden(mangel_text(mangel, name));
        }
        return false;
    }
    std::string getippt(gekuerzt(auswahl.text()));
    if (von_1252(nach_1252(getippt)) != getippt) {
        melden(wort_.ersetzt + "\n" + getippt + " – " + name);
    }
    start_.hinzufuegen(eintrag_von(name));
    if (const auto zeile = gesamt_.zeile_von(name)) {
        gesamt_.entfernen(*zeile);
    }
    auswahl.text("");
    listen_schreiben(rechts_, static_cast<int>(start_.anzahl()) - 1);
    return true;
}

void wettkampf1::verschieben(seite& von, seite& nach) {
    const int zeile = von.anzeige.markiert();
    if (zeile < 0) {
        return;
    }
    const listeneintrag wer = von.inhalt.eintraege().at(static_cast<std::size_t>(zeile));
    const namensmangel mangel = nach.inhalt.hinzufuegen(wer);
    const bool schon_drueben = mangel == namensmangel::vergeben && &nach == &links_;
    if (mangel != namensmangel::keiner && !schon_drueben) {
        const bool kein_platz = mangel == namensmangel::voll && &nach == &links_;
        melden(kein_platz ? wort_.gesamt_voll : mangel_text(mangel, wer.name));
        return;
    }
    von.inhalt.entfernen(static_cast<std::size_t>(zeile));
    listen_schreiben(von, nach_streichen(von.inhalt, zeile));
}

void wettkampf1::alle_verschieben(seite& von, seite& nach) {
    teilnehmerliste geblieben(um_.welt.txt, namensliste::namen_max);
    for (const listeneintrag& wer : von.inhalt.eintraege()) {
        if (nach.inhalt.hinzufuegen(wer) == namensmangel::voll) {
            geblieben.hinzufuegen(wer);
        }
    }
    von.inhalt.inhalt_tauschen(geblieben);
    listen_schreiben();
    if (von.inhalt.anzahl() > 0) {
        melden(&nach == &rechts_ ? wort_.voll : wort_.gesamt_voll);
    }
}

void wettkampf1::ersetzen(seite& ziel, const seite& quelle) {
    std::vector<std::string> ohne_platz;
    ziel.inhalt.leeren();
    for (const listeneintrag& wer : quelle.inhalt.eintraege()) {
        if (ziel.inhalt.hinzufuegen(wer) != namensmangel::keiner) {
            ohne_platz.push_back(wer.name);
        }
    }
    listen_schreiben();
    nicht_uebernommen_melden(ohne_platz);
}

/// Who has no room on the start list stays.
void wettkampf1::listen_tauschen() {
    teilnehmerliste bleibt(um_.welt.txt, namensliste::namen_max);
    bleibt.inhalt_tauschen(start_);
    for (const listeneintrag& wer : gesamt_.eintraege()) {
        if (start_.hinzufuegen(wer) == namensmangel::voll) {
            bleibt.hinzufuegen(wer);
        }
    }
    gesamt_.inhalt_tauschen(bleibt);
    listen_schreiben();
}

void wettkampf1::hoch_oder_runter(int richtung) {
    const int zeile = auswahlliste.markiert();
    const int neue = zeile + richtung;
    if (zeile >= 0 && neue >= 0 && neue < static_cast<int>(start_.anzahl())) {
        start_.mit_naechster_tauschen(static_cast<std::size_t>(std::min(zeile, neue)));
        listen_schreiben(rechts_, neue);
    }
}

void wettkampf1::streichen() {
    const int zeile = auswahlliste.markiert();
    if (zeile >= 0) {
        start_.entfernen(static_cast<std::size_t>(zeile));
        listen_schreiben(rechts_, nach_streichen(start_, zeile));
    }
}

void wettkampf1::alle_streichen() {
    if (um_.welt.meldungen.fragen(wort_.alle_streichen, um_.welt.txt.titel[0])) {
        start_.leeren();
        listen_schreiben();
    }
}

void wettkampf1::mischen() {
    start_.mischen(um_.zufall);
    listen_schreiben();
}

void wettkampf1::laden_oeffnen(seite& wo) {
    const auto& text = um_.welt.txt.datei_text;
    um_.dateiwahl.oeffnen({false, text[8], text[3], text[2], std::string(listenordner), ".lst", wo.datei,
                           [this, &wo](const std::string& gewaehlt) {
                               namensliste gelesen(um_.fahrerliste.listenart());
                               if (!gelesen.laden(um_.welt.ablage, std::string(listenordner) + "\\" + gewaehlt)) {
                                   um_.welt.meldungen.zeigen(wort_.nicht_geladen, um_.welt.txt.titel[1]);
                                   return false;
                               }
                               wo.datei = gewaehlt;
                               laden_beenden(wo, gelesen);
                               return true;
                           }});
}

/// Who is on the start list is not to be chosen any more; who has left it is.
void wettkampf1::laden_beenden(seite& wo, const namensliste& gelesen) {
    teilnehmerliste bisher(um_.welt.txt, namensliste::namen_max);
    bisher.inhalt_tauschen(wo.inhalt);
    std::vector<std::string> abgelehnt;
    for (const listeneintrag& wer : gelesen.eintraege()) {
        if (wo.inhalt.hinzufuegen(wer) != namensmangel::keiner) {
            abgelehnt.push_back(wer.name);
        }
    }
    if (&wo == &rechts_) {
        for (const listeneintrag& wer : bisher.eintraege()) {
            gesamt_.hinzufuegen(wer);
        }
    }
    for (const listeneintrag& wer : start_.eintraege()) {
        if (const auto zeile = gesamt_.zeile_von(wer.name)) {
            gesamt_.entfernen(*zeile);
        }
    }
    listen_schreiben();
    nicht_uebernommen_melden(abgelehnt);
}

void wettkampf1::speichern_oeffnen(seite& wo) {
    const auto& text = um_.welt.txt.datei_text;
    um_.dateiwahl.oeffnen({true, text[9], text[1], text[0], std::string(listenordner), ".lst", wo.datei,
                           [this, &wo](const std::string& gewaehlt) {
                               const namensliste alle = wo.inhalt.als_namensliste(um_.fahrerliste.listenart());
                               if (!alle.speichern(um_.welt.ablage, std::string(listenordner) + "\\" + gewaehlt)) {
                                   um_.welt.meldungen.zeigen(um_.welt.txt.meldung[3], um_.welt.txt.titel[1]);
                                   return false;
                               }
                               wo.datei = gewaehlt;
                               return true;
                           }});
}

void wettkampf1::bildnamen_zuordnen() {
    int anzahl = 0;
    for (teilnehmerliste* inhalt : {&gesamt_, &start_}) {
        namensliste alle = inhalt->als_namensliste(um_.fahrerliste.listenart());
        anzahl += alle.bilder_uebernehmen(um_.welt.ablage, "nopic");
        inhalt->bilder_von(alle);
    }
    auswahl_folgen();
    um_.welt.meldungen.bestaetigen(wort_.bilder + std::to_string(anzahl), um_.welt.txt.titel[0]);
}

void wettkampf1::bild_neu_zuordnen() {
    if (auto auftrag = bildauftrag()) {
        um_.bilder.oeffnen(std::move(*auftrag));
    }
}

void wettkampf1::bild_ablegen(const std::filesystem::path& bild) {
    if (const auto auftrag = bildauftrag()) {
        um_.bilder.hereinnehmen(*auftrag, bild);
    }
}

std::optional<bildwahl::auftrag> wettkampf1::bildauftrag() {
    seite* wo = markierte_seite();
    if (wo == nullptr) {
        return std::nullopt;
    }
    const namensliste::art& art = um_.fahrerliste.listenart();
    const std::string name = wo->inhalt.eintraege().at(static_cast<std::size_t>(wo->anzeige.markiert())).name;
    return bildwahl::auftrag{wort_.bildtitel, art.bildordner, art.standardbild.substr(0, art.standardbild.find('.')),
                             name, [this, wo, name](const std::string& stamm) {
                                 const auto zeile = wo->inhalt.zeile_von(name);
                                 if (stamm != bildwahl::abgebrochen && zeile) {
                                     wo->inhalt.bild_setzen(*zeile, stamm);
                                     auswahl_folgen();
                                 }
                             }};
}

void wettkampf1::qualifying_uebernehmen(const std::vector<std::string>& rangfolge) {
    teilnehmerliste bisher(um_.welt.txt, namensliste::namen_max);
    bisher.inhalt_tauschen(start_);
    for (const std::string& name : rangfolge) {
        const auto zeile = bisher.zeile_von(startlistenname(name));
        start_.hinzufuegen(zeile ? bisher.eintraege()[*zeile] : eintrag_von(startlistenname(name)));
    }
    listen_schreiben();
}

}  // namespace tarvel
