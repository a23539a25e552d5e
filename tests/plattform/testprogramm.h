#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "programm/fluegel.h"
#include "programm/messgeraete.h"
#include "programm/programm.h"
#include "tests/plattform/test_plattform.h"

namespace tarvel::test {

/// A started program on the test machine, driven as its user drives it.
struct testprogramm {
    explicit testprogramm(const std::filesystem::path& unter = std::filesystem::temp_directory_path());

    /// Language and look, as if chosen among the options.
    void erscheinen(const erscheinung& wie);
    /// Sets up a race without a start light on the main window and opens the race window. `dauer` as typed, race kind
    /// by the entry's text.
    void einrichten(std::string_view rennart, std::string_view dauer, const std::vector<int>& lanes);
    /// As above, and presses start.
    void starten(std::string_view rennart, std::string_view dauer, const std::vector<int>& lanes);
    /// The race ends by hand, or is stopped, as if the button had been pressed and pressed again.
    void rennende();
    void rennabbruch();
    /// A key press in the race window, and the tick that takes it.
    void taste(std::string_view zeichen);
    /// Time passes, then the cars of these lanes cross the line one after the other in one tick.
    void runde_nach(zeit_ms dauer, std::string_view tasten);

    bahn1& bahn() { return p.rennen.bahn1; }
    /// What the result says of a lane that was in the race.
    const rennergebnis::spur& ergebnis(int nummer) const { return *p.wertung.ergebnis().auf(nummer); }
    spur_zustand& spur(int nummer) { return p.rennen.zustand.spur[nummer]; }
    int runden(int spur) const { return p.rennen.zustand.konto.runden(spur); }
    /// The lane has this many laps, those that it lacks without a time.
    void runden_auffuellen(int spur, int bis);

    bool mit_bestzeiten = false;  ///< else no race asks for them

    test_plattform maschine;
    programm p;
};

/// Drives the last race of this program again from its log. What comes out otherwise; empty if it is the same race,
/// lap for lap.
std::string nachrechnen(const programm& p, const test_plattform& maschine);
/// The same of each log that this program has written, to its last line and its result files.
std::string protokolle_nachrechnen(const programm& p);

}  // namespace tarvel::test
