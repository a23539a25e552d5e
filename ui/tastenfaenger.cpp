#include "ui/tastenfaenger.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>
#include <utility>

#include "core/text.h"

namespace tarvel::ui {

Tastenfaenger::Tastenfaenger(QWidget* fenster, std::function<bool(int)> belegt, std::function<void(int)> taste)
    : QObject(fenster), fenster_(fenster), belegt_(std::move(belegt)), taste_(std::move(taste)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool Tastenfaenger::eventFilter(QObject* ziel, QEvent* ereignis) {
    // The first receiver only: an ignored key travels on to the parents, and would count again there.
    QWidget* empfaenger = fenster_->focusWidget() != nullptr ? fenster_->focusWidget() : fenster_;
    const bool tippt = qobject_cast<QLineEdit*>(empfaenger) != nullptr;  // a field takes what is typed into it
    if (ereignis->type() == QEvent::KeyPress && ziel == empfaenger && !tippt && fenster_->isActiveWindow()) {
        return nehmen(*static_cast<QKeyEvent*>(ereignis));
    }
    return QObject::eventFilter(ziel, ereignis);
}

bool Tastenfaenger::nehmen(const QKeyEvent& ereignis) const {
    const bool strg = ereignis.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = ereignis.modifiers().testFlag(Qt::AltModifier);
    const auto code = ansi_code(ereignis.text().toStdString());
    if (!code || strg != alt || !belegt_(*code)) {  // both together are AltGr
        return false;
    }
    if (!ereignis.isAutoRepeat()) {
        taste_(*code);
    }
    return true;
}

}  // namespace tarvel::ui
