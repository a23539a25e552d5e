#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// What a 4x4 USB module says: lines of text that end with a carriage return, and its commands of single characters.
namespace tarvel::tx {

inline constexpr int ausgang_max = 10;  ///< outputs count from 1
inline constexpr int lampen = 5;
inline constexpr int kontakt_modus = 4;  ///< its inputs are contacts, on an analog track
inline constexpr char anmelden = '-';    ///< command: greet anew
inline constexpr char wartung = '=';
inline constexpr char firmware_frage = 'v';
inline constexpr char gruss_antwort = '+';
inline constexpr char modus_antwort = '<';

struct gruss {};       ///< it waits for its answer
struct aktiviert {};   ///< it has been answered
struct modusfrage {};  ///< it is ready for a mode
struct firmware {
    std::string text;  ///< UTF-8
};
struct modus {
    int nummer = 0;  ///< 1 to 4, 0 none
};
struct taster {
    bool lang = false;
};
/// A sensor: in contact mode `gruppe` is the number of the contact, else the position of the sensor, and `wert` the
/// car.
struct sensor {
    int gruppe = 0;  ///< 0 to 9
    int wert = 0;    ///< 64 - code of the character; only from 1 to 8 it means anything
};
using meldung = std::variant<std::monostate, gruss, aktiviert, modusfrage, firmware, modus, taster, sensor>;

/// The meaning of a line, without its carriage return; nothing for noise.
meldung zeile_lesen(std::string_view zeile);
/// Only such a module speaks so: other devices have lines of their own, also with a "V" in them.
bool ist_modul(const meldung& was);

/// The characters that switch output `nummer`, 1 to `ausgang_max`; empty for any other.
std::string schaltbefehl(int nummer, bool an);
/// The characters that set a mode; any other number than 1 to 4 sets none.
std::string modusbefehl(int nummer);

/// Puts the lines together.
class zeilenpuffer {
public:
    /// The line that this byte ends; it holds until the next byte. A line that is longer than any of the module's is
    /// dropped up to its end.
    std::optional<std::string_view> nehmen(char byte);
    void leeren();

private:
    std::string tx_puffer_;
    std::string zeile_;
    bool zu_lang_ = false;
};

}  // namespace tarvel::tx
