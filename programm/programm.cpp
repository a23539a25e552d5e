#include "programm/programm.h"

#include <array>
#include <string_view>

#include "core/ordner.h"

namespace tarvel {

programm::programm(const plattform::dienste& d)
    : dienste(d),
      ablage(d.programmordner),
      form1({einst, txt, param, fenster, d.meldungen, d.bildschirm, d.zeitgeber}),
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
    if (!dienste.prozess.ist_einzige_instanz()) {
        dienste.meldungen.zeigen(txt.meldung[10], programm_name);
        programm_beenden();
        return false;
    }
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
    const messhardware hardware = einst.hardware;
    einst = {};
    einst.hardware = hardware;
    belegung.vorbelegen(belegung_stufe::erststart);
    fenster.laden("Form1");
    form1.standard_setzen();
}

void programm::einstellungen_laden() {
    belegung.laden(ablage);
    if (einst.aut_loeschen) {
        auto_dateien_loeschen(ablage);
    }
    ergebnis_ordner_anlegen(ablage);
    hardware_starten();
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
