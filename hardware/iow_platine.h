#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "platform/bibliothek.h"

namespace tarvel {

/// The IO board behind its vendor's library.
class iow_platine {
public:
    static constexpr std::size_t geraete_max = 17;

    explicit iow_platine(plattform::bibliothek_dienst& dienst) : dienst_(dienst) {}
    iow_platine(const iow_platine&) = delete;
    iow_platine& operator=(const iow_platine&) = delete;
    ~iow_platine() { schliessen(); }

    /// False if the machine has no library or no board.
    bool iow_oeffnen();
    /// The library stays loaded.
    void schliessen();
    bool offen() const { return iow_handle() != nullptr; }

    /// Of the library: the call that it lacks; "iowkit" if there is none at all, empty if nothing is missing.
    const std::string& es_fehlt() const { return es_fehlt_; }
    /// Bytes of a report: 5 is an IO-Warrior 40, as any other that is not known, 3 a 24, 8 a 56. 0 while it is closed.
    std::size_t iow_berichtgroesse() const { return iow_berichtgroesse_; }

    /// Takes the next input report, if there is one; else the lines stay as they are. One bit a port pin, port 0 first,
    /// set while the contact is closed. Beside this call, on a thread of its own, only `schreiben` may run.
    bool lesen(std::uint32_t& linien) const;
    /// Writes the report's image as far as this board has ports; false if the board is gone.
    bool schreiben(std::span<const std::uint8_t> iow_ausgang) const;

private:
    using handle = void*;
    /// The calls by their published names. Their whole numbers have 32 bits on every system.
    struct rufe {
        handle (*IowKitOpenDevice)() = nullptr;
        void (*IowKitCloseDevice)(handle) = nullptr;
        std::uint32_t (*IowKitGetNumDevs)() = nullptr;
        handle (*IowKitGetDeviceHandle)(std::uint32_t) = nullptr;
        std::uint32_t (*IowKitGetProductId)(handle) = nullptr;
        std::uint32_t (*IowKitGetSerialNumber)(handle, void*) = nullptr;
        std::uint32_t (*IowKitReadNonBlocking)(handle, std::uint32_t, void*, std::uint32_t) = nullptr;
        std::uint32_t (*IowKitWrite)(handle, std::uint32_t, void*, std::uint32_t) = nullptr;
    };

    /// All traffic is with the first board.
    handle iow_handle() const { return iow_handle_.front(); }
    bool bibliothek_laden();
    void iow_typ_lesen();

    plattform::bibliothek_dienst& dienst_;
    std::unique_ptr<plattform::bibliothek> bibliothek_;
    rufe ruf_;
    std::string es_fehlt_;
    std::array<handle, geraete_max> iow_handle_{};
    std::size_t iow_berichtgroesse_ = 0;
};

}  // namespace tarvel
