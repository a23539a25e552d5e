#pragma once

#include <memory>

#include "platform/dauer.h"
#include "platform/schnittstelle.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// What the automatic flow does when a wait is over.
class automatenfolgen : public schnittstelle {
public:
    /// Else the wait for the next race stands still.
    virtual bool darf_warten() const = 0;
    /// Opens the race window on the next race.
    virtual void w_auto1_vorbei() = 0;
    /// Begins the warm-up, or the race. False if that cannot be yet: asked again a second later.
    virtual bool w_auto2_vorbei() = 0;
    virtual bool w_auto3_vorbei() = 0;
    /// The wait for the next race is a second shorter, or has gone.
    virtual void wartezeit_zeigen() = 0;
};

/// The waits of a competition that runs by itself: for the next race, and in the race window for its warm-up or its
/// start. At most one of them runs.
class rennautomat {
public:
    rennautomat(plattform::zeitgeber_dienst& zeitgeber, automatenfolgen& folgen);

    void auf_naechstes_rennen(dauer_ms wartezeit);
    void auf_einfahren() { beginnen(w_auto2_, am_start); }
    void auf_rennstart() { beginnen(w_auto3_, am_start); }
    void aus();

    bool wartet_auf_rennen() const { return w_auto1_->laeuft(); }
    /// Of the wait that runs.
    dauer_s rest() const { return rest_; }

private:
    static constexpr dauer_s am_start{3};

    void beginnen(const std::unique_ptr<plattform::zeitgeber>& zeitgeber, dauer_s wartezeit);
    bool vorbei();
    void w_auto1_tick();

    automatenfolgen& folgen_;
    std::unique_ptr<plattform::zeitgeber> w_auto1_;
    std::unique_ptr<plattform::zeitgeber> w_auto2_;
    std::unique_ptr<plattform::zeitgeber> w_auto3_;
    dauer_s rest_{};
};

}  // namespace tarvel
