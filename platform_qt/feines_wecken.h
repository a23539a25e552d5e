#pragma once

#include <QtGlobal>

namespace tarvel::qt {

/// As long as it lives, the system wakes the thread that made it to the millisecond, and ahead of others where it
/// grants that.
class FeinesWecken {
public:
    FeinesWecken();
    FeinesWecken(const FeinesWecken&) = delete;
    FeinesWecken& operator=(const FeinesWecken&) = delete;
#ifdef Q_OS_WIN
    ~FeinesWecken();
#endif

    /// Nobody else holds the thread up.
    bool verlaesslich() const {
        return verlaesslich_;
    }

private:
    bool verlaesslich_ = true;
};

}  // namespace tarvel::qt
