#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "core/einstellungen.h"
#include "hardware/iow_bericht.h"
#include "platform/schnittstelle.h"

namespace tarvel {

/// One switching of an output. `nummer` is the red lamp (1 to 5) or the lane (1 to 6), 0 for all of them and for
/// outputs that there is one of.
struct schaltung {
    enum class ausgang {
        ampel_rot,
        ampel_gruen,
        bahnstrom,  ///< `an` tells the output itself: with plain wiring the lane has power, with inverted it has none
        chaosanzeige,  ///< lamp that is lit while the race is paused
        rennende       ///< signal while the result is shown
    };
    ausgang was;
    int nummer;
    bool an;

    bool operator==(const schaltung&) const = default;
};

/// A device that drives outputs. What it has no output for, it leaves alone.
class ausgabe_geraet : public schnittstelle {
public:
    virtual void schalten(const schaltung& befehl) = 0;
};

/// The devices beside the IO board, in the order in which each switching goes through them.
enum class ausgabe_platz { modul_4x4, druckeranschluss, timekeeper, at_2560, control_unit };

/// Lamps, track power and signals. The race calls these routines and never looks at which devices are connected;
/// without a device each of them is valid and changes only the image of the IO board's report. Lamps and lanes that do
/// not exist are ignored.
class ausgaben {
public:
    explicit ausgaben(const einstellungen& einst) : einst_(einst) { stand_.reserve(ausgaenge_max); }

    iow_bericht bericht;

    /// `geraet` must outlive the connection. One device a place.
    void anschliessen(ausgabe_platz platz, ausgabe_geraet& geraet) { an(platz) = &geraet; }
    void trennen(ausgabe_platz platz) { an(platz) = nullptr; }
    /// There is something to switch.
    bool angeschlossen() const;

    void ampelnGRon() { gruene_lampe(true); }
    void ampelnGRoff() { gruene_lampe(false); }
    void ampelnRon(int lampe) { rote_lampen(lampe, true); }
    void ampelnRoff(int lampe) { rote_lampen(lampe, false); }
    /// Shut-off on: the lane loses track power.
    void relais_on(int spur) { bahnstrom(spur, false); }
    /// Shut-off off: the lane has track power.
    void relais_off(int spur) { bahnstrom(spur, true); }

    /// All power off, all lamps red and the chaos lamp lit; and back, with the IO board as it was before. The race
    /// gives the power back itself, as it knows which lanes stay without.
    void chaos_an();
    void chaos_aus();
    /// A lane is home: signal of the IO board.
    void zieleinfahrt_melden();
    /// The signal at the end of the race, on all devices.
    void rennende_signal(bool an);

    /// State at power-up: every output at rest, but the lanes have power in either wiring.
    void einschalten();
    /// Every output of the IO board at rest, as the calibration of the sensors needs it.
    void kalibrieren();
    /// Rest state between races: red off, green on, power on.
    void ruhezustand();
    /// Nobody drives: every lamp and signal out, no lane with power.
    void stillstand();
    /// Lamps, track power and signals as they stand, once more: for a device that was away.
    void wiederholen();
    /// From now on nothing reaches a device, until it does again: then all as it stands by then.
    void stillhalten();
    void aufleben();

private:
    static constexpr std::size_t plaetze = 5;
    static constexpr std::size_t ausgaenge_max = 16;  ///< lamps, lanes, signals, and once all lamps and all lanes

    ausgabe_geraet*& an(ausgabe_platz platz) { return geraete_.at(static_cast<std::size_t>(platz)); }
    void gruene_lampe(bool an);
    void rote_lampen(int lampe, bool an);
    void bahnstrom(int spur, bool strom);
    void geraete_schalten(const schaltung& befehl);
    void an_geraete(const schaltung& befehl) const;

    const einstellungen& einst_;
    std::array<ausgabe_geraet*, plaetze> geraete_{};
    bool still_ = false;
    std::vector<schaltung> stand_;  ///< the last switching of each output; one of all of them takes their place
};

}  // namespace tarvel
