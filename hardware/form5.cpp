#include "hardware/form5.h"

#include <utility>

#include "hardware/tx_modul.h"

namespace tarvel {
namespace {

constexpr dauer_ms lesezeit{1500};

}  // namespace

form5::form5(const umgebung& um, tx_modul& modul)
    : fensterlogik(um.fenster, um.ablage, fenstername::Form5),
      fenster_(um.fenster),
      modul_(modul),
      timer1_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, lesezeit)) {
    timer1_->bei_tick = [this] { fenster_.entladen(fenstername::Form5); };
    Command1.bei_klick = [this] { schliessen(); };
    modul.zuschauen(*this);
}

sprachliste form5::sprache_e_tx2() {
    sprachliste texte("language\\language_e_tx2.txt");
    texte.ueberschrift("Form5").text("Hardwareinitialisierung", titel);
    texte.text("Initialisierung erfolgreich", wort_.gut).text("Initialisierung fehlgeschlagen", wort_.schlecht);
    texte.text("Die Software wird im Simulationsmodus gestartet", wort_.simulation);
    return texte.text("4x4 USB wird gesucht …", wort_.sucht).text("Abbrechen", Command1);
}

void form5::laden() {
    texte_lesen();
    beginnen();
}

void form5::beginnen() {
    timer1_->aus();
    Label1.text(wort_.sucht);
    Label2.text("");
    hinweis.text("");
    Command1.sichtbar(true);
    wartet_ = true;
}

void form5::entladen() {
    timer1_->aus();
    wartet_ = false;
    if (modul_.verbunden() && bei_erfolg) {
        bei_erfolg();
    }
}

void form5::schliessen() {
    if (modul_.wird_eingerichtet()) {
        modul_.aufgeben();
    } else {
        fenster_.entladen(fenstername::Form5);
    }
}

void form5::stand_geaendert() {
    if (modul_.wird_eingerichtet()) {
        if (!wartet_) {
            beginnen();
        }
        fenster_.zeigen(fenstername::Form5, anzeige_art::modal);
        return;
    }
    if (!std::exchange(wartet_, false)) {
        return;
    }
    const bool gut = modul_.verbunden();
    Label1.text(gut ? wort_.gut : wort_.schlecht);
    Label2.text(gut ? "" : wort_.simulation);
    Command1.sichtbar(false);  // there is nothing to stop any more
    timer1_->an();
}

}  // namespace tarvel
