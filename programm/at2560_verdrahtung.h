#pragma once

#include "hardware/at2560.h"
#include "hardware/uart_einstellungen.h"
#include "hardware/uart_probe.h"
#include "hardware/uart_profildatei.h"
#include "programm/geraet_mit_fenster.h"

namespace tarvel {

/// The AT-2560, its wizard and the choice of its command file.
class at2560_verdrahtung final : public geraet_mit_fenster {
public:
    at2560_verdrahtung(const geraete_umgebung& um, messgeraete& alle);

    messgeraet& geraet() override { return at; }
    std::vector<fensterlogik*> fenster() override { return {&uart_einstellungen, &uart_profildatei, &uart_probe}; }
    void beenden() override { uart_einstellungen.zugang = uart_probe.zugang = nullptr; }

    at2560 at;
    tarvel::uart_einstellungen uart_einstellungen;
    tarvel::uart_profildatei uart_profildatei;
    tarvel::uart_probe uart_probe;

private:
    bool einstellungen_speichern() override;
    void fenster_verbinden(const geraete_umgebung& um);
};

}  // namespace tarvel
