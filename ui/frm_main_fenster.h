#pragma once

#include "core/steuerelemente.h"
#include "ui/fenster.h"

class QGridLayout;

namespace tarvel {
class dateien;
class frm_main;
}  // namespace tarvel

namespace tarvel::ui {

/// The 4x4 USB module: what its inputs mean and whether they work, its outputs by hand, and what it says.
class FrmMainFenster : public Fenster {
public:
    FrmMainFenster(frm_main& logik, const dateien& ablage, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    QWidget* modusgruppe();
    QWidget* analoggruppe();
    QWidget* digitalgruppe();
    QWidget* standardgruppe(const dateien& ablage);
    QWidget* ausgangsgruppe();
    QWidget* meldungsgruppe();
    void eingangszeile(QGridLayout* raster, int zeile, form& licht, bezeichnung& name, auswahl& wahl,
                       const QString& wort);

    frm_main& logik_;
};

}  // namespace tarvel::ui
