#pragma once

#include <QPushButton>

#include "core/steuerelemente.h"

namespace tarvel::ui {

/// What a command asks back, as a button that has grown out of its own: it lies over it, larger and in a colour that no
/// other has, and a press on it is one on that button. It moves nothing, and leaves free whatever else can be pressed
/// or typed into.
class Frageknopf final : public QPushButton {
public:
    Frageknopf(befehl& element, QPushButton& knopf);

    /// Empty for none.
    void fragen(const QString& frage);
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    void anordnen();
    bool trifft_anderes(const QRect& ort) const;

    QPushButton& knopf_;
};

}  // namespace tarvel::ui
