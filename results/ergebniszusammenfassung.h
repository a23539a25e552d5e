#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "race/rennergebnis.h"

/// A result in a line, without a word of any language.
namespace tarvel {

/// When it was driven, and who, in the order of the places.
std::string ergebniszusammenfassung(const rennergebnis& ergebnis);
/// Of a day's file: its name and the day of the last race in it.
std::string tagestext(std::string_view pfad, const rennergebnis& ergebnis);
/// "1. Anna  2. Ben", at most the first six.
std::string platzreihe(const std::vector<std::string>& fahrer);

}  // namespace tarvel
