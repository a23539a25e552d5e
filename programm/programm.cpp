#include "programm/programm.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/nebendateien.h"
#include "core/ordner.h"
#include "core/ordnerblick.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view fahrer_bildordner = "pictures";
constexpr std::string_view fahrzeug_bildordner = "slotcars";
const std::string listenordner = "Listen\\";
constexpr std::string_view einstellungsordner = "Einstellungen\\";

std::string mit_rueckstrichen(std::string text) {
    std::replace(text.begin(), text.end(), '/', '\\');
    return text;
}

}  // namespace

programm::programm(const plattform::dienste& d)
    : dienste(d),
      ablage(d.programmordner),
      ausgaben(einst),
      fahrerliste({"Fahrerliste:", std::string(fahrer_bildordner), "nopic.jpg"}),
      fahrzeugliste({"Fahrzeugliste:", std::string(fahrzeug_bildordner), "nocar.gif"}),
      form1({einst, txt, param, ablage, fahrerliste, fahrzeugliste, bestzeiten, fenster, d.meldungen, d.bildschirm,
             d.zeitgeber}),
      datei({ablage, {einst, form1, txt}, param, d.meldungen}),
      form3(d.zeitgeber, ablage, fenster),
      update_form(d.zeitgeber, ablage, fenster),
      rennen(d, {param, einst, txt, ablage, ereignisse, quellen, belegung, ausgaben, fenster, bestzeiten, fahrerliste,
                 fahrzeugliste}),
      startampel(rennen, einst, d.zeitgeber),
      k_ampel(rennen, d.zeitgeber),
      wertung(rennen),
      rundenspeichern(einst.trennzeichen, d.kalender, {ablage, txt, fenster, d.meldungen}),
      einzelrennen({param, einst, txt, rundenspeichern}),
      tagesrennen({param, einst, txt, rundenspeichern}),
      intervalltraining({param, einst, txt, rundenspeichern}),
      beste_zeiten_fenster({einst, txt, ablage, fenster, d.meldungen, d.kalender, bestzeiten}, d.zeitgeber),
      auswertung({rennen, einst, d.zeitgeber, wertung, rundenspeichern, beste_zeiten_fenster}),
      tastaturbelegung({belegung, txt, ablage, fenster, d.meldungen}),
      speichernfenster({ablage, txt, fenster, d.meldungen}, fenstername::speichernfenster, "language\\language_s1.txt"),
      fahrerspeichernfenster({ablage, txt, fenster, d.meldungen}, fenstername::fahrerspeichernfenster,
                             "language\\language_s2.txt"),
      fahrerbild_laden({ablage, txt, fenster, d.meldungen}),
      beste_zeiten_verwaltung({einst, txt, ablage, fenster, d.meldungen, d.kalender, bestzeiten}),
      einstellungsfenster(
          {{einst, form1, txt}, txt, ablage, fenster, d.meldungen, d.klang, fahrerspeichernfenster, fahrerbild_laden},
          {fahrerliste, fahrer_datei, fahrzeugliste, fahrzeug_datei}),
      geraete(
          {d, einst, txt, ablage, ereignisse, quellen, ausgaben, fenster, form1, einstellungsfenster, rennen, [this] {
               form1.vor_dem_speichern_pruefen();  // a field out of its limits would make the file invalid
               return einstellungsfenster.einstellungen_speichern();
           }}) {
    rennen.teil_von.wechseln(einzelrennen);
    hauptfenster_verbinden();
    optionen_verbinden();
    bestzeiten_verbinden();
    rennen.chaos.neustart_ampel = [this] {
        if (!fenster.ist_offen(fenstername::k_ampel)) {
            fenster.zeigen(fenstername::k_ampel);
        }
        k_ampel.beginnen();
    };
}

