#include "hardware/cu_eigenschaften.h"

#include <algorithm>
#include <utility>

#include "core/portzusatz.h"
#include "core/text.h"
#include "core/zeit.h"

namespace tarvel {
namespace {

constexpr std::size_t zeilen_max = 2000;  // of the status list
constexpr farbe in_der_box = 0x00C8FF;
constexpr farbe startzustand = 0x0000FF;
constexpr farbe vorbeigefahren = 0x00C800;
constexpr zeit_ms ueberfahrt_ms = 500;  // a passage takes less than an eye sees
constexpr std::string_view proto_datei = "cu_proto.txt";
constexpr std::string_view keine_zeit = "00:00:000";

using plattform::zeitgeber_art;

/// What a unit sends is Latin-1; the list shows text.
std::string lesbar(std::string satz) {
    std::replace_if(
        satz.begin(), satz.end(), [](char zeichen) { return zeichen < ' ' || zeichen > '~'; }, '?');
    return satz;
}

std::string com(int nummer) {
    return "COM" + std::to_string(nummer);
}

}  // namespace

cu_eigenschaften::cu_eigenschaften(const umgebung& um, const plattform::dienste& dienste)
    : geraetefenster(um.fenster, um.ablage, fenstername::cu_eigenschaften),
      um_(um),
      meldungen_(dienste.meldungen),
      ports_(dienste.serienports),
      uhr_(dienste.uhr),
      leitung_(dienste),
      Timer1_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 1ms)),
      Timer2_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 1ms)),
      port_timer_(dienste.zeitgeber.erzeugen(zeitgeber_art::zaehlend, 1000ms)),
      lampentakt_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 50ms)) {
    Timer1_->bei_tick = [this] { abfrage_tick(); };
    Timer2_->bei_tick = [this] { auswertung_tick(); };
    port_timer_->bei_tick = [this] { port_tick(); };
    lampentakt_->bei_tick = [this] { lampen_tick(); };
    Text1.laenge_max(40);
    Text2.laenge_max(2);
    Text3.laenge_max(1);
    Text4.laenge_max(2);
    Text5.aktiviert(false);
    befehle_verbinden();
}

void cu_eigenschaften::befehle_verbinden() {
    Command1.bei_klick = [this] {
        leitung_.schliessen();
        hinweisen(wort_.geschlossen);
    };
    Command2.bei_klick = [this] { oeffnen(); };
    Command3.bei_klick = [this] { senden("0"); };
    Command4.bei_klick = [this] { uebernehmen(); };
    Command6.bei_klick = [this] {
        if (port_bereit()) {
            leitung_.senden(cu::programmierung_ruecksetzen);
            leitung_.senden(cu::anzeigen_ruecksetzen);
            hinweisen(Command6.text());
        }
    };
    Command7.bei_klick = [this] { senden(Text1.text()); };
    Command8.bei_klick = [this] { suche_beginnen(); };
    starttaste.bei_klick = [this] { senden(std::string(cu::starttaste)); };
    Command9.bei_klick = [this] { proto_schreiben(); };
    Command10.bei_klick = [this] { codieren(); };
    Command14.bei_klick = [this] {
        const int fuehrend = *std::max_element(runden_.begin(), runden_.end());
        for (const std::string& befehl : cu::anzeigebefehle(std::max(fuehrend, 0))) {
            senden(befehl);
        }
    };
}

