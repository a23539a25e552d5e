#include "ui/bildtakt.h"

#include <algorithm>

namespace tarvel::ui {

Bildtakt::Bildtakt() {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { ausfuehren(); });
}

void Bildtakt::vormerken(Abgleich* abgleich) {
    offen_.push_back(abgleich);
    if (!timer_.isActive()) {
        const qint64 her = seit_bild_.isValid() ? seit_bild_.elapsed() : bild_ms;
        timer_.start(static_cast<int>(std::max<qint64>(bild_ms - her, vorlauf_ms)));
    }
}

void Bildtakt::vergessen(Abgleich* abgleich) {
    std::erase(offen_, abgleich);
    std::replace(in_arbeit_.begin(), in_arbeit_.end(), abgleich, static_cast<Abgleich*>(nullptr));
}

void Bildtakt::ausfuehren() {
    timer_.stop();
    seit_bild_.start();
    in_arbeit_.swap(offen_);
    for (std::size_t i = 0; i < in_arbeit_.size(); ++i) {
        if (in_arbeit_[i] != nullptr) {
            in_arbeit_[i]->abgleichen();
        }
    }
    in_arbeit_.clear();
}

}  // namespace tarvel::ui
