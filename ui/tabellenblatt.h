#pragma once

#include <QString>
#include <vector>

#include "ui/blattausgabe.h"

namespace tarvel::ui {

/// A table of letters of one width, as pages for the wall.
struct tabellenblatt {
    struct zeile {
        QString text;
        bool kopf = false;
    };

    QString titel;
    QString kopf;     ///< what it is of
    QString spalten;  ///< over the columns of each page
    std::vector<zeile> zeilen;
};

blattseiten tabellenseiten(const tabellenblatt& blatt);

}  // namespace tarvel::ui
