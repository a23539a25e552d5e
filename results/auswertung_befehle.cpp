#include <algorithm>

#include "core/renndauer.h"
#include "core/text.h"
#include "core/wechselschema.h"
#include "results/auswertung.h"

namespace tarvel {
namespace {

constexpr int eingabe_laenge_max = 8;

}  // namespace

void auswertung::befehle_verbinden() {
    Command1.bei_klick = [this] {
        selbstlauf_unterbrechen();  // nothing goes on while it asks
        if (um_.teil_von->darf_wiederholen()) {
            bestzeiten_vor(aktion::wiederholen);
        }
    };
    Command2.bei_klick = [this] { bestzeiten_vor(aktion::neu_starten); };
    Command3.bei_klick = [this] {
        rennziel ziel;
        if (ziel_pruefen(ziel)) {
            bestzeiten_vor(aktion::fortsetzen);
        }
    };
    Command4.bei_klick = [this] {
        auswertung_anzeigen();
        u_.speichern.oeffnen(ergebnis());
    };
    Command5.bei_klick = [this] { bestzeiten_vor(weg_hinaus()); };
    Command6.bei_klick = [this] { Command6_klick(); };
    Command7.bei_klick = [this] { selbstlauf_unterbrechen(); };
    Command8.bei_klick = [this] { runde_loeschen(); };
    Command9.bei_klick = [this] { bestzeiten_oeffnen(aktion::keine); };
    Command10.bei_klick = [this] { platzierung_pruefen(); };
    Command_nachtragen.bei_klick = [this] { nachtrag_oeffnen(); };
    Command_zurueck.bei_klick = [this] { korrektur_zuruecknehmen(); };
    Command_wieder.bei_klick = [this] { korrektur_wiederherstellen(); };
    nachtrag.Command_abbrechen.bei_klick = [this] { zeigen(ansicht::stand); };
    nachtrag.eintragen = [this](const korrektur& k) { runde_nachtragen(k); };
    nachtrag.ohne_wahl = [this] { um_.meldungen.zeigen(wort_.nachtrag_waehlen, um_.txt.titel[0]); };
    Command_verlauf.bei_klick = [this] { zeigen(Frame_verlauf.sichtbar() ? ansicht::stand : ansicht::verlauf); };
    Command_urkunden.bei_klick = [this] { urkunden_zeigen(); };
    const auto in_ruhe = [this](befehl& knopf, const std::function<void()>& wohin) {
        knopf.bei_klick = [this, &wohin] {
            if (wohin) {
                gewartet_ = 0s;  // it waits, and counts from the beginning then
                wohin();
            }
        };
    };
    in_ruhe(Command_protokoll, protokoll_zeigen);
    in_ruhe(Command_drucken, drucken);
    in_ruhe(Command_pdf, als_pdf);
    in_ruhe(Command_wiedergabe, wiedergabe_zeigen);
    tauschfahrzeug.bei_aenderung = [this] { u_.einst.fahrzeug_wechseln = tauschfahrzeug.gesetzt(); };
    neues_ziel.laenge_max(eingabe_laenge_max);
    neues_ziel.bei_aenderung = [this] { ziel_einheit_zeigen(); };
}

/// Most often nothing changes, and whoever has pressed wonders.
void auswertung::platzierung_pruefen() {
    const rennergebnis vorher = ergebnis();
    auswertung_anzeigen();
    um_.meldungen.bestaetigen(ergebnis() == vorher ? wort_.plaetze_stimmen : wort_.plaetze_neu, um_.txt.titel[0]);
}

void auswertung::spurbefehle_verbinden(std::size_t i) {
    meter.at(i).laenge_max(eingabe_laenge_max);
    liste.at(i).bei_auswahl = [this, i] {
        gewaehlte_spur_ = static_cast<int>(i) + 1;
        for (std::size_t andere = 0; andere < spuren_max; ++andere) {
            if (andere != i) {
                liste.at(andere).markieren(-1);
            }
        }
    };
    cmd_anzeige.at(i).bei_klick = [this, i] { anzeige_weiterschalten(i); };
    cmd_rd_add.at(i).bei_klick = [this, i] { liste.at(i).auswaehlen(liste.at(i).markiert() + 1); };
    cmd_rd_inc.at(i).bei_klick = [this, i] { runde_loeschen_auf(i); };
}

void auswertung::anzeige_weiterschalten(std::size_t i) {
    const auto& gemessen = ergebnis().gemessen;
    if (std::none_of(gemessen.begin(), gemessen.end(), [](bool sektor) { return sektor; })) {
        um_.meldungen.zeigen(wort_.keine_sektoren, um_.txt.titel[0]);
        return;
    }
    const bool letzte = anzeige_modus_.at(i) == anzeige::mit_beidem;
    anzeige_modus_.at(i) = letzte ? anzeige::zeit : static_cast<anzeige>(static_cast<int>(anzeige_modus_.at(i)) + 1);
    liste.at(i).leeren();
    if (const rennergebnis::spur* s = ergebnis().auf(static_cast<int>(i) + 1); s != nullptr) {
        rundenliste_schreiben(*s);
    }
}

void auswertung::ausfuehren(aktion was) {
    aktion_nach_bestzeiten_ = aktion::keine;
    um_.teil_von->von_selbst_starten(std::exchange(automatik_, false));
    switch (was) {
        case aktion::wiederholen:
            cmd1_fortsetzung();
            break;
        case aktion::neu_starten:
            cmd2_fortsetzung();
            break;
        case aktion::fortsetzen:
            cmd3_fortsetzung();
            break;
        case aktion::hauptmenue:
            cmd5_fortsetzung();
            break;
        case aktion::keine:
            break;
    }
    if (um_.fenster.ist_offen(fenstername::auswertung)) {
        um_.teil_von->von_selbst_starten(false);                          // it did not come to that
        if (geht_von_selbst_weiter() && !tmr_dauertraining_->laeuft()) {  // nor will it: the operator decides again
            selbst_ = {};
            trainingslabel.sichtbar(false);
            Command1.sichtbar(true);
            Frame1.sichtbar(um_.teil_von->fortsetzbar_bis().has_value());
        }
    }
}

auswertung::aktion auswertung::weg_hinaus() const {
    return um_.teil_von->weg_hinaus() == ausweg::fortsetzen ? aktion::fortsetzen : aktion::hauptmenue;
}

bool auswertung::ergebnis_abgeben(weitergang wie) {
    meter_eingabe_uebernehmen();
    auswertung_anzeigen();
    return um_.teil_von->uebernehmen(ergebnis(), wie) || um_.meldungen.fragen(wort_.verlust, um_.txt.titel[1]);
}

void auswertung::rennen_verlassen() {
    u_.stand.festschreiben();
    um_.fenster.entladen(fenstername::beste_zeiten_fenster);
    um_.fenster.entladen(fenstername::auswertung);
    um_.ausgaben.ruhezustand();
}

void auswertung::bahn_neu_oeffnen() {
    um_.fenster.neu_laden(fenstername::bahn1);
    if (um_.teil_von->wer_startet() == starter::ablauf) {
        um_.teil_von->von_selbst_starten(false);
        um_.bahn.Command1.klicken();
    }
}

void auswertung::wechselschema_anwenden() {
    const std::optional<spuren<int>> fest = um_.teil_von->fester_wechsel();
    if (fest || geht_von_selbst_weiter() || spurwechsel.gesetzt()) {  // the box is hidden while it goes on by itself
        const spuren<int> herkunft = fest.value_or(wechsel_nachfolger(um_.einst.wechsel_schema, um_.param.spur_aktiv));
        r_.fortsetzung.fahrer_umsetzen(herkunft);
        u_.stand.fahrer_umsetzen(herkunft);
    }
}

void auswertung::cmd1_fortsetzung() {
    if (!ergebnis_abgeben(weitergang::wiederholen)) {
        return;
    }
    rennen_verlassen();
    um_.param.einrichtung_wiederherstellen();
    bahn_neu_oeffnen();
}

void auswertung::cmd2_fortsetzung() {
    if (!ergebnis_abgeben(weitergang::neu_starten)) {
        return;
    }
    rennen_verlassen();
    um_.param.einrichtung_wiederherstellen();
    wechselschema_anwenden();
    bahn_neu_oeffnen();
}

void auswertung::ziel_vorschlagen() {
    const bool zeitrennen = um_.ist_zeitrennen();
    const rennziel ziel = std::min(um_.param.renn_ziel + um_.param.renn_laenge, ziel_max());
    neues_ziel.text(zeitrennen ? renndauer_aus_ms(ziel.ms()).text() : std::to_string(ziel.runden()));
    neues_ziel.tipp(zeitrennen ? wort_.minuten_hinweis : "");
    ziel_einheit_zeigen();
}

/// What has been typed behind the comma are seconds, and few expect it.
void auswertung::ziel_einheit_zeigen() {
    if (!um_.ist_zeitrennen()) {
        ziel_einheit.text(wort_.runden);
        return;
    }
    const bool mit_sekunden = neues_ziel.text().find_first_of(".,") != std::string::npos;
    const renndauer_angabe dauer = renndauer_lesen(neues_ziel.text());
    const std::string gelesen = std::to_string(dauer.minuten) + ":" + ziffern(dauer.sekunden, 2);
    ziel_einheit.text(wort_.minuten + (mit_sekunden ? " (" + gelesen + ")" : ""));
}

rennziel auswertung::naechstes_ziel() const {
    int meiste = 0;
    for (const rennergebnis::spur& s : ergebnis().spuren) {
        meiste = std::max(meiste, s.rundenzahl());
    }
    const rennziel gefahren =
        um_.ist_zeitrennen() ? rennziel::zeit(r_.fortsetzung.gefahren()) : rennziel::runden(meiste);
    return std::min(gefahren, um_.param.renn_ziel) + um_.param.renn_laenge;
}

bool auswertung::ziel_lesen(rennziel& ziel) const {
    if (weg_hinaus() == aktion::fortsetzen) {
        ziel = naechstes_ziel();
        return true;
    }
    if (um_.ist_zeitrennen()) {
        ziel = rennziel::zeit(renndauer_lesen(neues_ziel.text()).in_ms());
        return ziel.ms() > r_.fortsetzung.gefahren();
    }
    const auto runden = static_cast<int>(ganzzahl_lesen(neues_ziel.text(), 0, 99999999));
    ziel = rennziel::runden(runden);
    int meiste = 0;
    int wenigste = runden_max;
    for (const rennergebnis::spur& s : ergebnis().spuren) {
        if (!s.disqualifiziert && (um_.teil_von->fueller_fahren(true) || !um_.teil_von->ist_fueller(s.nummer))) {
            meiste = std::max(meiste, s.rundenzahl());
            wenigste = std::min(wenigste, s.rundenzahl());
        }
    }
    // the last may still come home to a target that the first has reached
    return runden > meiste || (runden == meiste && runden > wenigste && !um_.einst.zielmodus_erster);
}

bool auswertung::ziel_pruefen(rennziel& ziel) {
    const bool ziel_offen = ziel_lesen(ziel);
    const bool ausgefahren = !ziel_offen && geht_von_selbst_weiter();  // else its own proposal would have been beyond
    if (ausgefahren || std::max(ziel, um_.param.renn_ziel) > ziel_max()) {
        um_.meldungen.zeigen(wort_.maximum, wort_.maximum_titel);
        return false;
    }
    if (!ziel_offen) {
        um_.meldungen.zeigen(um_.txt.meldung[13], um_.txt.titel[1]);
        neues_ziel.fokus_setzen();
    }
    return ziel_offen;
}

void auswertung::cmd3_fortsetzung() {
    rennziel ziel;
    if (!ziel_pruefen(ziel)) {
        return;
    }
    if (!ergebnis_abgeben(weitergang::fortsetzen)) {
        return;
    }
    rennen_verlassen();
    um_.param.spuren_wiederherstellen();  // a place without a driver goes round as well
    wechselschema_anwenden();
    r_.fortsetzung.vorbereiten(ziel);
}

void auswertung::cmd5_fortsetzung() {
    if (!ergebnis_abgeben(weitergang::verlassen)) {
        return;
    }
    rennen_verlassen();
    um_.param.einrichtung_wiederherstellen();
    um_.fenster.entladen(fenstername::bahn1);
    um_.fenster.zeigen(um_.teil_von->zurueck(), um_.teil_von->zurueck_als());
}

}  // namespace tarvel
