#pragma once

#include "core/einstellungen.h"
#include "hardware/ereignisse.h"

namespace tarvel {

inline constexpr int tx_eingang_max = 8;

/// What an input of the 4x4 USB module stands for; 0 nothing. Group 0 is that of the contacts, with their number from 1
/// to `tx_eingang_max`; the others are the sensors of a digital track by their position, with the number of the car.
ereignis_art tx_eingang(const modul_4x4_einstellungen& s6, int gruppe, int wert);

}  // namespace tarvel
