#include <string>
#include <utility>
#include <vector>

#include "programm/programm.h"

// The lists of drivers and vehicles, and the texts that no window owns.

namespace tarvel {
namespace {

const std::string listenordner = "Listen\\";

/// What a place without a driver is called in each language that there is.
std::vector<std::string> worte_freier_plaetze(dateien ablage) {
    std::vector<std::string> worte;
    for (const std::string& ordner : sprachordner_finden(ablage)) {
        texte sprache;
        ablage.sprache_aus(ordner);
        sprache.sprache_m1_laden(ablage);
        worte.push_back(sprache.frei_text);
    }
    return worte;
}

}  // namespace

void programm::gemeinsame_texte_laden() {
    ablage.sprache_aus(einst.anzeige.sprachordner);
    txt.sprache_m1_laden(ablage);
    txt.frei_anderswo = worte_freier_plaetze(ablage);
    txt.sprache_tx1_laden(ablage);
    txt.sprache_usb2_laden(ablage);
    dienste.meldungen.knoepfe_beschriften(txt.ja, txt.nein, txt.datei_text[texte::abbrechen]);
    eingebaute_namen_setzen();
}

void programm::eingebaute_namen_setzen() {
    fahrerliste.eingebaut({txt.fahrer_standard.begin(), txt.fahrer_standard.end()});
    fahrzeugliste.eingebaut(txt.fahrzeuge_standard);
}

std::vector<sprachliste> programm::sprachdateien() {
    std::vector<sprachliste> alle = txt.alle_gruppen();
    for (sprachliste& texte : fenster.sprachdateien()) {
        alle.push_back(std::move(texte));
    }
    return alle;
}

void programm::fahrzeugliste_laden() {
    if (!fahrzeugliste.laden(ablage, listenordner + fahrzeug_datei)) {
        dienste.meldungen.zeigen(txt.meldung[7], txt.titel[1]);
        fahrzeugliste_speichern();
    }
}

void programm::fahrerliste_laden() {
    if (!fahrerliste.laden(ablage, listenordner + fahrer_datei)) {
        dienste.meldungen.zeigen(txt.meldung[8], txt.titel[1]);
        fahrerliste_speichern();
    }
}

bool programm::fahrzeugliste_speichern() {
    const bool geschrieben = fahrzeugliste.speichern(ablage, listenordner + fahrzeug_datei);
    if (!geschrieben) {
        dienste.meldungen.zeigen(txt.meldung[2], txt.titel[1]);
    }
    return geschrieben;
}

bool programm::fahrerliste_speichern() {
    const bool geschrieben = fahrerliste.speichern(ablage, listenordner + fahrer_datei);
    if (!geschrieben) {
        dienste.meldungen.zeigen(txt.meldung[3], txt.titel[1]);
    }
    return geschrieben;
}

}  // namespace tarvel
