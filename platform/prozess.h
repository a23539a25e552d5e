#pragma once

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

class prozess : public schnittstelle {
public:
    /// False if this user already runs the program; the first call decides for the life of the process.
    virtual bool ist_einzige_instanz() = 0;
    /// Leaves the event loop.
    virtual void beenden() = 0;
};

}  // namespace tarvel::plattform
