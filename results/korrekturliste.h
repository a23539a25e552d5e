#pragma once

#include <cstddef>
#include <optional>
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
    /// One more in the last step that counts.
    void ergaenzen(const korrektur& k);
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
    /// The clock of the race counts on from elsewhere, and with it its stamps.
    void stempel_verschieben(zeit_ms um);

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

/// A correction as the race's log tells of it.
struct korrekturvermerk {
    enum class weise {
        neu,      ///< begins a step
        dazu,     ///< belongs to the step that the one before began
        zurueck,  ///< each correction of a step that is taken back,
        wieder    ///< or that counts again
    };
    weise wie = weise::neu;
    korrektur was;
};

/// A line of the log, without its first sign.
std::string korrekturzeile(const korrekturvermerk& v);
/// None for any other line. What is added at the end of the laps has no length: that is the lane's.
std::optional<korrekturvermerk> korrekturzeile_lesen(std::string_view zeile);

/// Follows these lines. A step of several corrections is taken back, or counts again, with the first line about it.
class korrekturfolge {
public:
    /// The line changes the list.
    bool gilt(const korrekturvermerk& v, const korrekturliste& liste);

private:
    std::size_t steht_schon_ = 0;  ///< lines to come about the step that has been taken back, or counts again
};

}  // namespace tarvel
