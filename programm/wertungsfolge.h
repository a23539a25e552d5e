#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "results/wertung.h"

namespace tarvel {

/// Does a race again from its log, and keeps its result with it: what the race director has corrected is corrected
/// again, and where the race goes on from its result, that is settled as it was then. Starts without a result.
class wertungsfolge {
public:
    wertungsfolge(rennen& r, wertung& w) : r_(r), wertung_(w) { w.zuruecksetzen(); }

    /// The next doing; false at the end, and where the race takes another way.
    bool weiter();
    bool bis_zum_ende() {
        while (weiter()) {
        }
        return !r_.protokoll.abweichung();
    }
    /// Told of each line of the log that is only for the reader, with the result up to there.
    std::function<void(std::string_view text)> bei_kopfzeile;

private:
    void korrektur_lesen(std::string_view text);
    /// Where the lanes' drivers come from, if that is what comes next.
    std::optional<spuren<int>> abschliessen_vor(const protokollsatz& tat);

    rennen& r_;
    wertung& wertung_;
    korrekturfolge folge_;
    bool abgeschlossen_ = false;  ///< the result window has been left
};

}  // namespace tarvel
