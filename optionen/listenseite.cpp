#include "optionen/listenseite.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view listenordner = "Listen";

/// As the file will give it back.
std::string lesbarer_name(const std::string& text) {
    return von_1252(nach_1252(gekuerzt(text)));
}

}  // namespace

listenseite::listenseite(umgebung um, art a) : um_(um), art_(std::move(a)), kopie_(art_.liste) {
    name.laenge_max(namensliste::name_laenge_max);
    namen.bei_auswahl = [this] { auswahl_folgen(); };
    befehle_verbinden();
}

void listenseite::befehle_verbinden() {
    hinzufuegen.bei_klick = [this] { name_hinzufuegen(); };
    entfernen.bei_klick = [this] {
        if (namen.markiert() >= 0) {
            const int zeile = namen.markiert();
            kopie_.entfernen(static_cast<std::size_t>(zeile));
            anzeigen(zeile);
        }
    };
    alle_loeschen.bei_klick = [this] {
        if (um_.meldungen.fragen(frage_text_, um_.txt.titel[0])) {
            kopie_.leeren();
            anzeigen(-1);
        }
    };
    Liste_laden.bei_klick = [this] { laden_oeffnen(); };
    Liste_speichern.bei_klick = [this] { speichern_oeffnen(); };
    kein_bild.bei_klick = [this] { bild_setzen(""); };
    anderes_bild.bei_klick = [this] { bild_neu_zuordnen(); };
}

void listenseite::texte_nennen(sprachliste& texte) {
    texte.text(art_.deutsch, titel).text("Name", Label_name).text("hinzufügen", hinzufuegen);
    texte.text("entfernen", entfernen).text("alle löschen", alle_loeschen).text("Liste laden", Liste_laden);
    texte.text("Liste speichern", Liste_speichern).text("kein Bild", kein_bild).text("anderes Bild", anderes_bild);
    texte.text(art_.voll, voll_text_).text(art_.bildtitel, bildtitel_text_);
    texte.text("Alle Namen der Liste löschen?", frage_text_);
    texte.text("Zeichen, die in keiner Datei stehen können, sind ersetzt:", ersetzt_text_);
}

void listenseite::zeigen() {
    kopie_ = art_.liste;
    datei_ = art_.datei;
    name.text("");
    name.ansage(Label_name.text());
    namen.ansage(titel.text());
    anzeigen(0);
}

void listenseite::anzeigen(int markiert) {
    namen.leeren();
    for (const listeneintrag& eintrag : kopie_.eintraege()) {
        namen.hinzufuegen(eintrag.name);
    }
    namen.markieren(markiert);
    auswahl_folgen();
}

void listenseite::auswahl_folgen() {
    const bool gewaehlt = namen.markiert() >= 0;
    for (befehl* knopf : {&entfernen, &kein_bild, &anderes_bild}) {
        knopf->aktiviert(gewaehlt);
    }
    alle_loeschen.aktiviert(!kopie_.eintraege().empty());
    const namensliste::art& bilder = kopie_.listenart();
    vorschau.ersatz(bilder.bildordner + "/" + bilder.standardbild);
    const std::size_t zeile = gewaehlt ? static_cast<std::size_t>(namen.markiert()) : namensliste::namen_max;
    vorschau.datei(kopie_.bilddatei(um_.ablage, zeile));
    vorschau.neu_laden();
}

