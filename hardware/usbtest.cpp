#include "hardware/usbtest.h"

#include <algorithm>
#include <utility>

#include "core/ordnerblick.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view profildateien = "*.iow";
constexpr std::string_view iow_endung = profildateien.substr(1);
constexpr std::size_t testzeilen_max = 400;
constexpr int iow_name_laenge_max = 60;
constexpr int wert_max = 255;
constexpr std::size_t ports_iow_24 = 2;

/// For the small board: what its sixteen pins mean, the others nothing.
iow_profil kleine_platine(std::initializer_list<ereignis_art> arten) {
    iow_profil profil{};
    std::copy(arten.begin(), arten.end(), profil.begin());
    return profil;
}

}  // namespace

usbtest::usbtest(const umgebung& um)
    : geraetefenster(um.fenster, um.ablage, fenstername::usbtest),
      um_(um),
      Timer1_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 5ms)),
      lebenstakt_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, iow_leitung::nachsehen_alle)),
      leitung_(um.bibliothek, um.abtaster) {
    Timer1_->bei_tick = [this] { takt_tick(); };
    lebenstakt_->bei_tick = [this] { lebenstakt_tick(); };
    for (std::size_t platz = 0; platz < iow_bits; ++platz) {
        combo_c.at(platz).bei_aenderung = [this] { zuordnung_geaendert(); };
        c.at(platz).bei_aenderung = [this] { ausgaenge_schreiben(); };
    }
    for (feld& wert : tp) {
        wert.laenge_max(3);
    }
    iow_profildatei.laenge_max(iow_name_laenge_max);
    muster.text(std::string(profildateien));
    lesen.bei_klick = [this] { werte_lesen(); };
    setzen.bei_klick = [this] { werte_setzen(); };
    Command1.bei_klick = [this] { profil_zeigen(iow_werkseinstellung(), ports); };
    Command2.bei_klick = [this] {
        profil_zeigen(kleine_platine({16, 15, 14, 13, 24, 23, 22, 21, 8, 7, 6, 5, 4, 3, 2, 1}), ports_iow_24);
    };
    Command4.bei_klick = [this] {
        profil_zeigen(kleine_platine({16, 15, 32, 31, 30, 29, 24, 23, 8, 7, 6, 5, 4, 3, 2, 1}), ports_iow_24);
    };
    Command7.bei_klick = Command1.bei_klick;
    Command5.bei_klick = [this] { ruecksetzen_und_anhalten(); };
    Command3.bei_klick = [this] { speichern(); };
    Command8.bei_klick = [this] { dateien_zeigen(); };
    Command10.bei_klick = [this] { laden_klick(); };
    dateiliste.bei_doppelklick = [this] { laden_klick(); };
    Command9.bei_klick = [this] { dateiwahl_zeigen(false); };
    Command6.bei_klick = [this] { um_.fenster.entladen(fenstername::usbtest); };
}

std::string usbtest::pin_name(std::size_t platz) {
    return "P" + std::to_string(platz / bits_je_port) + "," + std::to_string(platz % bits_je_port);
}

void usbtest::laden() {
    texte_lesen();
    geraet_nehmen();
    ansagen_setzen();
    protokoll.leeren();
    dateiwahl_zeigen(false);
    linien_ = 0;
    iow_profildatei.text(um_.einst.iow.iow_datei);
    const auto gelesen = iow_profil_laden(um_.ablage, um_.einst.iow.iow_datei);
    profil_zeigen(gelesen.value_or(iow_werkseinstellung()), ports);
    for (feld& wert : tp) {
        wert.text(std::to_string(wert_max));
    }
    verbinden(true);
    Timer1_->an();
    lebenstakt_->an();
}

void usbtest::entladen() {
    Timer1_->aus();
    lebenstakt_->aus();
    ruecksetzen();
    leitung_.schliessen();
    geraet_zurueckgeben();
}

void usbtest::verbinden(bool auch_ohne_melden) {
    auto neue = std::make_shared<kontaktproben>(0);
    if (leitung_.oeffnen(neue)) {
        proben_ = std::move(neue);
        linien_ = 0;
        verbunden_melden();
        ruecksetzen();
        Timer1_->an();
    } else if (auch_ohne_melden) {
        zustand_melden(hindernis());
    }
}

