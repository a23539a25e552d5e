#pragma once

#include "core/fensterregister.h"
#include "core/form1.h"
#include "hardware/rennverbindung.h"
#include "race/rennen.h"

namespace tarvel {

/// What the devices ask of the race and tell it, on the race as it is.
class geraete_im_rennen final : public rennverbindung {
public:
    geraete_im_rennen(tarvel::rennen& r, tarvel::form1& form1, const fensterregister& fenster)
        : r_(r), form1_(form1), fenster_(fenster) {}

    bool rennen_ruht() const override;
    bool rennen_laeuft() const override { return !r_.zustand.rennen_beendet && !r_.zustand.chaos_aktiv; }
    bool pause() const override { return r_.zustand.chaos_aktiv; }
    void rennen_vorbereiten() override { r_.bahn1.Command1.klicken(); }
    void stempel_verschieben(zeit_ms um) override;
    void pausen_nachmessen(double faktor) override { r_.zustand.pausen_nachmessen(faktor); }
    void tankflanken_auswerten() override;
    void tankkontakt_verlassen(int spur) override { r_.tanken.kontakt_verlassen(spur); }
    void fuellstand(int spur, int stufe, int stufen, bool neu) override {
        r_.tanken.fuellstand_melden(spur, stufe, stufen, neu);
    }
    void tankfunktion(bool an) override;

private:
    tarvel::rennen& r_;
    tarvel::form1& form1_;
    const fensterregister& fenster_;
};

}  // namespace tarvel
