#include "hardware/uart_probe.h"

#include <algorithm>

#include "core/text.h"
#include "hardware/at2560.h"

namespace tarvel {
namespace {

using ausgang = schaltung::ausgang;

constexpr std::size_t probezeilen_max = 400;
constexpr std::size_t probezeile_breite = 80;
constexpr zeit_ms probe_leuchtdauer_ms = 700;
constexpr farbe probe_lampe_an = 0x30C030;
constexpr int rote = 5;

}  // namespace

uart_probe::uart_probe(const umgebung& um, const plattform::dienste& dienste)
    : geraetefenster(um.fenster, um.ablage, fenstername::UART_probe),
      um_(um),
      meldungen_(dienste.meldungen),
      uhr_(dienste.uhr),
      port_(dienste.serienports.erzeugen()),
      bootzeit_(dienste.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, at_bootzeit)),
      lampentakt_(dienste.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 50ms)) {
    port_->bei_empfang = [this](std::string_view bytes, zeit_ms /*stempel*/) { empfangen(bytes); };
    port_->bei_verlust = [this] { port_verloren(); };
    bootzeit_->bei_tick = [this] { boot_vorbei(); };
    lampentakt_->bei_tick = [this] { lampen_tick(); };
    befehlstext.laenge_max(60);
    befehle_verbinden();
}

int uart_probe::zeile_von(std::size_t reihe, int spur) {
    constexpr std::array<int (*)(int), reihen> zeilen{at_zeile::rundenzaehlung,
                                                      at_zeile::tanken_ein,
                                                      at_zeile::tanken_aus,
                                                      +[](int s) { return at_zeile::zwischenzeit(s, 1); },
                                                      +[](int s) { return at_zeile::zwischenzeit(s, 2); },
                                                      at_zeile::chaos};
    return zeilen.at(reihe)(spur);
}

void uart_probe::befehle_verbinden() {
    verbinden.bei_klick = [this] { oeffnen(); };
    for (std::size_t i = 0; i < lampen; ++i) {
        ampel.at(i).bei_aenderung = [this, i] {
            const int lampe = static_cast<int>(i) + 1;
            schalten({lampe <= rote ? ausgang::ampel_rot : ausgang::ampel_gruen, lampe <= rote ? lampe : 0,
                      ampel.at(i).gesetzt()});
        };
    }
    chaosanzeige.bei_aenderung = [this] { schalten({ausgang::chaosanzeige, 0, chaosanzeige.gesetzt()}); };
    rennende.bei_aenderung = [this] { schalten({ausgang::rennende, 0, rennende.gesetzt()}); };
    for (const int spur : alle_spuren) {
        strom[spur].bei_aenderung = [this, spur] { schalten({ausgang::bahnstrom, spur, strom[spur].gesetzt()}); };
    }
    const auto alle_lampen = [this](bool an) {
        schalten({ausgang::ampel_rot, 0, an});
        schalten({ausgang::ampel_gruen, 0, an});
        for (haken& lampe : ampel) {
            lampe.gesetzt(an);
        }
    };
    ampel_alle_an.bei_klick = [alle_lampen] { alle_lampen(true); };
    ampel_alle_aus.bei_klick = [alle_lampen] { alle_lampen(false); };
    const auto alle_bahnen = [this](bool an) {
        schalten({ausgang::bahnstrom, 0, an});
        for (haken& bahn : strom) {
            bahn.gesetzt(an);
        }
    };
    strom_alle_an.bei_klick = [alle_bahnen] { alle_bahnen(true); };
    strom_alle_aus.bei_klick = [alle_bahnen] { alle_bahnen(false); };
    senden.bei_klick = [this] { sagen(befehlstext.text()); };
    seriennummer.bei_klick = [this] { sagen(profil_.at_seriennummer); };
    zuruecksetzen.bei_klick = [this] {
        sagen(profil_.at_hardwarereset);
        booten();
    };
    Command1.bei_klick = [this] { um_.fenster.entladen(fenstername::UART_probe); };
}

