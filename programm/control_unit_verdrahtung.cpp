#include "programm/control_unit_verdrahtung.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/protokollzeile.h"
#include "core/spuren.h"
#include "optionen/einstellungsfenster.h"
#include "programm/messgeraete.h"
#include "race/rennen.h"

namespace tarvel {

control_unit_verdrahtung::control_unit_verdrahtung(const geraete_umgebung& um, messgeraete& alle)
    : geraet_mit_fenster(um, alle),
      cu({um.einst, um.rennen.umgebung.param, um.txt, um.ereignisse, um.rennen.zeit, alle.rennverbindung(), alle},
         um.dienste),
      cu_eigenschaften({um.einst, um.txt, um.ablage, um.fenster}, um.dienste) {
    um.form1.cu_oeffnen = [&fenster = um.fenster] {
        fenster.zeigen(fenstername::cu_eigenschaften, anzeige_art::modal);
    };
    optionen_.aktion_verbinden("cu_einrichten", [this, &fenster = um.fenster] {
        cu_eigenschaften.vorgewaehlt = wie_die_seite_zeigt();
        fenster.zeigen(fenstername::cu_eigenschaften, anzeige_art::modal);
    });
    cu_eigenschaften.zugang = this;
}

control_unit_einstellungen control_unit_verdrahtung::wie_die_seite_zeigt() {
    const auto gesetzt = [this](std::string_view name) {
        return std::get<haken>(optionen_.zeile(name).element).gesetzt();
    };
    control_unit_einstellungen gezeigt = einst_.cu;
    gezeigt.anschluss.cu_modus = std::max(std::get<auswahl>(optionen_.zeile("cu_comport").element).platz(), 0);
    gezeigt.cu_tankautomatik = gesetzt("opt_cu_tankautomatik");
    gezeigt.cu_sondermodus = gesetzt("opt_cu_prgstart");
    gezeigt.cu_option = gesetzt("opt_cu_alterRZ");
    for (const int spur : alle_spuren) {
        const std::string getippt =
            std::get<feld>(optionen_.zeile("cu_spur_wert_" + std::to_string(spur)).element).text();
        const std::optional<std::int64_t> wert = als_zahl(getippt);
        gezeigt.cu_spur_wert[spur] =
            wert && *wert >= 0 && *wert <= 15 ? static_cast<int>(*wert) : einst_.cu.cu_spur_wert[spur];
    }
    return gezeigt;
}

bool control_unit_verdrahtung::einstellungen_speichern() {
    const bool gut = pflege_.speichern_mit_feldern();
    optionen_.zeilen_zeigen(std::to_array<std::string_view>(
        {"cu_comport", "opt_cu_tankautomatik", "opt_cu_prgstart", "opt_cu_alterRZ", "cu_spur_wert_1", "cu_spur_wert_2",
         "cu_spur_wert_3", "cu_spur_wert_4", "cu_spur_wert_5", "cu_spur_wert_6"}));
    return gut;
}

void control_unit_verdrahtung::geraet_verbinden() {
    if (einst_.hardware.hw_cu) {
        cu.oeffnen();
    }
}

}  // namespace tarvel
