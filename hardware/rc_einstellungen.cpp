#include "hardware/rc_einstellungen.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "core/portzusatz.h"
#include "core/text.h"
#include "hardware/rc_uhr.h"

namespace tarvel {
namespace {

constexpr std::size_t boxzeilen_max = 400;
constexpr zeit_ms leuchten_ms = 300;  // a passage takes less than an eye sees
constexpr zeit_ms still_ms = 2000;    // an active box tells its clock far more often
constexpr farbe belegt = 0x00C800;
constexpr std::string_view keine_zeit = "00:00:00.000";
constexpr std::string_view kein_stempel = "000000";
constexpr int erste_art = 13;  // of the lap sensors of lanes 4 to 1

std::string uhrzeit(std::uint32_t ticks) {
    constexpr zeit_ms sekunde = 1000;
    constexpr zeit_ms minute = 60 * sekunde;
    constexpr zeit_ms stunde = 60 * minute;
    const zeit_ms ms = rc_uhr::stempel_umrechnen(ticks);
    return ziffern(ms / stunde, ms >= 100 * stunde ? 3 : 2) + ":" + ziffern(ms / minute % 60, 2) + ":" +
           ziffern(ms / sekunde % 60, 2) + "." + ziffern(ms % sekunde, 3);
}

std::string stempeltext(std::uint32_t ticks) {
    const std::string text = std::to_string(ticks);
    return text.size() < kein_stempel.size() ? ziffern(ticks, static_cast<int>(kein_stempel.size())) : text;
}

}  // namespace

rc_einstellungen::rc_einstellungen(const umgebung& um, rc_verbindung& verbindung)
    : geraetefenster(um.fenster, um.ablage, fenstername::rc_einstellungen),
      um_(um),
      verbindung_(verbindung),
      rc_akt_timer_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, dauer_ms(1))) {
    verbindung_.zuhoeren(*this);
    rc_akt_timer_->bei_tick = [this] { rc_akt_tick(); };
    doInit.bei_klick = [this] {
        uebernehmen_in_eigene_hand();
        verbindung_.oeffnen(selComPort.text());
    };
    doStop.bei_klick = [this] {
        uebernehmen_in_eigene_hand();
        verbindung_.schliessen();
    };
    Command1.bei_klick = [this] { uebernehmen(); };
    Command2.bei_klick = [this] { um_.fenster.entladen(fenstername::rc_einstellungen); };
}

sprachliste rc_einstellungen::sprache() {
    sprachliste texte("language/language_e_rc.txt");
    texte.ueberschrift("Race Control").text("Race Control - Einstellungen", titel);
    texte.text("Box", Frame_box).text("COM-Port", Label_port).text("Start", doInit).text("Stop", doStop);
    texte.text("Uhr der Box", Label_uhr).text("Sensoren", Frame_sensoren).text("belegt", Label_spalte[0]);
    texte.text("zählt für", Label_spalte[1]).text("letzte Überfahrt", Label_spalte[2]);
    texte.text("Stempel", Label_spalte[3]).text("Anzahl", Label_spalte[4]).text("Sensor", sensor_);
    texte.text("Spur", spur_).text("bis Überfahrt Sensor 3 + 4", check_rctank);
    texte.text("Rennende auf Sensor 3 + 4", check_rcziel).text("Statusfenster", Frame_status);
    texte.text("Übernehmen", Command1).text("Abbrechen", Command2).text("Nicht aktiv", nicht_aktiv_);
    texte.text("Sensoren offline", offline_);
    using s = rc_schritt;
    constexpr std::array<std::pair<s, std::string_view>, 13> schritte{
        {{s::port_oeffnet, "Port wird geöffnet"},
         {s::angesprochen, "RaceControl aktiviert"},
         {s::sendedaten, "TX Datenabfrage"},
         {s::uebertragen, "Box Konfiguration übertragen"},
         {s::bereit, "Box aktiviert"},
         {s::geschlossen, "COM-Port geschlossen"},
         {s::bibliothek_fehlt, "Fehler: Bibliothek des Herstellers nicht gefunden: "},
         {s::ruf_fehlt, "Fehler: In der Bibliothek des Herstellers fehlt der Aufruf "},
         {s::port_fehlt, "Fehler: COM-Port kann nicht geöffnet werden"},
         {s::box_fehlt, "RC-Fehler: COM-Port"},
         {s::unterbrochen, "Fehler: Verbindung unterbrochen"},
         {s::stumm, "Fehler: Modul kann nicht aktiviert werden"},
         {s::unbekanntes_ereignis, "Unbekanntes Ereignis"}}};
    for (const auto& [schritt, deutsch] : schritte) {
        texte.text(deutsch, schritttexte_[schritt]);
    }
    texte.text("Unbekannter Fehler", schritttexte_[s::unbekannter_fehler]);
    return texte.text("Werte außerhalb des zulässigen Bereichs", unzulaessig_);
}

void rc_einstellungen::oeffnen(const std::string& port) {
    um_.fenster.laden(fenstername::rc_einstellungen);
    selComPort.text(port);
    um_.fenster.zeigen(fenstername::rc_einstellungen, anzeige_art::modal);
    doInit.fokus_setzen();
}

void rc_einstellungen::laden() {
    texte_lesen();
    eigene_ = false;
    List1.leeren();
    werte_zeigen();
    ansagen_setzen();
    sensoren_leeren();
    status.text(verbindung_.bereit() ? schritttext(rc_schritt::bereit) : nicht_aktiv_);
    rc_akt_timer_->an();
}

void rc_einstellungen::entladen() {
    rc_akt_timer_->aus();
    if (std::exchange(eigene_, false)) {
        geraet_zurueckgeben();
    }
}

