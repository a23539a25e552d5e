#include "hardware/uart_einstellungen.h"

#include <algorithm>

#include "core/portzusatz.h"
#include "core/text.h"
#include "hardware/at2560.h"

namespace tarvel {
namespace {

constexpr int comports_max = 16;
constexpr std::size_t protokoll_zeilen_max = 400;
constexpr std::size_t protokoll_breite = 60;
constexpr std::string_view pinliste = "2.3.10.13";  ///< pins that most boards have their sensors at

/// Digits, parted by single points.
std::string als_pinliste(std::string_view text) {
    std::string pins;
    for (const char zeichen : text) {
        const bool ziffer = zeichen >= '0' && zeichen <= '9';
        if (ziffer || (!pins.empty() && pins.back() != '.')) {
            pins += ziffer ? zeichen : '.';
        }
    }
    return pins.ends_with('.') ? pins.substr(0, pins.size() - 1) : pins;
}

}  // namespace

uart_einstellungen::uart_einstellungen(const umgebung& um)
    : geraetefenster(um.fenster, um.ablage, fenstername::UART_einstellungen),
      um_(um),
      port_(um.serienports.erzeugen()),
      bootzeit_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, at_bootzeit)) {
    port_->bei_empfang = [this](std::string_view bytes, zeit_ms /*stempel*/) { empfangen(bytes); };
    port_->bei_verlust = [this] { port_verloren(); };
    bootzeit_->bei_tick = [this] { boot_vorbei(); };
    port_ermitteln.bei_klick = [this] { port_suchen(); };
    port_schliessen.bei_klick = [this] { port_zu(); };
    neu.bei_klick = [this] { sensoren_vergessen(); };
    zurueck.bei_klick = [this] { seite_zeigen(seite_ - 1); };
    weiter.bei_klick = [this] { weiter_klick(); };
    abbrechen.bei_klick = [this] { um_.fenster.entladen(fenstername::UART_einstellungen); };
    chaos_anzahl.bei_aenderung = [this] { tasterzeilen_zeigen(); };
    stecker.bei_aenderung = [this] { tasterzeilen_zeigen(); };
    sensoranzahl.laenge_max(3);
    is_liste.frei(true);
    is_liste.laenge_max(40);
}

void uart_einstellungen::laden() {
    texte_lesen();
    geraet_nehmen();
    profil_ = {};
    if (um_.ablage.gibt_es(um_.einst.uart.uart_datei) &&
        !at_profil_laden(um_.ablage, um_.einst.uart.uart_datei, profil_)) {
        um_.meldungen.zeigen(um_.txt.meldung[26], um_.txt.titel[1]);
    }
    auswahlen_fuellen();
    ansagen_setzen();
    protokoll.leeren();
    ergebnis.text("");
    port_schliessen.sichtbar(false);
    port.platz(um_.einst.uart.uart_port - 1);
    sensoranzahl.text("4");
    chaos_anzahl.platz(0);
    stecker.platz(0);
    anzahl_ = 4;
    sensoren_vergessen();
    tasterzeilen_zeigen();
    weiter.aktiviert(true);
    seite_zeigen(seite_port);
}

void uart_einstellungen::entladen() {
    bootzeit_->aus();
    port_->schliessen();
    geraet_zurueckgeben();
}

void uart_einstellungen::auswahlen_fuellen() {
    std::vector<std::string> ports;
    for (int nummer = 1; nummer <= comports_max; ++nummer) {
        ports.push_back("COM" + std::to_string(nummer));
    }
    port.eintraege(ports);
    portzusaetze_zeigen(port, um_.serienports);
    const std::string bisher = als_pinliste(profil_.at_is_befehl);
    is_liste.eintraege({std::string(pinliste), bisher});
    is_liste.text(pinliste);
    std::vector<std::string> bahnen;
    bahnen.reserve(spuren_max);
    for (const int spur : alle_spuren) {
        bahnen.push_back(wort_.spur + " " + std::to_string(spur));
    }
    for (sensorzeile& eine : sensoren) {
        eine.spur.eintraege(bahnen);
        eine.funktion.eintraege({wort_.funktion.begin(), wort_.funktion.end()});
        eine.tanken.eintraege({wort_.tanken.begin(), wort_.tanken.end()});
    }
    for (tasterzeile& eine : taster) {
        eine.cbo_chaos.eintraege({wort_.chaos.begin(), wort_.chaos.end() - 1});
    }
    chaos_anzahl.eintraege({"0", "1", "2", "3", "4"});
    stecker.eintraege({wort_.stecker.begin(), wort_.stecker.end()});
}

void uart_einstellungen::seite_zeigen(int nummer) {
    seite_ = std::clamp(nummer, 0, seiten_anzahl - 1);
    const auto platz = static_cast<std::size_t>(seite_);
    for (rahmen& eine : seiten) {
        if (&eine != &seiten.at(platz)) {
            eine.sichtbar(false);
        }
    }
    seiten.at(platz).sichtbar(true);  // last: two pages at once would make the window grow
    schritt.text(wort_.schritt + " " + std::to_string(seite_ + 1) + " " + wort_.von + " " +
                 std::to_string(static_cast<int>(seiten_anzahl)) + ": " + wort_.seite.at(platz));
    anleitung.text(wort_.anleitung.at(platz));
    zurueck.aktiviert(seite_ > seite_port);
    weiter.text(seite_ == seite_fertig ? wort_.fertig : wort_.weiter);
    if (seite_ == seite_fertig) {
        zusammenfassen();
    }
    if (seite_ > seite_anzahl) {
        weiter.fokus_setzen();
    }
}

