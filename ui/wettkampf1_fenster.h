#pragma once

#include <QBoxLayout>
#include <utility>
#include <vector>

#include "competition/wettkampf1.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The window in which a competition is prepared.
class Wettkampf1Fenster : public Fenster {
public:
    Wettkampf1Fenster(wettkampf1& logik, const dateien& ablage, Fensterverwaltung& verwaltung, QWidget* eltern);

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    QWidget* titelzeile();
    QWidget* gesamtspalte();
    QWidget* zwischenspalte();
    QWidget* startspalte();
    QWidget* namenszeile();
    QWidget* bildfeld();
    QWidget* plankarte();
    QLayout* spurzeile();
    QWidget* fusszeile();
    QListView* namensfeld(liste& element, const QString& name);
    /// Commands of one width side by side.
    QHBoxLayout* knopfreihe(const std::vector<std::pair<befehl*, const char*>>& befehle);
    QPushButton* pfeilknopf(befehl& element, const QString& name, bool nach_rechts);

    wettkampf1& logik_;
    const dateien& ablage_;
    std::vector<QListView*> namen_;
};

}  // namespace tarvel::ui
