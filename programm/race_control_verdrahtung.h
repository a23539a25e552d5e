#pragma once

#include "hardware/race_control.h"
#include "hardware/rc_einstellungen.h"
#include "programm/geraet_mit_fenster.h"

namespace tarvel {

/// The Race Control box and its window.
class race_control_verdrahtung final : public geraet_mit_fenster {
public:
    race_control_verdrahtung(const geraete_umgebung& um, messgeraete& alle);

    messgeraet& geraet() override { return box; }
    std::vector<fensterlogik*> fenster() override { return {&rc_einstellungen}; }
    void beenden() override { rc_einstellungen.zugang = nullptr; }

    rc_verbindung verbindung;
    race_control box;
    tarvel::rc_einstellungen rc_einstellungen;

private:
    void geraet_verbinden() override;
    bool einstellungen_speichern() override;

    tarvel::form1& form1_;
};

}  // namespace tarvel
