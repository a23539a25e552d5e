#include "programm/druckeranschluss_verdrahtung.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "optionen/einstellungsfenster.h"
#include "programm/einstellungspflege.h"
#include "programm/messgeraete.h"

namespace tarvel {

druckeranschluss_verdrahtung::druckeranschluss_verdrahtung(const geraete_umgebung& um, messgeraete& alle)
    : geraet_mit_fenster(um, alle),
      anschluss({um.einst, um.ereignisse, um.dienste.abtaster, um.dienste.druckerport, alle.rennverbindung()}),
      drucker_fenster({um.einst, um.txt, um.ablage, um.fenster, um.dienste.meldungen, um.dienste.zeitgeber,
                       um.dienste.druckerport}) {
    drucker_fenster.zugang = this;
    um.einstellungsfenster.aktion_verbinden("lpt_einrichten", [&fenster = um.fenster] {
        fenster.zeigen(fenstername::drucker_fenster, anzeige_art::modal);
    });
}

void druckeranschluss_verdrahtung::geraet_verbinden() {
    geraet_mit_fenster::geraet_verbinden();
    if (std::exchange(uebernommen_, false)) {
        anschluss.tankausgang_einschalten();
    }
}

bool druckeranschluss_verdrahtung::einstellungen_speichern() {
    const bool gut = uebernommen_ = pflege_.speichern_mit_feldern();
    std::vector<std::string> zeilen{"lpt_text"};
    for (std::size_t i = 1; i <= tarvel::drucker_fenster::eingaenge; ++i) {
        zeilen.push_back("ecomb_" + std::to_string(i));
    }
    for (std::size_t i = 1; i <= tarvel::drucker_fenster::ausgaenge; ++i) {
        zeilen.push_back("comb_" + std::to_string(i));
    }
    optionen_.zeilen_zeigen(std::vector<std::string_view>(zeilen.begin(), zeilen.end()));
    return gut;
}

}  // namespace tarvel
