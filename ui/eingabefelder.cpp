#include "ui/eingabefelder.h"

#include <QKeyEvent>
#include <utility>

namespace tarvel::ui {

bool Weitersprung::eventFilter(QObject* ziel, QEvent* ereignis) {
    const bool taste = ereignis->type() == QEvent::KeyPress;
    if (ziel == wahl_ && (taste || ereignis->type() == QEvent::MouseButtonPress)) {
        mit_tasten_ = taste;
    } else if (ziel == feld_ && ereignis->type() == QEvent::FocusIn) {
        gesprungen_ = mit_tasten_ && static_cast<QFocusEvent*>(ereignis)->reason() == Qt::OtherFocusReason;
    } else if (ziel == feld_ && taste && std::exchange(gesprungen_, false) &&
               static_cast<QKeyEvent*>(ereignis)->key() == Qt::Key_Tab) {
        QWidget* naechstes = wahl_->nextInFocusChain();
        while (naechstes != feld_ &&
               !(naechstes->isEnabled() && naechstes->focusPolicy() & Qt::TabFocus && naechstes->isVisible())) {
            naechstes = naechstes->nextInFocusChain();
        }
        naechstes->setFocus(Qt::TabFocusReason);
        return true;
    }
    return QObject::eventFilter(ziel, ereignis);
}

}  // namespace tarvel::ui
