#include "optionen/beste_zeiten_verwaltung.h"

#include <algorithm>
#include <optional>

#include "core/namensliste.h"
#include "core/ordnerblick.h"
#include "core/text.h"
#include "core/zeit.h"

namespace tarvel {
namespace {

constexpr std::string_view bestzeit_endung = ".bst";
constexpr int dateiname_laenge_max = 60;
constexpr int zeit_laenge_max = 12;
constexpr int datum_laenge_max = 10;
constexpr std::size_t name_mindestens = 15;  // characters in the lists
constexpr std::string_view zwischen_spalten = "  ";

/// "01:02,345", "1:2.345" or without minutes "62,345"; the thousandths have three digits. None for any other text.
std::optional<zeit_ms> zeit_lesen(std::string_view text) {
    constexpr std::size_t teile_max = 3;
    std::vector<zeit_ms> teile;
    std::size_t stellen = 0;
    text = gekuerzt(text);
    while (true) {
        stellen = std::min(text.find_first_not_of("0123456789"), text.size());
        if (stellen == 0 || stellen > teile_max || teile.size() == teile_max) {
            return std::nullopt;
        }
        teile.push_back(ganzzahl_lesen(text.substr(0, stellen), 0, 999));
        if (stellen == text.size()) {
            break;
        }
        const std::string_view hinter_zahl = text.substr(stellen);
        text.remove_prefix(stellen + links(hinter_zahl, 1).size());
    }
    if (teile.size() == 2) {
        teile.insert(teile.begin(), 0);
    }
    if (teile.size() < teile_max || stellen != 3) {
        return std::nullopt;
    }
    return teile[0] * 60000 + teile[1] * 1000 + teile[2];
}

}  // namespace

beste_zeiten_verwaltung::beste_zeiten_verwaltung(umgebung um)
    : fensterlogik(um.fenster, um.ablage, fenstername::beste_zeiten_verwaltung), um_(um) {
    bestefile_name.laenge_max(dateiname_laenge_max);
    Text1.laenge_max(zeit_laenge_max);
    Text2.laenge_max(namensliste::name_laenge_max);
    Text3.laenge_max(datum_laenge_max);
    Text4.laenge_max(namensliste::name_laenge_max);
    for (const int spur : alle_spuren) {
        bestefile_list.at(feld_index(spur)).bei_auswahl = [this, spur] { eintrag_waehlen(spur); };
    }
    befehle_verbinden();
}

void beste_zeiten_verwaltung::befehle_verbinden() {
    Command34.bei_klick = [this] { eintrag_aendern(); };
    Command29.bei_klick = [this] { eintrag_loeschen(); };
    Command35.bei_klick = [this] { alle_loeschen(); };
    Command36.bei_klick = [this] { datei_laden(); };
    Command37.bei_klick = [this] { datei_anlegen(); };
    Command1.bei_klick = [this] { schliessen(); };
}

sprachliste beste_zeiten_verwaltung::sprache_bt() {
    sprachliste texte("language/language_bt.txt");
    texte.ueberschrift("Bestzeitverwaltung").text("Bestzeitverwaltung", titel).text("Speicherung", Label_modus);
    texte.text("Bestzeiten deaktiviert", wort_.modus[0]).text("automatische Speicherung", wort_.modus[1]);
    texte.text("manuelle Speicherung!", wort_.modus[2]).text("Bestzeitdatei", Label_datei).text("laden", Command36);
    texte.text("neue Datei", Label_neu).text("neu", Command37).text("Spur", wort_.spur);
    texte.text("schnellste Rennrunde:", bestlabel1).text("Eintrag berichtigen", Frame_korrektur);
    texte.text("Zeit", Label_k[0]).text("Name", Label_k[1]).text("Datum", Label_k[2]).text("Fahrzeug", Label_k[3]);
    texte.text("ändern", Command34).text("Auswahl löschen", Command29).text("alle löschen", Command35);
    texte.text("Schließen", Command1);
    texte.text("Die Zeit ist nicht lesbar oder zu lang. Bitte in dieser Form eintragen, höchstens",
               wort_.zeit_unlesbar);
    texte.text("Bitte zuerst eine Zeile auswählen.", wort_.nichts_gewaehlt);
    texte.text("Alle Bestzeiten dieser Datei löschen?", wort_.wirklich_loeschen);
    texte.text("Bitte Dateinamen eingeben.", wort_.name_fehlt);
    texte.text("Der Dateiname enthält ein unzulässiges Zeichen.", wort_.zeichen).text("Die Datei", wort_.die_datei);
    texte.text("ist bereits vorhanden.", wort_.schon_da);
    texte.text("Die Änderungen verwerfen und das Fenster schließen?", wort_.verwerfen);
    texte.text("Diese Bestzeit aus der Liste löschen?", wort_.eintrag_loeschen);
    texte.tipp("Die Felder in die markierte Zeile schreiben", Command34);
    texte.tipp("Die markierte Bestzeit aus der Liste löschen", Command29);
    return texte.tipp("Alle Bestzeiten aller Spuren löschen", Command35);
}

void beste_zeiten_verwaltung::laden() {
    texte_lesen();
    Combo1.ansage(Label_modus.text());
    Combo2.ansage(Label_datei.text());
    bestefile_name.ansage(Label_neu.text());
    Combo1.eintraege({wort_.modus.begin(), wort_.modus.end()});
    for (const int spur : alle_spuren) {
        bezeichnung& name = Label_spur.at(feld_index(spur));
        name.text(wort_.spur + " " + std::to_string(spur));
        name.hintergrund(um_.einst.farben_spur[spur]);
        bestefile_list.at(feld_index(spur)).ansage(name.text());
    }
    const std::array<feld*, 4> felder{&Text1, &Text2, &Text3, &Text4};
    for (std::size_t i = 0; i < felder.size(); ++i) {
        felder.at(i)->ansage(Label_k.at(i).text());
    }
}

void beste_zeiten_verwaltung::oeffnen() {
    um_.fenster.laden(kennung());
    kopie_ = um_.bestzeiten;
    geschrieben_ = kopie_;
    datei_ = um_.einst.beste_datei;
    Combo1.platz(static_cast<int>(um_.einst.beste_modus));
    bestefile_name.text("");
    datei_zeigen();
    um_.fenster.zeigen(kennung(), anzeige_art::modal);
    Combo2.fokus_setzen();
}

void beste_zeiten_verwaltung::datei_zeigen() {
    Combo2.eintraege(bestzeit_auswahl(um_.ablage, datei_));
    Combo2.text(datei_);
    spur_ = 0;
    for (const int spur : alle_spuren) {
        liste_fuellen(spur);
    }
    felder_leeren();
    rekord_zeigen();
}

void beste_zeiten_verwaltung::liste_fuellen(int spur) {
    liste& zeilen = bestefile_list.at(feld_index(spur));
    namensspalten& spalten = namen.at(feld_index(spur));
    std::vector<std::string> alle;
    for (int zeile = 1; zeile <= bestzeiten::zeilen_anzahl; ++zeile) {
        alle.push_back(kopie_.eintrag(zeile, spur).name);
    }
    spalten = {{laenge(zeit_text(0)) + zwischen_spalten.size()}, namensbreite(alle, name_mindestens), name_mindestens};
    zeilen.leeren();
    for (int zeile = 1; zeile <= bestzeiten::zeilen_anzahl; ++zeile) {
        zeilen.hinzufuegen(listenzeile(kopie_.eintrag(zeile, spur), spalten.breite));
    }
}

std::string beste_zeiten_verwaltung::listenzeile(const bestzeit& eintrag, std::size_t breite) const {
    if (eintrag.leer()) {
        return "–";
    }
    const std::string dazwischen(zwischen_spalten);
    return zeit_text(eintrag.ms) + dazwischen + eingepasst(eintrag.name, breite) + dazwischen + eintrag.datum;
}

void beste_zeiten_verwaltung::felder_leeren() {
    Text1.text(zeit_text(0));
    Text2.text(Label_k[1].text());
    Text3.text("00.00.0000");
    Text4.text(Label_k[3].text());
}

void beste_zeiten_verwaltung::eintrag_waehlen(int spur) {
    const int zeile = bestefile_list.at(feld_index(spur)).markiert();
    if (zeile < 0) {
        return;
    }
    spur_ = spur;
    for (const int andere : alle_spuren) {
        if (andere != spur) {
            bestefile_list.at(feld_index(andere)).markieren(-1);
        }
    }
    const bestzeit& eintrag = kopie_.eintrag(zeile + 1, spur);
    Text1.text(zeit_text(eintrag.leer() ? 0 : eintrag.ms));
    Text2.text(eintrag.name);
    Text3.text(eintrag.leer() ? datum_text(um_.kalender.jetzt()) : eintrag.datum);
    Text4.text(eintrag.fahrzeug);
}

void beste_zeiten_verwaltung::rekord_zeigen() {
    bestzeiten sortiert = kopie_;
    sortiert.sortieren();
    const bestzeit& rekord = sortiert.gesamt();
    bestlabel2.text(rekord.leer() ? "–" : zeit_text(rekord.ms) + "   " + rekord.name + "   " + rekord.datum);
}

std::string beste_zeiten_verwaltung::zeit_text(zeit_ms zeit) const {
    return zeit_formatieren(zeit, true, um_.einst.trennzeichen);
}

void beste_zeiten_verwaltung::melden(const std::string& text) {
    um_.meldungen.zeigen(text, um_.txt.titel[0]);
}

void beste_zeiten_verwaltung::geaendert() {
    liste& zeilen = bestefile_list.at(feld_index(spur_));
    const int zeile = zeilen.markiert();
    liste_fuellen(spur_);
    zeilen.auswaehlen(zeile);
    rekord_zeigen();
}

void beste_zeiten_verwaltung::eintrag_aendern() {
    if (spur_ == 0) {
        melden(wort_.nichts_gewaehlt);
        return;
    }
    const zeit_ms ms = zeit_lesen(Text1.text()).value_or(0);
    if (ms <= 0 || ms >= keine_bestzeit) {
        melden(wort_.zeit_unlesbar + " " + zeit_text(keine_bestzeit - 1) + ".");
        Text1.fokus_setzen();
        return;
    }
    const auto getippt = [](const feld& eingabe) { return std::string(gekuerzt(eingabe.text())); };
    const int zeile = bestefile_list.at(feld_index(spur_)).markiert() + 1;
    kopie_.setzen(zeile, spur_, {ms, getippt(Text2), getippt(Text4), getippt(Text3)});
    geaendert();
}

void beste_zeiten_verwaltung::eintrag_loeschen() {
    if (spur_ == 0) {
        melden(wort_.nichts_gewaehlt);
        return;
    }
    const int zeile = bestefile_list.at(feld_index(spur_)).markiert() + 1;
    const bestzeit& weg = kopie_.eintrag(zeile, spur_);
    if (weg.leer() ||
        um_.meldungen.fragen(wort_.eintrag_loeschen + "\n\n" + zeit_text(weg.ms) + "  " + weg.name + "  " + weg.datum,
                             Command29.text())) {
        kopie_.streichen(zeile, spur_);
        geaendert();
    }
}

void beste_zeiten_verwaltung::alle_loeschen() {
    if (um_.meldungen.fragen(wort_.wirklich_loeschen, um_.txt.titel[0])) {
        kopie_.leeren();
        datei_zeigen();
    }
}

void beste_zeiten_verwaltung::datei_laden() {
    bestzeiten andere;
    if (!speichern()) {
        return;
    }
    if (!andere.laden(um_.ablage, Combo2.text())) {
        um_.meldungen.zeigen(um_.txt.meldung[20], um_.txt.titel[1]);
    } else {
        datei_ = Combo2.text();
        kopie_ = andere;
        geschrieben_ = andere;
    }
    datei_zeigen();
}

void beste_zeiten_verwaltung::datei_anlegen() {
    std::string name(gekuerzt(von_1252(nach_1252(bestefile_name.text()))));  // as the settings file holds it
    if (endet_auf(name, bestzeit_endung)) {
        name.erase(name.size() - bestzeit_endung.size());
    }
    const std::vector<std::string> vorhanden = bestzeit_dateien(um_.ablage);
    const auto gleich = [&](const std::string& datei) { return datei.size() == name.size() && endet_auf(datei, name); };
    bestefile_name.fokus_setzen();
    if (name.empty() || !dateiname_zulaessig(name)) {
        melden(name.empty() ? wort_.name_fehlt : wort_.zeichen);
        return;
    }
    if (std::any_of(vorhanden.begin(), vorhanden.end(), gleich)) {  // some file systems know no capitals
        melden(wort_.die_datei + " " + name + " " + wort_.schon_da);
        return;
    }
    if (!speichern()) {
        return;
    }
    if (!bestzeiten{}.speichern(um_.ablage, name)) {
        um_.meldungen.zeigen(um_.txt.meldung[21], um_.txt.titel[1]);
        return;
    }
    datei_ = name;
    kopie_.leeren();
    geschrieben_.leeren();
    bestefile_name.text("");
    datei_zeigen();
}

/// False after a failure, which leaves everything as it is.
bool beste_zeiten_verwaltung::speichern() {
    const bool unveraendert = kopie_ == geschrieben_;
    kopie_.sortieren();
    if (!unveraendert && !kopie_.speichern(um_.ablage, datei_)) {
        um_.meldungen.zeigen(um_.txt.meldung[21], um_.txt.titel[1]);
        return false;
    }
    geschrieben_ = kopie_;
    return true;
}

void beste_zeiten_verwaltung::schliessen() {
    if (!speichern()) {
        datei_zeigen();
        if (!um_.meldungen.fragen(wort_.verwerfen, um_.txt.titel[1])) {
            return;
        }
        kopie_ = geschrieben_;
    }
    um_.fenster.entladen(kennung());
    in_kraft_setzen();
}

void beste_zeiten_verwaltung::in_kraft_setzen() {
    const auto modus = static_cast<bestzeit_speicherung>(std::max(Combo1.platz(), 0));
    const bool anders = um_.einst.beste_modus != modus || um_.einst.beste_datei != datei_;
    um_.bestzeiten = kopie_;
    um_.einst.beste_modus = modus;
    um_.einst.beste_datei = datei_;
    if (anders) {
        um_.folgen.einstellungen_speichern();
    }
    um_.bestzeitfolge.bestzeiten_geaendert();
}

}  // namespace tarvel
