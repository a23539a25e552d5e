#include "core/einstellungen.h"

#include <algorithm>
#include <tuple>

namespace tarvel {
namespace {

/// The Control Unit's command that sets up a controller: the car as a digit of sixteen, the value in two decimal
/// digits, and the car again as the check character.
std::string reglerbefehl(int spur, int wert) {
    const char auto_ziffer = static_cast<char>('0' + 2 * (spur - 1));
    const char pruefzeichen = static_cast<char>('0' + (2 * (spur - 1) + 8) % 10);
    return {'J', '2',          auto_ziffer, static_cast<char>('0' + wert / 10), static_cast<char>('0' + wert % 10),
            '1', pruefzeichen, '$'};
}

}  // namespace

int messhardware::modus() const {
    const std::array<bool, 8> in_kraft{hw_simulation, hw_iow,        hw_race_control, hw_lpt,
                                       hw_4x4(),      hw_timekeeper, hw_cu,           hw_uart};
    for (std::size_t i = 1; i < in_kraft.size(); ++i) {  // a device goes before the keyboard beside it
        if (in_kraft.at(i)) {
            return static_cast<int>(i);
        }
    }
    return 0;
}

void messhardware::simulation_ableiten() {
    hw_simulation = !hw_iow && !hw_race_control && !hw_lpt && !hw_timekeeper && !hw_4x4();
}

bool einstellungen::hardware_anders_als(const einstellungen& andere) const {
    const auto gewaehlt = [](const einstellungen& e) {
        return std::tie(e.hardware, e.rc_com_port, e.lpt_adresse, e.tk_datei, e.iow_datei, e.cu_modus, e.uart_port,
                        e.uart_baud, e.uart_datenbits, e.uart_parity, e.uart_stopbits, e.uart_datei);
    };
    return gewaehlt(*this) != gewaehlt(andere);
}

void einstellungen::folgen_ableiten() {
    ampel_takt = start_ampel_modus == ampelwahl::dragrace ? 500ms : 1500ms;
    sektor_an[0] = std::any_of(sektor_an.begin() + 1, sektor_an.end(), [](bool an) { return an; });
    for (const int spur : alle_spuren) {
        cu_reglerbefehl[spur] = reglerbefehl(spur, cu_spur_wert[spur]);
    }
}

}  // namespace tarvel
