#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "tools/simulator/kontaktbrett.h"
#include "tools/simulator/lauf.h"
#include "tools/simulator/rundenschreiber.h"

namespace tarvel::simulator {

/// A board inside the library that stands in for its vendor's: its cars drive in real time, for as long as anybody
/// calls. The options are those of the other simulators, in the file `simulator.txt` of the working folder or as
/// `einstellen` gives them.
class brettlauf {
public:
    using verdrahtung = kontaktbrett_einstellung (*)(const rennen_einstellung&);

    explicit brettlauf(verdrahtung wie) : wie_(wie) {}

    /// Begins anew, with the options of a command line. Tells nothing on the console if it is to be `still`.
    void einstellen(const std::string& zeile, bool still);
    /// Calls `tun` with the board as it is now; not while it is unplugged. False then.
    bool mit_brett(const std::function<void(kontaktbrett&)>& tun);
    /// Its plug in or out by hand.
    void stecker(bool steckt);
    /// Lap times of a car in ms, at most `platz` of them; returns how many there are.
    int runden(int wagen, int* zeiten, int platz);

private:
    void anlegen(const std::string& zeile, bool still);
    bool steckt() const;

    verdrahtung wie_;
    std::mutex schloss_;
    std::unique_ptr<kontaktbrett> brett_;
    std::unique_ptr<rundenschreiber> schreiber_;  ///< none while it is still
    lauf_einstellung lauf_;
    zeit_ms beginn_ = 0;
    bool von_hand_gezogen_ = false;
};

}  // namespace tarvel::simulator
