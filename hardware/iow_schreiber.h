#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <span>

#include "hardware/iow_bericht.h"
#include "hardware/iow_platine.h"
#include "hardware/uebergabe.h"
#include "platform/abtaster.h"

namespace tarvel {

/// Writes the reports of an open board, in their order, on a thread of its own: a report takes milliseconds, and a
/// board that hangs takes for ever. Neither may hold up the race, or the look at the contacts.
class iow_schreiber {
public:
    iow_schreiber(const iow_platine& platine, plattform::abtaster_dienst& abtaster)
        : platine_(platine), abtaster_(abtaster) {}
    iow_schreiber(const iow_schreiber&) = delete;
    iow_schreiber& operator=(const iow_schreiber&) = delete;
    ~iow_schreiber() { anhalten(); }

    /// The board has opened.
    void anfangen();
    /// Before it closes. Waits for a report under way; what still waits is written, until the board refuses one.
    void anhalten();

    /// False if the board has refused one since it opened, or is so far behind that there is no room.
    bool geben(std::span<const std::uint8_t> bericht);
    /// The board has refused a report: it is gone.
    bool verweigert() const { return verweigert_; }
    /// How many reports have been written, or refused, since it opened; and whether that were all.
    std::size_t erledigt() const { return erledigt_; }
    bool fertig() const { return erledigt_ == gegeben_; }

private:
    static constexpr std::size_t wartende_max = 64;

    void wartende_schreiben();

    const iow_platine& platine_;
    plattform::abtaster_dienst& abtaster_;
    uebergabe<iow_bericht::bytes, wartende_max> wartende_;
    std::size_t gegeben_ = 0;
    std::atomic<std::size_t> erledigt_ = 0;
    std::atomic<bool> verweigert_ = false;
    std::unique_ptr<schnittstelle> faden_;  ///< none while the board is closed
};

}  // namespace tarvel
