#pragma once

#include <QWidget>

#include "race/spurlage.h"

namespace tarvel::ui {

/// The board that says in a word what a lane, or the race, is in: drawn only when that changes.
class Lagetafel : public QWidget {
public:
    struct Inhalt {
        lage was = lage::faehrt;
        QString wort;    ///< in one line
        QString zeilen;  ///< or broken
        QString zahl;
        double stand = 0;  ///< of the tank, 0 to 1

        bool operator==(const Inhalt&) const = default;
    };

    explicit Lagetafel(QWidget* eltern) : QWidget(eltern) {}

    void zeigen(const Inhalt& neu);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    Inhalt inhalt_;
};

}  // namespace tarvel::ui
