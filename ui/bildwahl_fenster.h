#pragma once

#include "core/bildwahl.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The window in which a picture is found on the machine.
class BildwahlFenster : public Fenster {
public:
    BildwahlFenster(bildwahl& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    void bild_suchen(bildwahl& logik);
};

}  // namespace tarvel::ui
