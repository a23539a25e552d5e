#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/bibliothek.h"

namespace tarvel {

/// The library of the FTDI chips: a box behind a USB cable that looks like a line. Each call gives a status.
class ftd2xx {
public:
    using status = std::uint32_t;
    using wort = std::uint32_t;  ///< 32 bits on every system
    using griff = void*;         ///< an open device
    using byte = std::uint8_t;

    static constexpr status gut = 0;
    static constexpr status ein_ausgabe_fehler = 4;

    /// Empty if every call is there; else the name of the library, or of the first call that it lacks. Once found it
    /// stays loaded.
    std::string laden(plattform::bibliothek_dienst& bibliotheken);

    /// Number of the devices; a failure has a status other than `gut`.
    status anzahl(wort& geraete) const;
    /// Description of the device with this number, from 0.
    status beschreibung(wort nummer, std::string& text) const;
    status oeffnen(int nummer, griff& geraet) const { return open_(nummer, &geraet); }
    status schliessen(griff geraet) const { return close_(geraet); }
    status baudrate(griff geraet, wort wert) const { return baud_(geraet, wert); }
    /// 8 data bits, one stop bit, no parity.
    status format_8n1(griff geraet) const;
    status ohne_flusskontrolle(griff geraet) const;
    status fristen(griff geraet, wort lesen_ms, wort schreiben_ms) const {
        return fristen_(geraet, lesen_ms, schreiben_ms);
    }
    /// What has been received is handed over with this character at the latest.
    status abgeben_bei(griff geraet, byte zeichen) const { return zeichen_(geraet, zeichen, 1, 0, 0); }
    /// Bytes that wait.
    status wartende(griff geraet, wort& bytes) const { return wartende_(geraet, &bytes); }
    status lesen(griff geraet, char* ziel, wort hoechstens, wort& gelesen) const {
        return lesen_(geraet, ziel, hoechstens, &gelesen);
    }
    /// False also if not all of it could be written.
    bool schreiben(griff geraet, const std::string& bytes) const;

private:
    std::unique_ptr<plattform::bibliothek> bibliothek_;
    status (*liste_)(void*, void*, wort) = nullptr;
    status (*open_)(int, griff*) = nullptr;
    status (*close_)(griff) = nullptr;
    status (*lesen_)(griff, void*, wort, wort*) = nullptr;
    status (*schreiben_)(griff, void*, wort, wort*) = nullptr;
    status (*baud_)(griff, wort) = nullptr;
    status (*format_)(griff, byte, byte, byte) = nullptr;
    status (*fluss_)(griff, std::uint16_t, byte, byte) = nullptr;
    status (*fristen_)(griff, wort, wort) = nullptr;
    status (*zeichen_)(griff, byte, byte, byte, byte) = nullptr;
    status (*wartende_)(griff, wort*) = nullptr;
};

}  // namespace tarvel
