#pragma once

#include <initializer_list>
#include <memory>
#include <vector>

#include "tests/plattform/testprogramm.h"
#include "tests/plattform/vereinsabend.h"
#include "ui/oberflaeche.h"

namespace tarvel {

/// A program with its windows on a virtual clock, and a club that drives.
struct buehne {
    explicit buehne(const erscheinung& wie = {});

    /// Sets up a race on these lanes and opens its window.
    void einrichten(const char* rennart, const char* dauer, std::initializer_list<int> spuren);
    /// Drives for this long: a lap of about seven seconds on each lane, of which no two are the same.
    void fahren(zeit_ms dauer);
    /// Sets up a race, starts it and drives.
    void rennen(zeit_ms gefahren, std::initializer_list<int> spuren = {1, 2, 3, 4, 5, 6});
    void rundenrennen(zeit_ms gefahren, const char* runden, std::initializer_list<int> spuren);
    /// A whole race to its result.
    void ergebnis(const char* runden, std::initializer_list<int> spuren) { rundenrennen(150000, runden, spuren); }

    /// A Control Unit, at rest or in its pause as the race is.
    void control_unit_anschliessen();

    test::testprogramm t;
    programm& p;
    test::vereinsabend abend{p};
    ui::Oberflaeche o{p};

private:
    void klub_anmelden();
    /// The lane's car reaches its next sensor.
    void sensor_treffen(int spur);

    std::vector<int> aktiv_;
    spuren<zeit_ms> naechste_{};  ///< when each lane's car is at its next sensor
    spuren<int> sensor_{};        ///< which is this: 0 the line, then those of the sectors
};

}  // namespace tarvel
