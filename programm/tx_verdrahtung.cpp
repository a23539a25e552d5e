#include "programm/tx_verdrahtung.h"

#include <string>
#include <utility>
#include <vector>

#include "optionen/einstellungsfenster.h"
#include "programm/einstellungspflege.h"
#include "programm/messgeraete.h"
#include "race/rennen.h"

namespace tarvel {

tx_verdrahtung::tx_verdrahtung(const geraete_umgebung& um, messgeraete& alle)
    : geraet_mit_fenster(um, alle),
      modul({um.einst, um.txt, um.ablage, um.ereignisse, um.dienste.uhr, um.dienste.zeitgeber, um.dienste.serienports,
             alle.rennverbindung(), alle}),
      form5({um.ablage, um.fenster, um.dienste.zeitgeber}, modul),
      frm_main({um.einst, um.txt, um.ablage, um.fenster}, modul, um.dienste),
      s6_fragefenster(um.ablage, um.fenster),
      um_(um) {
    form5.bei_erfolg = [this] { wechsel_pruefen(); };
    frm_main.zugang = this;
    auto& modus = std::get<auswahl>(um.einstellungsfenster.zeile("optModus").element);
    frm_main.modus_vormerken = [&modus](int nummer) { modus.platz(nummer - 1); };
    um.einstellungsfenster.aktion_verbinden("tx_einrichten", [this, &modus] {
        frm_main.modus_vorgewaehlt = modus.platz() < 0 ? tx_modul::kontakt_modus : modus.platz() + 1;
        um_.fenster.zeigen(fenstername::frmMain, anzeige_art::modal);
    });
}

void tx_verdrahtung::beenden() {
    form5.bei_erfolg = {};
    frm_main.zugang = nullptr;
}

void tx_verdrahtung::startmodus_fragen() {
    s6_fragefenster.modus_fragen(um_.pflege.einstell_datei(),
                                 [this](std::optional<modul_4x4> modus) { um_.pflege.start_fortsetzen(modus); });
}

/// The window of the module closes: its outputs are the race's again.
void tx_verdrahtung::geraet_trennen() {
    if (!um_.einst.hardware.hw_4x4()) {
        modul.schliessen();
    } else if (modul.verbunden()) {
        um_.ausgaben.wiederholen();
    }
}

bool tx_verdrahtung::einstellungen_speichern() {
    const bool gut = um_.pflege.speichern_mit_feldern();
    zeilen_zeigen();
    um_.form1.modus_anzeigen();
    wechsel_pruefen();
    return gut;
}

void tx_verdrahtung::zeilen_zeigen() {
    std::vector<std::string> namen;
    for (std::size_t i = 1; i <= frm_main::eingaenge; ++i) {
        namen.push_back("s6_eingang_" + std::to_string(i));
    }
    for (const int spur : alle_spuren) {
        for (std::size_t sensor = 1; sensor <= frm_main::sensoren; ++sensor) {
            namen.push_back("s6_eingang_modus_" + std::to_string(spur) + "_" + std::to_string(sensor));
        }
    }
    if (um_.einst.hardware.hw_4x4()) {  // else the row has a mode that is not in force yet
        namen.emplace_back("optModus");
    }
    const std::vector<std::string_view> sichten(namen.begin(), namen.end());
    um_.einstellungsfenster.zeilen_zeigen(sichten);
}

void tx_verdrahtung::wechsel_pruefen() {
    const modul_4x4 modus = um_.einst.hardware.hw_4x4_modus;
    if (modus == modul_4x4::aus) {
        return;
    }
    const bool analog = modus == modul_4x4::modus_4;
    const std::optional<bool> bisher = std::exchange(analog_, analog);
    if (!bisher || *bisher == analog) {
        return;
    }
    s6_fragefenster.neustart_anbieten([this, modus](bool aktuelle) {
        if (um_.pflege.neustart_vormerken(modus, aktuelle)) {
            um_.form1.beenden();
        } else {
            um_.dienste.meldungen.zeigen(um_.txt.meldung[4], um_.txt.titel[1]);
        }
    });
}

}  // namespace tarvel
