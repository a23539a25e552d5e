#pragma once

#include <QEvent>
#include <QKeyEvent>

namespace tarvel::ui {

/// Tells a key that is held from one that is pressed again. The window system says a held key again as let go and
/// pressed in the same moment, and while a race keeps the program busy, Qt does not see that the two belong together.
class Tastenhalt {
public:
    /// To be told of every key event. True for a press without the key having been let go.
    bool gehalten(const QKeyEvent& taste) {
        if (taste.type() == QEvent::KeyRelease) {
            losgelassen_ = taste.key();
            wann_ = taste.timestamp();
            return false;
        }
        constexpr quint64 derselbe_moment_ms = 1;  // no finger is as fast
        return taste.isAutoRepeat() || (wann_ != 0 && taste.key() == losgelassen_ && taste.timestamp() >= wann_ &&
                                        taste.timestamp() - wann_ <= derselbe_moment_ms);
    }

private:
    int losgelassen_ = 0;
    quint64 wann_ = 0;  ///< milliseconds on the window system's clock; 0 for a stamp of nobody
};

}  // namespace tarvel::ui
