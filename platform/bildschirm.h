#pragma once

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

struct groesse_px {
    int breite = 0;
    int hoehe = 0;
};

class bildschirm : public schnittstelle {
public:
    /// The whole screen that the windows open on.
    virtual groesse_px groesse() const = 0;
};

}  // namespace tarvel::plattform
