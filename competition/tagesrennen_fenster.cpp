#include "competition/tagesrennen_fenster.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "core/dateien.h"
#include "core/text.h"
#include "results/ergebnisdatei.h"

namespace tarvel {
namespace {

using namespace std::chrono_literals;

constexpr dauer_ms getippt_nach = 400ms;
constexpr int dateiname_max = 80;
constexpr std::string_view klassen_zeichen = "ABCDEFGHIJKLMNOPQRSTUVWXYZ123456789";
constexpr std::size_t klassenbreite = 4;
constexpr std::size_t name_mindestens = 15;
constexpr std::size_t hinter_dem_namen = 2;

}  // namespace

tagesrennen_fenster::tagesrennen_fenster(const umgebung& um)
    : fensterlogik(um.welt.fenster, um.welt.ablage, fenstername::Tagesrennen),
      um_(um),
      Timer1_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, getippt_nach)) {
    text_lf_datei.laenge_max(dateiname_max);
    Timer1_->bei_tick = [this] {
        Timer1_->aus();
        datei_pruefen();
    };
    text_lf_datei.bei_aenderung = [this] { datei_geaendert(); };
    Check1.bei_aenderung = [this] { klassen_geaendert(); };
    std::vector<std::string> alle_klassen;
    for (const char zeichen : klassen_zeichen) {
        alle_klassen.emplace_back(1, zeichen);
    }
    for (std::size_t i = 0; i < Text_fahrer.size(); ++i) {
        Text_fahrer.at(i).frei(true);
        Text_fahrer.at(i).laenge_max(namensliste::name_laenge_max);
        Text_fahrer.at(i).vorschlagen = [this](const std::string& getippt) {
            return namensvorschlaege(getippt, um_.zuletzt_gefahren.mit_liste(um_.fahrerliste));
        };
        Text_fahrer.at(i).bei_aenderung = [this, i] { fahrer_geaendert(i); };
        lstb_klasse.at(i).eintraege(alle_klassen);
        lstb_klasse.at(i).bei_aenderung = [this, i] { vorgeschlagen_.at(i) = false; };
    }
    Command18.bei_klick = [this] { starten(); };
    Command20.bei_klick = [this] { schliessen(); };
    Command1.bei_klick = [this] { um_.folgen.tagesergebnisse_zeigen(tagesdatei_pfad(dateiname())); };
}

sprachliste tagesrennen_fenster::sprache_lf() {
    sprachliste texte("language\\language_lf.txt");
    texte.text("Tagesrennen", titel).text("Tagesrennen", Frame_fahrer).text("Ergebnisse speichern in", Label17);
    texte.text(".csv", Label18).text("Klasse", Check1).text("Fahrer", Label_fahrer);
    texte.text("Starten", Command18).text("Beenden", Command20).text("Auswertung", Command1);
    texte.text("Kl.", wort_.klasse).text("Name", wort_.name).text("Runden", wort_.runden);
    texte.text("Meter", wort_.meter).text("beste", wort_.beste).text("Gesamtzeit", wort_.gesamtzeit);
    texte.text("Prüfe Datei...", wort_.pruefe).text("neue Datei angelegt - Datei bereit", wort_.angelegt);
    texte.text("verwende bestehende Datei - Datei bereit", wort_.bereit);
    texte.text("Fehler beim Öffnen der Datei.", wort_.unbrauchbar);
    texte.text("Bitte Dateinamen eingeben.", wort_.name_fehlt);
    texte.text("Bitte Klasse auswählen oder deaktivieren.", wort_.klasse_fehlt);
    texte.text("Hier können Sie für die Klasseneinteilung Ihre Parameter für", wort_.klassen_text[0]);
    texte.text("die Klassen eingeben. Diese werden automatisch gesichert und sind", wort_.klassen_text[1]);
    texte.text("auch nach einem Programmstart noch verfügbar. Z.B.:", wort_.klassen_text[2]);
    texte.text("Alter 0 - 5 Jahre, oder z.B. Renngruppe 2, etc.", wort_.klassen_text[3]);
    texte.text("Alter 6 - 9 Jahre, oder z.B. Renngruppe 2, etc.", wort_.klassen_text[4]);
    texte.text("Datei des Tages", Frame_datei).text("Was die Klassen bedeuten", Frame_klassen);
    texte.text("Bisher gefahren", Frame_liste).text("Klasse", Label_klasse).text("Spur", wort_.spur);
    texte.text("Neue Datei, sie wird beim Starten angelegt.", wort_.neu).text("bisher", wort_.bisher);
    texte.text("Rennen, beste Runde", wort_.rennen);
    texte.text("Tagesrennen.ini lässt sich nicht schreiben. Die Angaben gelten nur bis zum Programmende.",
               wort_.nicht_gesichert);
    texte.tipp("Einzelrennen auf den ausgewählten Spuren; das Ergebnis kommt beim Verlassen in die Datei", Command18);
    texte.tipp("Die Datei des Tages sortieren, addieren und drucken", Command1);
    texte.tipp_fuer_alle("Was die Klassen bedeuten, mit eigenen Worten. Die graue Erklärung weicht dem Getippten.",
                         klassen_text);
    fuehrung_.eintragen(texte);
    texte.tipp("Jeder Fahrer gehört zu einer Klasse. Die Auswertung führt jede Klasse für sich.", Check1);
    texte.text("Rennen, beste Runde", wort_.ein_rennen);
    texte.text(
        "Alle Rennen des Tages stehen in einer Datei. Gibt es sie schon, kommen die neuen hinten dazu, und die alten "
        "bleiben. Lässt sie sich nicht öffnen, ist sie keine eines Tagesrennens: dann bitte einen anderen Namen.",
        [this](const std::string& tipp) {
            text_lf_datei.tipp(tipp);
            Label_lf_hinweis.tipp(tipp);
        });
    return texte.text("Das geht in keinem Dateinamen:", wort_.zeichen);
}

