#include "hardware/s6_fragefenster.h"

#include <utility>

namespace tarvel {
namespace {

/// In the order of the choices; the last one is no mode of its own.
constexpr std::array modi{modul_4x4::modus_4, modul_4x4::modus_3, modul_4x4::modus_2, modul_4x4::modus_1,
                          modul_4x4::aus};

}  // namespace

s6_fragefenster::s6_fragefenster(const dateien& ablage, fensterregister& fenster)
    : fensterlogik(fenster, ablage, fenstername::s6_fragefenster), fenster_(fenster) {
    for (std::size_t platz = 0; platz < Option1.size(); ++platz) {
        Option1.at(platz).bei_aenderung = [this, platz] { waehlen(platz); };
    }
    Command1.bei_klick = [this] { modus_antworten(); };
    Command2.bei_klick = [this] { fenster_.entladen(fenstername::s6_fragefenster); };
    Command3.bei_klick = [this] { neustart_antworten(false); };
    Command4.bei_klick = [this] { neustart_antworten(true); };
}

sprachliste s6_fragefenster::sprache_e_tx4() {
    sprachliste texte("language/language_e_tx4.txt");
    texte.ueberschrift("s6_fragefenster").text("4x4 USB Modus", titel).text("Modus für diesen Start", Frame_modus);
    texte.text("Analogrennbahn / Spursensoren", Option1[0]).text("PROX Leitkiellochzählung", Option1[1]);
    texte.text("PROX Lochverhältnis", Option1[2]).text("Carrera Digital Modus", Option1[3]);
    texte.text("Leerlauf", Option1[4]).text("gem. Vorgabe in:", Option1[vorgabe]).text("OK", Command1);
    texte.text("Neustart", Frame_neustart);
    texte.text("Zum Wechsel zwischen Analog- und Digitalmodus ist ein Programmneustart erforderlich.", Label_neustart);
    texte.text("Programm beenden und beim nächsten Start nehmen:", Label_mit);
    texte.text("Fortsetzen ohne Neustart", Command2).text("Standarddatei Einstellungen", Command3);
    texte.text("aktuelle Einstellungen", Command4);
    texte.tipp("Beendet das Programm. Beim nächsten Start gilt die Standarddatei mit dem neuen Modus.", Command3);
    return texte.tipp("Beendet das Programm. Beim nächsten Start gilt diese Datei mit dem neuen Modus.", Command4);
}

void s6_fragefenster::laden() {
    texte_lesen();
    waehlen(vorgabe);
}

void s6_fragefenster::modus_fragen(const std::string& datei, std::function<void(std::optional<modul_4x4>)> antwort) {
    bei_modus_ = std::move(antwort);
    fenster_.laden(fenstername::s6_fragefenster);
    Frame_neustart.sichtbar(false);
    Frame_modus.sichtbar(true);
    Label_datei.text(datei);
    fenster_.zeigen(fenstername::s6_fragefenster);
    Command1.fokus_setzen();
}

void s6_fragefenster::neustart_anbieten(std::function<void(bool)> antwort) {
    bei_neustart_ = std::move(antwort);
    fenster_.laden(fenstername::s6_fragefenster);
    Frame_modus.sichtbar(false);
    Frame_neustart.sichtbar(true);
    fenster_.zeigen(fenstername::s6_fragefenster, anzeige_art::modal);
    Command2.fokus_setzen();
}

void s6_fragefenster::waehlen(std::size_t platz) {
    for (std::size_t anderer = 0; anderer < Option1.size(); ++anderer) {
        Option1.at(anderer).gesetzt(anderer == platz);
    }
}

void s6_fragefenster::schliessen() {
    if (bei_modus_) {
        waehlen(vorgabe);
        modus_antworten();
    } else {
        fenster_.entladen(fenstername::s6_fragefenster);
    }
}

void s6_fragefenster::modus_antworten() {
    std::optional<modul_4x4> gewaehlt;
    for (std::size_t platz = 0; platz < modi.size(); ++platz) {
        gewaehlt = Option1.at(platz).gesetzt() ? std::optional(modi.at(platz)) : gewaehlt;
    }
    const auto antworten = std::exchange(bei_modus_, {});
    fenster_.entladen(fenstername::s6_fragefenster);
    if (antworten) {
        antworten(gewaehlt);
    }
}

void s6_fragefenster::neustart_antworten(bool aktuelle) {
    const auto antworten = std::exchange(bei_neustart_, {});
    fenster_.entladen(fenstername::s6_fragefenster);
    if (antworten) {
        antworten(aktuelle);
    }
}

}  // namespace tarvel
