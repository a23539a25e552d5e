#pragma once

#include "competition/wettkampf1.h"

namespace tarvel {

/// In the place of the run of a competition, until there is one.
class wettkampf_platzhalter final : public wettkampf1_folgen {
public:
    void beginnen(const wettkampfvorgabe&) override {}
    void laden() override {}
    void auswertung() override {}
};

}  // namespace tarvel