void rc_einstellungen::werte_zeigen() {
    std::vector<std::string> ports;
    for (int nummer = 1; nummer <= rc_verbindung::comport_max; ++nummer) {
        ports.push_back("COM" + std::to_string(nummer));
    }
    selComPort.eintraege(ports);
    portzusaetze_zeigen(selComPort, um_.serienports);
    selComPort.text(um_.einst.rc.anschluss.rc_com_port);
    check_rctank.gesetzt(um_.einst.rc.rc_tank_sensor34);
    check_rcziel.gesetzt(um_.einst.rc.rc_ziel_sensor34);
    std::vector<std::string> bahnen;
    for (int spur = 1; spur <= rc_verbindung::sensoren; ++spur) {
        bahnen.push_back(spur_ + " " + std::to_string(spur));
    }
    for (std::size_t i = 0; i < sensoren.size(); ++i) {
        sensoren.at(i).selSpur.eintraege(bahnen);
        sensoren.at(i).selSpur.platz(erste_art + rc_verbindung::sensoren - 1 - um_.einst.rc.rc_sensor.at(i));
    }
}

void rc_einstellungen::ansagen_setzen() {
    selComPort.ansage(Label_port.text());
    List1.ansage(Frame_status.text());
    int nummer = 0;
    for (sensorzeile& eine : sensoren) {
        eine.name.text(sensor_ + " " + std::to_string(++nummer));
        eine.selSpur.ansage(eine.name.text() + " " + Label_spalte[1].text());
    }
}

void rc_einstellungen::sensoren_leeren() {
    gezaehlt_ = {};
    steht_ = {};
    leuchtet_bis_ = {};
    for (sensorzeile& eine : sensoren) {
        eine.SensorLED.hintergrund({});
        eine.SensorTime.text(keine_zeit);
        eine.SensorTimeStamp.text(kein_stempel);
        eine.anzahl.text("0");
    }
    boxuhr.text(keine_zeit);
    bewegt_ = um_.uhr.jetzt();
}

void rc_einstellungen::uebernehmen_in_eigene_hand() {
    if (!std::exchange(eigene_, true)) {
        geraet_nehmen();
    }
}

void rc_einstellungen::rc_geschehen(rc_schritt schritt) {
    if (!rc_akt_timer_->laeuft()) {
        return;
    }
    std::string text = schritttext(schritt);
    if (schritt == rc_schritt::bibliothek_fehlt) {
        text += rc_bibliothek::dateiname;
    } else if (schritt == rc_schritt::ruf_fehlt) {
        text += verbindung_.fehlender_ruf();
    } else if (schritt == rc_schritt::bereit) {
        sensoren_leeren();
    }
    if (List1.zeilen().size() >= boxzeilen_max) {
        List1.leeren();
    }
    List1.hinzufuegen(text);
    status.text(text);
}

void rc_einstellungen::rc_meldet(const rc_kontakt& kontakt) {
    if (!rc_akt_timer_->laeuft()) {
        return;
    }
    const auto platz = static_cast<std::size_t>(kontakt.sensor);
    sensorzeile& eine = sensoren.at(platz);
    steht_.at(platz) = kontakt.belegt;
    if (kontakt.belegt) {
        eine.SensorLED.hintergrund(belegt);
        leuchtet_bis_.at(platz) = um_.uhr.jetzt() + leuchten_ms;
        eine.SensorTime.text(uhrzeit(kontakt.stempel));
        eine.SensorTimeStamp.text(stempeltext(kontakt.stempel));
        eine.anzahl.text(std::to_string(++gezaehlt_.at(platz)));
    }
}

void rc_einstellungen::rc_akt_tick() {
    for (std::size_t i = 0; i < sensoren.size(); ++i) {
        if (!steht_.at(i) && um_.uhr.jetzt() >= leuchtet_bis_.at(i)) {
            sensoren.at(i).SensorLED.hintergrund({});
        }
    }
    if (!verbindung_.bereit()) {
        bewegt_ = um_.uhr.jetzt();
        return;
    }
    if (const std::uint32_t stempel = verbindung_.stempel(); stempel != std::exchange(stempel_, stempel)) {
        bewegt_ = um_.uhr.jetzt();
        boxuhr.text(uhrzeit(stempel));
    }
    const bool still = um_.uhr.jetzt() - bewegt_ > still_ms;
    if (still || status.text() == offline_) {
        status.text(still ? offline_ : schritttext(rc_schritt::bereit));
    }
}

/// What the settings file brought may be no port, or no lane, of the lists.
bool rc_einstellungen::werte_zulaessig() const {
    return selComPort.platz() >= 0 && std::all_of(sensoren.begin(), sensoren.end(),
                                                  [](const sensorzeile& eine) { return eine.selSpur.platz() >= 0; });
}

void rc_einstellungen::uebernehmen() {
    if (!werte_zulaessig()) {
        um_.meldungen.zeigen(unzulaessig_, um_.txt.titel[1]);
        return;
    }
    race_control_einstellungen& rc = um_.einst.rc;
    eigene_ = eigene_ || rc.anschluss.rc_com_port != selComPort.text();
    rc.anschluss.rc_com_port = selComPort.text();
    for (std::size_t i = 0; i < sensoren.size(); ++i) {
        rc.rc_sensor.at(i) = erste_art + rc_verbindung::sensoren - 1 - sensoren.at(i).selSpur.platz();
    }
    rc.rc_tank_sensor34 = check_rctank.gesetzt();
    rc.rc_ziel_sensor34 = check_rcziel.gesetzt();
    if (einstellungen_sichern()) {
        um_.fenster.entladen(fenstername::rc_einstellungen);
    }
}

}  // namespace tarvel
