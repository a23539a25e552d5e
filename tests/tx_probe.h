#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "hardware/tx_modul.h"
#include "programm/tx_verdrahtung.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel::test {

inline constexpr int com_am_modul = 5;

/// The program with a module at COM5 that greets and answers, byte for byte as this test has it.
struct TxModul : testing::Test {
    TxModul() {
        t.maschine.anschluesse.da = {2, com_am_modul};
        t.maschine.anschluesse.geraet = [this](int nummer, std::string_view bytes) {
            if (nummer == com_am_modul && antwortet) {
                antworten(bytes);
            }
        };
    }
    void antworten(std::string_view bytes) {
        for (const char c : bytes) {
            if (c == '-' && gruesst) {
                sagt("TRAXIUM-USB\r");
            } else if (c == '+') {
                sagt("TXUSB_OK\r");
            } else if (c == 'v') {
                sagt("V1.2\r");
            }
        }
    }
    void sagt(std::string_view bytes) { t.maschine.anschluesse.senden(com_am_modul, bytes); }
    std::string gesendet(int nummer = com_am_modul) {
        return std::exchange(t.maschine.anschluesse.geschrieben[nummer], {});
    }
    void waehlen(modul_4x4 modus) {
        t.p.einst.hardware.hw_simulation = false;
        t.p.einst.hardware.hw_4x4_modus = modus;
        t.p.geraete.hardware_starten(false);
        t.maschine.laufen(4000);
        gesendet();
    }
    /// What has come in just now; the fuel simulation may have taken it already.
    std::vector<ereignis_art> gemeldet() {
        std::vector<ereignis_art> alle;
        for (ereignis_art art = 0; art < ereignis_tabelle::zeilen_anzahl; ++art) {
            t.p.ereignisse[art].aktiv = false;
            if (std::exchange(t.p.ereignisse[art].ereignis_zeit, 0) == t.maschine.jetzt()) {
                alle.push_back(art);
            }
        }
        return alle;
    }
    bool offen(fenstername name) const { return t.p.fenster.ist_offen(name); }

    bool antwortet = true;
    bool gruesst = true;
    testprogramm t;
    tx_verdrahtung& tx = t.p.geraete.von<tx_verdrahtung>();
};

}  // namespace tarvel::test
