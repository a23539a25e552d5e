#include "ui/eingabefelder.h"

#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QResizeEvent>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <utility>

#include "ui/stil.h"

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

void nur_zahlen_annehmen(QLineEdit* feld) {
    feld->setValidator(new QRegularExpressionValidator(QRegularExpression("[-+]?[0-9.,]*"), feld));
}

void Farbknopf::setFarbe(const QColor& farbe) {
    farbe_ = farbe;
    setText(farbe.name());
    setStyleSheet(
        QString("QPushButton { background: %1; color: %2; }").arg(farbe.name(), stil::schrift_auf(farbe).name()));
}

void Farbknopf::paintEvent(QPaintEvent* ereignis) {
    QPushButton::paintEvent(ereignis);
    if (hasFocus()) {
        constexpr double ring_px = 3;
        QPainter maler(this);
        maler.setRenderHint(QPainter::Antialiasing);
        maler.setPen(QPen(stil::schrift_auf(farbe_), ring_px));
        maler.drawRoundedRect(QRectF(rect()).adjusted(ring_px + 1, ring_px + 1, -ring_px - 1, -ring_px - 1), 4, 4);
    }
}

void Listenfeld::keyPressEvent(QKeyEvent* ereignis) {
    const bool pfeil = ereignis->key() == Qt::Key_Down || ereignis->key() == Qt::Key_Up;
    const bool waehlbar = selectionMode() != NoSelection && !selectionModel()->hasSelection();
    if (waehlbar && ereignis->key() == Qt::Key_End) {
        setCurrentIndex(model()->index(model()->rowCount() - 1, 0));  // without a current row it would be the first
    } else if (pfeil && waehlbar && currentIndex().isValid()) {
        selectionModel()->setCurrentIndex(currentIndex(), QItemSelectionModel::ClearAndSelect);
        scrollTo(currentIndex());
    } else {
        QListView::keyPressEvent(ereignis);
    }
}

void Listenfeld::focusInEvent(QFocusEvent* ereignis) {
    QListView::focusInEvent(ereignis);
    const bool maus = ereignis->reason() == Qt::MouseFocusReason || ereignis->reason() == Qt::PopupFocusReason;
    if (property(fokus_waehlt).toBool() && !maus && !selectionModel()->hasSelection()) {
        setCurrentIndex(model()->index(0, 0));
    }
}

bool Listenfeld::viewportEvent(QEvent* ereignis) {
    if (ereignis->type() != QEvent::ToolTip || textElideMode() == Qt::ElideNone) {
        return QListView::viewportEvent(ereignis);
    }
    const auto* hilfe = static_cast<QHelpEvent*>(ereignis);
    const QModelIndex zeile = indexAt(hilfe->pos());
    const bool abgeschnitten = zeile.isValid() && sizeHintForIndex(zeile).width() > visualRect(zeile).width();
    QToolTip::showText(hilfe->globalPos(), abgeschnitten ? zeile.data().toString() : toolTip(), this);
    return true;
}

/// What was marked before the list had its height stands at its end, and what is above it was out of sight.
void Listenfeld::resizeEvent(QResizeEvent* ereignis) {
    QListView::resizeEvent(ereignis);
    const QModelIndexList gewaehlt =
        selectionModel() != nullptr ? selectionModel()->selectedIndexes() : QModelIndexList();
    if (ungesehen_ && !gewaehlt.isEmpty() && ereignis->size().height() > ereignis->oldSize().height()) {
        scrollToTop();
        scrollTo(gewaehlt.front());
    }
}

void Listenfeld::showEvent(QShowEvent* ereignis) {
    ungesehen_ = true;
    QListView::showEvent(ereignis);
}

void Listenfeld::paintEvent(QPaintEvent* ereignis) {
    ungesehen_ = false;
    QListView::paintEvent(ereignis);
}

void Listenfeld::setGanzeZeilen() {
    ganze_zeilen_ = true;
    updateGeometries();
}

void Listenfeld::updateGeometries() {
    const int zeile = ganze_zeilen_ ? sizeHintForRow(0) : 0;
    const int hoehe = viewport()->height() + rest_px_;
    const int rest = zeile > 0 && hoehe > zeile ? hoehe % zeile : 0;
    if (std::exchange(rest_px_, rest) != rest) {
        setViewportMargins(0, 0, 0, rest);
    }
    QListView::updateGeometries();
}

bool Weitersprung::eventFilter(QObject* ziel, QEvent* ereignis) {
    const bool taste = ereignis->type() == QEvent::KeyPress;
    if (ziel == wahl_ && (taste || ereignis->type() == QEvent::MouseButtonPress)) {
        mit_tasten_ = taste;
    } else if (ziel == feld_ && ereignis->type() == QEvent::FocusIn) {
        gesprungen_ = mit_tasten_ && static_cast<QFocusEvent*>(ereignis)->reason() == Qt::OtherFocusReason;
    } else if (ziel == feld_ && taste && std::exchange(gesprungen_, false)) {
        return weiter(*static_cast<QKeyEvent*>(ereignis));
    }
    return QObject::eventFilter(ziel, ereignis);
}

bool Weitersprung::weiter(QKeyEvent& taste) {
    if (taste.key() == Qt::Key_Up || taste.key() == Qt::Key_Down) {
        gesprungen_ = true;
        QCoreApplication::sendEvent(wahl_, &taste);
        return true;
    }
    if (taste.key() != Qt::Key_Tab) {
        return false;
    }
    QWidget* naechstes = wahl_->nextInFocusChain();
    while (naechstes != feld_ &&
           !(naechstes->isEnabled() && naechstes->focusPolicy() & Qt::TabFocus && naechstes->isVisible())) {
        naechstes = naechstes->nextInFocusChain();
    }
    naechstes->setFocus(Qt::TabFocusReason);
    return true;
}

}  // namespace tarvel::ui
