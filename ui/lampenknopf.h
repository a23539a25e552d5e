#pragma once

#include <QAbstractButton>

#include "ui/binder.h"

namespace tarvel::ui {

/// A lamp of a test window that is lit while its control is set. One that switches is a button too.
class Lampenknopf : public QAbstractButton {
public:
    Lampenknopf(const QColor& farbe, bool schaltet, QWidget* eltern);

    QSize sizeHint() const override { return {kante, kante}; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    static constexpr int kante = 22;
    QColor farbe_;
};

/// With `schaltet` the operator turns the control over.
Lampenknopf* lampe(Binder& binder, haken& element, const QString& name, bool schaltet);

/// A patch of this size that is lit in the colour of its control; without one it is out.
QLabel* lampe(Binder& binder, form& element, const QString& name, int kante = 18);

}  // namespace tarvel::ui
