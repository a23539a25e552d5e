#pragma once

#include "platform/schnittstelle.h"

namespace tarvel {

/// What a competition needs of the program around it.
class wettkampfumfeld : public schnittstelle {
public:
    virtual void fahrerverwaltung_oeffnen() = 0;
    virtual void bahnstrom_von_hand(bool an) = 0;
};

}  // namespace tarvel