void programm::hauptfenster_verbinden() {
    form1.einstellungen_speichern = [this] { speichern_oeffnen(); };
    form1.einstellungen_laden = [this] { laden_oeffnen(); };
    form1.beenden = [this] { programm_beenden(); };
    form1.messgeraet_oeffnen = [this] { geraete.nachholen(); };
    form1.einzelrennen_beginnen = [this] { rennen_beginnen(einzelrennen); };
    form1.bahnstrom_ein = [this] {
        ausgaben.ampelnRoff(0);
        ausgaben.ampelnGRon();
        ausgaben.relais_off(0);
    };
    form1.bahnstrom_aus = [this] {
        ausgaben.relais_on(0);
        ausgaben.ampelnGRoff();
    };
    form1.fahrerbilder_uebernehmen = [this] {
        const int anzahl = fahrerliste.bilder_uebernehmen(ablage, "nopic");
        bilder_melden(anzahl, fahrerliste_speichern());
    };
    form1.fahrzeugbilder_uebernehmen = [this] {
        const int anzahl = fahrzeugliste.bilder_uebernehmen(ablage, "");
        bilder_melden(anzahl, fahrzeugliste_speichern());
    };
    using f = tarvel::einstellungsfenster;
    form1.einstellungen_oeffnen = [this] { einstellungsfenster.oeffnen(f::seite_start_ziel); };
    form1.fahrer_oeffnen = [this] { einstellungsfenster.oeffnen(f::seite_fahrer); };
    form1.fahrzeuge_oeffnen = [this] { einstellungsfenster.oeffnen(f::seite_fahrzeuge); };
}

void programm::rennen_beginnen(veranstaltung& teil_von) {
    rennen.teil_von.wechseln(teil_von);
    fenster.zeigen(fenstername::bahn1, anzeige_art::modal);
}

void programm::optionen_verbinden() {
    einstellungsfenster.einstellungen_speichern = [this] {
        einstellungen_speichern(std::string(einstellungsordner) + einstell_datei);
        return !datei.fehler_laden();
    };
    einstellungsfenster.nach_uebernahme = [this] {
        form1.listen_zeigen();
        form1.farben_einstellen();
        form1.bilder_anzeigen();
        form1.modus_anzeigen();
        form1.tankoptionen_zeigen();
        rennen.sounds.bereitstellen();
        if (einst.beste_datei != bestzeiten_datei_) {
            bestzeiten_laden();
        }
        form1.beste_zeiten_anzeigen();
    };
    einstellungsfenster.hardware_starten = [this] {
        laden_aus_menue_ = true;  // the main window is on the screen already
        hardware_starten();
        laden_aus_menue_ = false;
    };
}

void programm::bilder_melden(int anzahl, bool gespeichert) {
    form1.bilder_anzeigen();
    if (gespeichert) {
        dienste.meldungen.zeigen(form1.bilder_text() + std::to_string(anzahl), txt.titel[0]);
    }
}

bool programm::starten() {
    ablage.umbenennen("tvk_UART.ini", "tvk_at2560.uart");
    ablage.ordner_anlegen("Ergebnisse\\Bestzeiten");
    fenster.zeigen(fenstername::Update_form);
    texte_standard_setzen();
    txt.sprache_m1_laden(ablage);
    txt.sprache_tx1_laden(ablage);
    eingebaute_namen_setzen();
    hardware_standard_setzen();
    einstellungen_standard_setzen();
    trennzeichen_laden(ablage, einst.trennzeichen);
    if (!dienste.prozess.ist_einzige_instanz()) {
        dienste.meldungen.zeigen(txt.meldung[10], programm_name);
        programm_beenden();
        return false;
    }
    tvk_ini_laden(ablage, txt.werbetext);
    fahrzeugliste_laden();
    fahrerliste_laden();
    form1.listen_zeigen();
    datei.beste_zeiten_laden = [this] { bestzeiten_laden(); };  // not for the defaults before the settings are read
    start_datei_bestimmen();
    einstellungen_laden();
    return true;
}

