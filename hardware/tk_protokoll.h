#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "platform/uhr.h"

/// What a Timekeeper and the program say to each other: text in a frame of control characters.
namespace tarvel::tk {

inline constexpr char satzanfang = 2;
inline constexpr char satzende = 3;
inline constexpr char feldtrenner = 23;
inline constexpr int sensoren_max = 24;

/// The box's clock, in ms.
struct uhrzeit {
    zeit_ms zeit = 0;
};

struct sensor {
    int tk_sensor = 0;  ///< as it stands: others than 1 to 24 are possible
    int wagen = 0;      ///< code of a digital car; 0 on an analog track
    zeit_ms zeit = 0;
};

struct chaostaste {
    int tk_chaos_wert = 0;  ///< what the box adds to it
};
/// An answer in words.
struct antwort {};
/// A time or a sensor that cannot be read.
struct gestoert {};

using satz = std::variant<antwort, uhrzeit, sensor, chaostaste, gestoert>;

/// `inhalt` without its frame.
satz satz_lesen(std::string_view inhalt, bool digital);

}  // namespace tarvel::tk

namespace tarvel {

/// Bytes as they come, and the records in them. A record that begins anew has lost its end.
class tk_empfang {
public:
    tk_empfang() { puffer_.reserve(puffer_bytes); }

    void anhaengen(std::string_view bytes);
    /// The next whole record without its frame, until the next call; none if it is still to come.
    std::optional<std::string_view> naechster();
    void leeren();

private:
    static constexpr std::size_t puffer_bytes = 1000;
    static constexpr std::size_t satz_max = 250;  ///< what is longer is none

    std::string puffer_;
    std::size_t gelesen_ = 0;  ///< bytes at its front that have been taken
};

}  // namespace tarvel
