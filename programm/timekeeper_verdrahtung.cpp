#include "programm/timekeeper_verdrahtung.h"

#include <array>
#include <string_view>

#include "optionen/einstellungsfenster.h"
#include "programm/einstellungspflege.h"
#include "programm/messgeraete.h"

namespace tarvel {

timekeeper_verdrahtung::timekeeper_verdrahtung(const geraete_umgebung& um, messgeraete& alle)
    : geraet_mit_fenster(um, alle),
      tk_einstellungen({um.einst, um.txt, um.ablage, um.fenster}, um.dienste),
      tk({um.einst, um.txt, um.ablage, um.ereignisse, um.rennen.zeit, um.ausgaben, alle.rennverbindung(), alle,
          [this] { return tk_einstellungen.nicht_da(); }, [this] { return tk_einstellungen.weg(); }},
         um.dienste) {
    um.einstellungsfenster.aktion_verbinden(
        "tk_einrichten", [&fenster = um.fenster] { fenster.zeigen(fenstername::timekeeper, anzeige_art::modal); });
    tk_einstellungen.zugang = this;
}

bool timekeeper_verdrahtung::einstellungen_speichern() {
    const bool gut = pflege_.speichern_mit_feldern();
    optionen_.zeilen_zeigen(std::to_array<std::string_view>({"tk_datei"}));
    return gut;
}

}  // namespace tarvel
