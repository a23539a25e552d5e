#pragma once

#include "platform/schnittstelle.h"

namespace tarvel {

struct einstellungen;

/// What has to follow in the program when the options have changed something.
class optionsfolgen : public schnittstelle {
public:
    /// Writes the current settings file; false after a failure.
    virtual bool einstellungen_speichern() = 0;
    /// New values are in force: lists, colours, pictures of the main window, and the wiring of the outputs.
    virtual void einstellungen_uebernommen(const einstellungen& vorher) = 0;
    /// The window has gone: a picture may be another one.
    virtual void optionen_geschlossen() = 0;
    /// The timing hardware is another one, or reached another way.
    virtual void hardware_starten() = 0;
};

}  // namespace tarvel
