#pragma once

#include <QWidget>

#include "results/auswertung.h"
#include "ui/binder.h"

namespace tarvel::ui {

/// One lane of the result window: place, driver, figures and the list of laps.
class Ergebniszeile : public QWidget {
public:
    Ergebniszeile(auswertung& logik, int spur, Binder& binder, QWidget* eltern);

    /// Row of the window, from 0.
    int reihe() const { return logik_.Frame.at(index_).reihe(); }
    bool gezeigt() const { return logik_.Frame.at(index_).sichtbar(); }
    void skalieren(double skala);
    /// What the Tab key reaches in the row.
    QWidget* tabziel() const { return liste_; }
    /// Called when the row has changed.
    std::function<void()> bei_umzug;

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    /// One figure of the row with the captions over and under it.
    struct zelle_inhalt {
        steuerelement& titel;
        steuerelement& wert;
        steuerelement& zusatz;
        QString name;  ///< of the figure's control
        double entwurf;
    };
    QWidget* zelle(const zelle_inhalt& inhalt, Binder& binder);

    auswertung& logik_;
    std::size_t index_;
    QListView* liste_ = nullptr;
    QColor spurfarbe_;
};

}  // namespace tarvel::ui
