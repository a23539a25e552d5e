#pragma once

#include "hardware/control_unit.h"
#include "hardware/cu_eigenschaften.h"
#include "programm/geraeteverdrahtung.h"

namespace tarvel {

/// The Control Unit and its window.
class control_unit_verdrahtung final : public geraeteverdrahtung {
public:
    control_unit_verdrahtung(const geraete_umgebung& um, messgeraete& alle);

    messgeraet& geraet() override { return cu; }

    control_unit cu;
    tarvel::cu_eigenschaften cu_eigenschaften;
};

}  // namespace tarvel
