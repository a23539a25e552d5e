#pragma once

#include <QThread>
#include <memory>
#include <vector>

#include "platform/abtaster.h"

namespace tarvel::qt {

/// Threads that look at devices, with the highest priority that the system grants. Of one device, one at a time.
class QtAbtasterDienst final : public plattform::abtaster_dienst {
public:
    explicit QtAbtasterDienst(const plattform::uhr& uhr) : uhr_(uhr) {}
    QtAbtasterDienst(const QtAbtasterDienst&) = delete;
    QtAbtasterDienst& operator=(const QtAbtasterDienst&) = delete;
    /// Those that still hang get a last moment.
    ~QtAbtasterDienst() override;

    [[nodiscard]] std::unique_ptr<schnittstelle> starten(dauer_ms abstand, std::function<void(zeit_ms)> blick) override;

private:
    const plattform::uhr& uhr_;
    std::vector<std::unique_ptr<QThread>> haengende_;  ///< left behind
};

}  // namespace tarvel::qt