void listenseite::name_hinzufuegen() {
    const std::string neu = lesbarer_name(name.text());
    const auto& eintraege = kopie_.eintraege();
    const auto gefunden =
        std::find_if(eintraege.begin(), eintraege.end(), [&](const listeneintrag& e) { return e.name == neu; });
    if (kopie_.voll()) {
        um_.meldungen.zeigen(voll_text_, um_.txt.titel[0]);
        return;
    }
    if (neu.empty() || neu == art_.standard || namensliste::ist_marke(neu)) {  // none of them can stand in a file
        name.fokus_setzen();
        return;
    }
    if (const std::string getippt(gekuerzt(name.text())); neu != getippt) {
        um_.meldungen.zeigen(ersetzt_text_ + "\n" + getippt + " – " + neu, um_.txt.titel[0]);
    }
    if (gefunden != eintraege.end()) {
        anzeigen(static_cast<int>(gefunden - eintraege.begin()));
    } else {
        kopie_.hinzufuegen(neu);
        anzeigen(static_cast<int>(eintraege.size()) - 1);
    }
    name.text("");
    name.fokus_setzen();
}

void listenseite::melden(int nummer) {
    um_.meldungen.zeigen(um_.txt.meldung.at(static_cast<std::size_t>(nummer)), um_.txt.titel[1]);
}

void listenseite::laden_oeffnen() {
    const auto& text = um_.txt.datei_text;
    um_.dateiwahl.oeffnen({false, text.at(static_cast<std::size_t>(art_.laden_text)), text[3], text[2],
                           std::string(listenordner), art_.endung, datei_, [this](const std::string& gewaehlt) {
                               if (kopie_.laden(um_.ablage, std::string(listenordner) + "\\" + gewaehlt)) {
                                   datei_ = gewaehlt;
                               } else {
                                   melden(art_.nicht_geladen);
                               }
                               anzeigen(0);
                               return true;
                           }});
}

void listenseite::speichern_oeffnen() {
    const auto& text = um_.txt.datei_text;
    um_.dateiwahl.oeffnen({true, text.at(static_cast<std::size_t>(art_.laden_text) + 1), text[1], text[0],
                           std::string(listenordner), art_.endung, datei_, [this](const std::string& gewaehlt) {
                               if (!kopie_.speichern(um_.ablage, std::string(listenordner) + "\\" + gewaehlt)) {
                                   melden(art_.nicht_gespeichert);
                                   return false;
                               }
                               datei_ = gewaehlt;
                               return true;
                           }});
}

void listenseite::bild_neu_zuordnen() {
    if (namen.markiert() >= 0) {
        um_.bilder.oeffnen(bildauftrag());
    }
}

void listenseite::bild_ablegen(const std::filesystem::path& bild) {
    if (namen.markiert() >= 0) {
        um_.bilder.hereinnehmen(bildauftrag(), bild);
    }
}

bildwahl::auftrag listenseite::bildauftrag() {
    const std::string& eintrag = kopie_.eintraege().at(static_cast<std::size_t>(namen.markiert())).name;
    const namensliste::art& bilder = kopie_.listenart();
    const std::string standardstamm = bilder.standardbild.substr(0, bilder.standardbild.find('.'));
    return {bildtitel_text_, bilder.bildordner, standardstamm, eintrag, [this](const std::string& stamm) {
                if (stamm != bildwahl::abgebrochen) {
                    bild_setzen(stamm);
                }
            }};
}

void listenseite::bild_setzen(const std::string& stamm) {
    if (namen.markiert() >= 0) {
        kopie_.bild_setzen(static_cast<std::size_t>(namen.markiert()), stamm);
        auswahl_folgen();
    }
}

bool listenseite::uebernehmen() {
    if (!name.text().empty()) {
        name_hinzufuegen();  // typed, and meant to be in the list
    }
    if (kopie_.eintraege() == art_.liste.eintraege() && !nicht_geschrieben_) {
        return true;
    }
    art_.liste = kopie_;
    nicht_geschrieben_ = !art_.liste.speichern(um_.ablage, std::string(listenordner) + "\\" + art_.datei);
    if (nicht_geschrieben_) {
        melden(art_.nicht_gespeichert);
    }
    return !nicht_geschrieben_;
}

bool listenseite::ungesichert() const {
    return kopie_.eintraege() != art_.liste.eintraege() || !gekuerzt(name.text()).empty();
}

}  // namespace tarvel
