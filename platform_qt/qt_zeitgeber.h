#pragma once

#include "platform/uhr.h"
#include "platform/zeitgeber.h"

namespace tarvel::qt {

/// Periodic timers on the Qt event loop.
class QtZeitgeberDienst final : public plattform::zeitgeber_dienst {
public:
    explicit QtZeitgeberDienst(const plattform::uhr& uhr) : uhr_(uhr) {}
    std::unique_ptr<plattform::zeitgeber> erzeugen(plattform::zeitgeber_art art, dauer_ms intervall) override;

private:
    const plattform::uhr& uhr_;
};

}  // namespace tarvel::qt
