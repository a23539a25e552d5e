#pragma once

#include "results/einzelrennen.h"

namespace tarvel {

/// A race for practice.
class training : public einzelrennen {
public:
    using einzelrennen::einzelrennen;

    std::string kennung() const override { return "training"; }
    std::string anlass(const anlassworte& wort) const override { return wort.training; }
    bool mit_spurwechsel() const override { return false; }
    bool zur_uebung() const override { return true; }
};

}  // namespace tarvel
