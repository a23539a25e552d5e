#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/bibliothek.h"

namespace tarvel {

/// The vendor's library of the Race Control box: it alone knows what the bytes on the line mean. It keeps what has come
/// in for all of its boxes in one place, so there is one box a program.
class rc_bibliothek {
public:
    /// As the vendor's file is called, without prefix and suffix.
    static constexpr std::string_view dateiname = "RaceControl";

    explicit rc_bibliothek(plattform::bibliothek_dienst& dienst) : dienst_(dienst) {}

    /// Loads it, and has it get ready, unless it is loaded already. False if the machine has none, or one that lacks a
    /// call.
    bool laden();
    /// The first call that the library lacks; empty where all are there, or there is no library at all.
    const std::string& fehlender_ruf() const { return fehlt_; }

    // The calls themselves, of a loaded library.

    /// Handle for the box at the port "COM1"; below 0 there is none.
    int box_oeffnen(const std::string& port) const;
    /// Feeds a byte. The status is what its hexadecimal digits say: 0x8003 is "8003".
    unsigned byte_geben(int box, char byte) const;
    /// Event word: code in the high byte, sensor from 0 in the low two bits.
    std::optional<unsigned> ereignis() const;
    /// What is to be sent to the box next.
    std::string sendedaten() const;
    /// The box's clock, which counts `ticks_je_sekunde` and begins anew at 2^32.
    std::uint32_t stempel() const;

private:
    struct rufe {
        void (*InitBoxes)();
        std::int32_t (*OpenBox)(std::int32_t box, const char* name);
        std::int32_t (*RX_data)(std::int32_t box, std::int32_t byte);
        std::uint8_t (*Get_Event)(std::int32_t* ereignis);  ///< its truth value, of whatever width: the low byte tells
        std::int32_t (*Get_TXDat)(char* daten);             ///< number of bytes that it has put there
        std::uint32_t (*Get_TStamp)(std::int32_t box);
    };

    plattform::bibliothek_dienst& dienst_;
    std::unique_ptr<plattform::bibliothek> geladen_;
    rufe rufe_{};
    std::string fehlt_;
};

}  // namespace tarvel
