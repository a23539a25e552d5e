#include "platform_qt/tastenstempel.h"

#ifdef Q_OS_WIN
#include <QCoreApplication>
#include <QKeyEvent>
#include <chrono>

#include <windows.h>

namespace tarvel::qt {

Tastenstempel::Tastenstempel() {
    QCoreApplication::instance()->installNativeEventFilter(this);
    QCoreApplication::instance()->installEventFilter(this);
}

Tastenstempel::~Tastenstempel() {
    if (QCoreApplication::instance() != nullptr) {
        QCoreApplication::instance()->removeNativeEventFilter(this);
    }
}

bool Tastenstempel::nativeEventFilter(const QByteArray& art, void* nachricht, qintptr* /*ergebnis*/) {
    constexpr std::size_t wartende_max = 64;
    constexpr LPARAM scancode = 0x1ff;
    const auto* msg = static_cast<const MSG*>(nachricht);
    if (art == "windows_dispatcher_MSG" && (msg->message == WM_KEYDOWN || msg->message == WM_SYSKEYDOWN)) {
        gedrueckt_.push_back({static_cast<quint32>((msg->lParam >> 16) & scancode), static_cast<quint32>(msg->time)});
        if (gedrueckt_.size() > wartende_max) {
            gedrueckt_.pop_front();
        }
    }
    return false;
}

bool Tastenstempel::eventFilter(QObject* ziel, QEvent* ereignis) {
    using namespace std::chrono;
    constexpr quint32 takt_ms = 32;  // the stamps step by 16 ms: less than two steps is at once
    if (ereignis->type() == QEvent::KeyPress && ziel->isWindowType()) {
        auto* taste = static_cast<QKeyEvent*>(ereignis);
        while (!gedrueckt_.empty()) {
            const druck d = gedrueckt_.front();
            gedrueckt_.pop_front();
            if (d.taste == taste->nativeScanCode()) {
                const quint32 alter = GetTickCount() - d.zeitpunkt;
                const auto jetzt = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
                taste->setTimestamp(static_cast<quint64>(jetzt) - (alter < takt_ms ? 0 : alter));
                break;
            }
        }
    }
    return QObject::eventFilter(ziel, ereignis);
}

}  // namespace tarvel::qt
#endif
