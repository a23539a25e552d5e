#pragma once

#include "hardware/drucker_fenster.h"
#include "hardware/druckeranschluss.h"
#include "programm/geraet_mit_fenster.h"

namespace tarvel {

/// The printer port and the window of its pins.
class druckeranschluss_verdrahtung final : public geraet_mit_fenster {
public:
    druckeranschluss_verdrahtung(const geraete_umgebung& um, messgeraete& alle);

    messgeraet& geraet() override { return anschluss; }
    std::vector<fensterlogik*> fenster() override { return {&drucker_fenster}; }
    void beenden() override { drucker_fenster.zugang = nullptr; }

    druckeranschluss anschluss;
    tarvel::drucker_fenster drucker_fenster;

private:
    void geraet_verbinden() override;
    bool einstellungen_speichern() override;

    bool uebernommen_ = false;  ///< its window has just been confirmed
};

}  // namespace tarvel
