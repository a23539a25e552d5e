#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <random>
#include <vector>

#include "platform/uhr.h"

namespace tarvel::simulator {

/// How a car drives. Places on the track are thousandths of a lap behind the finish line.
struct wagen_einstellung {
    zeit_ms rundenzeit = 8000;              ///< ms, at least 100
    zeit_ms streuung = 300;                 ///< ms; a lap lies at most this much to either side of `rundenzeit`
    zeit_ms anfahrt = 400;                  ///< ms from the place on the grid to the finish line
    std::array<int, 2> sektoren{333, 667};  ///< places of the sensors 2 and 3; below 0 there is none
    zeit_ms reaktion = 250;                 ///< ms from green to the start
    bool fruehstart = false;                ///< starts while the lamps are red
    zeit_ms fruehstart_nach = 2500;         ///< ms from the first red lamp to such a start
    int verbrauch = 1;                      ///< fuel a lap, in steps of the device's own fuel counter
    int runden_je_stopp = 0;                ///< every how many laps the car stops for fuel; 0 never
    int box = 400;                          ///< place of the stop
    zeit_ms standzeit = 3000;               ///< ms of a stop
    int chaos_promille = 0;                 ///< laps in a thousand in which the driver presses the chaos button
};

/// A car at a sensor. Sensor 1 is the finish line, 2 and 3 are the sectors; the stamp is of the device's clock.
struct ueberfahrt {
    int wagen = 0;
    int sensor = 0;
    zeit_ms stempel = 0;

    bool operator==(const ueberfahrt&) const = default;
};

enum class wagen_art { ueberfahrt, box_ein, box_aus, chaos };

struct wagen_ereignis {
    wagen_art art = wagen_art::ueberfahrt;
    int wagen = 0;  ///< from 1
    int sensor = 0;
};

/// The cars on the track. They drive while they have power and have seen green; without power they stand where they
/// are, and the lap goes on afterwards. Each has a chance of its own, so that a stop of one changes no other's race,
/// and a seed gives the same race on every machine.
class wagenfeld {
public:
    wagenfeld(const std::vector<wagen_einstellung>& wagen, std::uint64_t saat);

    /// Called as a car does something, within `schritt`; may switch power and lamps.
    std::function<void(const wagen_ereignis&)> bei_ereignis;

    int anzahl() const { return static_cast<int>(wagen_.size()); }
    /// Power of a car from 1, or of all with 0. Other numbers are ignored.
    void strom(int wagen, bool an);
    /// Everybody back to the grid, to wait for green.
    void aufstellen();
    /// The first red lamp: the false starters' moment counts from here.
    void rot();
    /// The lamps go out before green; who has not started yet stays.
    void startabbruch();
    /// Who stands goes, each after the own reaction.
    void gruen();
    /// Everybody stops for good.
    void anhalten();
    /// Waits on the grid or behind it, and has not started.
    bool wartet(int wagen) const;
    /// One millisecond up to `jetzt`, the device's clock.
    void schritt(zeit_ms jetzt);

    const std::vector<ueberfahrt>& fahrten() const { return fahrten_; }
    /// How often the cars were lined up.
    int aufstellungen() const { return aufstellungen_; }

private:
    struct marke {
        zeit_ms bei = 0;  ///< ms of driving since the lap began
        wagen_ereignis was;
    };
    struct lage {
        wagen_einstellung einst;
        std::mt19937_64 zufall;
        bool strom = false;
        bool los = false;
        zeit_ms bis_los = -1;  ///< ms; below 0 no start is in sight
        zeit_ms gefahren = 0;  ///< ms of this lap
        int seit_stopp = 0;    ///< laps
        std::vector<marke> marken;
        std::size_t naechste = 0;
    };

    static zeit_ms ziehen(lage& w, zeit_ms bis);
    void runde_beginnen(int nummer, lage& w);
    void fahren(int nummer, lage& w, zeit_ms jetzt);

    std::vector<lage> wagen_;
    std::vector<ueberfahrt> fahrten_;
    int aufstellungen_ = 0;
};

}  // namespace tarvel::simulator
