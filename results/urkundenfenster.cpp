#include "results/urkundenfenster.h"

#include <algorithm>

#include "core/fensterregister.h"
#include "core/text.h"
#include "core/weitergeben.h"

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
    for (haken& einer : fahrer) {
        einer.bei_aenderung = [this] { seite_zeigen(); };
    }
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
    texte.text("Urkunden für", Frame_fahrer).text("Drucken", Command_drucken);
    texte.text("Als PDF speichern", Command_pdf).text("Schließen", Command_ende);
    texte.tipp("Steht auf den Urkunden und über den Ergebnisblättern", verein);
    texte.tipp("Steht auf den Urkunden und über den Ergebnisblättern", veranstaltung);
    texte.tipp("Die Dateien im Ordner Urkunden; wie eine Vorlage aussieht, steht in urkunde.txt", vorlage);
    texte.tipp("Vorige Urkunde", Command_zurueck).tipp("Nächste Urkunde", Command_vor);
    texte.text("eingebaut", wort_.eingebaut).text("Platz", wort_.platz).text("Teilgenommen", wort_.ohne_platz);
    texte.text("Die Vorlage ist nicht lesbar. Die eingebaute tritt an ihre Stelle.", wort_.vorlage_fehlt);
    texte.text("Die Vorlage hat einen Fehler, und die eingebaute tritt an ihre Stelle. Zeile:", wort_.vorlage_fehler);
    texte.text("Die Namen von Verein und Veranstaltung konnten nicht gespeichert werden.", wort_.schreibfehler);
    texte.text("Die PDF-Datei konnte nicht geschrieben werden.", wort_.pdf_fehler);
    return texte.text("Der Drucker nimmt die Seite nicht an.", wort_.druckfehler);
}

void urkundenfenster::oeffnen(const rennergebnis& ergebnis, const std::string& rennen, const std::string& datei) {
    um_.welt.fenster.laden(kennung());
    ergebnis_ = ergebnis;
    datei_ = datei;
    gespeichert_ = papierkopf_laden(um_.welt.ablage);
    angaben_ = {gespeichert_, rennen, wort_.platz, wort_.ohne_platz, um_.einst.trennzeichen};
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
    for (std::size_t i = 0; i < fahrer.size(); ++i) {
        const bool da = i < urkunden_.size();
        fahrer.at(i).sichtbar(da);
        fahrer.at(i).gesetzt(da && urkunden_[i].platz > 0);
        fahrer.at(i).text(da ? urkunden_[i].wort(urkundenwort::platzwort) + "  ·  " +
                                   urkunden_[i].wort(urkundenwort::fahrer)
                             : std::string());
    }
    um_.welt.fenster.zeigen(kennung(), anzeige_art::modal);
    vorlage_laden(gespeichert_.vorlage);
    seite_zeigen();
    Command_pdf.fokus_setzen();
}

/// What was typed is kept for the next race.
void urkundenfenster::entladen() {
    if (angaben_.kopf != gespeichert_ && !papierkopf_speichern(um_.welt.ablage, angaben_.kopf)) {
        melden(wort_.schreibfehler);
    }
    gespeichert_ = angaben_.kopf;
}

void urkundenfenster::kopf_lesen() {
    angaben_.kopf.verein = gekuerzt(verein.text());
    angaben_.kopf.veranstaltung = gekuerzt(veranstaltung.text());
}

void urkundenfenster::neu_bilden() {
    urkunden_ = urkunden_bilden(ergebnis_, angaben_);
    for (urkunde& u : urkunden_) {
        u.fahrerbild = eigenes_bild(um_.fahrer, um_.welt.ablage, u.wort(urkundenwort::fahrer));
        u.fahrzeugbild = eigenes_bild(um_.fahrzeuge, um_.welt.ablage, u.wort(urkundenwort::fahrzeug));
    }
    seite_zeigen();
}

std::vector<urkunde> urkundenfenster::gewaehlte() const {
    std::vector<urkunde> alle;
    for (std::size_t i = 0; i < urkunden_.size(); ++i) {
        if (fahrer.at(i).gesetzt()) {
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
    vorlage_ = eigene ? std::move(gelesen.vorlage) : vorlage_lesen(eingebaute_vorlage()).vorlage;
    if (eigene || name.empty()) {  // one that cannot be read today is asked for again tomorrow
        angaben_.kopf.vorlage = name;
    }
    const auto& namen = vorlage.eintraege();
    const auto platz = std::find(namen.begin() + 1, namen.end(), name) - namen.begin();
    vorlage.platz(eigene ? static_cast<int>(platz) : 0);
}

}  // namespace tarvel
