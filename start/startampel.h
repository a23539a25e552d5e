#pragma once

#include <array>
#include <memory>
#include <optional>

#include "core/fensterlogik.h"
#include "platform/zeitgeber.h"
#include "race/rennen.h"
#include "start/ampelmodus.h"
#include "start/form2.h"
#include "start/fruehstart.h"

namespace tarvel {

/// The window between the prepared and the running race: shows the start light, switches the real lamps, looks out for
/// false starts and starts the race at green. A chain of one-shot timers: each switches itself off first and the next
/// one on last, so the chain can be cut at any step.
class startampel final : public fensterlogik, private fruehstartfolgen {
public:
    startampel(rennen& r, einstellungen& einst, plattform::zeitgeber_dienst& zeitgeber);

    form2 fenster;

    /// The light begins.
    void laden() override;
    void entladen() override;
    /// A key press while the lights run, as `rennbefehle::taste` takes it.
    void taste(int code, std::optional<zeit_ms> alter = {});
    bool ist_belegt(int code) const;
    /// Closing the window stops the start, as long as it can be stopped.
    void schliessen() override;

    bool laeuft() const { return ampel_laeuft_; }
    /// The light has its place on the screen; one that only real lamps show comes out when a false start stops it.
    bool zu_sehen() const;

private:
    static constexpr std::size_t rot_max = 5;

    void taste_auswerten(int code, std::optional<zeit_ms> alter);
    void texte_setzen();
    void farben_setzen();
    void lampen_aufstellen();
    void ampel_bild(std::size_t nummer, const char* name);
    void alle_lampen(const char* reihe1, const char* reihe2);

    /// Red step 1 to 5.
    void rot_tick(std::size_t schritt);
    void dragbaum_schalten(std::size_t schritt);
    void gruen_tick();
    /// The race starts; the lights and the start are through.
    void gruen_geben();
    /// Follows the light that a device runs itself.
    void cu_ampel_auswerten();
    void eigene_kette_beginnen();
    void geraet_anhalten();
    void gruen_zeigen();
    void freigabe_tick();
    void fruehstart_tick();
    void strom_tick(int spur);
    void fruehstart_zeigen();
    void strom_unterbrechen(int spur) override { stw_[spur]->an(); }
    void start_abbrechen() override;
    void abbrampel_klick();
    void zeitgeber_aus();
    void nacht_umschalten();

    rennen& r_;
    const renn_umgebung& um_;
    einstellungen& einst_;
    fruehstart fruehstart_;

    std::unique_ptr<plattform::zeitgeber> Timer1_;                    ///< pause before the chain
    std::array<std::unique_ptr<plattform::zeitgeber>, rot_max> rot_;  ///< Timer2 to Timer6: red 1 to 5
    std::unique_ptr<plattform::zeitgeber> Timer7_;                    ///< green
    std::unique_ptr<plattform::zeitgeber> Timer8_;                    ///< releases the commands of the race
    std::unique_ptr<plattform::zeitgeber> fruehstarttimer_;           ///< looks at the sensors
    std::unique_ptr<plattform::zeitgeber> ampelaus_timer_;            ///< hides a light that only real lamps show
    spuren<std::unique_ptr<plattform::zeitgeber>> stw_;               ///< cut the lane's power

    std::unique_ptr<plattform::zeitgeber> Timer9_;                  ///< start command to a device
    std::unique_ptr<plattform::zeitgeber> cu_ampel_auswertetimer_;  ///< follows its light

    bool ampel_laeuft_ = false;
    bool geraet_rot_ = false;        ///< the device's light has been red in this start
    bool geraet_gestartet_ = false;  ///< and was started from here
    bool gruen_erreicht_ = false;    ///< the green moment comes once per start
    int taste_ = 0;                  ///< number of the doing
    bool abgebrochen_ = false;       ///< a false start has stopped this start
};

}  // namespace tarvel
