#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "hardware/iow_bibliothek.h"
#include "hardware/kontaktproben.h"
#include "platform/abtaster.h"
#include "platform/dauer.h"

namespace tarvel {

/// The line to the IO board. Threads of its own have the board: one looks at the contacts, another writes the reports,
/// in their order. A report takes milliseconds, and a board that hangs takes for ever: neither may hold up the race, a
/// window, or the look at the contacts.
class iow_leitung {
public:
    static constexpr dauer_ms nachsehen_alle{50};

    /// What `nachsehen` has found.
    enum class befund {
        nichts,
        faellig,      ///< a second is over: a report of its own shows whether the board is still there, or again
        abgezogen,    ///< it has refused one
        haengt,       ///< it has taken none for a second
        nimmt_wieder  ///< and takes them again; there may have been no room for the last one
    };

    iow_leitung(std::shared_ptr<iow_bibliothek> bibliothek, plattform::abtaster_dienst& abtaster);
    iow_leitung(const iow_leitung&) = delete;
    iow_leitung& operator=(const iow_leitung&) = delete;
    ~iow_leitung() { schliessen(); }

    /// False if the machine has no library or no board, or if that is still busy with somebody else. Who only switches
    /// gives no `proben`.
    bool oeffnen(const std::shared_ptr<kontaktproben>& proben);
    /// What still waits is written, until the board refuses one. Waits for that, but not for a board that hangs: this
    /// one is left to its threads, and closed as soon as they come back.
    void schliessen();
    bool offen() const { return brett_ != nullptr; }
    const iow_bibliothek& bibliothek() const { return *bibliothek_; }
    /// Of an open board: bytes of a report.
    std::size_t iow_berichtgroesse() const;

    /// False if the board has refused a report since it opened, or is so far behind that there is no room.
    bool schreiben(std::span<const std::uint8_t> bericht);
    /// It takes no more reports.
    bool haengt() const { return haengt_; }
    /// To be called each `nachsehen_alle`, also while there is no board.
    befund nachsehen();

private:
    struct brett;

    std::shared_ptr<iow_bibliothek> bibliothek_;
    plattform::abtaster_dienst& abtaster_;
    std::shared_ptr<brett> brett_;  ///< none while it is closed
    std::unique_ptr<schnittstelle> leser_;
    std::unique_ptr<schnittstelle> schreiber_;
    std::size_t gegeben_ = 0;  ///< reports, since it opened
    std::size_t erledigt_davor_ = 0;
    int takte_ = 0;  ///< since the last second was over
    bool haengt_ = false;
};

}  // namespace tarvel
