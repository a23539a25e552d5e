#include "programm/fluegel.h"
#include "programm/programm.h"

namespace tarvel {

void programm::bestzeiten_verbinden() {
    beste_zeiten_fenster.gespeichert = [this] { form1.beste_zeiten_anzeigen(); };
    einstellungsfenster.bestzeiten_verwalten = [this] { beste_zeiten_verwaltung.oeffnen(); };
    beste_zeiten_verwaltung.einstellungen_geaendert = [this] { einstellungsfenster.einstellungen_speichern(); };
    beste_zeiten_verwaltung.uebernommen = [this] {
        bestzeiten_datei_ = einst.beste_datei;
        form1.beste_zeiten_anzeigen();
        einstellungsfenster.bestzeiten_zeigen();
    };
}

void programm::bestzeiten_laden() {
    bestzeiten_datei_ = einst.beste_datei;
    if (!bestzeiten.laden(ablage, bestzeiten_datei_)) {
        dienste.meldungen.zeigen(txt.meldung[20], txt.titel[1]);
    }
    form1.beste_zeiten_anzeigen();
}

}  // namespace tarvel
