#pragma once

#include <vector>

namespace tarvel {

/// One switching of an output. `nummer` is the red lamp (1 to 5) or the lane (1 to 6), 0 for all of them.
struct schaltung {
    enum class ausgang { ampel_gruen, ampel_rot, bahnstrom_aus, zieleinfahrt };
    ausgang was;
    int nummer;
    bool an;

    bool operator==(const schaltung&) const = default;
};

/// A device that drives outputs.
class ausgabe_geraet {
public:
    virtual ~ausgabe_geraet() = default;
    virtual void schalten(const schaltung& befehl) = 0;
};

/// Lamps, track power and signals. The race calls these routines and never looks at which devices are connected;
/// without a device each of them is valid and does nothing.
class ausgaben {
public:
    /// `geraet` must outlive the race; devices are switched in the order of their connection.
    void anschliessen(ausgabe_geraet& geraet) { geraete_.push_back(&geraet); }

    /// There is something to switch.
    bool angeschlossen() const { return !geraete_.empty(); }

    void ampelnGRon() { schalten({schaltung::ausgang::ampel_gruen, 0, true}); }
    void ampelnGRoff() { schalten({schaltung::ausgang::ampel_gruen, 0, false}); }
    void ampelnRon(int lampe) { schalten({schaltung::ausgang::ampel_rot, lampe, true}); }
    void ampelnRoff(int lampe) { schalten({schaltung::ausgang::ampel_rot, lampe, false}); }
    /// Shut-off on: the lane loses track power.
    void relais_on(int spur) { schalten({schaltung::ausgang::bahnstrom_aus, spur, true}); }
    /// Shut-off off: the lane has track power.
    void relais_off(int spur) { schalten({schaltung::ausgang::bahnstrom_aus, spur, false}); }
    /// "Signalausgabe Zieleinfahrt": a lane is home.
    void zieleinfahrt_melden(int spur) { schalten({schaltung::ausgang::zieleinfahrt, spur, true}); }

    /// Rest state between races: red off, green on, power on.
    void ruhezustand();

private:
    void schalten(const schaltung& befehl);

    std::vector<ausgabe_geraet*> geraete_;
};

}  // namespace tarvel