void usbtest::verbunden_melden() {
    constexpr std::size_t iow_24 = 3;
    constexpr std::size_t iow_56 = 8;
    const std::size_t groesse = leitung_.iow_berichtgroesse();
    zustand_melden(wort_.verbunden + " IO-Warrior " + (groesse == iow_24 ? "24" : groesse == iow_56 ? "56" : "40"));
}

std::string usbtest::hindernis() const {
    const std::string& fehlt = leitung_.bibliothek().es_fehlt();
    if (!fehlt.empty()) {
        return fehlt == "iowkit" ? wort_.ohne_bibliothek : wort_.ohne_ruf + " " + fehlt;
    }
    return leitung_.bibliothek().belegt() ? wort_.haengt : wort_.keine_box;
}

void usbtest::zustand_melden(const std::string& text) {
    zustand.text(text);
    notieren(" +++ " + text);
}

void usbtest::notieren(std::string_view text) {
    if (protokoll.zeilen().size() >= testzeilen_max) {
        protokoll.leeren();
    }
    protokoll.hinzufuegen(text);
}

void usbtest::takt_tick() {
    while (const auto probe = proben_->nehmen()) {
        const std::uint32_t vorher = std::exchange(linien_, probe->linien);
        kontakte_notieren(linien_ & ~vorher);
    }
    lampen_zeigen();
}

ereignis_art usbtest::zuordnung(std::size_t platz) const {
    return std::max(combo_c.at(platz).platz(), 0);
}

const std::string& usbtest::ereignis_zuordnung_name(std::size_t platz) const {
    return um_.txt.ereignis_name.at(static_cast<std::size_t>(zuordnung(platz)));
}

void usbtest::kontakte_notieren(std::uint32_t geschlossene) {
    for (std::size_t platz = 0; platz < iow_bits; ++platz) {
        if ((geschlossene >> platz & 1U) != 0 && !art::ist_ausgang(zuordnung(platz))) {
            notieren(pin_name(platz) + "  " + ereignis_zuordnung_name(platz));
        }
    }
}

void usbtest::lebenstakt_tick() {
    using befund = iow_leitung::befund;
    switch (leitung_.nachsehen()) {
        case befund::nichts:
            return;
        case befund::abgezogen:
            leitung_.schliessen();
            linien_ = 0;
            zustand_melden(wort_.getrennt);
            return;
        case befund::haengt:
            zustand_melden(wort_.haengt);
            return;
        case befund::nimmt_wieder:
            verbunden_melden();
            ausgaenge_schreiben();
            return;
        case befund::faellig:
            if (leitung_.offen()) {
                ausgaenge_schreiben();
            } else {
                verbinden(false);
            }
    }
}

void usbtest::lampen_zeigen() {
    for (std::size_t platz = 0; platz < iow_bits; ++platz) {
        lampe.at(platz).gesetzt((linien_ >> platz & 1U) != 0 || c.at(platz).gesetzt());
    }
}

iow_profil usbtest::profil() const {
    iow_profil neu{};
    for (std::size_t platz = 0; platz < iow_bits; ++platz) {
        neu.at(platz) = zuordnung(platz);
    }
    return neu;
}

void usbtest::profil_zeigen(const iow_profil& neu, std::size_t sichtbare_ports) {
    for (std::size_t platz = 0; platz < iow_bits; ++platz) {
        const ereignis_art nummer = neu.at(platz);
        const bool bekannt = nummer > 0 && nummer < static_cast<int>(um_.txt.ereignis_name.size());
        combo_c.at(platz).platz(bekannt ? nummer : 0);
    }
    for (std::size_t port = 0; port < ports; ++port) {
        Frame.at(port).sichtbar(port < sichtbare_ports);
    }
    zuordnung_geaendert();
}

void usbtest::zuordnung_geaendert() {
    for (std::size_t platz = 0; platz < iow_bits; ++platz) {
        c.at(platz).sichtbar(art::ist_ausgang(zuordnung(platz)));
    }
    ruecksetzen();  // what was an output may be an input now, which nothing may hold
}

void usbtest::ausgaenge_schreiben() {
    iow_bericht::bytes iow_ausgang = iow_bericht::in_ruhe;
    for (std::size_t platz = 0; platz < iow_bits; ++platz) {
        if (c.at(platz).gesetzt()) {
            iow_ausgang.at(1 + platz / bits_je_port) &= static_cast<std::uint8_t>(~(1U << platz % bits_je_port));
        }
    }
    lampen_zeigen();
    leitung_.schreiben(iow_ausgang);
}

