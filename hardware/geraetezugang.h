#pragma once

#include "platform/schnittstelle.h"

namespace tarvel {

/// What the window of a device needs of the device that is in the race: its port, and that its settings are kept.
class geraetezugang : public schnittstelle {
public:
    /// The window needs the port.
    virtual void geraet_trennen() = 0;
    /// It is free again.
    virtual void geraet_verbinden() = 0;
    /// What the device has told damaged since the program started, and was dropped.
    virtual int verworfene_saetze() const { return 0; }
    /// False if the settings could not be kept.
    virtual bool einstellungen_speichern() = 0;
};

}  // namespace tarvel
