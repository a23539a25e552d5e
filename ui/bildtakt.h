#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <vector>

namespace tarvel::ui {

/// Something on the screen that lags behind its control until the next frame.
class Abgleich {
public:
    virtual ~Abgleich() = default;
    virtual void abgleichen() = 0;
};

/// The frame clock: however often controls change, their widgets are brought up to date once per frame. Idle while
/// nothing changes; the first change after that shows almost at once.
class Bildtakt {
public:
    static constexpr int bild_ms = 16;
    /// Drawing takes milliseconds: what the logic has due within the next one, such as cutting the power, comes first.
    static constexpr int vorlauf_ms = 2;

    Bildtakt();
    void vormerken(Abgleich* abgleich);
    void vergessen(Abgleich* abgleich);
    /// Brings everything up to date at once.
    void ausfuehren();

private:
    QTimer timer_;
    QElapsedTimer seit_bild_;
    std::vector<Abgleich*> offen_;
    std::vector<Abgleich*> in_arbeit_;
};

}  // namespace tarvel::ui