sprachliste cu_eigenschaften::sprache_e_cu() {
    sprachliste texte("language/language_e_cu.txt");
    texte.ueberschrift("Control Unit").text("Carrera ControlUnit Eigenschaften", titel);
    texte.text("COM-Port", Frame_port).text("Port", Label_port).text("Kein Comport", wort_.kein_port);
    texte.text("Port schließen", Command1).text("Port öffnen", Command2).text("Auto-Erkennung", Command8);
    texte.text("Optionen", Frame_optionen).text("automatische Tankfunktion", opt_cu_tankautomatik);
    texte.text("Rennstart über Software", opt_cu_prgstart);
    texte.text("Blackbox mit Rundenzähler 30342 verwenden", opt_cu_alterRZ);
    texte.text("Fahrzeuge", Frame_wagen).text("Fahrzeug", Label_wagen).text("Runden", Label_runden);
    texte.text("letzte Runde", Label_zeit).text("Tank", Label_tank).text("Tankgröße", Label_tankgroesse);
    texte.text("Box", Label_box).text("Statusfenster", Frame_status);
    texte.text(
        "CU Timer zur Wertabfrage (Laufanzeige im Statusfenster) ausschalten - ACHTUNG, dann keine Auswertung "
        "eingehender Signale!!!",
        timer_aus);
    texte.text("Statusfenster in 'cu_proto.txt' schreiben", Command9).text("Version", Command3);
    texte.text("Reset", Command6).text("Runden auf PT schreiben", Command14);
    texte.text("Befehl senden", Frame_senden).text("CU-command", Label_befehl).text("send", Command7);
    texte.text("Befehle codieren", Frame_codieren).text("Befehl", Label_code[0]).text("Regler", Label_code[1]);
    texte.text("Wert/Position", Label_code[2]).text("Prüfsumme", Label_code[3]);
    texte.text("umwandeln und senden", Command10).text("Schließen", Command4);
    texte.text("Bitte vorher einen Port öffnen.", wort_.port_fehlt);
    texte.text("Text nicht fehlerfrei gesendet!", wort_.nicht_gesendet).text("Port geschlossen", wort_.geschlossen);
    texte.text("geöffnet", wort_.geoeffnet).text("nicht geöffnet", wort_.nicht_geoeffnet);
    texte.text("wird geprüft", wort_.wird_geprueft).text("Control Unit gefunden", wort_.gefunden);
    texte.text("keine Control Unit gefunden", wort_.nicht_gefunden);
    texte.text("Statusfenster geschrieben", wort_.geschrieben);
    texte.text("Die Datei konnte nicht geschrieben werden.", wort_.nicht_geschrieben);
    texte.text("Überfahrten mit falschem Prüfzeichen verworfen: ", wort_.verworfen);
    return texte.text("Startzustand", Label_start).text("Starttaste", starttaste);
}

void cu_eigenschaften::laden() {
    texte_lesen();
    std::vector<std::string> ports{wort_.kein_port};
    for (int nummer = 1; nummer <= cu_comport_max; ++nummer) {
        ports.push_back(com(nummer));
    }
    cbo_cu_comport.eintraege(ports);
    portzusaetze_zeigen(cbo_cu_comport, ports_);
    const control_unit_einstellungen gezeigt = std::exchange(vorgewaehlt, {}).value_or(um_.einst.cu);
    const int port = gezeigt.anschluss.cu_modus;
    cbo_cu_comport.platz(std::clamp(port, 0, cu_comport_max));
    opt_cu_tankautomatik.gesetzt(gezeigt.cu_tankautomatik);
    opt_cu_prgstart.gesetzt(gezeigt.cu_sondermodus);
    opt_cu_alterRZ.gesetzt(gezeigt.cu_option);
    timer_aus.gesetzt(false);
    std::vector<std::string> groessen;
    for (int wert = 0; wert <= 15; ++wert) {
        groessen.push_back(std::to_string(wert));
    }
    for (const int spur : alle_spuren) {
        wagen[spur].text(std::to_string(spur));
        cbo_cu_tankgroesse[spur].eintraege(groessen);
        cbo_cu_tankgroesse[spur].platz(gezeigt.cu_spur_wert[spur]);
        cbo_cu_tankgroesse[spur].ansage(Label_tankgroesse.text() + " " + std::to_string(spur));
    }
    Text1.ansage(Label_befehl.text());
    List1.ansage(Frame_status.text());
    List1.leeren();
    anzeigen_leeren();
    if (zugang != nullptr) {
        verworfene_melden(zugang->verworfene_saetze());
        zugang->geraet_trennen();
    }
    Timer1_->an();
    Timer2_->an();
    lampentakt_->an();
    if (port > 0) {
        oeffnen();
    }
}

