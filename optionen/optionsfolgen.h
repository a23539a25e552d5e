#pragma once

#include "platform/schnittstelle.h"

namespace tarvel {

/// What has to follow in the program when the options have changed something.
class optionsfolgen : public schnittstelle {
public:
    /// Writes the current settings file; false after a failure.
    virtual bool einstellungen_speichern() = 0;
    /// New values are in force: lists, colours, pictures of the main window.
    virtual void einstellungen_uebernommen() = 0;
    /// The timing hardware is another one, or reached another way.
    virtual void hardware_starten() = 0;
};

}  // namespace tarvel
