#include "programm/startfenster.h"

#include "core/ordner.h"
#include "core/texte.h"

namespace tarvel {

update_form::update_form(plattform::zeitgeber_dienst& zeitgeber, const dateien& ablage, fensterregister& fenster)
    : fensterlogik(fenster, ablage, fenstername::Update_form),
      ablage_(ablage),
      fensterschliessen_(zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 500ms)) {
    fensterschliessen_->bei_tick = [this] { schliessen(); };
    titel.text(programm_name);
}

sprachliste update_form::sprache_up() {
    sprachliste texte("language/language_up.txt");
    texte.ueberschrift("Übernahme älterer Dateien");
    return texte.text("Bestzeiten werden übernommen …", Label1);
}

void update_form::laden() {
    texte_lesen();
    bestzeiten_umziehen(ablage_);
    fensterschliessen_->an();
}

form3::form3(plattform::zeitgeber_dienst& zeitgeber, const dateien& ablage, fensterregister& fenster)
    : fensterlogik(fenster, ablage, fenstername::Form3),
      timer1_(zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 2000ms)) {
    timer1_->bei_tick = [this] { schliessen(); };
    Command1.bei_klick = [this] { schliessen(); };
    titel.text(programm_name);
}

void form3::laden() {
    Picture1.datei("tvkpic3.gif");
    Command1.text("OK");
    timer1_->an();
}

}  // namespace tarvel
