#pragma once

#include <vector>

#include "core/einstellungszeile.h"

namespace tarvel {

/// Lines Z 0 to Z 347 of a settings file. Reader, checker, taker-over, writer and defaults all work on this one table.
const std::vector<einstellungszeile>& einstellungstabelle();

inline constexpr std::string_view einstellungs_kopf = "Tarvel Version ";

namespace z {
inline constexpr int tank_inhalt = 36;
inline constexpr int zielmodus_erster = 48;
inline constexpr int runde_beenden = 63;
inline constexpr int wahr_wort = 114;  ///< the words that the writing system used for true and false
inline constexpr int falsch_wort = 115;
inline constexpr int s6_option = 180;
inline constexpr int chaos_schalter = 240;
inline constexpr int vor_den_bestzeiten = 254;  ///< behind it the best times are read
inline constexpr int schema_name = 323;
inline constexpr int schema_erste = 324;   ///< seven numbers
inline constexpr int cu_spur_erste = 338;  ///< six numbers
inline constexpr int letzte_gelesene = 344;
inline constexpr int letzte = 347;
}  // namespace z

}  // namespace tarvel
