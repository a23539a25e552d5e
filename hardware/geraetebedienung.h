#pragma once

#include <string>

#include "platform/schnittstelle.h"

namespace tarvel {

class messgeraet;

/// What a timing device asks of the operator's side.
class geraetebedienung : public schnittstelle {
public:
    /// A device boots (true), or is ready: meanwhile no race starts.
    virtual void wartehinweis(bool an) = 0;
    /// A race window opens without its device.
    virtual void port_fehlt(const std::string& meldung) = 0;
    /// The device cannot be opened: the message, and back to the keyboard alone.
    virtual void nicht_zu_oeffnen(messgeraet& geraet, const std::string& meldung) = 0;
    /// The device was unplugged.
    virtual void verloren() = 0;
};

}  // namespace tarvel
