#include "results/urkundenfenster.h"

#include <algorithm>

#include "core/fensterregister.h"
#include "core/text.h"
#include "core/weitergeben.h"
#include "results/ergebnisdatei.h"
#include "results/papiername.h"

namespace tarvel {
namespace {

constexpr int name_laenge_max = 80;
constexpr std::size_t vorlage_zeilen_max = 2000;

/// A driver or vehicle that has no picture of its own shows none on a certificate.
std::string eigenes_bild(const namensliste& namen, const dateien& ablage, const std::string& name) {
    const namensliste::art& art = namen.listenart();
    std::string datei = namen.bilddatei(ablage, name);
    return datei == art.bildordner + "/" + art.standardbild ? std::string() : datei;
}

/// Tables of competitions hold no more of a name.
std::string ganzer_name(const namensliste& namen, const std::string& name) {
    constexpr std::size_t geschrieben = 15;
    const auto& alle = namen.eintraege();
    const auto beginnt = [&name](const listeneintrag& e) { return e.name.starts_with(name); };
    const auto erster = std::find_if(alle.begin(), alle.end(), beginnt);
    const bool einer = erster != alle.end() && std::none_of(erster + 1, alle.end(), beginnt);
    return laenge(name) == geschrieben && einer ? erster->name : name;
}

}  // namespace

urkundenfenster::urkundenfenster(const umfeld& um)
    : fensterlogik(um.welt.fenster, um.welt.ablage, fenstername::urkunden), um_(um) {
    for (feld* name : {&verein, &veranstaltung}) {
        name->laenge_max(name_laenge_max);
        name->bei_aenderung = [this] {
            kopf_lesen();
            neu_bilden();
        };
    }
    vorlage.bei_aenderung = [this] { vorlage_waehlen(); };
    fahrer.bei_auswahl = [this] {
        seite_ = static_cast<std::size_t>(std::max(fahrer.markiert(), 0));
        seite_zeigen();
    };
    fahrer.bei_doppelklick = [this] { markierten_umschalten(); };
    dabei.bei_aenderung = [this] { markierten_umschalten(); };
    Command_alle.bei_klick = [this] { alle_waehlen(true); };
    Command_keiner.bei_klick = [this] { alle_waehlen(false); };
    Command_zurueck.bei_klick = [this] { blaettern(-1); };
    Command_vor.bei_klick = [this] { blaettern(1); };
    weitergeben(Command_drucken, drucken);
    weitergeben(Command_pdf, als_pdf);
    Command_ende.bei_klick = [this] { schliessen(); };
}

sprachliste urkundenfenster::sprache_u() {
    sprachliste texte("language\\language_u.txt");
    const auto eingabe = [&texte](std::string_view deutsch, bezeichnung& label, steuerelement& daneben) {
        texte.text(deutsch, [&label, &daneben](const std::string& neu) {
            label.text(neu);
            daneben.ansage(neu);
        });
    };
    texte.ueberschrift("Urkunden").text("Urkunden", titel);
    eingabe("Verein", Label_verein, verein);
    eingabe("Veranstaltung", Label_veranstaltung, veranstaltung);
    eingabe("Vorlage", Label_vorlage, vorlage);
    texte.text("Urkunden für", [this](const std::string& neu) {
        Frame_fahrer.text(neu);
        fahrer.ansage(neu);
    });
    texte.text("Drucken", Command_drucken);
    texte.text("Als PDF speichern", Command_pdf).text("Schließen", Command_ende);
    texte.tipp("Steht auf den Urkunden und über den Ergebnisblättern", verein);
    texte.tipp("Steht auf den Urkunden und über den Ergebnisblättern", veranstaltung);
    texte.tipp(
        "Die Dateien im Ordner Urkunden; wie eine Vorlage aussieht, steht in urkunde.txt. Jede Sprache merkt sich "
        "ihre.",
        vorlage);
    texte.tipp("Vorige Urkunde", Command_zurueck).tipp("Nächste Urkunde", Command_vor);
    texte.text("eingebaut", wort_.eingebaut).text("Platz", wort_.platz).text("Teilgenommen", wort_.ohne_platz);
    texte.text("Die Vorlage ist nicht lesbar. Die eingebaute tritt an ihre Stelle.", wort_.vorlage_fehlt);
    texte.text("Die Vorlage hat einen Fehler, und die eingebaute tritt an ihre Stelle. Zeile:", wort_.vorlage_fehler);
    texte.text("Die Namen von Verein und Veranstaltung konnten nicht gespeichert werden.", wort_.schreibfehler);
    texte.text("Die PDF-Datei konnte nicht geschrieben werden.", wort_.pdf_fehler);
    texte.text("Der Drucker nimmt die Seite nicht an.", wort_.druckfehler);
    texte.text("bekommt eine Urkunde", dabei).text("alle", Command_alle).text("keiner", Command_keiner);
    texte.tipp("Enter oder ein Doppelklick gibt oder nimmt die Urkunde", fahrer);
    texte.text("Klasse", wort_.klasse).text("URKUNDE", titel_.urkunde).text("Runden", titel_.runden);
    texte.text("beste Runde", titel_.beste).text("Gesamtzeit", titel_.gesamtzeit).text("Datum", titel_.datum);
    return texte.text("Rennleitung", titel_.rennleitung)
        .text("Urkunde", wort_.urkunde)
        .text("Es gibt kein Ergebnis, für das jemand eine Urkunde bekommt.", Label_keine);
}

void urkundenfenster::oeffnen(const rennergebnis& ergebnis, const std::string& rennen) {
    bilden_ = [ergebnis](const urkundenangaben& angaben) { return urkunden_bilden(ergebnis, angaben); };
    aufschlagen(rennen, ergebnis.datum);
}

void urkundenfenster::oeffnen(std::vector<tabellenplatz> plaetze, const std::string& datum, const std::string& rennen) {
    for (tabellenplatz& einer : plaetze) {
        einer.fahrer = ganzer_name(um_.fahrer, einer.fahrer);
    }
    bilden_ = [plaetze = std::move(plaetze), datum](const urkundenangaben& angaben) {
        return urkunden_bilden(plaetze, datum, angaben);
    };
    aufschlagen(rennen, datum);
}

std::string urkundenfenster::pdf_datei() const {
    const std::vector<urkunde> alle = gewaehlte();
    const bool eine = alle.size() == 1;
    const std::string wessen = eine ? alle.front().wort(urkundenwort::fahrer) : angaben_.kopf.veranstaltung;
    const std::string was = eine ? wort_.urkunde : titel.text();
    return papiername(ergebnis_ordner::einzelrennen, {datum_, {}}, wessen.empty() ? was : was + " " + wessen);
}

void urkundenfenster::aufschlagen(const std::string& rennen, const std::string& datum) {
    um_.welt.fenster.laden(kennung());
    datum_ = datum;
    gespeichert_ = papierkopf_laden(um_.welt.ablage, um_.einst.anzeige.sprachordner);
    angaben_ = {gespeichert_, rennen, wort_.platz, wort_.ohne_platz, um_.einst.trennzeichen, wort_.klasse};
    Command_zurueck.text("◀");
    Command_vor.text("▶");
    Command_zurueck.ansage(Command_zurueck.tipp());
    Command_vor.ansage(Command_vor.tipp());
    verein.text(gespeichert_.verein);
    veranstaltung.text(gespeichert_.veranstaltung);
    std::vector<std::string> vorlagen = um_.welt.ablage.auflisten(urkunden_ordner, "", ".txt");
    vorlagen.insert(vorlagen.begin(), wort_.eingebaut);
    vorlage.eintraege(vorlagen);
    seite_ = 0;
    neu_bilden();
    gewaehlt_.assign(urkunden_.size(), false);
    std::transform(urkunden_.begin(), urkunden_.end(), gewaehlt_.begin(), [](const urkunde& u) { return u.platz > 0; });
    zeilen_schreiben();
    um_.welt.fenster.zeigen(kennung(), anzeige_art::modal);
    vorlage_laden(gespeichert_.vorlage);
    seite_zeigen();
    Command_pdf.fokus_setzen();
}

void urkundenfenster::zeilen_schreiben() {
    fahrer.leeren();
    for (std::size_t i = 0; i < urkunden_.size(); ++i) {
        fahrer.hinzufuegen((gewaehlt_[i] ? "✓  " : "–  ") + urkunden_[i].wort(urkundenwort::platzwort) + "  ·  " +
                           urkunden_[i].wort(urkundenwort::fahrer));
    }
    fahrer.markieren(static_cast<int>(seite_));
}

void urkundenfenster::markierten_umschalten() {
    if (seite_ < gewaehlt_.size()) {
        gewaehlt_[seite_] = !gewaehlt_[seite_];
        zeilen_schreiben();
        seite_zeigen();
    }
}

void urkundenfenster::alle_waehlen(bool an) {
    gewaehlt_.assign(urkunden_.size(), an);
    zeilen_schreiben();
    seite_zeigen();
}

/// What was typed is kept for the next race.
void urkundenfenster::entladen() {
    if (angaben_.kopf != gespeichert_ &&
        !papierkopf_speichern(um_.welt.ablage, angaben_.kopf, um_.einst.anzeige.sprachordner)) {
        melden(wort_.schreibfehler);
    }
    gespeichert_ = angaben_.kopf;
}

void urkundenfenster::kopf_lesen() {
    angaben_.kopf.verein = gekuerzt(verein.text());
    angaben_.kopf.veranstaltung = gekuerzt(veranstaltung.text());
}

void urkundenfenster::neu_bilden() {
    urkunden_ = bilden_(angaben_);
    for (urkunde& u : urkunden_) {
        u.fahrerbild = eigenes_bild(um_.fahrer, um_.welt.ablage, u.wort(urkundenwort::fahrer));
        u.fahrzeugbild = eigenes_bild(um_.fahrzeuge, um_.welt.ablage, u.wort(urkundenwort::fahrzeug));
    }
    seite_zeigen();
}

std::vector<urkunde> urkundenfenster::gewaehlte() const {
    std::vector<urkunde> alle;
    for (std::size_t i = 0; i < urkunden_.size(); ++i) {
        if (i < gewaehlt_.size() && gewaehlt_[i]) {
            alle.push_back(urkunden_[i]);
        }
    }
    return alle;
}

const urkunde* urkundenfenster::gezeigte() const {
    return seite_ < urkunden_.size() ? &urkunden_[seite_] : nullptr;
}

void urkundenfenster::blaettern(int schritt) {
    if (const auto anzahl = static_cast<int>(urkunden_.size()); anzahl > 0) {
        seite_ = static_cast<std::size_t>((static_cast<int>(seite_) + schritt + anzahl) % anzahl);
    }
    seite_zeigen();
}

void urkundenfenster::seite_zeigen() {
    const bool jemand = !gewaehlte().empty();
    Command_drucken.aktiviert(jemand);
    Command_pdf.aktiviert(jemand);
    const urkunde* u = gezeigte();
    Label_seite.text(u != nullptr ? u->wort(urkundenwort::fahrer) : std::string());
    for (befehl* knopf : {&Command_zurueck, &Command_vor}) {
        knopf->aktiviert(urkunden_.size() > 1);
    }
    fahrer.markieren(static_cast<int>(seite_));
    dabei.aktiviert(u != nullptr);
    for (befehl* knopf : {&Command_alle, &Command_keiner}) {
        knopf->aktiviert(u != nullptr);
    }
    Label_keine.sichtbar(u == nullptr);
    dabei.gesetzt(seite_ < gewaehlt_.size() && gewaehlt_[seite_]);
    if (zeichnen) {
        zeichnen();
    }
}

void urkundenfenster::vorlage_waehlen() {
    vorlage_laden(vorlage.platz() > 0 ? vorlage.text() : std::string());
    seite_zeigen();
}

void urkundenfenster::vorlage_laden(const std::string& name) {
    gelesene_vorlage gelesen;
    if (!name.empty()) {
        const std::string pfad = std::string(urkunden_ordner) + "\\" + name;
        const auto zeilen = um_.welt.ablage.zeilen_lesen(pfad, vorlage_zeilen_max);
        gelesen = vorlage_lesen(zeilen.value_or(std::vector<std::string>{}));
        if (gelesen.fehlerzeile > 0) {
            melden(name + ": " +
                   (zeilen ? wort_.vorlage_fehler + " " + std::to_string(gelesen.fehlerzeile) : wort_.vorlage_fehlt));
        }
    }
    const bool eigene = !name.empty() && gelesen.fehlerzeile == 0;
    vorlage_ = eigene ? std::move(gelesen.vorlage) : vorlage_lesen(eingebaute_vorlage(titel_)).vorlage;
    if (eigene || name.empty()) {  // one that cannot be read today is asked for again tomorrow
        angaben_.kopf.vorlage = name;
    }
    const auto& namen = vorlage.eintraege();
    const auto platz = std::find(namen.begin() + 1, namen.end(), name) - namen.begin();
    vorlage.platz(eigene ? static_cast<int>(platz) : 0);
}

}  // namespace tarvel
