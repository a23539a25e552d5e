#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "results/ergebniswerte.h"

namespace tarvel {

/// One lane of a race behind its line: the five fields, each with its separator, that it has in every further line.
using rennblock = std::vector<std::string>;

inline constexpr std::size_t felder_je_block = 5;

/// The rows of a block that come before those of the laps.
enum class blockreihe {
    spur,
    fahrer,
    fahrzeug,
    rundenzahl,
    spurlaenge,
    sektorlaenge,
    restmeter,
    gesamtmeter,
    gesamtzeit
};
inline constexpr std::size_t kennzahlen_anzahl = 9;

/// The block with this number out of a line; what is missing is empty.
std::string block_aus(const std::vector<std::string>& felder, std::size_t nummer, const std::string& trenner);
std::string leerer_block(const std::string& trenner);
bool ist_leer(std::string_view block, const std::string& trenner);

/// A field of a row. A block without the row has empty ones, which cannot be set.
std::string blockfeld(const rennblock& block, blockreihe reihe, std::size_t feld, const std::string& trenner);
void blockfeld_setzen(rennblock& block, blockreihe reihe, std::size_t feld, const std::string& text,
                      const std::string& trenner);

}  // namespace tarvel
