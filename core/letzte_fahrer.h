#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "core/namensliste.h"

namespace tarvel {

/// Who drove lately, the last ones first: `tvk_fahrer.ini`, a name a line. It stands beside the settings and the lists:
/// a guest who drove once is offered again, and nobody has to strike him from a list.
class letzte_fahrer {
public:
    static constexpr std::size_t anzahl_max = 60;

    /// A file that is missing or damaged leaves nobody, or who can be read.
    void laden(const dateien& ablage);
    /// They drive now. A file that cannot be written costs no race a word.
    void gefahren(const dateien& ablage, const std::vector<std::string>& fahrer);
    const std::vector<std::string>& namen() const { return namen_; }

    /// They, and behind them the rest of the list in its order.
    std::vector<std::string> mit_liste(const namensliste& liste) const;

private:
    std::vector<std::string> namen_;
};

/// The names that go with what is typed: first those that begin with it, then those of which a later word does, each
/// in their order. Upper and lower case are the same. None for nothing typed, and none where only the name itself is
/// left.
std::vector<std::string> namensvorschlaege(std::string_view getippt, std::span<const std::string> namen);

}  // namespace tarvel
