#pragma once

#include <array>
#include <string>

#include "core/spuren.h"
#include "platform/dauer.h"

namespace tarvel {

// The settings of each timing device. A change of what a device is reached by, its `anschluss`, starts it anew; the
// rest holds at once.

struct iow_anschluss {
    std::string iow_datei;
    bool operator==(const iow_anschluss&) const = default;
};

struct race_control_anschluss {
    std::string rc_com_port;
    bool operator==(const race_control_anschluss&) const = default;
};

struct race_control_einstellungen {
    race_control_anschluss anschluss;
    bool rc_rev_zz = false;
    bool rc_rev_sz = false;
    int rc_level = 0;
    dauer_ms rc_delay_ms{};
    dauer_ms rc_post_ms{};
    bool rc_schalter = false;
    int rc_wert = 0;
    bool rc_tank_sensor34 = false;
    bool rc_ziel_sensor34 = false;   ///< the sensors of lanes 3 and 4 also count for lanes 1 and 2
    bool rc_mod1 = false;            ///< false is mode 2
    std::array<int, 4> rc_sensor{};  ///< event per box sensor, index 0 to 3
};

struct druckeranschluss_anschluss {
    int lpt_adresse = 0;
    bool operator==(const druckeranschluss_anschluss&) const = default;
};

struct druckeranschluss_einstellungen {
    druckeranschluss_anschluss anschluss;
    std::array<int, 6> lpt_eingang{};   ///< event per pin, index 1 to 5
    std::array<int, 13> lpt_ausgang{};  ///< event per pin, index 1 to 12
};

struct modul_4x4_einstellungen {
    bool s6_option = false;
    std::array<int, 9> s6_eingang{};              ///< event per module input, index 1 to 8
    spuren<std::array<int, 5>> s6_eingang_modus;  ///< event per lane and module mode, modes 1 to 4
};

struct timekeeper_anschluss {
    std::string tk_datei;
    bool operator==(const timekeeper_anschluss&) const = default;
};

struct control_unit_anschluss {
    int cu_modus = 0;  ///< COM port, 0 none
    bool operator==(const control_unit_anschluss&) const = default;
};

struct control_unit_einstellungen {
    control_unit_anschluss anschluss;
    bool cu_option = false;  ///< old lap timing of the unit
    bool cu_tankautomatik = false;
    bool cu_sondermodus = false;          ///< the program starts the race, not the unit
    spuren<int> cu_spur_wert;             ///< controller setting 0 to 15
    spuren<std::string> cu_reglerbefehl;  ///< command for the controller of each lane; follows from its setting
};

struct at2560_anschluss {
    int uart_port = 0;
    std::string uart_baud;
    int uart_datenbits = 0;
    std::string uart_parity;
    std::string uart_stopbits;
    std::string uart_datei;  ///< command file
    bool operator==(const at2560_anschluss&) const = default;
};

}  // namespace tarvel
