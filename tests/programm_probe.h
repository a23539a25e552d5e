#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "tests/plattform/ausgabe_protokoll.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel::test {

/// A started program, and an output device that records.
class ProgrammProbe : public testing::Test {
protected:
    using ausgang = schaltung::ausgang;
    using meldungen = std::vector<test_plattform::meldung>;

    ProgrammProbe() { t.p.ausgaben.anschliessen(ausgabe_platz::timekeeper, geraet); }
    ~ProgrammProbe() override {
        if (nur_eingaben) {
            EXPECT_EQ(protokolle_nachrechnen(t.p), "") << "each race is the same again from its log";
        }
    }

    bool offen(fenstername name) { return t.p.fenster.ist_offen(name); }
    bool strom(int spur) const { return geraet.ist_an(ausgang::bahnstrom, spur); }
    zeit_ms rundenzeit(int spur, int runde) const { return t.p.rennen.zustand.konto.rundenzeit(spur, runde); }
    std::ptrdiff_t gespielt(const std::string& datei) const {
        return std::count(t.maschine.sounds.begin(), t.maschine.sounds.end(), "sound\\" + datei);
    }
    std::string letzte_meldung() const {
        return t.maschine.meldungen_gezeigt.empty() ? "" : t.maschine.meldungen_gezeigt.back().text;
    }

    /// These races are driven from outside alone, so that each must come out of its log again.
    bool nur_eingaben = false;
    ausgabe_protokoll geraet;
    testprogramm t;
};

}  // namespace tarvel::test
