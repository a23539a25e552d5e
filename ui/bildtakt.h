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
/// nothing changes; the first change after that shows with the next turn of the loop.
class Bildtakt {
public:
    static constexpr int bild_ms = 16;

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
