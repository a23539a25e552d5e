// Stands in for the library of the printer port: the registers of LPT1, with a track behind them.

#include <array>
#include <cstddef>
#include <cstdint>

#include "tools/simulator/bibliotheken/rufe.h"
#include "tools/simulator/brettlauf.h"

namespace {

using namespace tarvel::simulator;

constexpr unsigned basis = 0x378;
constexpr std::uint32_t offene_leitungen = 0x1F;  // the port pulls them up where no plug is

struct port {
    port() {
        bytes.fill(0xFF);  // where nothing is, nothing pulls the bus low
        bytes.at(basis) = 0;
        bytes.at(basis + 2) = 0x0C;
    }
    brettlauf lauf{lpt_verdrahtung};
    std::array<std::uint8_t, 65536> bytes;
};

port& der_port() {
    static port einer;
    return einer;
}

/// Lines at the connector to bits of the register; the port itself turns the second one over.
std::uint8_t statusregister(std::uint32_t kontakte) {
    constexpr std::array<unsigned, 5> bits{6, 7, 5, 4, 3};
    unsigned wert = 0;
    for (std::size_t linie = 0; linie < bits.size(); ++linie) {
        wert |= (kontakte >> linie & 1U) << bits.at(linie);
    }
    return static_cast<std::uint8_t>(wert ^ 0x80U);
}

}  // namespace

TARVEL_RUF short Inp32(short adresse) {
    port& p = der_port();
    const unsigned ort = static_cast<std::uint16_t>(adresse);
    if (ort == basis + 1) {
        std::uint32_t kontakte = offene_leitungen;
        p.lauf.mit_brett([&](const kontaktbrett& brett) { kontakte = brett.kontakte(); });
        return statusregister(kontakte);
    }
    return p.bytes.at(ort);
}

TARVEL_RUF void Out32(short adresse, short wert) {
    port& p = der_port();
    const unsigned ort = static_cast<std::uint16_t>(adresse);
    p.bytes.at(ort) = static_cast<std::uint8_t>(wert);
    if (ort == basis) {
        p.lauf.mit_brett([&](kontaktbrett& brett) { brett.schalten(static_cast<std::uint8_t>(wert)); });
    }
}

TARVEL_RUF void SimulatorEinstellen(const char* optionen) {
    der_port().lauf.einstellen(optionen, true);
}

TARVEL_RUF void SimulatorStecken(int steckt) {
    der_port().lauf.stecker(steckt != 0);
}

TARVEL_RUF int SimulatorRunden(int wagen, int* zeiten, int platz) {
    return der_port().lauf.runden(wagen, zeiten, platz);
}
