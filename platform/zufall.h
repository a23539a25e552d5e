#pragma once

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

/// Chance.
class zufall : public schnittstelle {
public:
    /// From 0 up to below 1.
    virtual double bruchteil() = 0;
};

}  // namespace tarvel::plattform
