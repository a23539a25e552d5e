#pragma once

#include <QObject>
#include <optional>

#include "programm/programm.h"
#include "ui/tastenhalt.h"

class QKeyEvent;
class QWidget;

namespace tarvel::ui {

/// Takes the characters that mean something to the race, whichever window of the program is in front: a question or a
/// message keeps no crossing back. What is typed into a field, and what answers a message, goes its usual way.
class Tastenfaenger final : public QObject {
public:
    struct Rennfenster {
        const QWidget* bahn1;
        const QWidget* startampel;
        const QWidget* k_ampel;
        const QWidget* einfahren;
    };

    Tastenfaenger(programm& p, const Rennfenster& fenster);

    bool eventFilter(QObject* ziel, QEvent* ereignis) override;
    /// The key means something to the race where it is typed now: nobody else may keep it back.
    bool gehoert_dem_rennen(const QKeyEvent& ereignis) const;

private:
    /// What the race knows it by; none if it is not for the race.
    std::optional<int> code_fuer(const QWidget* vorn, const QKeyEvent& ereignis) const;
    bool nehmen(const QWidget* vorn, const QKeyEvent& ereignis, bool gehalten);
    /// Before a race and behind it only its own windows take keys, and late crossings are waited for.
    bool gilt(const QWidget* vorn, int code) const;
    /// The start light takes the key, not the race: wherever it is typed, and whether the light is to be seen or not.
    bool fuer_startampel() const;
    bool ist_rennfenster(const QWidget* vorn) const;

    programm& p_;
    Rennfenster fenster_;
    Tastenhalt tastenhalt_;
};

}  // namespace tarvel::ui
