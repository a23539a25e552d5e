#pragma once

#include "competition/wettkampfabend.h"

namespace tarvel {

/// What a competition needs of the program around it.
class wettkampfumfeld : public bahnumfeld {
public:
    virtual void fahrerverwaltung_oeffnen() = 0;
};

}  // namespace tarvel
