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
    QWidget* zelle(steuerelement& element, const QString& name, const QString& titel, double entwurf, Binder& binder,
                   steuerelement* zusatz = nullptr, const QString& zusatz_name = {});

    auswertung& logik_;
    std::size_t index_;
    QListView* liste_ = nullptr;
    QColor spurfarbe_;
};

}  // namespace tarvel::ui
