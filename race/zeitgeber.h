#pragma once

#include <array>
#include <memory>

#include "core/spuren.h"
#include "hardware/ereignisse.h"
#include "platform/zeitgeber.h"

namespace tarvel {

inline constexpr int soundsensoren_max = 8;
/// So long behind the beginning or the end of a pause nothing triggers another one.
inline constexpr dauer_ms pausensperre{2500};

/// The timers of the race window.
struct rennzeitgeber {
    explicit rennzeitgeber(plattform::zeitgeber_dienst& dienst);

    std::unique_ptr<plattform::zeitgeber> renntimer;   ///< the race tick
    std::unique_ptr<plattform::zeitgeber> renntimer2;  ///< polls the devices
    std::unique_ptr<plattform::zeitgeber> renntimer3;  ///< samples the devices
    std::unique_ptr<plattform::zeitgeber> blinktimer;  ///< flashes the start light before the race
    std::unique_ptr<plattform::zeitgeber> nachlauftimer1;
    std::unique_ptr<plattform::zeitgeber> chaostimer;       ///< no other trigger right after a pause has begun or ended
    std::unique_ptr<plattform::zeitgeber> chaosende_timer;  ///< nor right after it has ended
    std::unique_ptr<plattform::zeitgeber> chaostimer2;      ///< looks at the inputs during a pause
    std::unique_ptr<plattform::zeitgeber> ch_durch0;        ///< collects crossings at the beginning of a pause
    std::unique_ptr<plattform::zeitgeber> chaos_runden;     ///< brings them back after it
    std::unique_ptr<plattform::zeitgeber> tm_chausloeser_falsch_setzen;
    std::unique_ptr<plattform::zeitgeber> chaos_schalter_at2560;  ///< a repeating switch is off once it falls silent
    spuren<std::unique_ptr<plattform::zeitgeber>> straftimer_ch;  ///< power penalty of a pause
    std::unique_ptr<plattform::zeitgeber> f_straftimer;   ///< counts the false-start penalty in hundredths of a second
    std::unique_ptr<plattform::zeitgeber> f_straftimer2;  ///< keeps the lanes locked for one minimum lap after it
    spuren<std::unique_ptr<plattform::zeitgeber>> tanktimer;  ///< wait before refuelling, in hundredths of a second
    spuren<std::unique_ptr<plattform::zeitgeber>>
        t_straftimer;  ///< penalty of an empty tank, in hundredths of a second
    /// Lock-out of each sector sensor, index is its event - `erste_zwischenzeit`.
    std::array<std::unique_ptr<plattform::zeitgeber>, sektorsensoren_max> sekt_timer;
    /// Hold-off of each sound sensor.
    std::array<std::unique_ptr<plattform::zeitgeber>, soundsensoren_max> soundtrigger;

    void rennen_an() const;
    void rennen_aus() const;
    /// All that belongs to pauses.
    void pause_aus() const;
    void alle_aus() const;
};

}  // namespace tarvel