void cu_eigenschaften::entladen() {
    for (const auto* zeitgeber : {&Timer1_, &Timer2_, &port_timer_, &lampentakt_}) {
        (*zeitgeber)->aus();
    }
    prueft_ = 0;
    zu_pruefen_.clear();
    leitung_.schliessen();
    geraet_zurueckgeben();
}

void cu_eigenschaften::anzeigen_leeren() {
    letzter_status_.clear();
    summenpruefung_ = {};
    verworfen_ = 0;
    for (const int spur : alle_spuren) {
        runden_[spur] = -1;
        stempel_[spur] = 0;
        rundenanzeige[spur].text("0");
        zeitanzeige[spur].text(keine_zeit);
        tank[spur].text("-");
        Shape1[spur].hintergrund({});
        leuchtet_bis_[spur] = 0;
    }
    lampe_start.hintergrund({});
    lampen_tick();
}

void cu_eigenschaften::lampen_tick() {
    for (const int spur : alle_spuren) {
        lampe_wagen[spur].hintergrund(uhr_.jetzt() < leuchtet_bis_[spur] ? std::optional(vorbeigefahren)
                                                                         : std::nullopt);
    }
}

void cu_eigenschaften::melden(std::string_view zeile) {
    if (List1.zeilen().size() >= zeilen_max) {
        List1.leeren();
    }
    List1.hinzufuegen(zeile);
    List1.markieren(static_cast<int>(List1.zeilen().size()) - 1);
}

bool cu_eigenschaften::port_bereit() {
    if (!leitung_.offen()) {
        meldungen_.zeigen(wort_.port_fehlt, um_.txt.titel[0]);
    }
    return leitung_.offen();
}

void cu_eigenschaften::oeffnen() {
    const int nummer = cbo_cu_comport.platz();
    anzeigen_leeren();
    if (leitung_.oeffnen(nummer)) {
        hinweisen(com(nummer) + " " + wort_.geoeffnet);
    } else {
        hinweisen(cbo_cu_comport.text() + " " + wort_.nicht_geoeffnet);
        meldungen_.zeigen(wort_.port_fehlt, um_.txt.titel[0]);
    }
}

void cu_eigenschaften::senden(const std::string& befehl) {
    if (!port_bereit()) {
        return;
    }
    if (timer_aus.gesetzt()) {
        leitung_.verwerfen();  // the answer to the last poll is none to this
    }
    if (leitung_.senden(befehl)) {
        melden("> " + befehl);
        antwort_erwartet_ = true;
    } else {
        meldungen_.zeigen(wort_.nicht_gesendet, um_.txt.titel[1]);
    }
}

void cu_eigenschaften::codieren() {
    const int nummer = std::clamp(static_cast<int>(zahl_lesen(Text2.text())), 0, 15);
    const int regler = std::clamp(static_cast<int>(zahl_lesen(Text3.text())), 1, spuren_max);
    const int wert = std::clamp(static_cast<int>(zahl_lesen(Text4.text())), 0, 99);
    Text2.text(std::to_string(nummer));
    Text3.text(std::to_string(regler));
    Text4.text(std::to_string(wert));
    const std::string befehl = cu::reglerbefehl(nummer, regler, wert);
    Text5.text(befehl.substr(befehl.size() - 2, 1));
    senden(befehl);
}

void cu_eigenschaften::suche_beginnen() {
    zu_pruefen_ = ports_.vorhandene();
    std::erase_if(zu_pruefen_, [](int nummer) { return nummer > cu_comport_max; });
    std::reverse(zu_pruefen_.begin(), zu_pruefen_.end());
    leitung_.schliessen();
    Command8.aktiviert(false);
    suche_fortsetzen();
}

void cu_eigenschaften::suche_fortsetzen() {
    if (zu_pruefen_.empty()) {
        suche_beenden(0);
        return;
    }
    prueft_ = zu_pruefen_.back();
    zu_pruefen_.pop_back();
    hinweisen(com(prueft_) + " " + wort_.wird_geprueft);
    if (leitung_.oeffnen(prueft_)) {
        leitung_.senden("?0");
    }
    port_timer_->an();
}

