#pragma once

#include <QFocusEvent>
#include <QHideEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <utility>

namespace tarvel::ui {

/// The first click into a name means the whole of it: what is typed next takes its place, and two names are not mixed.
/// A second click sets the cursor, and dragging marks as everywhere. Who has left the field reads a long name from its
/// beginning.
class Namenszeile final : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void focusInEvent(QFocusEvent* ereignis) override {
        QLineEdit::focusInEvent(ereignis);
        if (feldwechsel(*ereignis)) {
            erster_klick_ = true;
        }
    }
    void focusOutEvent(QFocusEvent* ereignis) override {
        QLineEdit::focusOutEvent(ereignis);
        if (feldwechsel(*ereignis)) {
            setCursorPosition(0);
        }
    }
    void hideEvent(QHideEvent* ereignis) override {
        QLineEdit::hideEvent(ereignis);
        setCursorPosition(0);  // the race has come in between
    }
    void keyPressEvent(QKeyEvent* ereignis) override {
        erster_klick_ = false;
        QLineEdit::keyPressEvent(ereignis);
    }
    void mouseReleaseEvent(QMouseEvent* ereignis) override {
        QLineEdit::mouseReleaseEvent(ereignis);
        if (ereignis->button() == Qt::LeftButton && std::exchange(erster_klick_, false) && !hasSelectedText()) {
            selectAll();
        }
    }

private:
    /// Else the operator stays here all the while.
    static bool feldwechsel(const QFocusEvent& ereignis) {
        const Qt::FocusReason grund = ereignis.reason();
        return grund != Qt::PopupFocusReason && grund != Qt::ActiveWindowFocusReason && grund != Qt::MenuBarFocusReason;
    }

    bool erster_klick_ = true;
};

}  // namespace tarvel::ui
