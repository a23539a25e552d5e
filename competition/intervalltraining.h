#pragma once

#include "competition/training.h"

namespace tarvel {

/// A training of short races: the same again after a while, by itself and with the drivers on their next lanes.
class intervalltraining final : public training {
public:
    using training::training;

    std::string kennung() const override { return "intervalltraining"; }
    starter wer_startet() const override { return von_selbst_ ? starter::ablauf : starter::bediener; }
    void von_selbst_starten(bool an) override { von_selbst_ = an; }
    bool ohne_bediener() const override { return von_selbst_; }
    selbstlauf danach() const override;

private:
    bool von_selbst_ = false;
};

}  // namespace tarvel
