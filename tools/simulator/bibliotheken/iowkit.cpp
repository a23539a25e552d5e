// Stands in for the library of the IO board, with a track behind it.

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <deque>
#include <thread>

#include "tools/simulator/bibliotheken/rufe.h"
#include "tools/simulator/brettlauf.h"

namespace {

using namespace tarvel::simulator;

constexpr std::uint32_t bericht_groesse = 5;
constexpr std::uint32_t iow_40 = 5376;

struct platine {
    brettlauf lauf{iow_werksverdrahtung};
    std::deque<std::uint32_t> berichte;  ///< pins that are low, as nobody has read yet; only with the board

    void kontakte_berichten(kontaktbrett& brett) {
        for (const std::uint32_t kontakte : brett.aenderungen()) {
            berichte.push_back(kontakte | brett.geschaltet());
        }
    }
};

std::atomic<bool> haengt = false;

platine& die_platine() {
    static platine eine;
    return eine;
}

}  // namespace

TARVEL_RUF void* IowKitOpenDevice() {
    platine& p = die_platine();
    const auto vergessen = [&p](kontaktbrett& brett) {  // who opens it hears of what changes from then on
        brett.aenderungen();
        p.berichte.clear();
    };
    return p.lauf.mit_brett(vergessen) ? &p : nullptr;
}

TARVEL_RUF void IowKitCloseDevice(void* /*geraet*/) {}

TARVEL_RUF std::uint32_t IowKitGetNumDevs() {
    return die_platine().lauf.mit_brett([](kontaktbrett&) {}) ? 1 : 0;
}

TARVEL_RUF void* IowKitGetDeviceHandle(std::uint32_t nummer) {
    return IowKitGetNumDevs() >= nummer && nummer == 1 ? &die_platine() : nullptr;
}

TARVEL_RUF std::uint32_t IowKitGetProductId(void* geraet) {
    return geraet != nullptr ? iow_40 : 0;
}

TARVEL_RUF std::uint32_t IowKitGetSerialNumber(void* geraet, void* ziel) {
    constexpr char16_t nummer[] = u"00001234";
    if (geraet == nullptr) {
        return 0;
    }
    std::memcpy(ziel, nummer, sizeof nummer);
    return 1;
}

TARVEL_RUF std::uint32_t IowKitReadNonBlocking(void* geraet, std::uint32_t pipe, void* ziel, std::uint32_t laenge) {
    if (geraet == nullptr || pipe != 0 || laenge < bericht_groesse) {
        return 0;
    }
    bool gelesen = false;
    platine& p = die_platine();
    p.lauf.mit_brett([&](kontaktbrett& brett) {
        p.kontakte_berichten(brett);
        if (p.berichte.empty()) {
            return;
        }
        const std::uint32_t pins = ~p.berichte.front();
        p.berichte.pop_front();
        const unsigned char bericht[bericht_groesse] = {
            0, static_cast<unsigned char>(pins), static_cast<unsigned char>(pins >> 8),
            static_cast<unsigned char>(pins >> 16), static_cast<unsigned char>(pins >> 24)};
        std::memcpy(ziel, bericht, sizeof bericht);
        gelesen = true;
    });
    return gelesen ? bericht_groesse : 0;
}

/// An output that is switched changes its pin, and that is reported like a contact.
TARVEL_RUF std::uint32_t IowKitWrite(void* geraet, std::uint32_t pipe, void* quelle, std::uint32_t laenge) {
    while (haengt) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    if (geraet == nullptr || pipe != 0 || laenge < bericht_groesse) {
        return 0;
    }
    unsigned char bericht[bericht_groesse];
    std::memcpy(bericht, quelle, sizeof bericht);
    const std::uint32_t pins = bericht[1] | static_cast<std::uint32_t>(bericht[2]) << 8 |
                               static_cast<std::uint32_t>(bericht[3]) << 16 |
                               static_cast<std::uint32_t>(bericht[4]) << 24;
    platine& p = die_platine();
    const bool da = p.lauf.mit_brett([&](kontaktbrett& brett) {
        p.kontakte_berichten(brett);
        const std::uint32_t vorher = brett.geschaltet();
        brett.schalten(~pins);
        if (brett.geschaltet() != vorher) {
            p.berichte.push_back(brett.kontakte() | brett.geschaltet());
        }
    });
    return da ? bericht_groesse : 0;
}

TARVEL_RUF void SimulatorEinstellen(const char* optionen) {
    die_platine().lauf.einstellen(optionen, true);
}

/// Whoever writes to the board waits until it no longer hangs.
TARVEL_RUF void SimulatorHaengen(int nun) {
    haengt = nun != 0;
}

TARVEL_RUF void SimulatorStecken(int steckt) {
    die_platine().lauf.stecker(steckt != 0);
}

TARVEL_RUF int SimulatorRunden(int wagen, int* zeiten, int platz) {
    return die_platine().lauf.runden(wagen, zeiten, platz);
}