void programm::texte_standard_setzen() {
    txt = {};
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

void programm::hardware_standard_setzen() {
    einst.hardware = {};
}

void programm::einstellungen_standard_setzen() {
    fenster.laden(fenstername::Form1);
    datei.einstellungen_standard_setzen();
    belegung.vorbelegen(belegung_stufe::erststart);
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

std::string programm::einstellungsname(std::string_view pfad) const {
    std::string name = mit_rueckstrichen(std::string(pfad));
    const std::string programm_pfad = mit_rueckstrichen(pfad_als_utf8(dienste.programmordner));
    for (const std::string_view vorspann :
         {std::string_view(programm_pfad), std::string_view("\\"), einstellungsordner}) {
        if (name.starts_with(vorspann)) {
            name.erase(0, vorspann.size());
        }
    }
    return name;
}

void programm::start_datei_bestimmen() {
    s6_start start = s6_laden(ablage);
    const bool neustart = start.zustand == "2";
    einstell_datei = start.einstell_datei;
    const std::string name = einstellungsname(einstell_datei);
    if (!dateiname_zulaessig(name)) {  // elsewhere the defaults could be written over another file
        einstell_datei = standard_einstellungen;
    } else if (name.size() + einstellungsordner.size() < einstell_datei.size()) {
        einstell_datei = std::string(einstellungsordner) + name;
    }
    const auto modus = static_cast<modul_4x4>(ganzzahl_lesen(start.modus, 0, 7));
    hw_4x4_modus_start_ = neustart && modus >= modul_4x4::aus ? std::optional(modus) : std::nullopt;
    if (!neustart) {
        einstell_standarddatei = einstell_datei;
    }
    if (neustart || start.zustand == "0") {  // a restart request lasts one start only
        start.zustand = start.naechster_zustand;
        start.modus = start.naechster_modus;
        start.einstell_datei = standard_einstellungen;
        s6_speichern(ablage, start);
    }
}

void programm::einstellungen_laden() {
    datei.einstellungsdatei_einlesen(einstell_datei);
    if (!datei.fehler_laden()) {
        datei.einstellungsdatei_pruefen();
    }
    if (!datei.fehler_laden()) {
        datei.einstellungen_uebernehmen(std::exchange(hw_4x4_modus_start_, std::nullopt));
    }
    einstell_datei = einstellungsname(einstell_datei);
    form1.einstellungsname_anzeigen(einstell_datei, einstellungsname(einstell_standarddatei));
    const bool unbrauchbar = datei.fehler_laden();
    if (unbrauchbar) {
        dienste.meldungen.zeigen(txt.meldung[9], txt.titel[1]);
        hardware_standard_setzen();
        einstellungen_standard_setzen();
    }
    belegung.tastenbelegung_laden(ablage);  // the keys are a file of their own: damaged settings do not cost them
    if (unbrauchbar) {
        einstellungen_speichern(std::string(einstellungsordner) + einstell_datei);
    }
    form1.farben_einstellen();
    form1.bilder_anzeigen();
    rennen.sounds.bereitstellen();
    if (einst.aut_loeschen && !laden_aus_menue_) {
        auto_dateien_loeschen(ablage);
    }
    ergebnis_ordner_anlegen(ablage);
    hardware_starten();
}

void programm::einstellungen_speichern(std::string_view name) {
    datei.einstellungen_speichern(name);
    if (!datei.fehler_laden()) {
        einstell_datei = einstellungsname(name);
    }
    form1.einstellungsname_anzeigen(einstell_datei, einstellungsname(einstell_standarddatei));
    belegung.tastenbelegung_speichern(ablage);
}

void programm::speichern_oeffnen() {
    form1.vor_dem_speichern_pruefen();  // a field out of its limits would make the file invalid
    speichernfenster.oeffnen({true, txt.datei_text[4], txt.datei_text[1], txt.datei_text[0], "Einstellungen", ".ini",
                              einstell_datei, [this](const std::string& name) {
                                  einstellungen_speichern(std::string(einstellungsordner) + name);
                                  return !datei.fehler_laden();
                              }});
}

void programm::laden_oeffnen() {
    speichernfenster.oeffnen({false, txt.datei_text[5], txt.datei_text[3], txt.datei_text[2], "Einstellungen", ".ini",
                              einstell_datei,
                              [this](const std::string& name) { return einstellungen_aus_menue_laden(name); }});
}

bool programm::einstellungen_aus_menue_laden(const std::string& name) {
    const std::string pfad = std::string(einstellungsordner) + name;
    datei.einstellungsdatei_einlesen(pfad, false, version_melden::nein);
    datei.einstellungsdatei_pruefen();
    if (datei.fehler_laden()) {
        dienste.meldungen.zeigen(speichernfenster.ungueltig_text(), txt.titel[1]);
        return false;
    }
    laden_aus_menue_ = true;
    einstell_datei = pfad;
    einstellungen_laden();
    laden_aus_menue_ = false;
    return true;
}

void programm::hardware_starten() {
    geraete.hardware_starten(!laden_aus_menue_);
    if (!laden_aus_menue_) {
        fenster.zeigen(fenstername::Form1);
        fenster.zeigen(fenstername::Form3);
    }
}

void programm::programm_beenden() {
    if (programm_beendet_) {
        return;
    }
    programm_beendet_ = true;
    ausgaben.bericht.ruhe();
    ausgaben.ruhezustand();
    geraete.beenden();
    fenster.alle_entladen();
    dienste.prozess.beenden();
}

}  // namespace tarvel
