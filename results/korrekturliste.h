#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "race/rundenkorrektur.h"

namespace tarvel {

/// What the operator does at once, and takes back at once.
using korrekturschritt = std::vector<korrektur>;

/// The corrections of a result, of which the last may have been taken back. The result is always made anew from the
/// one that was driven.
class korrekturliste {
public:
    /// What was taken back before is gone.
    void anfuegen(korrekturschritt schritt);
    /// The step that has been taken back, or that counts again; null if there is none.
    const korrekturschritt* zuruecknehmen() { return geltende_ == 0 ? nullptr : &schritte_[--geltende_]; }
    const korrekturschritt* wiederherstellen() {
        return geltende_ == schritte_.size() ? nullptr : &schritte_[geltende_++];
    }
    /// The step that would be the next to be taken back, or to count again.
    const korrekturschritt* letzter() const { return geltende_ == 0 ? nullptr : &schritte_[geltende_ - 1]; }
    const korrekturschritt* naechster() const {
        return geltende_ == schritte_.size() ? nullptr : &schritte_[geltende_];
    }
    void leeren();

    /// The steps that count.
    std::vector<korrekturschritt> geltende() const {
        return {schritte_.begin(), schritte_.begin() + static_cast<std::ptrdiff_t>(geltende_)};
    }
    /// The result with what counts, and with its places. What does not fit any more is left out.
    rennergebnis angewandt(rennergebnis gefahren) const;

private:
    std::vector<korrekturschritt> schritte_;
    std::size_t geltende_ = 0;
};

/// A line of the race's log about the correction, without its first sign; `wie` says whether it was taken back.
std::string korrekturzeile(std::string_view wie, const korrektur& k);

}  // namespace tarvel
