#pragma once

#include <optional>

#include "hardware/form5.h"
#include "hardware/frm_main.h"
#include "hardware/s6_fragefenster.h"
#include "hardware/tx_modul.h"
#include "programm/geraet_mit_fenster.h"

namespace tarvel {

/// The 4x4 USB module with its windows and the two questions about its mode.
class tx_verdrahtung final : public geraet_mit_fenster {
public:
    tx_verdrahtung(const geraete_umgebung& um, messgeraete& alle);

    messgeraet& geraet() override { return modul; }
    std::vector<fensterlogik*> fenster() override { return {&form5, &frm_main, &s6_fragefenster}; }
    void beenden() override;
    /// The start waits for the operator's answer.
    void startmodus_fragen();

    tx_modul modul;
    tarvel::form5 form5;
    tarvel::frm_main frm_main;
    tarvel::s6_fragefenster s6_fragefenster;

private:
    void geraet_trennen() override;
    bool einstellungen_speichern() override;
    void zeilen_zeigen();
    void wechsel_pruefen();

    geraete_umgebung um_;
    std::optional<bool> analog_;  ///< kind of mode that the program has run in so far
};

}  // namespace tarvel