sprachliste uart_probe::sprache() {
    sprachliste texte("language/language_uart_t.txt");
    texte.ueberschrift("UART_probe").text("AT-2560 USB prüfen", titel).text("Verbinden", verbinden);
    texte.text("Eingänge", Frame_eingaenge).text("Rundenzählung", Label_reihe[0]);
    texte.text("Tanken EIN", Label_reihe[1]).text("Tanken AUS", Label_reihe[2]);
    texte.text("Zwischenzeit 1", Label_reihe[3]).text("Zwischenzeit 2", Label_reihe[4]);
    texte.text("Chaostaster", Label_reihe[5]).text("Chaostaster für alle", Label_chaos);
    texte.text("Soundsensor 1 bis 8", Label_sound).text("Ampel und Signale", Frame_ampel);
    for (std::size_t lampe = 0; lampe < rote; ++lampe) {
        texte.text("Ampel rot " + std::to_string(lampe + 1), ampel.at(lampe));
    }
    texte.text("Ampel grün", ampel[rote]).text("alle an", ampel_alle_an).text("alle aus", ampel_alle_aus);
    texte.text("Chaosanzeige", chaosanzeige).text("Rennende", rennende).text("Bahnstrom", Frame_strom);
    texte.text("alle an", strom_alle_an).text("alle aus", strom_alle_aus);
    texte.text("Meldungen des Geräts", Frame_meldungen).text("Befehl", Label_befehl).text("Senden", senden);
    texte.text("Seriennummer", seriennummer).text("Hardwarereset", zuruecksetzen).text("Schließen", Command1);
    texte.text("Das Gerät startet …", wort_.startet).text("Port geöffnet, Gerät ansprechbar!", wort_.bereit);
    texte.text("Auf der Seite „Messhardware“ ist kein COM-Port gewählt", wort_.kein_port);
    texte.text("kann nicht geöffnet werden", wort_.nicht_da).text("Die Verbindung ist weg", wort_.verloren);
    texte.text("nicht zugeordnet", wort_.unbekannt).text("Spur", wort_.spur);
    return texte.text("Soundsensor", wort_.soundsensor);
}

void uart_probe::laden() {
    texte_lesen();
    geraet_nehmen();
    profil_ = {};
    if (um_.ablage.gibt_es(anschluss.uart_datei) && !at_profil_laden(um_.ablage, anschluss.uart_datei, profil_)) {
        meldungen_.zeigen(um_.txt.meldung[26], um_.txt.titel[1]);
    }
    protokoll.leeren();
    befehlstext.text("");
    ansagen();
    kanaele_zeigen();
    lampentakt_->an();
    oeffnen();
}

void uart_probe::entladen() {
    alles_aus();
    bootzeit_->aus();
    lampentakt_->aus();
    port_->schliessen();
    geraet_zurueckgeben();
}

void uart_probe::ansagen() {
    protokoll.ansage(Frame_meldungen.text());
    befehlstext.ansage(Label_befehl.text());
    for (const int spur : alle_spuren) {
        const std::string name = wort_.spur + " " + std::to_string(spur);
        Label_spur[spur].text(name);
        strom[spur].text(name);
        for (std::size_t reihe = 0; reihe < reihen; ++reihe) {
            kanaele.at(static_cast<std::size_t>(zeile_von(reihe, spur)) - 1)
                .lampe.ansage(name + ", " + Label_reihe.at(reihe).text());
        }
    }
    kanaele.at(at_zeile::chaos_allgemein - 1).lampe.ansage(Label_chaos.text());
    for (int sensor = 1; sensor <= static_cast<int>(soundsensoren); ++sensor) {
        kanaele.at(static_cast<std::size_t>(at_zeile::soundsensor(sensor)) - 1)
            .lampe.ansage(wort_.soundsensor + " " + std::to_string(sensor));
    }
}

void uart_probe::kanaele_zeigen() {
    for (std::size_t i = 0; i < kanaele.size(); ++i) {
        const std::string& name = profil_.at_ereignis.at(i + 1);
        kanaele.at(i).ereignis.text(name.empty() || name == at_nicht_belegt ? "–" : name);
        kanaele.at(i).lampe.hintergrund({});
    }
    leuchtet_bis_ = {};
}

std::array<haken*, uart_probe::schalter_anzahl> uart_probe::schalter() {
    std::array<haken*, schalter_anzahl> alle{&chaosanzeige, &rennende};
    auto ort = alle.begin() + 2;
    for (haken& lampe : ampel) {
        *ort++ = &lampe;
    }
    for (haken& bahn : strom) {
        *ort++ = &bahn;
    }
    return alle;
}

