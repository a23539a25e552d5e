#pragma once

#include "hardware/iow_40.h"
#include "hardware/usbtest.h"
#include "programm/geraeteverdrahtung.h"

namespace tarvel {

/// The IO board and the window of its pins.
class iow_verdrahtung final : public geraeteverdrahtung, private geraetezugang {
public:
    iow_verdrahtung(const geraete_umgebung& um, messgeraete& alle);

    messgeraet& geraet() override { return iow; }
    void beenden() override { usbtest.zugang = nullptr; }

    iow_40 iow;
    tarvel::usbtest usbtest;

private:
    void geraet_trennen() override { iow.schliessen(); }
    void geraet_verbinden() override;
    bool einstellungen_speichern() override;

    einstellungen& einst_;
    tarvel::einstellungsfenster& optionen_;
    einstellungspflege& pflege_;
    messgeraete& alle_;
};

}  // namespace tarvel
