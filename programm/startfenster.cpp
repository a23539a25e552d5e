#include "programm/startfenster.h"

#include "core/ordner.h"

namespace tarvel {

update_form::update_form(plattform::zeitgeber_dienst& zeitgeber, const dateien& ablage, fensterregister& fenster)
    : ablage_(ablage), fensterschliessen_(zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 500ms)) {
    fensterschliessen_->bei_tick = [&fenster] { fenster.entladen("Update_form"); };
}

void update_form::laden() {
    Label1.text("Bestzeiten werden übernommen …");
    bestzeiten_umziehen(ablage_);
    fensterschliessen_->an();
}

form3::form3(plattform::zeitgeber_dienst& zeitgeber, fensterregister& fenster)
    : timer1_(zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 2000ms)) {
    timer1_->bei_tick = [&fenster] { fenster.entladen("Form3"); };
    Command1.bei_klick = [&fenster] { fenster.entladen("Form3"); };
}

void form3::laden() {
    Picture1.datei("tvkpic3.gif");
    Command1.text("OK");
    timer1_->an();
}

}  // namespace tarvel
