#pragma once

#include <optional>

#include "hardware/ausgaben.h"
#include "hardware/messquelle.h"

namespace tarvel {

/// A timing device with its life. While it is chosen it delivers events and takes outputs, also before it is open and
/// after it was lost.
class messgeraet : public messquelle, public ausgabe_geraet {
public:
    virtual hardware_art welches() const = 0;
    /// Where it stands among the outputs; none for a device without outputs.
    virtual std::optional<ausgabe_platz> ausgabeplatz() const { return std::nullopt; }

    /// Closes what was open and opens it anew as the settings have it; false if they name nothing that is there.
    virtual bool oeffnen() = 0;
    virtual void schliessen() = 0;
    /// It was open, and is gone: looks whether it is there again, and goes on where it was. Says nothing if it is not.
    virtual void wieder_aufnehmen() {}
    /// It can be heard.
    virtual bool verbunden() const = 0;
    /// The operator has to wait until it is ready, and has to see for what.
    virtual bool haelt_auf() const { return false; }

    void schalten(const schaltung& /*befehl*/) override {}
};

}  // namespace tarvel
