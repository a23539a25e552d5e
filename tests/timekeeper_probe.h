#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>

#include "hardware/timekeeper.h"
#include "programm/timekeeper_verdrahtung.h"
#include "tests/plattform/test_ftdi.h"
#include "tests/programm_probe.h"

namespace tarvel::test {

/// The program with a box at the test's end of its library.
struct Timekeeper : testing::Test {
    Timekeeper() { ftdi.eintragen(t.maschine.bibliotheken); }
    void einschalten() {
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_timekeeper = true;
        t.p.geraete.hardware_starten(false);
    }
    /// Switched on, and the box's clock is known: it stands at `uhr`.
    void bereit(zeit_ms uhr = 5000) {
        einschalten();
        t.maschine.laufen(1000);
        zeit_sagen(uhr);
    }
    /// The box's clock from here on.
    void zeit_sagen(zeit_ms uhr) {
        beginn = t.maschine.jetzt() + 1 - uhr;
        sagt("|" + std::to_string(uhr) + ">");
    }
    zeit_ms geraetezeit() const { return t.maschine.jetzt() - beginn; }
    /// Signs that can be read for those of the frame; what is told then reaches the program.
    void sagt(std::string bytes, bool mit_anfang = true) {
        bytes = (mit_anfang ? "<" : "") + bytes;
        std::replace(bytes.begin(), bytes.end(), '<', '\x02');
        std::replace(bytes.begin(), bytes.end(), '>', '\x03');
        std::replace(bytes.begin(), bytes.end(), '|', '\x17');
        ftdi.wartet += bytes;
        t.maschine.laufen(110);
    }
    /// What the thread that writes has written by now.
    std::string gesendet() {
        t.maschine.laufen(1);
        return std::exchange(ftdi.gesendet, {});
    }
    ereignis_zeile& zeile(ereignis_art art) { return t.p.ereignisse[art]; }
    timekeeper& geraet() { return t.p.geraete.von<timekeeper_verdrahtung>().tk; }

    test_ftdi ftdi;
    testprogramm t;
    zeit_ms beginn = 0;
};

/// A settings file of this mode, whose values stand in `arten`, parted by blanks.
inline std::string tk_datei(int modus, const std::string& arten) {
    std::string text = "Tarvel Timekeeper-Einstellungen\r\n\r\n" + std::to_string(modus) + "\r\n";
    for (const char zeichen : arten) {
        text += zeichen == ' ' ? std::string("\r\n") : std::string(1, zeichen);
    }
    return text + "\r\n";
}

}  // namespace tarvel::test
