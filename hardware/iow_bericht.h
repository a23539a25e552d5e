#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>

#include "hardware/ereignisse.h"

namespace tarvel {

/// Which bit of the IO board's report means which event or output.
class iow_belegung {
public:
    /// `iow_port` is a byte of the report, 1 to 4; `iow_maske` is one of its bits. Both are 0 for what has no place on
    /// the board.
    struct stelle {
        int iow_port = 0;
        std::uint8_t iow_maske = 0;
    };

    /// The factory assignment: numbers 1 to 32 on the pins in order.
    iow_belegung();

    void leeren() { stellen_ = {}; }
    /// Numbers outside 1 to 59 and pins from 32 on assign nothing.
    void zuweisen(ereignis_art nummer, std::size_t pin);
    stelle operator[](ereignis_art nummer) const { return stellen_.at(static_cast<std::size_t>(nummer)); }

private:
    std::array<stelle, 60> stellen_{};
};

/// The image of the IO board's output report. It is kept and written in every mode: without a board the write fails.
/// An output is active while its bit is 0.
class iow_bericht {
public:
    /// Byte 0 is the report number, always 0; the ports follow.
    using bytes = std::array<std::uint8_t, 8>;
    static constexpr bytes in_ruhe{0, 255, 255, 255, 255, 255, 255, 255};

    iow_belegung belegung;
    /// Hands the report to the board, false if that failed. Empty without a board.
    std::function<bool(std::span<const std::uint8_t>)> senden;

    void schalten(ereignis_art nummer, bool an);
    void ruhe() { iow_ausgang_ = in_ruhe; }
    /// Keeps the image as it is, for `wiederherstellen`.
    void sichern() { iow_ausgang_sicherung_ = iow_ausgang_; }
    void wiederherstellen() { iow_ausgang_ = iow_ausgang_sicherung_; }

    void schreiben() { iow_schreibfehler_ = !senden || !senden(steht_.value_or(iow_ausgang_)); }
    /// The board keeps what it has, whatever becomes of the image meanwhile.
    void festhalten(bool fest) { steht_ = fest ? std::optional(iow_ausgang_) : std::nullopt; }
    bool iow_schreibfehler() const { return iow_schreibfehler_; }

    const bytes& iow_ausgang() const { return iow_ausgang_; }
    bool ist_an(ereignis_art nummer) const;

private:
    bytes iow_ausgang_ = in_ruhe;
    bytes iow_ausgang_sicherung_ = in_ruhe;
    std::optional<bytes> steht_;
    bool iow_schreibfehler_ = false;
};

}  // namespace tarvel
