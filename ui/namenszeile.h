#pragma once

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <utility>

namespace tarvel::ui {

/// The first click into a name means the whole of it: what is typed next takes its place, and two names are not mixed.
/// A second click sets the cursor, and dragging marks as everywhere.
class Namenszeile final : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void focusInEvent(QFocusEvent* ereignis) override {
        QLineEdit::focusInEvent(ereignis);
        const Qt::FocusReason grund = ereignis->reason();
        if (grund != Qt::PopupFocusReason && grund != Qt::ActiveWindowFocusReason && grund != Qt::MenuBarFocusReason) {
            erster_klick_ = true;  // else the operator has been here all the while
        }
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
    bool erster_klick_ = true;
};

}  // namespace tarvel::ui
