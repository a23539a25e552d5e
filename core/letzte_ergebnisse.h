#pragma once

#include <string>
#include <vector>

#include "core/dateien.h"

namespace tarvel {

/// The results that were written last, the newest first: `tvk_zuletzt.ini`, two lines for each, its file below the
/// program folder and what it is.
class letzte_ergebnisse {
public:
    static constexpr std::size_t anzahl_max = 20;

    struct eintrag {
        std::string pfad;
        std::string text;  ///< when and who, without a word of any language
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
