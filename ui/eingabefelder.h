#pragma once

#include <QColor>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStringList>
#include <QWheelEvent>
#include <utility>

namespace tarvel::ui {

/// A field for a single character takes the next one in place of the old, however it got the focus.
class Eingabezeile final : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

    /// Property of a field whose text is mostly replaced: the first click into it marks all of it.
    static constexpr const char* als_ganzes = "als_ganzes";

protected:
    void focusInEvent(QFocusEvent* ereignis) override {
        QLineEdit::focusInEvent(ereignis);
        ersetzbar_machen();
        erster_klick_ = ereignis->reason() == Qt::MouseFocusReason && property(als_ganzes).toBool();
    }
    void mouseReleaseEvent(QMouseEvent* ereignis) override {
        QLineEdit::mouseReleaseEvent(ereignis);
        ersetzbar_machen();
        if (std::exchange(erster_klick_, false) && !hasSelectedText()) {
            selectAll();
        }
    }

private:
    void ersetzbar_machen() {
        if (maxLength() == 1) {
            selectAll();
        }
    }

    bool erster_klick_ = false;
};

/// The wheel scrolls the page and never turns a choice on the way. A text that is wider than its field is told whole
/// under the pointer.
class Auswahlfeld final : public QComboBox {
public:
    using QComboBox::QComboBox;

    /// Shown behind the items while the choice is open.
    const QStringList& zusaetze() const { return zusaetze_; }
    void setZusaetze(const QStringList& zusaetze);

protected:
    bool event(QEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override { ereignis->ignore(); }

private:
    QStringList zusaetze_;
};

/// Only digits, a sign, comma and point can be typed; what the logic sets is shown as it is.
void nur_zahlen_annehmen(QLineEdit* feld);

/// A button in a colour of the user's: the focus is a ring inside it, in what is seen on that colour.
class Farbknopf final : public QPushButton {
public:
    using QPushButton::QPushButton;
    void setFarbe(const QColor& farbe);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    QColor farbe_;
};

/// The focus alone chooses no row: the first arrow key chooses the one that it stands on, and not the one behind it.
/// A row that is cut off with dots is told whole under the pointer.
class Listenfeld final : public QListView {
public:
    using QListView::QListView;

    /// No line is cut at its end.
    void setGanzeZeilen();
    /// Property of a list in which a chosen row does nothing yet: the keyboard comes to its first row.
    static constexpr const char* fokus_waehlt = "fokus_waehlt";

protected:
    void focusInEvent(QFocusEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    bool viewportEvent(QEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;
    void updateGeometries() override;

private:
    bool ungesehen_ = true;  ///< since it was shown: its place is still being laid out
    bool ganze_zeilen_ = false;
    int rest_px_ = 0;  ///< below the last whole line
};

/// A choice whose change moves the focus on to a field. Who steps through the choice by keyboard has not left it yet:
/// the arrow keys step on, and the next Tab goes to what follows the choice, and not to what follows that field.
class Weitersprung final : public QObject {
public:
    Weitersprung(QWidget* wahl, QWidget* feld) : QObject(feld), wahl_(wahl), feld_(feld) {
        wahl->installEventFilter(this);
        feld->installEventFilter(this);
    }

    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    /// The first key in the field; true if it was not meant for it.
    bool weiter(QKeyEvent& taste);

    QWidget* wahl_;
    QWidget* feld_;
    bool mit_tasten_ = false;  ///< the choice was last touched by keyboard
    bool gesprungen_ = false;  ///< and nothing has been typed since the focus moved
};

}  // namespace tarvel::ui
