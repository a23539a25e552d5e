#pragma once

#include <QGridLayout>

#include "core/form1.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The main window.
class Form1Fenster : public Fenster {
public:
    Form1Fenster(form1& logik, Bildtakt& takt);

private:
    QWidget* rennen_gruppe();
    QWidget* spuren_gruppe();
    QWidget* befehlszeile();
    QWidget* statuszeile();
    void spur_zeile(QGridLayout* raster, int spur);

    form1& logik_;
};

}  // namespace tarvel::ui
