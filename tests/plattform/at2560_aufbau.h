#pragma once

#include <string>
#include <utility>

#include "hardware/at2560.h"
#include "tests/plattform/geraete_mithoerer.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel::test {

/// A firmware with an event of its own on every row.
inline at_profil alles_belegt() {
    at_profil p;
    for (std::size_t zeile = 1; zeile < p.at_ereignis.size(); ++zeile) {
        p.at_ereignis.at(zeile) = "e" + std::to_string(zeile);
    }
    return p;
}

/// A program with an AT-2560 at COM3, put together as the program does it.
struct at2560_aufbau {
    at2560_aufbau() {
        t.maschine.anschluesse.da = {3};
        t.p.einst.hardware.hw_uart = true;
        t.p.quellen.anschliessen(geraet);
        t.p.ausgaben.anschliessen(ausgabe_platz::at_2560, geraet);
    }
    /// Opens the port and waits until the unit has booted.
    void oeffnen() {
        geraet.oeffnen();
        t.maschine.laufen(at_bootzeit.count());
        gesendet();
    }
    void oeffnen(const at_profil& profil) {
        at_profil_speichern(t.p.ablage, at_standarddatei, profil);
        oeffnen();
    }
    /// Bytes from the unit.
    void sagt(std::string_view bytes) { t.maschine.anschluesse.senden(3, bytes); }
    /// What was sent to it since the last asking.
    std::string gesendet() { return std::exchange(t.maschine.anschluesse.geschrieben[3], {}); }
    ereignis_zeile& zeile(ereignis_art art) { return t.p.ereignisse[art]; }

    testprogramm t;
    geraete_mithoerer gesagt{t.p.geraete};
    plattform::dienste maschine = t.maschine.dienste();
    at2560 geraet{{t.p.einst, t.p.txt, t.p.ablage, t.p.ereignisse, t.p.rennen.zeit, maschine.uhr, maschine.zeitgeber,
                   maschine.serienports, maschine.meldungen, gesagt, gesagt}};
};

}  // namespace tarvel::test
