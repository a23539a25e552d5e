#pragma once

#include <QPainter>
#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

#include "race/rennergebnis.h"
#include "results/ergebnisworte.h"
#include "ui/rundenbild.h"

namespace tarvel::ui {

/// A cell of the table: the figure, and what stands small under it.
struct blattzelle {
    QString text;
    QString zusatz;
};

/// The result of a race as one page for the wall, as the result was when it was made: what happens in the window while
/// a dialog is open does not change it.
struct ergebnisblatt {
    struct zeile {
        QColor farbe;                    ///< of the lane
        bool sieger = false;             ///< with at least one lap
        std::vector<blattzelle> zellen;  ///< one for each of `spalten`
    };

    QString titel;
    QString kopf;
    std::vector<QString> spalten;  ///< captions: place, lane, driver, laps, metres, total time, gap, best lap, speeds
    std::vector<zeile> zeilen;     ///< in the order of the places
    rundenbild_inhalt bild;
};

/// What is written over the figures.
struct blatt_beschriftung {
    std::string titel;
    std::string kopf;
    std::string strafzeit;
    blatt_worte wort;
};

ergebnisblatt ergebnisblatt_bilden(const rennergebnis& ergebnis, const blatt_beschriftung& beschriftung,
                                   rundenbild_inhalt bild);

/// Fills the area and no more; it is meant for a page in landscape.
void ergebnisblatt_zeichnen(QPainter& maler, const QRectF& flaeche, const ergebnisblatt& blatt);

/// Writes the page as an A4 file, creating its folder as needed. Either the whole new file stands afterwards, or the
/// result is false and the old one is untouched.
bool ergebnisblatt_pdf(const QString& pfad, const ergebnisblatt& blatt);

/// Opens the dialog in which the operator chooses a printer. `bei_fehler` is called if the printer does not begin.
void ergebnisblatt_drucken(QWidget* eltern, const ergebnisblatt& blatt, const std::function<void()>& bei_fehler = {});

}  // namespace tarvel::ui
