#pragma once

#include "hardware/control_unit.h"
#include "hardware/cu_eigenschaften.h"
#include "programm/einstellungspflege.h"
#include "programm/geraet_mit_fenster.h"

namespace tarvel {

/// The Control Unit and its window.
class control_unit_verdrahtung final : public geraet_mit_fenster {
public:
    control_unit_verdrahtung(const geraete_umgebung& um, messgeraete& alle);

    messgeraet& geraet() override { return cu; }
    std::vector<fensterlogik*> fenster() override { return {&cu_eigenschaften}; }
    void beenden() override { cu_eigenschaften.zugang = nullptr; }

    control_unit cu;
    tarvel::cu_eigenschaften cu_eigenschaften;

private:
    void geraet_verbinden() override;
    int verworfene_saetze() const override { return cu.verworfene_saetze(); }
    bool einstellungen_speichern() override;
    /// What its options page shows, saved or not.
    control_unit_einstellungen wie_die_seite_zeigt();
};

}  // namespace tarvel
