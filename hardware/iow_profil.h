#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "core/dateien.h"
#include "hardware/iow_bericht.h"
#include "hardware/iow_pins.h"
#include "hardware/kontaktleser.h"

namespace tarvel {

/// What each pin of the board means, port 0 bit 0 first; 0 for nothing.
using iow_profil = std::array<ereignis_art, iow_bits>;

/// The numbers 1 to 32 in their order.
iow_profil iow_werkseinstellung();

/// The `.iow` file: a number a line, pin by pin. None if it cannot be read or has too few lines. A number that means
/// nothing stays as it is, and assigns nothing.
std::optional<iow_profil> iow_profil_laden(const dateien& ablage, std::string_view datei);
bool iow_profil_speichern(const dateien& ablage, std::string_view datei, const iow_profil& profil);

/// For the outputs: of two pins with the same meaning the last one has it.
iow_belegung belegung_von(const iow_profil& profil);
/// For the inputs, in the same way.
kontaktleser::linienzuordnung linien_von(const iow_profil& profil);

}  // namespace tarvel