void usbtest::werte_lesen() {
    lampen_weiter();
    takt_tick();
    for (std::size_t port = 0; port < ports; ++port) {
        unsigned wert = 0;
        for (std::size_t bit = 0; bit < bits_je_port; ++bit) {
            wert |= lampe.at(port * bits_je_port + bit).gesetzt() ? 0U : 1U << bit;
        }
        tp.at(port).text(std::to_string(wert));
    }
}

void usbtest::werte_setzen() {
    lampen_weiter();
    for (std::size_t port = 0; port < ports; ++port) {
        const auto wert = static_cast<unsigned>(ganzzahl_lesen(tp.at(port).text(), 0, wert_max));
        tp.at(port).text(std::to_string(wert));
        for (std::size_t bit = 0; bit < bits_je_port; ++bit) {
            const std::size_t platz = port * bits_je_port + bit;
            c.at(platz).gesetzt(art::ist_ausgang(zuordnung(platz)) && (wert >> bit & 1U) == 0);
        }
    }
    ausgaenge_schreiben();
}

void usbtest::ruecksetzen() {
    for (haken& ausgang : c) {
        ausgang.gesetzt(false);
    }
    ausgaenge_schreiben();
}

void usbtest::ruecksetzen_und_anhalten() {
    Timer1_->aus();
    ruecksetzen();
    notieren(" +++ " + wort_.angehalten);
}

void usbtest::lampen_weiter() {
    if (!Timer1_->laeuft()) {
        Timer1_->an();
        notieren(" +++ " + wort_.weiter);
    }
}

bool usbtest::doppelt_pruefen() const {
    iow_profil alle = profil();
    std::sort(alle.begin(), alle.end());
    return std::adjacent_find(alle.begin(), alle.end(), [](int a, int b) { return a != 0 && a == b; }) != alle.end();
}

void usbtest::speichern() {
    if (doppelt_pruefen()) {
        um_.meldungen.zeigen(wort_.doppelt, um_.txt.titel[1]);
        return;
    }
    std::string name(gekuerzt(iow_profildatei.text()));
    if (name.empty() || !dateiname_zulaessig(name)) {
        um_.meldungen.zeigen(wort_.name, um_.txt.titel[1]);
        iow_profildatei.fokus_setzen();
        return;
    }
    if (!endet_auf(name, iow_endung)) {
        name += iow_endung;
    }
    if (!iow_profil_speichern(um_.ablage, name, profil())) {
        um_.meldungen.zeigen(um_.txt.meldung[4], um_.txt.titel[1]);
        return;
    }
    profil_gilt(name, wort_.gespeichert);
    for (std::size_t platz = 0; platz < iow_bits; ++platz) {
        const bool strom =
            std::find(art::bahnstrom.begin(), art::bahnstrom.end(), zuordnung(platz)) != art::bahnstrom.end();
        c.at(platz).gesetzt(strom && !um_.einst.bahnstrom_invers);
    }
    ausgaenge_schreiben();
}

void usbtest::profil_gilt(const std::string& name, const std::string& wodurch) {
    iow_profildatei.text(name);
    um_.einst.iow.iow_datei = name;
    einstellungen_sichern();
    notieren(" +++ " + name + ": " + wodurch);
}

void usbtest::dateien_zeigen() {
    dateiliste.leeren();
    for (const std::string& eine : um_.ablage.auflisten("", "", iow_endung)) {
        dateiliste.hinzufuegen(eine);
    }
    dateiliste.markieren(-1);
    dateiwahl_zeigen(true);
}

void usbtest::dateiwahl_zeigen(bool zeigen) {
    vorlagen.sichtbar(!zeigen);  // there is room for one of them
    oeffnen_rahmen.sichtbar(zeigen);
}

void usbtest::laden_klick() {
    if (dateiliste.markiert() < 0) {
        return;
    }
    const std::string name = dateiliste.zeilen().at(static_cast<std::size_t>(dateiliste.markiert()));
    const auto neu = iow_profil_laden(um_.ablage, name);
    if (!neu) {
        um_.meldungen.zeigen(um_.txt.meldung[11], um_.txt.titel[1]);
        return;
    }
    profil_zeigen(*neu, ports);
    dateiwahl_zeigen(false);
    profil_gilt(name, wort_.geladen);
}

}  // namespace tarvel
