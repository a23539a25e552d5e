#include "ui/eingabefelder.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>
#include <QToolTip>
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

bool Auswahlfeld::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        QStyleOptionComboBox aussehen;
        initStyleOption(&aussehen);
        const int platz =
            style()->subControlRect(QStyle::CC_ComboBox, &aussehen, QStyle::SC_ComboBoxEditField, this).width();
        const bool abgeschnitten = fontMetrics().horizontalAdvance(currentText()) > platz;
        QToolTip::showText(static_cast<QHelpEvent*>(ereignis)->globalPos(), abgeschnitten ? currentText() : QString(),
                           this);
        return true;
    }
    return QComboBox::event(ereignis);
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
