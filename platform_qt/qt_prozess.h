#pragma once

#include <QLockFile>
#include <memory>

#include "platform/prozess.h"

namespace tarvel::qt {

/// A second start is recognised by a lock of this user, outside the program folder.
class QtProzess final : public plattform::prozess {
public:
    QtProzess();
    /// With a lock file of another name.
    explicit QtProzess(const QString& datei);
    bool ist_einzige_instanz() override;
    void beenden() override;

private:
    QLockFile sperre_;
};

}  // namespace tarvel::qt
