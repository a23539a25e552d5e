#pragma once

#include <functional>

#include "core/fensterregister.h"
#include "core/form1.h"
#include "hardware/rennverbindung.h"
#include "race/rennen.h"

namespace tarvel {

/// What the devices ask of the race and tell it, on the race as it is.
class geraete_im_rennen final : public rennverbindung {
public:
    geraete_im_rennen(tarvel::rennen& r, tarvel::form1& form1, const fensterregister& fenster);

    bool rennen_ruht() const override;
    bool rennen_laeuft() const override { return !r_.zustand.rennen_beendet && !r_.zustand.chaos_aktiv; }
    bool pause() const override { return r_.zustand.chaos_aktiv; }
    void rennen_vorbereiten() override { r_.bahn1.Command1.klicken(); }
    void stempel_verschieben(zeit_ms um) override { r_.protokoll.geschieht(verschieben_, {um}); }
    void uhr_nachruecken(zeit_ms um) override { r_.protokoll.geschieht(nachruecken_, {um}); }
    void pausen_nachmessen(double faktor) override;
    void pausen_festhalten(zeit_ms stempel) override;
    void tankflanken_auswerten() override { tankflanken_auswerten_(); }
    void tankkontakt_verlassen(int spur) override { r_.protokoll.geschieht(verlassen_, {spur}); }
    void fuellstand(int spur, int stufe, int stufen, bool neu) override {
        r_.protokoll.geschieht(fuellstand_, {spur, stufe, stufen, neu ? 1 : 0});
    }
    void tankfunktion(bool an) override;

private:
    void tankflanken_ansehen();

    tarvel::rennen& r_;
    tarvel::form1& form1_;
    const fensterregister& fenster_;
    std::function<void()> tankflanken_auswerten_;
    int verschieben_;  ///< numbers of the doings
    int nachruecken_;
    int nachmessen_;
    int festhalten_;
    int verlassen_;
    int fuellstand_;
};

}  // namespace tarvel
