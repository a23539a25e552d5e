#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

#include "platform/bibliothek.h"

namespace tarvel {

/// The library of the IO board's vendor, for all of the program: it may be asked for a board by one at a time.
class iow_bibliothek {
public:
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

    explicit iow_bibliothek(plattform::bibliothek_dienst& dienst) : dienst_(dienst) {}

    /// False if the machine has none, or one that lacks a call. Once found it stays loaded.
    bool laden();
    /// The call that it lacks; "iowkit" if there is none at all, empty if nothing is missing.
    const std::string& es_fehlt() const { return es_fehlt_; }
    const rufe& ruf() const { return ruf_; }

    /// A board is open. Another thread may still be closing it, or hang in a call.
    bool belegt() const { return belegt_; }
    void belegen(bool nun) { belegt_ = nun; }

private:
    plattform::bibliothek_dienst& dienst_;
    std::unique_ptr<plattform::bibliothek> bibliothek_;
    rufe ruf_;
    std::string es_fehlt_;
    std::atomic<bool> belegt_ = false;
};

}  // namespace tarvel
