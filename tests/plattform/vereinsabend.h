#pragma once

#include <string>

#include "programm/programm.h"
#include "results/einzelrennen.h"

namespace tarvel::test {

/// An evening of many races, as far as the race window sees it: a warm-up comes first, and somebody drives next.
class vereinsabend final : public einzelrennen {
public:
    explicit vereinsabend(programm& p) : einzelrennen({p.param, p.einst, p.txt, p.rundenspeichern}) {}

    std::string naechste;

    starter wer_startet() const override { return starter::einfahrzeit; }
    std::string naechste_fahrer() const override { return naechste; }
};

}  // namespace tarvel::test
