#pragma once

#include <array>
#include <string>

namespace tarvel::simulator {

/// Pins of the unit's sensors, lane 1 first. Lanes 1 to 4 are those that the unit is delivered with; it reports a pin
/// as "S" and its number.
struct at2560_pins {
    static constexpr std::array<int, 6> ziel{13, 11, 9, 7, 21, 22};
    static constexpr std::array<int, 6> tank_ein{31, 33, 35, 37, 39, 41};
    static constexpr std::array<int, 6> tank_aus{32, 34, 36, 38, 40, 42};
    static constexpr std::array<int, 6> sektor_1{43, 45, 47, 49, 51, 53};
    static constexpr std::array<int, 6> sektor_2{44, 46, 48, 50, 52, 54};
    static constexpr int chaos_gemeinsam = 61;
    static constexpr std::array<int, 6> chaos{62, 63, 64, 65, 66, 67};
};

/// The command file (.uart) in which the program finds all sensors of the simulated unit: six lanes with sectors, fuel
/// and chaos buttons. Windows-1252 with CRLF.
std::string at2560_profil();

}  // namespace tarvel::simulator
