#pragma once

#include <QVBoxLayout>
#include <vector>

#include "ui/ergebnisblatt.h"
#include "ui/ergebniszeile.h"
#include "ui/fenster.h"
#include "ui/rundendiagramm.h"

namespace tarvel::ui {

/// The result window: one row per lane in the order of the standing, and the commands below.
class AuswertungFenster : public Fenster {
public:
    AuswertungFenster(auswertung& logik, const dateien& ablage, Fensterverwaltung& verwaltung, QWidget* eltern);

    void aufschlagen() override;
    bool kommt_ungerufen() const override { return true; }

    bool eventFilter(QObject* wer, QEvent* ereignis) override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    QWidget* standfeld(const dateien& ablage);
    QWidget* verlaufsfeld();
    QWidget* nachtragsfeld();
    rundenbild_inhalt bildinhalt() const;
    ergebnisblatt blatt_bilden() const;
    void drucken();
    void pdf_speichern(const dateien& ablage);
    QLayout* korrekturzeile();
    QLayout* wegezeile();
    QWidget* spurwechselfeld();
    void ordnen();
    void skalieren();
    void abstaende_angleichen();

    auswertung& logik_;
    TextAnzeige* kopf_ = nullptr;
    QLabel* ab_gruen_ = nullptr;
    Rundendiagramm* diagramm_ = nullptr;
    QWidget* stand_ = nullptr;
    QVBoxLayout* reihen_ = nullptr;
    std::vector<Ergebniszeile*> zeilen_;
    bool vorgemerkt_ = false;  ///< the sizes of what stands under the times
};

}  // namespace tarvel::ui
