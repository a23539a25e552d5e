#pragma once

#include "hardware/timekeeper.h"
#include "hardware/tk_einstellungen.h"
#include "programm/geraet_mit_fenster.h"

namespace tarvel {

/// The Timekeeper and its window.
class timekeeper_verdrahtung final : public geraet_mit_fenster {
public:
    timekeeper_verdrahtung(const geraete_umgebung& um, messgeraete& alle);

    messgeraet& geraet() override { return tk; }
    std::vector<fensterlogik*> fenster() override { return {&tk_einstellungen}; }
    void beenden() override { tk_einstellungen.zugang = nullptr; }

    tarvel::tk_einstellungen tk_einstellungen;  ///< has the words that the device needs
    timekeeper tk;

private:
    int verworfene_saetze() const override { return tk.verworfene_saetze(); }
    bool einstellungen_speichern() override;
};

}  // namespace tarvel
