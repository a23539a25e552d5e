#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/letzte_ergebnisse.h"
#include "race/rennergebnis.h"
#include "results/tagesfuehrung.h"

/// A result in a line of the menu of the last ones.
namespace tarvel {

/// When it was driven, and who, in the order of the places.
ergebnisangabe angabe_von(const rennergebnis& ergebnis);
/// Of a day's file: its name, the day of the last race in it, and who leads, unless each class has its own.
ergebnisangabe tagesangabe(std::string_view pfad, const std::string& datum, const std::vector<tagesfuehrender>& vorn);

}  // namespace tarvel
