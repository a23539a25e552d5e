#pragma once

#include "race/ansicht_geometrie.h"

/// Pieces that the blocks of the lanes are laid out from, as columns or as rows.
namespace tarvel::blockteile {

using spur_orte = plaetze<spur_teil>;

inline constexpr double titelhoehe = 420;    ///< room of a caption
inline constexpr double wortanteil = 0.82;   ///< of the height of a place, for the font of a word in it
inline constexpr double liste_em = 7.6;      ///< "9999. 00,000"
inline constexpr double tanktitel_em = 5.9;  ///< "Tankinhalt"
inline constexpr double schuld_em = 3.8;     ///< "schuld"

/// Room of a caption that can be read.
double titelplatz(double gewuenscht, int lesbar_px);
/// Of several lanes one may be behind another: so much, else nothing.
double rueckstand_hoehe(const ansicht_inhalt& inhalt, double hoehe);
/// The record row is there in a race that has best times.
double bestzeit_hoehe(const ansicht_inhalt& inhalt, double hoehe);

/// The middle of a place that is higher than its content has use for.
rechteck mittig(const rechteck& ort, double hoehe_max);
/// A caption over its display.
void mit_titel(const rechteck& ort, double titel_hoehe, platz& titel, platz& anzeige);
/// The small lights side by side, no larger than fits.
void ampel_legen(const rechteck& ort, double luecke, spur_orte& g);
/// The box that puts the blame for a pause on the lane, below what it is for.
void schuld_legen(const rechteck& ort, double titel_hoehe, spur_orte& g);
void tank_legen(const ansicht_inhalt& inhalt, const rechteck& ort, bool nebeneinander, int lesbar_px, spur_orte& g);
/// Last lap above the best one, which is the smaller of the two.
void zeiten_stapeln(const ansicht_inhalt& inhalt, const rechteck& ort, int lesbar_px, spur_orte& g);
/// The same side by side.
void zeiten_reihen(const ansicht_inhalt& inhalt, const rechteck& ort, double luecke, int lesbar_px, spur_orte& g);
/// The counter of a row stands indented; with four digits it moves into half of that.
void zaehler_einruecken(const rechteck& feld, double rueckung, ansicht_geometrie& ganzes);

}  // namespace tarvel::blockteile
