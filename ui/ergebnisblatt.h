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

/// The result of a race as a page for the wall and the lap times behind it, as the result was when it was made: what
/// happens in the window while a dialog is open does not change it.
struct ergebnisblatt {
    struct zeile {
        QColor farbe;                    ///< of the lane
        bool sieger = false;             ///< with at least one lap
        std::vector<blattzelle> zellen;  ///< one for each of `spalten`
    };

    /// The laps of a lane.
    struct rundenspalte {
        QColor farbe;  ///< of the lane
        QString fahrer;
        std::vector<QString> zeiten;  ///< of lap 1 and those that follow
        std::size_t beste = 0;        ///< its number, 0 for none
    };

    QString verein;  ///< whose evening it was, over the title; may be empty
    QString titel;
    QString kopf;
    QString rundentitel;
    std::vector<rundenspalte> rundenspalten;  ///< in the order of the places; empty without a lap
    std::vector<QString> spalten;  ///< captions: place, lane, driver, laps, metres, total time, gap, best lap, speeds
    std::vector<zeile> zeilen;     ///< in the order of the places
    QString ab_gruen;              ///< stands below them; may be empty
    rundenbild_inhalt bild;
};

/// What is written over the figures.
struct blatt_beschriftung {
    std::string titel;
    std::string kopf;
    std::string strafzeit;
    blatt_worte wort;
    std::string verein = {};
};

ergebnisblatt ergebnisblatt_bilden(const rennergebnis& ergebnis, const blatt_beschriftung& beschriftung,
                                   rundenbild_inhalt bild);

/// The page for the wall. Fills the area and no more; it is meant for a page in landscape.
void ergebnisblatt_zeichnen(QPainter& maler, const QRectF& flaeche, const ergebnisblatt& blatt);

/// Writes all pages as an A4 file, creating its folder as needed. Either the whole new file stands afterwards, or the
/// result is false and the old one is untouched.
bool ergebnisblatt_pdf(const QString& pfad, const ergebnisblatt& blatt);

/// Opens the dialog in which the operator chooses a printer. `bei_fehler` is called if the printer does not begin.
void ergebnisblatt_drucken(QWidget* eltern, const ergebnisblatt& blatt, const std::function<void()>& bei_fehler = {});

}  // namespace tarvel::ui
