#pragma once

#include <string>
#include <string_view>

#include "core/dateien.h"
#include "core/einstellungswerte.h"
#include "core/wettkampfmodus.h"
#include "core/zeit.h"

/// The small files beside the settings.
namespace tarvel {

/// `trennzeichen.ini`: the character codes of the three separators, one a line. False leaves `ziel` as it was.
bool trennzeichen_laden(const dateien& ablage, trennzeichen_tabelle& ziel);
bool trennzeichen_speichern(const dateien& ablage, const trennzeichen_tabelle& werte);

/// `tvk_gruppen.ini`: how the drivers of a competition are grouped, one "Wahr" or "Falsch" a line. Any other file
/// leaves `ziel`.
void gruppenwahl_laden(const dateien& ablage, gruppenwahl& ziel);
bool gruppenwahl_speichern(const dateien& ablage, const gruppenwahl& werte);

/// `tvk_rennbild.ini`: what the race window shows, likewise.
void rennbildwahl_laden(const dateien& ablage, rennbildwahl& ziel);
bool rennbildwahl_speichern(const dateien& ablage, const rennbildwahl& werte);

/// `tvk.ini`: the line of advertising in the race window. A missing or empty file leaves `ziel`.
void tvk_ini_laden(const dateien& ablage, std::string& ziel);

/// The settings file that a start takes unless another is named.
inline constexpr std::string_view standard_einstellungen = "Einstellungen\\einstellungen.ini";

/// `tvk_s6.ini`: with which settings file and in which mode of the 4x4 module the program starts, and how the start
/// after this one.
struct s6_start {
    std::string zustand = "0";
    std::string modus;
    std::string einstell_datei;
    std::string naechster_zustand;
    std::string naechster_modus;
};

s6_start s6_laden(const dateien& ablage);
bool s6_speichern(const dateien& ablage, const s6_start& werte);

/// `tvk_s6_load.ini`: the settings file that a start takes which asks for the mode of the 4x4 module.
std::string s6_vorgabe_laden(const dateien& ablage);
bool s6_vorgabe_speichern(const dateien& ablage, std::string_view einstell_datei);

}  // namespace tarvel