void tagesrennen_fenster::laden() {
    texte_lesen();
    text_lf_datei.ansage(Label17.text());
    ergebnisse.ansage(Frame_liste.text());
    parameter_zeigen();
    spuren_zeigen();
    datei_pruefen();
    (dateiname().empty() ? static_cast<steuerelement&>(text_lf_datei) : Command18).fokus_setzen();
}

void tagesrennen_fenster::entladen() {
    Timer1_->aus();
    if (const tagesparameter werte = parameter(); werte != gesichert_) {
        parameter_sichern(werte);
    }
}

tagesparameter tagesrennen_fenster::parameter() const {
    tagesparameter werte{dateiname(), Check1.gesetzt(), {}};
    std::transform(klassen_text.begin(), klassen_text.end(), werte.klassen_text.begin(),
                   [](const feld& zeile) { return zeile.text(); });
    return werte;
}

void tagesrennen_fenster::parameter_zeigen() {
    const auto gelesen = ungeschrieben_ ? std::optional(gesichert_) : tagesparameter_laden(um_.welt.ablage);
    const tagesparameter werte = gelesen.value_or(tagesparameter{{}, false, wort_.klassen_text});
    text_lf_datei.text(werte.name);
    Check1.gesetzt(werte.klassen);
    for (std::size_t i = 0; i < klassen_text.size(); ++i) {
        klassen_text.at(i).text(werte.klassen_text.at(i));
        klassen_text.at(i).ansage(Frame_klassen.text() + " " + std::to_string(i + 1));
    }
    gesichert_ = parameter();
}

void tagesrennen_fenster::parameter_sichern(const tagesparameter& werte) {
    gesichert_ = werte;
    ungeschrieben_ = !tagesparameter_speichern(um_.welt.ablage, werte);
    if (ungeschrieben_) {
        um_.welt.meldungen.zeigen(wort_.nicht_gesichert, um_.welt.txt.titel[1]);
    }
}

bool tagesrennen_fenster::faehrt(std::size_t i) const {
    const int spur = static_cast<int>(i) + 1;
    return um_.einrichtung.bahn[spur].dabei && !um_.einst.spur_verliehen(spur);
}

void tagesrennen_fenster::spuren_zeigen() {
    um_.hauptfenster.einrichtung_lesen();
    std::vector<std::string> namen;
    for (const listeneintrag& eintrag : um_.fahrerliste.eintraege()) {
        namen.push_back(eintrag.name);
    }
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        const std::string& fahrer = um_.einrichtung.bahn[spur].fahrer;
        const std::string neu = fahrer == um_.welt.txt.kein_fahrer ? std::string() : fahrer;
        if (neu != Text_fahrer.at(i).text()) {
            klasse_leeren(i);  // it was another one's
        }
        spurfarbe.at(i).hintergrund(um_.einst.farben_spur[spur]);
        Label_spur.at(i).text(wort_.spur + " " + std::to_string(spur));
        Text_fahrer.at(i).eintraege(namen);
        Text_fahrer.at(i).text(neu);
        Text_fahrer.at(i).aktiviert(faehrt(i));
        Text_fahrer.at(i).ansage(Label_fahrer.text() + ", " + Label_spur.at(i).text());
        lstb_klasse.at(i).ansage(Label_klasse.text() + ", " + Label_spur.at(i).text());
    }
    klassen_geaendert();
}

