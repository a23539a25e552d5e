#include "core/einstellungen.h"

#include <algorithm>
#include <cstddef>

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

/// A kind of timing hardware.
struct hardwarezeile {
    bool messhardware::*gewaehlt;  ///< null for the 4x4 module, which is chosen with its mode
    bool (*gleich_erreicht)(const einstellungen&, const einstellungen&);
};

bool ohne_anschluss(const einstellungen& /*eine*/, const einstellungen& /*andere*/) {
    return true;
}

template <auto geraet>
bool gleich(const einstellungen& eine, const einstellungen& andere) {
    return eine.*geraet == andere.*geraet;
}

template <auto geraet>
bool anschluss_gleich(const einstellungen& eine, const einstellungen& andere) {
    return (eine.*geraet).anschluss == (andere.*geraet).anschluss;
}

/// In the order of `hardware_art`.
using h = messhardware;
using e = einstellungen;
constexpr std::array<hardwarezeile, 8> hardwaretabelle{{{&h::hw_simulation, ohne_anschluss},
                                                        {&h::hw_iow, gleich<&e::iow>},
                                                        {&h::hw_race_control, anschluss_gleich<&e::rc>},
                                                        {&h::hw_lpt, anschluss_gleich<&e::lpt>},
                                                        {nullptr, ohne_anschluss},
                                                        {&h::hw_timekeeper, gleich<&e::tk>},
                                                        {&h::hw_cu, anschluss_gleich<&e::cu>},
                                                        {&h::hw_uart, gleich<&e::uart>}}};

const hardwarezeile& zeile(hardware_art welche) {
    return hardwaretabelle.at(static_cast<std::size_t>(welche));
}

}  // namespace

bool messhardware::gewaehlt(hardware_art welche) const {
    bool messhardware::*const merker = zeile(welche).gewaehlt;
    return merker != nullptr ? this->*merker : hw_4x4();
}

void messhardware::waehlen(hardware_art welche, bool an) {
    if (bool messhardware::*const merker = zeile(welche).gewaehlt; merker != nullptr) {
        this->*merker = an;
    } else {
        hw_4x4_modus = an ? std::max(hw_4x4_modus, modul_4x4::modus_1) : modul_4x4::aus;
    }
}

hardware_art messhardware::modus() const {
    for (std::size_t nummer = 1; nummer < hardwaretabelle.size(); ++nummer) {
        const auto welche = static_cast<hardware_art>(nummer);
        if (gewaehlt(welche)) {  // a device goes before the keyboard beside it
            return welche;
        }
    }
    return hardware_art::tastatur;
}

void messhardware::simulation_ableiten() {
    hw_simulation = !hw_iow && !hw_race_control && !hw_lpt && !hw_timekeeper && !hw_4x4();
}

bool einstellungen::hardware_anders_als(const einstellungen& andere) const {
    return hardware != andere.hardware ||
           !std::all_of(hardwaretabelle.begin(), hardwaretabelle.end(),
                        [&](const hardwarezeile& eine) { return eine.gleich_erreicht(*this, andere); });
}

void einstellungen::nebendateien_behalten(const einstellungen& andere) {
    gruppen = andere.gruppen;
    anzeige = andere.anzeige;
    rennbild = andere.rennbild;
    trennzeichen = andere.trennzeichen;
}

void einstellungen::folgen_ableiten() {
    ampel_takt = start_ampel_modus == ampelwahl::dragrace ? 500ms : 1500ms;
    sektor_an[0] = std::any_of(sektor_an.begin() + 1, sektor_an.end(), [](bool an) { return an; });
    for (const int spur : alle_spuren) {
        cu.cu_reglerbefehl[spur] = reglerbefehl(spur, cu.cu_spur_wert[spur]);
    }
}

}  // namespace tarvel