bool uart_probe::bereit() const {
    return port_->offen() && !bootzeit_->laeuft();
}

void uart_probe::bedienbar(bool an) {
    verbinden.aktiviert(!port_->offen());
    for (haken* einer : schalter()) {
        einer->aktiviert(an);
    }
    for (befehl* einer :
         {&ampel_alle_an, &ampel_alle_aus, &strom_alle_an, &strom_alle_aus, &senden, &seriennummer, &zuruecksetzen}) {
        einer->aktiviert(an);
    }
}

void uart_probe::zustand_melden(const std::string& text) {
    zustand.text(anschluss.uart_port == 0 ? wort_.kein_port
                                          : "COM" + std::to_string(anschluss.uart_port) + ": " + text);
    notieren(" +++ " + zustand.text());
}

void uart_probe::oeffnen() {
    empfang_.leeren();
    if (port_->oeffnen(anschluss.uart_port, at_port_werte(anschluss))) {
        booten();
    } else {
        zustand_melden(wort_.nicht_da);
        bedienbar(false);
    }
}

/// Its outputs are at rest after that.
void uart_probe::booten() {
    for (haken* einer : schalter()) {
        einer->gesetzt(false);
    }
    bootzeit_->an();
    zustand_melden(wort_.startet);
    bedienbar(false);
}

void uart_probe::boot_vorbei() {
    bootzeit_->aus();
    sagen(profil_.at_is_befehl);
    zustand_melden(wort_.bereit);
    bedienbar(true);
}

void uart_probe::port_verloren() {
    bootzeit_->aus();
    port_->schliessen();
    zustand_melden(wort_.verloren);
    bedienbar(false);
}

void uart_probe::notieren(std::string_view zeile) {
    if (protokoll.zeilen().size() >= probezeilen_max) {
        protokoll.leeren();
    }
    protokoll.hinzufuegen(links(zeile, probezeile_breite));
}

void uart_probe::sagen(const std::string& text) {
    if (bereit() && !text.empty()) {
        const std::string folge = profil_.at_startzeichen + text + profil_.at_endzeichen;
        notieren("> " + folge);
        port_->schreiben(nach_1252(folge) + '\r');
    }
}

void uart_probe::schalten(const schaltung& befehl) {
    sagen(at_schaltwort(profil_, befehl));
}

/// Where another device is in force, nobody else would.
void uart_probe::alles_aus() {
    for (haken* einer : schalter()) {
        if (einer->gesetzt()) {
            einer->umschalten();
        }
    }
}

void uart_probe::empfangen(std::string_view bytes) {
    empfang_.anhaengen(bytes);
    while (empfang_.µC_neuer_befehl(profil_)) {
        const std::string zeile = "< " + von_1252(empfang_.at_befehl());
        const auto meldung = empfang_.meldung(profil_);
        if (!meldung || meldung->ereignis == profil_.at_zeit_anfordern) {
            notieren(zeile);
            continue;
        }
        const bool bekannt = std::find(profil_.at_ereignis.begin() + 1, profil_.at_ereignis.end(), meldung->ereignis) !=
                             profil_.at_ereignis.end();
        notieren(bekannt ? zeile : zeile + "  " + wort_.unbekannt);
        ereignis_zeigen(*meldung);
    }
}

void uart_probe::ereignis_zeigen(const at_meldung& meldung) {
    for (std::size_t i = 0; i < kanaele.size(); ++i) {
        if (profil_.at_ereignis.at(i + 1) == meldung.ereignis && meldung.ereignis != at_nicht_belegt) {
            kanaele.at(i).lampe.hintergrund(probe_lampe_an);
            leuchtet_bis_.at(i) = uhr_.jetzt() + probe_leuchtdauer_ms;
        }
    }
}

void uart_probe::lampen_tick() {
    for (std::size_t i = 0; i < kanaele.size(); ++i) {
        if (uhr_.jetzt() >= leuchtet_bis_.at(i)) {
            kanaele.at(i).lampe.hintergrund({});
        }
    }
}

}  // namespace tarvel
