#include <algorithm>
#include <chrono>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "core/ordnerblick.h"
#include "core/text.h"
#include "core/zeit.h"
#include "results/ergebnissortierung.h"
#include "results/fahrer_addieren.h"
#include "results/w_auswertung2.h"

namespace tarvel {
namespace {

constexpr int neuer_name_laenge_max = 100;
constexpr std::string_view keine_klasse = "0";  // as the file has it

}  // namespace

void w_auswertung2::sortierbefehle_verbinden() {
    Command3.bei_klick = [this] { neu_sortieren(); };
    Command1.bei_klick = [this] { neu_sortieren(); };
    for (befehl* knopf : {&Command21, &Command22}) {
        knopf->bei_klick = [this] { Frame_sortieren.sichtbar(!Frame_sortieren.sichtbar()); };
    }
    for (std::size_t i = 0; i < opt_sortieren_nach.size(); ++i) {
        opt_sortieren_nach.at(i).bei_aenderung = [this, i] {
            for (std::size_t j = 0; j < opt_sortieren_nach.size(); ++j) {
                opt_sortieren_nach.at(j).gesetzt(i == j);
            }
        };
    }
    Command20.bei_klick = [this] { fahrer_addieren(); };
    Command18.bei_klick = [this] { korrektur_beginnen(); };
    auswertung_schoen.bei_doppelklick = [this] { Command18.klicken(); };
    Command_zurueck.bei_klick = [this] {
        if (korrekturen_.zuruecknehmen(*tabelle_)) {
            korrigiertes_zeigen();
        }
    };
    Command_wieder.bei_klick = [this] {
        if (korrekturen_.wiederherstellen(*tabelle_)) {
            korrigiertes_zeigen();
        }
    };
    korrektur.Command14.bei_klick = [this] { korrektur_eintragen(); };
    korrektur.Command15.bei_klick = [this] { korrektur_beenden(); };
    Command8.bei_klick = [this] {
        for (haken& kasten : Check1) {
            kasten.gesetzt(kasten.sichtbar());
        }
        tabelle_anzeigen();
    };
}

void w_auswertung2::speicherbefehle_verbinden() {
    Text3.laenge_max(neuer_name_laenge_max);
    Command16.bei_klick = [this] { speichern_oeffnen(false); };
    Command6.bei_klick = [this] { speichern_oeffnen(true); };
    Command17.bei_klick = [this] { speichern(); };
    Command12.bei_klick = [this] { speichern_schliessen(); };
}

sortier_modus w_auswertung2::sortieren_nach() const {
    for (std::size_t i = 0; i < opt_sortieren_nach.size(); ++i) {
        if (opt_sortieren_nach.at(i).gesetzt()) {
            return static_cast<sortier_modus>(i + 1);
        }
    }
    return sortier_modus::runden;
}

/// New classes are shown; those that were left out stay out.
void w_auswertung2::klassen_zeigen() {
    const std::set<std::string> ohne = ausgelassene_klassen();
    std::vector<std::string> klassen = tabelle_ ? klassen_von(*tabelle_) : std::vector<std::string>{};
    if (klassen == std::vector{std::string(keine_klasse)}) {
        klassen.clear();  // nobody has one: nothing to choose
    }
    for (std::size_t i = 0; i < klassen_max; ++i) {
        haken& kasten = Check1.at(i);
        std::string& klasse = klassen_.at(i);
        klasse = i < klassen.size() ? klassen[i] : std::string();
        kasten.sichtbar(i < klassen.size());
        kasten.text(klasse == keine_klasse ? wort_.ohne_klasse : klasse);
        kasten.gesetzt(i < klassen.size() && !ohne.contains(klasse));
    }
}

std::set<std::string> w_auswertung2::ausgelassene_klassen() const {
    std::set<std::string> ohne;
    for (std::size_t i = 0; i < klassen_max; ++i) {
        if (Check1.at(i).sichtbar() && !Check1.at(i).gesetzt() && !klassen_.at(i).empty()) {
            ohne.insert(klassen_.at(i));
        }
    }
    return ohne;
}

void w_auswertung2::neu_sortieren() {
    const bool mit_fahrern = tabelle_ && std::any_of(tabelle_->zeilen.begin(), tabelle_->zeilen.end(),
                                                     [](const ergebniszeile& zeile) { return zeile.ergebnis; });
    if (!mit_fahrern) {
        hinweisen(wort_.nicht_sortierbar);
        return;
    }
    sortieren(*tabelle_, sortieren_nach());
    sortiert_ = true;
    tabelle_anzeigen();
    rennen_zeigen();
}

void w_auswertung2::fahrer_addieren() {
    const bool mit_klasse = tabelle_->typ == ergebnis_typ::tagesrennen &&
                            um_.welt.meldungen.anbieten(wort_.klasse_fragen, wort_.klasse_titel);
    const bool schon_gekuerzt = std::exchange(tabelle_->gekuerzt, false);
    gleiche_fahrer_addieren(*tabelle_, mit_klasse);
    klassen_vereint_ = klassen_vereint_ || (tabelle_->typ == ergebnis_typ::tagesrennen && !mit_klasse);
    if (tabelle_->gekuerzt) {
        hinweisen(wort_.summe_zu_lang);
    }
    tabelle_->gekuerzt = tabelle_->gekuerzt || schon_gekuerzt;
    korrekturen_.abschliessen();
    if (tabelle_->zeilen.size() > 1) {  // a line alone stays as it is, also in the way its place is written
        sortieren(*tabelle_, sortieren_nach());
        sortiert_ = true;
    }
    tabelle_neu();
}

void w_auswertung2::korrektur_beginnen() {
    const int zeile = auswertung_schoen.markiert();
    const auto gemeint =
        zeile >= 0 ? ansicht_.zeilen.at(static_cast<std::size_t>(zeile)).ergebnis : std::optional<std::size_t>();
    if (!gemeint || !korrektur.oeffnen(*tabelle_, *gemeint)) {
        hinweisen(wort_.eintrag_waehlen);
        return;
    }
    details_zeigen();
    bedienung_einrichten();
}

void w_auswertung2::korrektur_eintragen() {
    const auto eintrag = korrektur.eintrag();
    if (!eintrag) {
        hinweisen(wort_.falscher_wert);
        return;
    }
    if (eintrag_lesen(*tabelle_, korrektur.zeile()) != eintrag) {
        korrekturen_.merken(*tabelle_);
    }
    eintrag_schreiben(*tabelle_, korrektur.zeile(), *eintrag);
    const int zeile = auswertung_schoen.markiert();
    korrektur.schliessen();
    klassen_zeigen();
    tabelle_anzeigen();
    auswertung_schoen.markieren(zeile);
    auswertung_schoen.fokus_setzen();
}

void w_auswertung2::korrigiertes_zeigen() {
    const int zeile = auswertung_schoen.markiert();
    klassen_zeigen();
    tabelle_anzeigen();
    rennen_zeigen();
    auswertung_schoen.markieren(zeile);
}

void w_auswertung2::korrektur_beenden() {
    korrektur.schliessen();
    details_zeigen();
    bedienung_einrichten();
    auswertung_schoen.fokus_setzen();
}

/// What was opened first; some of its classes must not take its place.
std::string w_auswertung2::namensvorschlag() const {
    const std::string& erste = dateien_.front();
    std::string name = erste.substr(erste.find_last_of("\\/") + 1);
    if (constexpr std::string_view von_selbst = "auto-"; automatischer_ordner() && name.starts_with(von_selbst)) {
        name.erase(0, von_selbst.size());
    }
    if (!nur_auswahl_) {
        return name;
    }
    std::string klassen = "-";
    for (const std::string& klasse : klassen_) {
        klassen += details_.ohne_klassen.contains(klasse) ? std::string() : klasse;
    }
    return name.insert(name.size() - (endet_auf(name, ".csv") ? 4 : 0), als_dateiname(klassen));
}

void w_auswertung2::speichern_oeffnen(bool auswahl) {
    nur_auswahl_ = auswahl;
    Text3.text(namensvorschlag());
    Frame7.sichtbar(true);
    bedienung_einrichten();
    Text3.fokus_setzen();
}

void w_auswertung2::speichern_schliessen() {
    Frame7.sichtbar(false);
    bedienung_einrichten();
    (nur_auswahl_ ? Command6 : Command16).fokus_setzen();
}

std::vector<std::string> w_auswertung2::zu_speichern() const {
    if (!nur_auswahl_) {
        return tabelle_->alle_zeilen();
    }
    const std::set<std::string>& ohne = details_.ohne_klassen;  // as the table is shown
    ergebnistabelle auswahl = *tabelle_;
    std::erase_if(auswahl.zeilen, [&](const ergebniszeile& zeile) {
        const auto fahrer = zeile.ergebnis ? fahrerzeile_von(auswahl, zeile) : std::nullopt;
        return fahrer && fahrer->spalten.klasse && ohne.contains(fahrer->felder[*fahrer->spalten.klasse]);
    });
    return auswahl.alle_zeilen();
}

/// What stands there and cannot be held whole must not be lost.
bool w_auswertung2::darf_schreiben(const std::string& pfad) {
    if (!um_.welt.ablage.gibt_es(pfad)) {
        return true;
    }
    const auto alte = datei_lesen(pfad);
    if (!alte) {
        fehler_melden(wort_.schreibfehler);
        return false;
    }
    if (alte->zu_lang) {
        hinweisen(wort_.nicht_ueber);
        return false;
    }
    const auto bekannt = abdruecke_.find(pfad);
    const bool veraendert = bekannt != abdruecke_.end() && bekannt->second != alte->abdruck;
    return um_.welt.meldungen.fragen(
        pfad.substr(pfad.find_last_of('\\') + 1) + "\n\n" + (veraendert ? wort_.veraendert : wort_.ueberschreiben),
        um_.welt.txt.titel[0]);
}

void w_auswertung2::speichern() {
    std::string name(gekuerzt(Text3.text()));
    const bool leer = name.empty() || name == ".csv" || name == ".CSV";
    if (leer || !dateiname_zulaessig(name)) {
        hinweisen(leer ? wort_.name_fehlt : wort_.zeichen);
        Text3.fokus_setzen();
        return;
    }
    name += endet_auf(name, ".csv") ? "" : ".csv";
    const std::string ordner(automatischer_ordner() ? ergebnis_ordner::einzelrennen : std::string_view(ordner_));
    const std::string pfad = ordner + "\\" + name;
    if (!darf_schreiben(pfad)) {
        Text3.fokus_setzen();
        return;
    }
    if (!um_.welt.ablage.zeilen_schreiben(pfad, zu_speichern())) {
        fehler_melden(wort_.schreibfehler);
        return;
    }
    if (const auto geschrieben = datei_lesen(pfad)) {
        abdruecke_[pfad] = geschrieben->abdruck;
    }
    if (!nur_auswahl_) {
        dateien_ = {pfad};
        korrekturen_.gesichert();
        datei_nennen();
    }
    ordner_zeigen(ordner);
    const auto& namen = File1.zeilen();
    File1.markieren(static_cast<int>(std::find(namen.begin(), namen.end(), name) - namen.begin()));
    speichern_schliessen();
    um_.welt.meldungen.mitteilen(um_.welt.txt.gespeichert + " " + pfad);
}

void w_auswertung2::debug_umschalten() {
    if (um_.welt.fenster.ist_offen(fenstername::w_ausw_debug)) {
        um_.welt.fenster.entladen(fenstername::w_ausw_debug);
        return;
    }
    Command13.text(wort_.debug_zu);
    debug_.zeilen_zeigen(tabelle_ ? tabelle_->alle_zeilen() : std::vector<std::string>{});
    um_.welt.fenster.zeigen(fenstername::w_ausw_debug);
}

std::optional<rennergebnis> w_auswertung2::gewaehltes_rennen() const {
    const auto welches = static_cast<std::size_t>(std::max(cbo_rennen.platz(), 0));
    return tabelle_ ? rennen_von(*tabelle_, welches, sortieren_nach()) : std::nullopt;
}

void w_auswertung2::blatt_zeigen() {
    if (Command_blick.at(static_cast<std::size_t>(blick::blatt)).aktiviert() && tabelle_->rennen.size() == 1) {
        blicken(blick::blatt);
        Command_blick[0].fokus_setzen();
    }
}

std::string w_auswertung2::tag_der_datei() const {
    using namespace std::chrono;
    std::string datum = datum_im_namen(dateien_.front());
    if (!datum.empty()) {
        return datum;
    }
    const plattform::datum_uhrzeit jetzt = um_.kalender.jetzt();
    const sys_seconds heute = sys_days(year(jetzt.jahr) / jetzt.monat / jetzt.tag) + hours(jetzt.stunde) +
                              minutes(jetzt.minute) + seconds(jetzt.sekunde);
    const sys_seconds geschrieben = heute - dateialter(um_.welt.ablage.pfad(dateien_.front())).value_or(0s);
    const year_month_day tag(floor<days>(geschrieben));
    return datum_text(
        {static_cast<int>(tag.year()), static_cast<int>(unsigned{tag.month()}), static_cast<int>(unsigned{tag.day()})});
}

void w_auswertung2::urkunden_zeigen() {
    if (tabelle_->typ != ergebnis_typ::einzelrennen) {
        const std::string& art = wort_.art.at(static_cast<std::size_t>(tabelle_->typ));
        const bool wettkampf = tabelle_->typ != ergebnis_typ::tagesrennen && !tabelle_->kopf.empty();
        um_.urkunden.oeffnen(plaetze_von(*tabelle_, sortieren_nach(), details_.ohne_klassen), tag_der_datei(),
                             wettkampf ? tabelle_->kopf.front() : art);
    } else if (const auto rennen = gewaehltes_rennen()) {
        um_.urkunden.oeffnen(*rennen, wort_.art[1]);
    } else {
        hinweisen(wort_.kein_blatt);
    }
}

void w_auswertung2::bedienung_einrichten() {
    const bool frei = !korrektur.offen() && !Frame7.sichtbar();
    const bool da = tabelle_.has_value();
    const bool mit_rennen = da && tabelle_->typ == ergebnis_typ::einzelrennen && !tabelle_->addiert;
    const bool als_tabelle = blick_ == blick::tabelle;
    for (steuerelement* element : std::initializer_list<steuerelement*>{&Command19[0], &Command19[1], &Command19[2],
                                                                        &Dir1, &File1, &Command4, &Command2}) {
        element->aktiviert(frei);
    }
    for (befehl* knopf : {&Command3, &Command20, &Command16}) {
        knopf->aktiviert(frei && da);
    }
    Command18.aktiviert(frei && da && als_tabelle);
    Command_zurueck.aktiviert(frei && da && korrekturen_.hat_letzte());
    Command_wieder.aktiviert(frei && da && korrekturen_.hat_naechste());
    Command22.aktiviert(da && frei);
    auswertung_schoen.aktiviert(!korrektur.offen());
    for (std::size_t i = 0; i < Command_blick.size(); ++i) {
        const auto ziel = static_cast<blick>(i);
        const bool moeglich = ziel == blick::tabelle || (ziel == blick::vergleich ? da : mit_rennen);
        Command_blick.at(i).aktiviert(frei && moeglich && blick_ != ziel);
    }
    const bool ein_rennen = blick_ == blick::blatt || blick_ == blick::verlauf;
    Label_rennen.sichtbar(ein_rennen && cbo_rennen.eintraege().size() > 1);
    cbo_rennen.sichtbar(Label_rennen.sichtbar());
    Command_drucken.aktiviert(frei && da);
    Command_pdf.aktiviert(frei && da);
    Command_urkunden.aktiviert(frei && (mit_rennen || (da && tabelle_->typ != ergebnis_typ::einzelrennen)));
    Frame_klassen.sichtbar(Check1.front().sichtbar() && frei);
    korrekturzeile.sichtbar(da && als_tabelle && frei);
}

}  // namespace tarvel
