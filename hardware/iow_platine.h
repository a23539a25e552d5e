#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>

#include "hardware/iow_bibliothek.h"

namespace tarvel {

/// The IO board behind its vendor's library.
class iow_platine {
public:
    static constexpr std::size_t geraete_max = 17;

    explicit iow_platine(std::shared_ptr<iow_bibliothek> bibliothek) : bibliothek_(std::move(bibliothek)) {}
    iow_platine(const iow_platine&) = delete;
    iow_platine& operator=(const iow_platine&) = delete;
    ~iow_platine() { schliessen(); }

    /// False if the machine has no library or no board, or if another one is open.
    bool iow_oeffnen();
    void schliessen();
    bool offen() const { return iow_handle() != nullptr; }

    /// Bytes of a report: 5 is an IO-Warrior 40, as any other that is not known, 3 a 24, 8 a 56. 0 while it is closed.
    std::size_t iow_berichtgroesse() const { return iow_berichtgroesse_; }

    /// Takes the next input report, if there is one; else the lines stay as they are. One bit a port pin, port 0 first,
    /// set while the contact is closed. Beside this call, on a thread of its own, only `schreiben` may run.
    bool lesen(std::uint32_t& linien) const;
    /// Writes the report's image as far as this board has ports; false if the board is gone.
    bool schreiben(std::span<const std::uint8_t> iow_ausgang) const;

private:
    using handle = iow_bibliothek::handle;

    /// All traffic is with the first board.
    handle iow_handle() const { return iow_handle_.front(); }
    const iow_bibliothek::rufe& ruf() const { return bibliothek_->ruf(); }
    void iow_typ_lesen();

    std::shared_ptr<iow_bibliothek> bibliothek_;
    std::array<handle, geraete_max> iow_handle_{};
    std::size_t iow_berichtgroesse_ = 0;
};

}  // namespace tarvel
