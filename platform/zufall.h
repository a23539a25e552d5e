#pragma once

namespace tarvel::plattform {

/// Chance.
class zufall {
public:
    virtual ~zufall() = default;
    /// From 0 up to below 1.
    virtual double bruchteil() = 0;
};

}  // namespace tarvel::plattform
