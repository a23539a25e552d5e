#pragma once

#include "hardware/drucker_fenster.h"
#include "hardware/druckeranschluss.h"
#include "programm/geraeteverdrahtung.h"

namespace tarvel {

/// The printer port and the window of its pins.
class druckeranschluss_verdrahtung final : public geraeteverdrahtung, private geraetezugang {
public:
    druckeranschluss_verdrahtung(const geraete_umgebung& um, messgeraete& alle);

    messgeraet& geraet() override { return anschluss; }
    void beenden() override { drucker_fenster.zugang = nullptr; }

    druckeranschluss anschluss;
    tarvel::drucker_fenster drucker_fenster;

private:
    void geraet_trennen() override { anschluss.schliessen(); }
    void geraet_verbinden() override;
    bool einstellungen_speichern() override;

    einstellungen& einst_;
    tarvel::einstellungsfenster& optionen_;
    einstellungspflege& pflege_;
    messgeraete& alle_;
};

}  // namespace tarvel
