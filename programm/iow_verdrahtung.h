#pragma once

#include "hardware/iow_40.h"
#include "hardware/usbtest.h"
#include "programm/geraet_mit_fenster.h"

namespace tarvel {

/// The IO board and the window of its pins.
class iow_verdrahtung final : public geraet_mit_fenster {
public:
    iow_verdrahtung(const geraete_umgebung& um, messgeraete& alle);

    messgeraet& geraet() override { return iow; }
    std::vector<fensterlogik*> fenster() override { return {&usbtest}; }
    void nebenher_oeffnen() override { iow.nebenher_oeffnen(); }
    void beenden() override { usbtest.zugang = nullptr; }

    iow_40 iow;
    tarvel::usbtest usbtest;

private:
    void geraet_verbinden() override;
    bool einstellungen_speichern() override;
};

}  // namespace tarvel
