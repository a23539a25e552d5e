#include "hardware/iow_platine.h"

#include <algorithm>

#include "hardware/iow_pins.h"

namespace tarvel {
namespace {

constexpr std::uint32_t pipe = 0;  // of the port pins
constexpr std::size_t bericht_max = 8;

}  // namespace

bool iow_platine::iow_oeffnen() {
    schliessen();
    if (!bibliothek_->laden() || bibliothek_->belegt()) {
        return false;
    }
    const handle erstes = ruf().IowKitOpenDevice();
    if (erstes == nullptr) {
        ruf().IowKitCloseDevice(erstes);
        return false;
    }
    const std::size_t anzahl = std::min<std::size_t>(ruf().IowKitGetNumDevs(), geraete_max);
    for (std::size_t i = 0; i < anzahl; ++i) {
        iow_handle_.at(i) = ruf().IowKitGetDeviceHandle(static_cast<std::uint32_t>(i + 1));
    }
    if (iow_handle_.front() == nullptr) {
        iow_handle_.front() = erstes;
    }
    std::array<char, 64> seriennummer{};  // some boards answer nothing else before they were asked for it
    ruf().IowKitGetSerialNumber(iow_handle(), seriennummer.data());
    iow_typ_lesen();
    bibliothek_->belegen(true);
    return true;
}

void iow_platine::iow_typ_lesen() {
    constexpr std::uint32_t iow_24 = 5377;
    constexpr std::uint32_t iow_56 = 5379;
    const std::uint32_t produkt = ruf().IowKitGetProductId(iow_handle());
    iow_berichtgroesse_ = produkt == iow_24 ? 3 : produkt == iow_56 ? bericht_max : 5;
}

void iow_platine::schliessen() {
    if (offen()) {
        ruf().IowKitCloseDevice(iow_handle());
        bibliothek_->belegen(false);
    }
    iow_handle_ = {};
    iow_berichtgroesse_ = 0;
}

bool iow_platine::lesen(std::uint32_t& linien) const {
    std::array<std::uint8_t, bericht_max> iow_eingang{};
    const auto groesse = static_cast<std::uint32_t>(iow_berichtgroesse_);
    if (!offen() || ruf().IowKitReadNonBlocking(iow_handle(), pipe, iow_eingang.data(), groesse) != groesse) {
        return false;
    }
    const std::size_t letzter = std::min<std::size_t>(iow_berichtgroesse_ - 1, iow_ports);
    std::uint32_t neu = 0;
    for (std::size_t port = 0; port < letzter; ++port) {
        const auto geschlossen = static_cast<std::uint8_t>(~iow_eingang.at(port + 1));
        neu |= static_cast<std::uint32_t>(geschlossen) << (port * iow_bits_je_port);
    }
    linien = neu;
    return true;
}

bool iow_platine::schreiben(std::span<const std::uint8_t> iow_ausgang) const {
    std::array<std::uint8_t, bericht_max> bytes{};
    bytes.fill(255);
    std::copy_n(iow_ausgang.begin(), std::min(iow_ausgang.size(), bytes.size()), bytes.begin());
    bytes.front() = 0;
    return offen() && ruf().IowKitWrite(iow_handle(), pipe, bytes.data(),
                                        static_cast<std::uint32_t>(iow_berichtgroesse_)) == iow_berichtgroesse_;
}

}  // namespace tarvel