void uart_einstellungen::weiter_klick() {
    switch (seite_) {
        case seite_port:
            port_oeffnen();
            return;
        case seite_anzahl:
            if (anzahl_pruefen()) {
                senden("IS," + is_liste.text());
                seite_zeigen(seite_sensoren);
            }
            return;
        case seite_chaos:
            if (zuordnung_pruefen()) {
                seite_zeigen(seite_fertig);
            }
            return;
        case seite_fertig:
            fertigstellen();
            return;
        default:
            seite_zeigen(seite_ + 1);
    }
}

void uart_einstellungen::notieren(std::string_view zeile) {
    if (protokoll.zeilen().size() >= protokoll_zeilen_max) {
        protokoll.leeren();
    }
    protokoll.hinzufuegen(links(zeile, protokoll_breite));
}

std::vector<int> uart_einstellungen::ports_abfragen(int durchgang) {
    notieren(wort_.abfragen);
    std::vector<int> da = um_.serienports.vorhandene();
    for (const int nummer : da) {
        notieren("COM" + std::to_string(nummer));
    }
    const std::string gescannt = wort_.gescannt + std::to_string(durchgang);
    notieren(gescannt);
    ergebnis.text(gescannt);
    return da;
}

void uart_einstellungen::port_suchen() {
    if (port_->offen()) {
        um_.meldungen.zeigen(wort_.schon_offen, um_.txt.titel[0]);
        return;
    }
    um_.meldungen.zeigen(wort_.abziehen, um_.txt.titel[0]);
    const std::vector<int> ohne = ports_abfragen(1);
    um_.meldungen.zeigen(wort_.einstecken, um_.txt.titel[0]);
    const std::vector<int> mit = ports_abfragen(2);
    notieren(wort_.vergleichen);
    ergebnis.text(wort_.vergleichen);
    for (const int nummer : mit) {
        if (std::find(ohne.begin(), ohne.end(), nummer) != ohne.end()) {
            continue;
        }
        if (nummer > comports_max) {
            notieren(wort_.zu_gross);
            continue;
        }
        port.platz(nummer - 1);
        ergebnis.text(wort_.com_port + std::to_string(nummer) + wort_.gefunden);
        notieren(ergebnis.text());
        weiter.fokus_setzen();
        return;
    }
    ergebnis.text(wort_.kein_port);
    notieren(wort_.kein_port);
    um_.meldungen.zeigen(wort_.nicht_ermittelt, um_.txt.titel[0]);
}

void uart_einstellungen::port_oeffnen() {
    const int nummer = port.platz() + 1;
    if (port_->offen()) {
        if (nummer == offener_port_) {
            seite_zeigen(seite_anzahl);
        } else {
            um_.meldungen.zeigen(wort_.schon_offen, um_.txt.titel[0]);
        }
        return;
    }
    if (!port_->oeffnen(nummer, at_port_werte(um_.einst.uart))) {
        ergebnis.text(um_.txt.meldung[14]);
        notieren(um_.txt.meldung[14]);
        um_.meldungen.zeigen(um_.txt.meldung[14], um_.txt.titel[1]);
        return;
    }
    offener_port_ = nummer;
    empfang_.leeren();
    notieren(wort_.geoeffnet);
    ergebnis.text(wort_.startet);
    port_schliessen.sichtbar(true);
    weiter.aktiviert(false);
    bootzeit_->an();
}

void uart_einstellungen::boot_vorbei() {
    bootzeit_->aus();
    ergebnis.text(wort_.ansprechbar);
    notieren(wort_.ansprechbar);
    weiter.aktiviert(true);
    seite_zeigen(seite_anzahl);
    sensoranzahl.fokus_setzen();
}

void uart_einstellungen::port_zu() {
    bootzeit_->aus();
    port_->schliessen();
    ergebnis.text("");
    notieren(wort_.geschlossen);
    port_schliessen.sichtbar(false);
    weiter.aktiviert(true);
}

void uart_einstellungen::port_verloren() {
    port_zu();
    ergebnis.text(wort_.verschwunden);
    notieren(wort_.verschwunden);
    seite_zeigen(seite_port);
}

void uart_einstellungen::senden(const std::string& text) {
    const std::string folge = profil_.at_startzeichen + text + profil_.at_endzeichen;
    notieren("> " + folge);
    port_->schreiben(nach_1252(folge) + '\r');
}

void uart_einstellungen::empfangen(std::string_view bytes) {
    if (!empfang_.anhaengen(bytes)) {
        notieren(wort_.datenverlust);
        empfang_.leeren();
    }
    while (empfang_.µC_neuer_befehl(profil_)) {
        notieren("< " + von_1252(empfang_.at_befehl()));
        if (const auto meldung = empfang_.meldung(profil_)) {
            ausgeloest(meldung->ereignis);
        }
    }
}

bool uart_einstellungen::anzahl_pruefen() {
    const auto anzahl = ganzzahl_lesen(sensoranzahl.text(), 0, sensoren_max + 1);
    if (anzahl < 1 || anzahl > sensoren_max) {
        um_.meldungen.zeigen(wort_.anzahl_ungueltig, um_.txt.titel[1]);
        sensoranzahl.fokus_setzen();
        return false;
    }
    const std::string pins = als_pinliste(is_liste.text());
    is_liste.text(pins.empty() ? pinliste : std::string_view(pins));
    if (static_cast<std::size_t>(anzahl) != anzahl_) {
        anzahl_ = static_cast<std::size_t>(anzahl);
        sensoren_vergessen();
    }
    return true;
}

}  // namespace tarvel
