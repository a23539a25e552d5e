#include "hardware/drucker_fenster.h"

#include <algorithm>
#include <utility>

#include "core/portadresse.h"
#include "hardware/ereignisse.h"

namespace tarvel {
namespace {

constexpr std::size_t ausgangsarten = 34;
constexpr auto chaosanzeige = static_cast<std::size_t>(art::chaosanzeige);

template <std::size_t anzahl>
bool doppelt(const std::array<auswahl, anzahl>& listen) {
    std::array<int, anzahl> arten;
    std::transform(listen.begin(), listen.end(), arten.begin(), [](const auswahl& eine) { return eine.platz(); });
    std::sort(arten.begin(), arten.end());
    return std::adjacent_find(arten.begin(), arten.end(), [](int a, int b) { return a > 0 && a == b; }) != arten.end();
}

}  // namespace

drucker_fenster::drucker_fenster(const umgebung& um)
    : geraetefenster(um.fenster, um.ablage, fenstername::drucker_fenster),
      um_(um),
      Timer1_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 1ms)),
      register_{um.port} {
    constexpr int ziffern = 4;
    lpt_text.laenge_max(ziffern);
    lpt_text.bei_aenderung = [this] {
        if (const auto neu = portadresse_lesen(lpt_text.text()); neu && neu != register_.lpt_basis) {
            port_wechseln(*neu);
        }
    };
    Timer1_->bei_tick = [this] { Timer1_tick(); };
    for (std::size_t platz = 0; platz < ausgaenge; ++platz) {
        aanzeiger.at(platz).bei_aenderung = [this, platz] { umschalten(platz); };
    }
    Command3.bei_klick = [this] { bestaetigen(); };
    Command2.bei_klick = [this] { um_.fenster.entladen(fenstername::drucker_fenster); };
}

sprachliste drucker_fenster::sprache() {
    sprachliste texte("language/language_e_lpt.txt");
    texte.ueberschrift("Druckeranschluss");
    texte.text("LPT - Druckeranschlusseinstellungen", titel).text("Druckeranschluß:", Label_adresse);
    texte.text("hexadezimal, meist 378", einheit).text("Ausgänge", ausgangsrahmen).text("Eingänge", eingangsrahmen);
    texte.text("Funktion", [this](const std::string& neu) {
        Label_funktion.text(neu);
        Label_efunktion.text(neu);
    });
    texte.text("Test", [this](const std::string& neu) {
        Label_test.text(neu);
        Label_etest.text(neu);
    });
    texte.text("Status:", Label_status).text("Pin", wort_.pin);
    texte.text(
        "Ein Klick auf die Lampe eines Ausgangs schaltet ihn zur Probe. Die Lampe eines Eingangs leuchtet, solange "
        "sein Sensor anspricht.",
        hinweis);
    texte.text("Übernehmen", Command3).text("Abbrechen", Command2);
    texte.text("Auswahlelemente -Eingang- doppelt. Einstellungen wurden nicht übernommen.", wort_.eingang_doppelt);
    texte.text("Auswahlelemente -Ausgang- doppelt. Einstellungen wurden nicht übernommen.", wort_.ausgang_doppelt);
    texte.text(
        "Die Adresse des Druckeranschlusses ist keine hexadezimale Zahl von 100 bis FFFD. Einstellungen wurden nicht "
        "übernommen.",
        wort_.adresse_falsch);
    texte.text("Der Druckeranschluss ist erreichbar.", wort_.da);
    texte.text("Der Druckeranschluss ist nicht erreichbar, es fehlt:", wort_.fehlt);
    return texte.text("Ampel gelb (Chaos)", wort_.gelb).text("Tankausgang (ab Rennbildschirm an)", wort_.tankausgang);
}

