#pragma once

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <functional>
#include <vector>

#include "results/leitstand.h"
#include "start/form2.h"
#include "ui/fenster.h"
#include "ui/uhranzeige.h"

namespace tarvel::ui {

/// The director's window beside a race window that fills another screen: its clock, its lanes in short and its
/// commands, bound a second time, and the log.
class LeitstandFenster : public Fenster {
public:
    /// `bahn` is the race window. The start light is on the other screen, as that is.
    LeitstandFenster(leitstand& logik, form2& ampel, Fensterverwaltung& verwaltung, QWidget* bahn);

    void aufschlagen() override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    /// Sized anew with the window, from its usual size on.
    void waechst(std::function<void(double skala)> was);
    TextAnzeige* gross(TextAnzeige* anzeige, int px, bool fett);
    void kopf(QVBoxLayout& aufbau);
    void hinweise(QVBoxLayout& aufbau);
    void spuren(QVBoxLayout& aufbau);
    QHBoxLayout* reihe(QWidget* zeile);
    QWidget* spaltentitel();
    QWidget* spur(int nummer);
    void strafformular(QVBoxLayout& aufbau);
    void verlauf(QVBoxLayout& aufbau);
    void befehlszeile(QVBoxLayout& aufbau);

    std::vector<std::function<void(double skala)>> wachsende_;
    double skala_ = 1;
    leitstand& logik_;
    bahn1& bahn_;
    form2& ampel_;
    QPushButton* start_ = nullptr;
    QPushButton* einfahren_ = nullptr;
    QPushButton* weiter_ = nullptr;  ///< pauses, and goes on
};

}  // namespace tarvel::ui
