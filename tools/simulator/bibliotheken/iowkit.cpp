// Stands in for the library of the IO board, with a track behind it.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <deque>

#include "tools/simulator/bibliotheken/rufe.h"
#include "tools/simulator/brettlauf.h"

namespace {

using namespace tarvel::simulator;

constexpr std::uint32_t bericht_groesse = 5;
constexpr std::uint32_t iow_40 = 5376;

struct platine {
    brettlauf lauf{iow_werksverdrahtung};
    std::deque<std::uint32_t> berichte;  ///< that nobody has read yet; only with the board
};

platine& die_platine() {
    static platine eine;
    return eine;
}

}  // namespace

TARVEL_RUF void* IowKitOpenDevice() {
    platine& p = die_platine();
    return p.lauf.mit_brett([](kontaktbrett&) {}) ? &p : nullptr;
}

TARVEL_RUF void IowKitCloseDevice(void* /*geraet*/) {}

TARVEL_RUF std::uint32_t IowKitGetNumDevs() {
    return die_platine().lauf.mit_brett([](kontaktbrett&) {}) ? 1 : 0;
}

TARVEL_RUF void* IowKitGetDeviceHandle(std::uint32_t nummer) {
    return nummer == 1 ? IowKitOpenDevice() : nullptr;
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

/// A report tells the pins as they are: an output that is active is low too.
TARVEL_RUF std::uint32_t IowKitReadNonBlocking(void* geraet, std::uint32_t pipe, void* ziel, std::uint32_t laenge) {
    if (geraet == nullptr || pipe != 0 || laenge < bericht_groesse) {
        return 0;
    }
    bool gelesen = false;
    die_platine().lauf.mit_brett([&](kontaktbrett& brett) {
        std::deque<std::uint32_t>& berichte = die_platine().berichte;
        for (const std::uint32_t kontakte : brett.aenderungen()) {
            berichte.push_back(kontakte);
        }
        if (berichte.empty()) {
            return;
        }
        const std::uint32_t pins = ~(berichte.front() | brett.geschaltet());
        berichte.pop_front();
        const unsigned char bericht[bericht_groesse] = {
            0, static_cast<unsigned char>(pins), static_cast<unsigned char>(pins >> 8),
            static_cast<unsigned char>(pins >> 16), static_cast<unsigned char>(pins >> 24)};
        std::memcpy(ziel, bericht, sizeof bericht);
        gelesen = true;
    });
    return gelesen ? bericht_groesse : 0;
}

TARVEL_RUF std::uint32_t IowKitWrite(void* geraet, std::uint32_t pipe, void* quelle, std::uint32_t laenge) {
    if (geraet == nullptr || pipe != 0 || laenge < bericht_groesse) {
        return 0;
    }
    unsigned char bericht[bericht_groesse];
    std::memcpy(bericht, quelle, sizeof bericht);
    const std::uint32_t pins = bericht[1] | static_cast<std::uint32_t>(bericht[2]) << 8 |
                               static_cast<std::uint32_t>(bericht[3]) << 16 |
                               static_cast<std::uint32_t>(bericht[4]) << 24;
    return die_platine().lauf.mit_brett([&](kontaktbrett& brett) { brett.schalten(~pins); }) ? bericht_groesse : 0;
}

TARVEL_RUF void SimulatorEinstellen(const char* optionen) {
    die_platine().lauf.einstellen(optionen, true);
}

TARVEL_RUF void SimulatorStecken(int steckt) {
    die_platine().lauf.stecker(steckt != 0);
}

TARVEL_RUF int SimulatorRunden(int wagen, int* zeiten, int platz) {
    return die_platine().lauf.runden(wagen, zeiten, platz);
}