void drucker_fenster::listen_fuellen() {
    std::vector<std::string> namen(um_.txt.ereignis_name.begin(), um_.txt.ereignis_name.end());
    for (auswahl& liste : ecomb) {
        liste.eintraege(namen);
    }
    namen.resize(ausgangsarten);
    namen.at(chaosanzeige) = wort_.gelb;
    namen.at(static_cast<std::size_t>(art::tanken_ein[1])) = wort_.tankausgang;
    for (auswahl& liste : comb) {
        liste.eintraege(namen);
    }
    const auto benennen = [this](bezeichnung& pin_label, auswahl& liste, haken& lampe, int stecker) {
        pin_label.text(wort_.pin + " " + std::to_string(stecker));
        liste.ansage(pin_label.text() + ", " + Label_funktion.text());
        lampe.ansage(pin_label.text() + ", " + Label_test.text());
    };
    for (std::size_t i = 0; i < ausgaenge; ++i) {
        benennen(pin.at(i), comb.at(i), aanzeiger.at(i), static_cast<int>(i) + lpt::erster_ausgang_stecker);
        const int nummer = um_.einst.lpt.lpt_ausgang.at(i + 1);
        comb.at(i).platz(nummer < static_cast<int>(ausgangsarten) ? nummer : 0);
    }
    for (std::size_t i = 0; i < eingaenge; ++i) {
        benennen(epin.at(i), ecomb.at(i), eanzeiger.at(i), lpt::eingaenge.at(i).stecker);
        ecomb.at(i).platz(um_.einst.lpt.lpt_eingang.at(i + 1));
    }
    lpt_text.ansage(Label_adresse.text());
}

void drucker_fenster::laden() {
    texte_lesen();
    geraet_nehmen();
    listen_fuellen();
    register_.lpt_basis = um_.einst.lpt.anschluss.lpt_adresse;
    lpt_text.text(portadresse_text(register_.lpt_basis));
    Timer1_tick();
    Timer1_->an();
}

void drucker_fenster::entladen() {
    Timer1_->aus();
    port_wechseln(register_.lpt_basis);
    geraet_zurueckgeben();
}

void drucker_fenster::Timer1_tick() {
    const auto daten = register_.lesen(lpt::lpt_offset);
    const auto stand = register_.lesen(lpt::status);
    const auto steuerung = register_.lesen(lpt::steuerung);
    const auto zahl = [](std::optional<std::uint8_t> wert) { return wert ? std::to_string(*wert) : "–"; };
    status.text(zahl(daten) + "   " + zahl(stand) + "   " + zahl(steuerung));
    zustand.text(stand ? wort_.da : wort_.fehlt + " " + um_.port.weg());
    const std::uint32_t linien = lpt::aktive_linien(stand.value_or(lpt::in_ruhe));
    for (std::size_t i = 0; i < eingaenge; ++i) {
        eanzeiger.at(i).gesetzt((linien >> i & 1U) != 0);
    }
    for (std::size_t i = 0; i < ausgaenge; ++i) {
        aanzeiger.at(i).gesetzt((daten.value_or(0) >> i & 1U) != 0);
    }
}

void drucker_fenster::umschalten(std::size_t platz) {
    const std::uint8_t jetzt = register_.lesen(lpt::lpt_offset).value_or(0);
    vorher_ = vorher_.value_or(jetzt);
    register_.schreiben(static_cast<std::uint8_t>(jetzt ^ (1U << platz)));
}

void drucker_fenster::port_wechseln(int lpt_basis) {
    if (vorher_) {
        register_.schreiben(*std::exchange(vorher_, std::nullopt));
    }
    register_.lpt_basis = lpt_basis;
}

bool drucker_fenster::adresse_uebernehmen() {
    const std::optional<int> adresse = portadresse_lesen(lpt_text.text());
    if (!adresse) {
        um_.meldungen.zeigen(wort_.adresse_falsch, um_.txt.titel[1]);
        lpt_text.fokus_setzen();
        return false;
    }
    um_.einst.lpt.anschluss.lpt_adresse = *adresse;
    return true;
}

void drucker_fenster::bestaetigen() {
    if (doppelt(ecomb)) {
        um_.meldungen.zeigen(wort_.eingang_doppelt, um_.txt.titel[1]);
        return;
    }
    if (doppelt(comb)) {
        um_.meldungen.zeigen(wort_.ausgang_doppelt, um_.txt.titel[1]);
        return;
    }
    if (!adresse_uebernehmen()) {
        return;
    }
    for (std::size_t i = 0; i < ausgaenge; ++i) {
        um_.einst.lpt.lpt_ausgang.at(i + 1) = comb.at(i).platz();
    }
    for (std::size_t i = 0; i < eingaenge; ++i) {
        um_.einst.lpt.lpt_eingang.at(i + 1) = ecomb.at(i).platz();
    }
    if (einstellungen_sichern()) {
        um_.fenster.entladen(fenstername::drucker_fenster);
    }
}

}  // namespace tarvel
