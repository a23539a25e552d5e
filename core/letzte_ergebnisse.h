#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"

namespace tarvel {

/// What a result is, without a word of any language.
struct ergebnisangabe {
    enum class art : char { zeitrennen = 'Z', rundenrennen = 'R', tagesrennen = 'T', wettkampf = 'W' };
    static constexpr std::size_t genannte_max = 3;

    std::string wann;
    art was = art::rundenrennen;
    std::string name;                 ///< of the competition or of the day's file
    int runden = 0;                   ///< of the first; 0 for a first who has won nothing
    std::vector<std::string> fahrer;  ///< by their places; more than `genannte_max` are left out

    /// As one line of a file.
    std::string zeile() const;
    /// None for a line of another kind.
    static std::optional<ergebnisangabe> aus_zeile(std::string_view zeile);
};

/// The results that were written last, the newest first: `tvk_zuletzt.ini`, two lines for each, its file below the
/// program folder and what it is.
class letzte_ergebnisse {
public:
    static constexpr std::size_t anzahl_max = 20;

    struct eintrag {
        std::string pfad;
        std::string text;  ///< the line of an `ergebnisangabe`; or, from an older program, when and who
        bool operator==(const eintrag&) const = default;
    };

    /// A file that is missing or damaged leaves nothing, or what can be read.
    void laden(const dateien& ablage);
    /// A file that is written again, and a race that is saved again in another one, stand there once. A failure to
    /// write is silent: the result itself is safe.
    void merken(const dateien& ablage, const eintrag& neu);
    const std::vector<eintrag>& eintraege() const { return eintraege_; }

    /// The file as it can be opened now: where it was written, or where the program start has tidied it away. Empty if
    /// it is gone.
    static std::string ort(const dateien& ablage, const eintrag& e);

private:
    std::vector<eintrag> eintraege_;
};

}  // namespace tarvel
