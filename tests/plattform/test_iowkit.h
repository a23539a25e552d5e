#pragma once

#include <array>
#include <atomic>
#include <cassert>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <thread>

#include "tests/plattform/test_bibliotheken.h"

namespace tarvel::test {

/// The IO board's library on a script, with one board. One at a time, as its calls know no other.
class test_iowkit {
public:
    test_iowkit() {
        assert(eines_ == nullptr);
        eines_ = this;
    }
    test_iowkit(const test_iowkit&) = delete;
    test_iowkit& operator=(const test_iowkit&) = delete;
    ~test_iowkit() { eines_ = nullptr; }

    /// Before the program that calls it, as it must outlive that.
    void eintragen(test_bibliotheken& bibliotheken) const {
        const auto ruf = [&](const char* name, auto* funktion) { bibliotheken.ruf("iowkit", name, funktion); };
        ruf("IowKitOpenDevice", oeffnen);
        ruf(
            "IowKitCloseDevice", +[](void*) {
                if (eines_ != nullptr) {
                    ++eines_->schliessungen;
                }
            });
        ruf(
            "IowKitGetNumDevs", +[]() -> std::uint32_t { return da() ? 1 : 0; });
        ruf(
            "IowKitGetDeviceHandle", +[](std::uint32_t) { return oeffnen(); });
        ruf(
            "IowKitGetProductId", +[](void*) { return da() ? eines_->produkt : 0; });
        ruf(
            "IowKitGetSerialNumber", +[](void*, void*) { return std::uint32_t{0}; });
        ruf("IowKitReadNonBlocking", lesen);
        ruf("IowKitWrite", schreiben);
    }

    bool steckt = true;
    std::uint32_t produkt = 5376;
    std::uint32_t gelesen = 5;   ///< what a read says if there is a report
    std::uint32_t kontakte = 0;  ///< closed ones
    std::uint32_t gemeldet = 0;  ///< as last read
    std::array<std::uint8_t, 8> ausgang{};
    std::uint32_t laenge = 0;  ///< of the last report written
    std::atomic<int> schliessungen = 0;
    std::atomic<bool> haengt = false;  ///< a report takes as long as that

private:
    /// The program may have the library open longer than its script.
    static bool da() { return eines_ != nullptr && eines_->steckt; }
    static void* oeffnen() { return da() ? eines_ : nullptr; }
    static std::uint32_t lesen(void* /*handle*/, std::uint32_t /*pipe*/, void* ziel, std::uint32_t laenge) {
        if (!da() || eines_->kontakte == eines_->gemeldet) {
            return 0;
        }
        eines_->gemeldet = eines_->kontakte;
        const std::uint32_t pins = ~eines_->kontakte;
        const std::array<std::uint8_t, 8> bericht{
            0, static_cast<std::uint8_t>(pins), static_cast<std::uint8_t>(pins >> 8),
            static_cast<std::uint8_t>(pins >> 16), static_cast<std::uint8_t>(pins >> 24)};
        std::memcpy(ziel, bericht.data(), laenge);
        return eines_->gelesen;
    }
    static std::uint32_t schreiben(void* /*handle*/, std::uint32_t /*pipe*/, void* quelle, std::uint32_t laenge) {
        while (eines_->haengt) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        eines_->laenge = laenge;
        std::memcpy(eines_->ausgang.data(), quelle, laenge);
        return eines_->steckt ? laenge : 0;
    }

    static inline test_iowkit* eines_ = nullptr;
};

}  // namespace tarvel::test
