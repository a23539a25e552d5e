#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "tools/simulator/wagen.h"

namespace tarvel::simulator {

/// What both devices are told of the race that they play.
struct rennen_einstellung {
    std::vector<wagen_einstellung> wagen;  ///< car 1 first
    std::uint64_t saat = 1;
    zeit_ms uhr_start = 0;       ///< ms that the device's clock shows at its first moment
    int gang_ppm = 0;            ///< millionths by which that clock is fast
    zeit_ms chaos_dauer = 8000;  ///< ms from a driver's chaos press to the press that ends it; 0 leaves that to others
    bool sofort = false;         ///< the cars need no start
};

/// A start of fewer lamps is none: the shortest has these.
inline constexpr int lampen_vor_gruen = 3;

/// A timing device on the other end of the line. It has a clock of its own that goes on with `weiter` alone, a
/// millisecond at a time, so that the size of the caller's steps makes no difference.
class geraet {
public:
    /// Cars beyond `wagen_max` do not drive.
    geraet(const rennen_einstellung& rennen, std::size_t wagen_max);
    geraet(const geraet&) = delete;
    geraet& operator=(const geraet&) = delete;
    virtual ~geraet() = default;

    /// Bytes from the program, cut anywhere. Answers go out before it returns.
    virtual void empfangen(std::string_view bytes) = 0;
    /// The program has opened its side of the line.
    virtual void verbunden() {}
    /// The device's time goes on up to `jetzt` in ms of the caller's clock, at its own rate. The first call only sets
    /// that clock against the device's; a clock that goes back is waited for.
    void weiter(zeit_ms jetzt);

    std::function<void(std::string_view)> senden;  ///< bytes to the program
    std::function<void(std::string_view)> melden;  ///< a German line about what was switched or pressed

    /// Passages since the device was made.
    const std::vector<ueberfahrt>& fahrten() const { return feld_.fahrten(); }
    int aufstellungen() const { return feld_.aufstellungen(); }
    /// The device's clock in ms.
    zeit_ms uhr() const { return uhr_; }

protected:
    /// One millisecond has passed on the device's clock, and the cars have moved.
    virtual void schritt() = 0;
    virtual void wagen_meldet(const wagen_ereignis& was) = 0;

    void hinaus(std::string_view bytes) const;
    void sagen(std::string_view zeile) const;
    /// The clock starts anew, as after switching on.
    void uhr_neu() { uhr_ = uhr_start_; }

    wagenfeld feld_;

private:
    zeit_ms uhr_start_;
    zeit_ms uhr_;
    int gang_ppm_;
    zeit_ms beginn_ = 0;     ///< of the caller's clock
    zeit_ms vergangen_ = 0;  ///< on the device's clock since then
    bool gestellt_ = false;
};

}  // namespace tarvel::simulator
