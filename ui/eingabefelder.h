#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QWheelEvent>

namespace tarvel::ui {

/// A field for a single character takes the next one in place of the old, however it got the focus.
class Eingabezeile final : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void focusInEvent(QFocusEvent* ereignis) override {
        QLineEdit::focusInEvent(ereignis);
        ersetzbar_machen();
    }
    void mouseReleaseEvent(QMouseEvent* ereignis) override {
        QLineEdit::mouseReleaseEvent(ereignis);
        ersetzbar_machen();
    }

private:
    void ersetzbar_machen() {
        if (maxLength() == 1) {
            selectAll();
        }
    }
};

/// The wheel scrolls the page and never turns a choice on the way.
class Auswahlfeld final : public QComboBox {
public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* ereignis) override { ereignis->ignore(); }
};

}  // namespace tarvel::ui
