#pragma once

#include "platform/uhr.h"

namespace tarvel {

/// Finds the best of a lane's laps, which are told in their order. A crossing that was added later makes no lap faster:
/// what counts is the time between two crossings that were measured, and only where the program was there all of it.
class bestensuche {
public:
    /// Whether the crossing at which lap 1 begins was added, too.
    explicit bestensuche(bool beginn_nachgetragen) : gemessen_(!beginn_nachgetragen) {}

    template <class Runde>
    void runde(const Runde& r) {
        spanne_ += r.zeit;
        ganz_ = ganz_ && !r.ausfall;
        if (r.nachgetragen) {
            return;
        }
        if (gemessen_ && ganz_ &&
            (!gefunden_ || (spanne_ > 0 && spanne_ < beste_))) {  // the first counts, whatever it is
            beste_ = spanne_;
            gefunden_ = true;
        }
        gemessen_ = true;
        ganz_ = true;
        spanne_ = 0;
    }
    /// 0 without a lap that was measured.
    zeit_ms beste() const { return beste_; }

private:
    bool gemessen_;  ///< so was the crossing at which the span begins
    bool ganz_ = true;
    bool gefunden_ = false;
    zeit_ms spanne_ = 0;
    zeit_ms beste_ = 0;
};

}  // namespace tarvel