void tagesrennen_fenster::klassen_geaendert() {
    for (std::size_t i = 0; i < lstb_klasse.size(); ++i) {
        lstb_klasse.at(i).aktiviert(Check1.gesetzt() && faehrt(i));
    }
    Frame_klassen.sichtbar(Check1.gesetzt());  // who has no classes need not read of them
}

void tagesrennen_fenster::datei_geaendert() {
    Timer1_->aus();
    for (std::size_t i = 0; i < lstb_klasse.size(); ++i) {
        if (vorgeschlagen_.at(i)) {
            klasse_leeren(i);  // of another day
        }
    }
    if (dateiname().empty()) {
        datei_pruefen();
        return;
    }
    Label_lf_hinweis.text(wort_.pruefe);
    Timer1_->an();
}

void tagesrennen_fenster::datei_pruefen() {
    const auto zustand = tagesdatei_pruefen(um_.welt.ablage, dateiname());
    const bool bereit = !dateiname().empty() && zustand == tagesdatei_zustand::bereit;
    Label_lf_hinweis.schriftfarbe({});
    if (dateiname().empty()) {
        Label_lf_hinweis.text(wort_.name_fehlt);
    } else if (zustand == tagesdatei_zustand::neu) {
        Label_lf_hinweis.text(wort_.neu);
    } else {
        Label_lf_hinweis.text(bereit ? wort_.bereit : warum_unbrauchbar());
    }
    Command1.aktiviert(bereit);
    zeilen_.clear();
    if (bereit) {
        zeilen_ = tageszeilen_lesen(um_.welt.ablage, dateiname(), um_.einst.trennzeichen);
    }
    zeilen_zeigen();
    fuehrung_zeigen(bereit);
}

std::string tagesrennen_fenster::warum_unbrauchbar() const {
    const std::string name = dateiname();
    const std::string moeglich = als_dateiname(name);         // of the same length
    const std::ptrdiff_t ab = name.starts_with('.') ? 1 : 0;  // further behind it may stand
    const auto erstes = std::mismatch(name.begin() + ab, name.end(), moeglich.begin() + ab).first;
    return erstes == name.end() ? wort_.unbrauchbar : wort_.zeichen + " " + *erstes;
}

void tagesrennen_fenster::fuehrung_zeigen(bool bereit) {
    auto zeilen =
        bereit ? um_.welt.ablage.zeilen_lesen(tagesdatei_pfad(dateiname()), ergebnistabelle::zeilen_max) : std::nullopt;
    const auto tabelle = zeilen ? ergebnistabelle_lesen(std::move(*zeilen), um_.einst.trennzeichen) : std::nullopt;
    Label_fuehrung.text(tabelle
                            ? fuehrung_.zeile(tagesfuehrung(*tabelle, um_.einst.auswertung_nach), Label_klasse.text())
                            : std::string());
}

std::string tagesrennen_fenster::zeile(const tageszeile& z) const {
    std::string text = aufgefuellt(links(z.klasse, klassenbreite - 1), klassenbreite);
    text += eingepasst(z.name, spalten.breite).append(hinter_dem_namen, ' ');
    constexpr std::array<std::size_t, 3> breiten{8, 9, 11};
    const std::array<const std::string*, 3> werte{&z.runden, &z.meter, &z.beste};
    for (std::size_t i = 0; i < werte.size(); ++i) {
        text += aufgefuellt(links(*werte.at(i), breiten.at(i) - 1), breiten.at(i));
    }
    return text + z.gesamtzeit;
}

void tagesrennen_fenster::zeilen_zeigen() {
    std::vector<std::string> namen(zeilen_.size());
    std::transform(zeilen_.begin(), zeilen_.end(), namen.begin(), [](const tageszeile& z) { return z.name; });
    spalten = {{klassenbreite}, namensbreite(namen, name_mindestens), name_mindestens};
    Label_kopf.text(zeile({wort_.klasse, wort_.name, wort_.runden, wort_.meter, wort_.beste, wort_.gesamtzeit}));
    ergebnisse.leeren();
    for (const tageszeile& z : zeilen_) {
        tageszeile gezeigt = z;
        std::replace(gezeigt.meter.begin(), gezeigt.meter.end(), '.', ',');  // as everywhere on the screen
        if (z.klasse == "0") {
            gezeigt.klasse.clear();
        }
        ergebnisse.hinzufuegen(zeile(gezeigt));
    }
    ergebnisse.markieren(static_cast<int>(zeilen_.size()) - 1);
    for (std::size_t i = 0; i < Text_fahrer.size(); ++i) {
        bisher_zeigen(i);
    }
}

