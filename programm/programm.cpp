#include "programm/programm.h"

#include <array>
#include <string_view>

#include "core/nebendateien.h"
#include "core/ordner.h"
#include "core/text.h"

namespace tarvel {
namespace {

/// The file's name below the settings folder.
std::string einstellungsname(std::string_view pfad) {
    for (const std::string_view vorspann :
         {std::string_view("\\Einstellungen\\"), std::string_view("Einstellungen\\")}) {
        if (pfad.starts_with(vorspann)) {
            pfad.remove_prefix(vorspann.size());
        }
    }
    return std::string(pfad);
}

}  // namespace

programm::programm(const plattform::dienste& d)
    : dienste(d),
      ablage(d.programmordner),
      form1({einst, txt, param, fenster, d.meldungen, d.bildschirm, d.zeitgeber}),
      datei({ablage, {einst, form1, txt}, d.meldungen}),
      form3(d.zeitgeber, fenster),
      update_form(d.zeitgeber, ablage, fenster),
      rennen(d, {param, einst, txt, form1, ereignisse, belegung, ausgaben, fenster}),
      auswertung(rennen.umgebung),
      tastaturbelegung({belegung, txt, ablage, fenster, d.meldungen}) {
    form1.beenden = [this] { programm_beenden(); };
    form1.bahnstrom_ein = [this] {
        ausgaben.ampelnRoff(0);
        ausgaben.ampelnGRon();
        ausgaben.relais_off(0);
    };
    fenster_anmelden();
}

void programm::fenster_anmelden() {
    fenster.anmelden("Form1", {[this] { form1.laden(); }, [this] { form1.entladen(); }});
    fenster.anmelden("Form3", {[this] { form3.laden(); }, [this] { form3.entladen(); }});
    fenster.anmelden("Update_form", {[this] { update_form.laden(); }, [this] { update_form.entladen(); }});
    fenster.anmelden("bahn1", {[this] { rennen.ablauf.laden(); }, [this] { rennen.ablauf.entladen(); }});
    fenster.anmelden("auswertung", {[this] { auswertung.laden(); }, {}});
    fenster.anmelden("Tastaturbelegung", {[this] { tastaturbelegung.laden(); }, {}});
}

bool programm::starten() {
    ablage.umbenennen("tvk_UART.ini", "tvk_at2560.uart");
    ablage.ordner_anlegen("Ergebnisse\\Bestzeiten");
    fenster.zeigen("Update_form");
    texte_standard_setzen();
    hardware_standard_setzen();
    einstellungen_standard_setzen();
    trennzeichen_laden(ablage, einst.trennzeichen);
    if (!dienste.prozess.ist_einzige_instanz()) {
        dienste.meldungen.zeigen(txt.meldung[10], programm_name);
        programm_beenden();
        return false;
    }
    tvk_ini_laden(ablage, txt.werbetext);
    start_datei_bestimmen();
    einstellungen_laden();
    return true;
}

void programm::texte_standard_setzen() {
    txt = {};
}

void programm::hardware_standard_setzen() {
    einst.hardware = {};
}

void programm::einstellungen_standard_setzen() {
    fenster.laden("Form1");
    datei.standard_setzen();
    belegung.vorbelegen(belegung_stufe::erststart);
}

void programm::start_datei_bestimmen() {
    s6_start start = s6_laden(ablage);
    const bool neustart = start.zustand == "2";
    einstell_datei = start.einstell_datei;
    modus_4x4_start_ = neustart ? static_cast<int>(ganzzahl_lesen(start.modus, 0, 7)) : 0;
    if (!neustart) {
        einstell_standarddatei = einstell_datei;
    }
    if (neustart || start.zustand == "0") {  // a restart request lasts one start only
        start.zustand = start.naechster_zustand;
        start.modus = start.naechster_modus;
        start.einstell_datei = "Einstellungen\\einstellungen.ini";
        s6_speichern(ablage, start);
    }
}

void programm::einstellungen_laden() {
    datei.einlesen(einstell_datei);
    if (!datei.fehler_laden()) {
        datei.pruefen();
    }
    if (!datei.fehler_laden()) {
        datei.uebernehmen(modus_4x4_start_);
    }
    einstell_datei = einstellungsname(einstell_datei);
    form1.einstellungsname_anzeigen(einstell_datei);
    const bool unbrauchbar = datei.fehler_laden();
    if (unbrauchbar) {
        dienste.meldungen.zeigen(txt.meldung[9], txt.titel[1]);
        hardware_standard_setzen();
        einstellungen_standard_setzen();
    }
    belegung.laden(ablage);  // the keys are a file of their own: damaged settings do not cost them
    if (unbrauchbar) {
        einstellungen_speichern("Einstellungen\\" + einstell_datei);
    }
    form1.farben_einstellen();
    if (einst.aut_loeschen) {
        auto_dateien_loeschen(ablage);
    }
    ergebnis_ordner_anlegen(ablage);
    hardware_starten();
}

void programm::einstellungen_speichern(std::string_view name) {
    datei.speichern(name);
    form1.einstellungsname_anzeigen(einstellungsname(name));
    belegung.speichern(ablage);
}

void programm::hardware_starten() {
    ausgaben.ruhezustand();
    form1.modus_anzeigen();
    fenster.zeigen("Form1");
    fenster.zeigen("Form3");
}

void programm::programm_beenden() {
    if (programm_beendet_) {
        return;
    }
    programm_beendet_ = true;
    ausgaben.ruhezustand();
    constexpr std::array<std::string_view, 6> reihenfolge{"auswertung",       "bahn1",      "Form3", "Form1",
                                                          "Tastaturbelegung", "Update_form"};
    for (const std::string_view name : reihenfolge) {
        fenster.entladen(name);
    }
    dienste.prozess.beenden();
}

}  // namespace tarvel