void cu_eigenschaften::port_tick() {
    port_timer_->aus();
    if (leitung_.offen() && !leitung_.satz().empty()) {
        suche_beenden(prueft_);
    } else {
        leitung_.schliessen();
        suche_fortsetzen();
    }
}

void cu_eigenschaften::suche_beenden(int gefunden) {
    prueft_ = 0;
    Command8.aktiviert(true);
    if (gefunden == 0) {
        hinweisen(wort_.nicht_gefunden);
        return;
    }
    cbo_cu_comport.platz(gefunden);
    um_.einst.cu.anschluss.cu_modus = gefunden;
    hinweisen(com(gefunden) + ": " + wort_.gefunden);
}

void cu_eigenschaften::abfrage_tick() {
    if (prueft_ == 0 && !timer_aus.gesetzt()) {
        leitung_.abfragen();
    }
}

void cu_eigenschaften::auswertung_tick() {
    if (prueft_ != 0 || (timer_aus.gesetzt() && !antwort_erwartet_)) {
        return;
    }
    const std::string satz = leitung_.satz();
    if (satz.empty()) {
        return;
    }
    antwort_erwartet_ = false;
    protokollieren(satz);
    std::visit([this](const auto& inhalt) { verarbeiten(inhalt); }, cu::satz_lesen(satz));
}

void cu_eigenschaften::protokollieren(const std::string& satz) {
    if (satz == letzter_status_) {
        return;
    }
    if (std::holds_alternative<cu::status>(cu::satz_lesen(satz))) {
        letzter_status_ = satz;
    }
    melden(lesbar(satz));
}

void cu_eigenschaften::verworfene_melden(int anzahl) {
    if (anzahl > 0) {
        hinweisen(wort_.verworfen + std::to_string(anzahl));
    }
}

void cu_eigenschaften::verarbeiten(const cu::ueberfahrt& ueberfahrt) {
    if (!summenpruefung_.annehmen(ueberfahrt)) {
        verworfene_melden(++verworfen_);
        return;
    }
    const int spur = ueberfahrt.fahrzeug;
    if (spur > spuren_max) {
        return;
    }
    leuchtet_bis_[spur] = uhr_.jetzt() + ueberfahrt_ms;
    lampen_tick();
    if (ueberfahrt.sensor != 1) {
        return;
    }
    ++runden_[spur];
    rundenanzeige[spur].text(std::to_string(runden_[spur]));
    if (runden_[spur] > 0) {
        zeitanzeige[spur].text(zeit_formatieren(ueberfahrt.stempel - stempel_[spur], true, um_.einst.trennzeichen));
    }
    stempel_[spur] = ueberfahrt.stempel;
}

void cu_eigenschaften::verarbeiten(const cu::status& status) {
    lampe_start.hintergrund(status.startzustand ? std::optional(startzustand) : std::nullopt);
    for (const int spur : alle_spuren) {
        tank[spur].text(std::to_string(status.tank[spur]));
        const bool in_box = spur > 1 && (status.boxenbits >> (spur - 2) & 1) != 0;
        Shape1[spur].hintergrund(in_box ? std::optional(in_der_box) : std::nullopt);
    }
}

void cu_eigenschaften::proto_schreiben() {
    const bool geschrieben = um_.ablage.zeilen_schreiben(proto_datei, List1.zeilen());
    hinweisen(geschrieben ? wort_.geschrieben : wort_.nicht_geschrieben);
}

void cu_eigenschaften::uebernehmen() {
    um_.einst.cu.anschluss.cu_modus = std::max(cbo_cu_comport.platz(), 0);
    um_.einst.cu.cu_tankautomatik = opt_cu_tankautomatik.gesetzt();
    um_.einst.cu.cu_sondermodus = opt_cu_prgstart.gesetzt();
    um_.einst.cu.cu_option = opt_cu_alterRZ.gesetzt();
    for (const int spur : alle_spuren) {
        um_.einst.cu.cu_spur_wert[spur] = std::max(cbo_cu_tankgroesse[spur].platz(), 0);
    }
    um_.einst.folgen_ableiten();
    einstellungen_sichern();
    um_.fenster.entladen(fenstername::cu_eigenschaften);
}

}  // namespace tarvel
