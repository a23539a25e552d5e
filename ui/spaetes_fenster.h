#pragma once

#include <functional>
#include <memory>

#include "core/dateien.h"
#include "ui/fenster.h"

namespace tarvel::ui {

template <class F>
class SpaetesFenster;

inline QWidget* fenster_von(QWidget* fenster) {
    return fenster;
}
template <class F>
QWidget* fenster_von(SpaetesFenster<F>* fenster) {
    return &**fenster;
}

/// A window that is made when it is shown for the first time, or asked for: the program is there sooner. It is made of
/// what the window itself takes; the parent may be such a window too.
template <class F>
class SpaetesFenster {
public:
    template <class Logik, class Eltern>
    SpaetesFenster(Logik& logik, Fensterverwaltung& verwaltung, Eltern* eltern)
        : machen_(
              [&logik, &verwaltung, eltern] { return std::make_unique<F>(logik, verwaltung, fenster_von(eltern)); }) {
        verwaltung.vormerken(logik.kennung(), [this] { zeiger(); });
    }
    /// `dazu`: what else it takes, such as the files.
    template <class Logik, class Dazu, class Eltern>
    SpaetesFenster(Logik& logik, Dazu& dazu, Fensterverwaltung& verwaltung, Eltern* eltern)
        : machen_([&logik, &dazu, &verwaltung, eltern] {
              return std::make_unique<F>(logik, dazu, verwaltung, fenster_von(eltern));
          }) {
        verwaltung.vormerken(logik.kennung(), [this] { zeiger(); });
    }
    SpaetesFenster(const SpaetesFenster&) = delete;
    SpaetesFenster& operator=(const SpaetesFenster&) = delete;

    F& operator*() { return *zeiger(); }
    F* operator->() { return zeiger(); }

private:
    F* zeiger() {
        if (fenster_ == nullptr) {
            fenster_ = machen_();
        }
        return fenster_.get();
    }

    std::function<std::unique_ptr<F>()> machen_;
    std::unique_ptr<F> fenster_;
};

}  // namespace tarvel::ui
