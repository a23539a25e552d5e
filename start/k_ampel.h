#pragma once

#include <array>
#include <memory>

#include "core/fensterlogik.h"
#include "core/spuren.h"
#include "platform/zeitgeber.h"
#include "race/rennen.h"

namespace tarvel {

/// The small start light of a race that goes on rather than begins: after a pause, or after the result window. Three
/// reds, then green; no false starts here.
class k_ampel final : public fensterlogik, public pausenampel {
public:
    k_ampel(rennen& r, plattform::zeitgeber_dienst& zeitgeber);

    static constexpr std::size_t schritte = 3;

    std::array<bild, 2 * schritte> k_ampelbild;  ///< 1 to 3 are row 1, 4 to 6 row 2; index is the number - 1
    std::array<form, 2 * schritte> Shape1;       ///< a light each for the lamps, in the settings' colours
    rahmen k_nachtabschaltung;                   ///< black ground over the whole screen; the lamps stay in sight
    befehl Command1;                             ///< starts the light

    void laden() override;
    void entladen() override;
    /// There is no way back: closing it means going on.
    void schliessen() override { beginnen(); }
    bool escape_schliesst() const override { return false; }
    /// The light begins, if it has not yet.
    void beginnen() { Command1.klicken(); }
    /// The same behind a pause, also if its window is not there yet.
    void pause_beenden() override;
    bool laeuft() const override;
    /// The race behind the light pauses: its window keeps the keys.
    bool in_pause() const { return um_.zustand.chaos_aktiv; }

private:
    void Command1_klick();
    /// The light of a device takes the place of this one, if its cars stand. Whether it does.
    bool geraet_uebernimmt();
    void strom_aus();
    void lampe_an(std::size_t schritt);
    void rot_tick(std::size_t schritt);
    void gruen_tick();
    void geraet_tick();
    void geraet_frist_tick();
    void k_ampel_bild(std::size_t nummer, const char* name);
    void zeitgeber_aus();

    rennen& r_;
    const renn_umgebung& um_;
    bool geraet_nochmals_ = false;  ///< its start key may be pressed once more
    bool geraet_taub_ = false;      ///< the device has not answered the start key with its light
    bool k_reihe2_ = false;         ///< the second row lights red with the first
    std::array<std::unique_ptr<plattform::zeitgeber>, schritte> rot_;  ///< Timer1, Timer4, Timer5
    std::unique_ptr<plattform::zeitgeber> Timer2_;                     ///< green
    std::unique_ptr<plattform::zeitgeber> cu_ampel_auswertetimer_;     ///< follows the light of a device in its place
    std::unique_ptr<plattform::zeitgeber> geraet_frist_;               ///< for the device's light
    std::unique_ptr<plattform::zeitgeber> training_autotimer_;         ///< presses the command
};

}  // namespace tarvel
