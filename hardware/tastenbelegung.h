#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"

namespace tarvel {

/// Which of the three ready-made assignments gives a row its key.
enum class belegung_stufe {
    erststart,  ///< the rows that have a key at the first start
    standard,   ///< those, and the lap deduction
    alle        ///< every row
};

/// One row of the key assignment that can carry a key.
struct tastenzeile {
    int zeile;              ///< 1 and 13 to 59 follow the event numbers, 60 to 66 have meanings of their own
    int spur;               ///< 1 to 6, 0 for keys of the whole track
    std::string_view name;  ///< as the operator reads it
    std::string taste;      ///< ready-made key
    belegung_stufe ab;      ///< the ready-made assignments from this one on hold the key
};

/// All rows that can carry a key, lane by lane and then those of the whole track.
const std::vector<tastenzeile>& tastenzeilen();

/// The key assignment: one Windows-1252 key code per row. Upper-case and lower-case letters are different keys.
class tastenbelegung {
public:
    static constexpr int zeile_max = 66;
    static constexpr int keine_taste = 1;  ///< a code that no key produces
    static constexpr int zeile_chaos = 1;
    static constexpr int zeile_nacht = 60;

    tastenbelegung() { vorbelegen(belegung_stufe::erststart); }

    int taste(int zeile) const { return tasten_.at(static_cast<std::size_t>(zeile)); }
    /// Codes outside 1 to 255 count as no key.
    void taste(int zeile, int code);
    bool ist_belegt(int code) const;
    void leeren() { tasten_.fill(keine_taste); }
    void vorbelegen(belegung_stufe stufe);

    /// False leaves the assignment as it was: no file, a file that is too short, or a line that is no number.
    bool tastenbelegung_laden(const dateien& ablage);
    bool tastenbelegung_speichern(const dateien& ablage) const;

    bool operator==(const tastenbelegung&) const = default;

private:
    std::array<int, zeile_max + 1> tasten_{};
};

}  // namespace tarvel
