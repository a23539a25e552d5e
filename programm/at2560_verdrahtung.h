#pragma once

#include "hardware/at2560.h"
#include "hardware/uart_einstellungen.h"
#include "hardware/uart_profildatei.h"
#include "programm/geraeteverdrahtung.h"

namespace tarvel {

/// The AT-2560, its wizard and the choice of its command file.
class at2560_verdrahtung final : public geraeteverdrahtung, private geraetezugang {
public:
    at2560_verdrahtung(const geraete_umgebung& um, messgeraete& alle);

    messgeraet& geraet() override { return at; }
    void beenden() override { uart_einstellungen.zugang = nullptr; }

    at2560 at;
    tarvel::uart_einstellungen uart_einstellungen;
    tarvel::uart_profildatei uart_profildatei;

private:
    void geraet_trennen() override { at.schliessen(); }
    void geraet_verbinden() override;
    bool einstellungen_speichern() override;
    void fenster_verbinden(const geraete_umgebung& um);

    einstellungen& einst_;
    tarvel::einstellungsfenster& optionen_;
    einstellungspflege& pflege_;
    messgeraete& alle_;
};

}  // namespace tarvel
