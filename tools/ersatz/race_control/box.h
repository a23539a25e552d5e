#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>

#include "tools/ersatz/race_control/draht.h"
#include "tools/simulator/geraet.h"

namespace tarvel::simulator {

struct rc_box_einstellung {
    rennen_einstellung rennen;     ///< lanes 1 to 4; more are left out
    std::int64_t ticks_start = 0;  ///< what the box's clock shows besides, in ticks: it may stand close to its end
    zeit_ms belegt = 30;           ///< ms that a car takes to leave a sensor
    zeit_ms ziel34 = 0;            ///< ms from sensor 1 or 2 to 3 or 4 behind it; 0: no cars cross these too
};

/// A Race Control box: four sensors, one a lane, and no outputs. So it sees no start light: whoever plays the cars says
/// when these may go.
class rc_box final : public geraet {
public:
    static constexpr int spuren = 4;

    explicit rc_box(const rc_box_einstellung& einst);

    void empfangen(std::string_view bytes) override;
    /// The line is there, and the box asks for its settings. Its clock goes on.
    void verbunden() override;
    /// Switched off and on: the clock begins anew.
    void neustart();
    /// The light turns red, or green.
    void rot() { feld_.rot(); }
    void los();
    /// Everybody back to the grid.
    void aufstellen() { feld_.aufstellen(); }

    std::function<void()> bei_schritt;  ///< each millisecond
    bool aktiv() const { return aktiv_; }

private:
    struct kontakt {
        zeit_ms um = 0;  ///< of the box's clock; 0 none
        bool belegt = false;
    };

    void schritt() override;
    void wagen_meldet(const wagen_ereignis& was) override;
    void melden_satz(rc_draht::art art, int sensor);
    std::uint32_t ticks() const;
    void kontakte_fortsetzen();

    rc_box_einstellung einst_;
    bool aktiv_ = false;
    rc_draht::frage offen_ = rc_draht::frage::wer;
    std::array<kontakt, spuren> verlassen_{};  ///< when the car leaves the sensor
    std::array<zeit_ms, 2> zweite_linie_{};    ///< when it comes to the sensor behind; 0 none
};

}  // namespace tarvel::simulator
