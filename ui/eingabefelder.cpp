#include "ui/eingabefelder.h"

#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <utility>

namespace tarvel::ui {
namespace {

/// Items with what is said behind them.
class Zusatzzeichner final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& zelle) const override {
        QStyledItemDelegate::initStyleOption(option, zelle);
        const QString zusatz = zelle.data(Qt::UserRole).toString();
        if (!zusatz.isEmpty()) {
            option->text += "  –  " + zusatz;
        }
    }
};

}  // namespace

void Auswahlfeld::setZusaetze(const QStringList& zusaetze) {
    if (zusaetze_.isEmpty() && !zusaetze.isEmpty()) {
        setItemDelegate(new Zusatzzeichner(this));
    }
    zusaetze_ = zusaetze;
    for (int i = 0; i < count(); ++i) {
        setItemData(i, zusaetze_.value(i));
    }
}

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
