#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "core/spuren.h"

/// The words of the Control Unit: short ASCII records that end in "$". Digits of sixteen are the characters "0" to "?".
namespace tarvel::cu {

inline constexpr char satzende = '$';
inline constexpr char befehlszeichen = 34;  ///< a quotation mark begins every command
inline constexpr int fahrzeuge_max = 8;
inline constexpr int sensoren_max = 3;

/// A car has passed a sensor.
struct ueberfahrt {
    int fahrzeug = 0;           ///< 1 to 8
    int sensor = 1;             ///< 1 finish line, 2 and 3 sectors
    std::uint32_t stempel = 0;  ///< the unit's clock, ms
    bool summe = false;         ///< the record ends with the sum of what it says
    bool operator==(const ueberfahrt&) const = default;
};

/// How the unit stands.
struct status {
    spuren<int> tank;            ///< 0 to 15
    bool startzustand = false;   ///< its start light is in the start state: the cars are stopped
    int tankmodus = 0;           ///< 0 without fuel
    std::uint8_t boxenbits = 0;  ///< cars in the pit lane
    bool operator==(const status&) const = default;
};

/// The state of the lap counter box.
struct rundenzaehler {
    bool bereit = false;  ///< for a race
    bool operator==(const rundenzaehler&) const = default;
};

using meldung = std::variant<std::monostate, ueberfahrt, status, rundenzaehler>;

/// Takes the next record off the front of what was received, without the prefixes in front of it; empty as long as
/// none is complete.
std::string satz_abtrennen(std::string& empfang);
/// What a record says; nothing for one that is damaged. Noise in front of a record is passed over.
meldung satz_lesen(std::string_view satz);

/// Whether a unit's passages end with the sum of what they say shows by itself. One that does not agree is then
/// damaged; of a unit that sends something else in that place nothing is known.
class summenpruefung {
public:
    /// False for a passage that is damaged.
    bool annehmen(const ueberfahrt& neu);
    /// This unit's passages do end with it: what disagrees was damaged on the line.
    bool bewiesen() const { return mit_summe_; }

private:
    bool mit_summe_ = false;
    int einig_ = 0;    ///< in a row
    int uneinig_ = 0;  ///< in a row
};

/// The eight characters of a stamp; nothing if one of them is no digit of sixteen.
std::optional<std::uint32_t> stempel_lesen(std::string_view zeichen);

/// As if somebody had pressed the start key at the unit.
inline constexpr std::string_view starttaste = "T2P$";
inline constexpr std::string_view programmierung_ruecksetzen = "J60980$";
inline constexpr std::string_view anzeigen_ruecksetzen = "=101$";
/// Sets a value of the controller of lane 1 to 6: `befehl` is 0 to 15, `wert` 0 to 99.
std::string reglerbefehl(int befehl, int regler, int wert);

/// Over the three characters in front of it.
char pruefzeichen(std::string_view drei);

/// Both halves of a number on the lap display. From 251 on only its last two decimal digits fit.
std::array<std::string, 2> anzeigebefehle(int wert);
/// The two values of a lane on the position tower: its place, and its car.
std::array<std::string, 2> platzbefehle(int spur, int platz);

}  // namespace tarvel::cu
