#pragma once

#include "platform/abtaster.h"

namespace tarvel::qt {

/// Threads that look at devices, with the highest priority that the system grants. Of one device, one at a time.
class QtAbtasterDienst final : public plattform::abtaster_dienst {
public:
    explicit QtAbtasterDienst(const plattform::uhr& uhr) : uhr_(uhr) {}
    [[nodiscard]] std::unique_ptr<schnittstelle> starten(dauer_ms abstand, std::function<void(zeit_ms)> blick) override;

private:
    const plattform::uhr& uhr_;
};

}  // namespace tarvel::qt