void tagesrennen_fenster::bisher_zeigen(std::size_t i) {
    int rennen = 0;
    const tageszeile* letzte = nullptr;
    std::string beste;
    const std::string leer = zeit_formatieren(0, true, um_.einst.trennzeichen);
    const std::string name = ohne_trenner(Text_fahrer.at(i).text(), um_.einst.trennzeichen[2]);  // as the file has it
    for (const tageszeile& z : zeilen_) {
        if (z.name == name) {
            ++rennen;
            letzte = &z;
            if (z.beste != leer && (beste.empty() || z.beste < beste)) {
                beste = z.beste;
            }
        }
    }
    Label_bisher.at(i).text(rennen == 0 ? ""
                                        : wort_.bisher + " " + std::to_string(rennen) + " " +
                                              (rennen == 1 ? wort_.ein_rennen : wort_.rennen) + " " +
                                              (beste.empty() ? "–" : beste));
    if (letzte != nullptr && lstb_klasse.at(i).platz() < 0) {
        const auto& klassen = lstb_klasse.at(i).eintraege();
        const auto stelle = std::find(klassen.begin(), klassen.end(), letzte->klasse);
        lstb_klasse.at(i).platz(stelle == klassen.end() ? -1 : static_cast<int>(stelle - klassen.begin()));
        vorgeschlagen_.at(i) = true;
    }
}

void tagesrennen_fenster::klasse_leeren(std::size_t i) {
    lstb_klasse.at(i).platz(-1);
    vorgeschlagen_.at(i) = false;
}

void tagesrennen_fenster::fahrer_geaendert(std::size_t i) {
    klasse_leeren(i);  // nobody drives in the class of the one before him
    bisher_zeigen(i);
}

void tagesrennen_fenster::ablehnen(const std::string& meldung, steuerelement& ort) {
    um_.welt.meldungen.zeigen(meldung, um_.welt.txt.titel[1]);
    ort.fokus_setzen();
}

bool tagesrennen_fenster::klassen_vollstaendig() {
    for (std::size_t i = 0; Check1.gesetzt() && i < Text_fahrer.size(); ++i) {
        if (faehrt(i) && !Text_fahrer.at(i).text().empty() && lstb_klasse.at(i).platz() < 0) {
            ablehnen(wort_.klasse_fehlt, lstb_klasse.at(i));
            return false;
        }
    }
    return true;
}

bool tagesrennen_fenster::datei_bereitstellen() {
    const auto zustand = tagesdatei_pruefen(um_.welt.ablage, dateiname());
    const bool angelegt = zustand == tagesdatei_zustand::neu && tagesdatei_anlegen(um_.welt.ablage, dateiname());
    const bool bereit = angelegt || zustand == tagesdatei_zustand::bereit;
    if (bereit) {
        Label_lf_hinweis.text(angelegt ? wort_.angelegt : wort_.bereit);
        Command1.aktiviert(true);
    } else {
        Label_lf_hinweis.text(warum_unbrauchbar());
        ablehnen(warum_unbrauchbar(), text_lf_datei);
    }
    return bereit;
}

void tagesrennen_fenster::starten() {
    if (!klassen_vollstaendig()) {
        return;
    }
    if (dateiname().empty()) {
        Label_lf_hinweis.text(wort_.name_fehlt);
        Label_lf_hinweis.schriftfarbe(farben::rot);
        text_lf_datei.fokus_setzen();
        return;
    }
    tagesauftrag auftrag{tagesdatei_pfad(dateiname()), {}};
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        if (!faehrt(i)) {
            continue;
        }
        const bool jemand = !Text_fahrer.at(i).text().empty();  // who was struck here does not drive
        um_.einrichtung.bahn[spur].fahrer = jemand ? Text_fahrer.at(i).text() : um_.welt.txt.kein_fahrer;
        if (jemand && Check1.gesetzt()) {
            auftrag.klassen[spur] = lstb_klasse.at(i).text();
        }
    }
    um_.hauptfenster.einrichtung_zeigen();
    if (datei_bereitstellen()) {
        parameter_sichern(parameter());
        schliessen();
        um_.folgen.tagesrennen_beginnen(auftrag);
    }
}

}  // namespace tarvel
