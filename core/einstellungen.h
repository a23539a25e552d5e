#pragma once

#include <array>
#include <string>

#include "core/spuren.h"
#include "core/steuerelemente.h"
#include "core/zeit.h"

namespace tarvel {

inline constexpr int sounds_max = 64;

/// Which timing hardware is in force. The keyboard works beside each of them.
struct messhardware {
    bool hw_simulation = true;
    bool hw_iow = false;
    bool hw_race_control = false;
    bool hw_lpt = false;
    int hw_4x4_modus = 3;  ///< 3 off, above 3 on
    bool hw_timekeeper = false;
    bool hw_cu = false;
    bool hw_uart = false;
};

/// What the operator sets for all races. The member initialisers are the defaults.
struct einstellungen {
    messhardware hardware;

    bool zielmodus_erster = true;    ///< true "erster im Ziel", false "letzter im Ziel"
    int start_ampel_modus = 1;       ///< index of the start light, 0 none
    bool start_zeit_sensor = false;  ///< each lane is timed from its own first crossing
    bool runde_beenden = false;      ///< lap race: all cars finish the lap they are in
    int auswertung_nach = 2;         ///< 1 metres, 2 laps, 3 best lap
    bool aut_loeschen = true;        ///< delete automatic result files at program start

    int tank_art = 1;                ///< 1 on one contact, 2 between two contacts
    int nachtrennen_modus = 0;       ///< above 0 the race starts under the dark cover
    bool rc_ziel_sensor34 = false;   ///< the sensors of lanes 3 and 4 also count for lanes 1 and 2
    bool darstellung_zeile = false;  ///< one row per lane instead of one column
    bool chaos_schalter = false;     ///< the chaos input is a switch, not a button

    bool sound_an = true;
    int snd_beste_runde = 5;  ///< the best-lap sound plays above this number of laps
    std::array<std::string, sounds_max + 1> sound_dateien = standard_sounds();  ///< index 1 to 64, empty for no sound

    spuren<farbe> farben_spur{{255, 65280, 16744576, 65535, 12632256, 16711935}};
    std::array<farbe, 4> farben_ampel{0, 0, 4210752,
                                      16744576};              ///< index 1 to 3; 1 is the background of the race window
    std::array<farbe, 3> farben_schrift{0, 65535, 16777215};  ///< index 1 and 2
    trennzeichen_tabelle trennzeichen{":", ",", ";"};

    static std::array<std::string, sounds_max + 1> standard_sounds();
};

}  // namespace tarvel
