#pragma once

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <QAbstractNativeEventFilter>
#include <QObject>
#include <deque>

namespace tarvel::qt {

/// Stamps keys with the moment at which they were pressed, by the machine's millisecond counter. Elsewhere the window
/// system does; here Qt only says when it came to look at them.
class Tastenstempel final : public QObject, private QAbstractNativeEventFilter {
public:
    Tastenstempel();
    ~Tastenstempel() override;

    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    struct druck {
        quint32 taste;      ///< scan code
        quint32 zeitpunkt;  ///< GetTickCount
    };

    bool nativeEventFilter(const QByteArray& art, void* nachricht, qintptr* ergebnis) override;

    std::deque<druck> gedrueckt_;  ///< not seen as events yet
};

}  // namespace tarvel::qt
#endif
