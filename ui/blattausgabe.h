#pragma once

#include <QPainter>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>

#include "core/dateien.h"
#include "core/steuerelemente.h"
#include "core/texte.h"

/// What all printed sheets have in common: their paper, and the ways on which they leave the program.
namespace tarvel::ui {

/// Pages that draw themselves.
struct blattseiten {
    QString titel;
    /// How many there are of this size in the sheet's own measure.
    std::function<int(const QSizeF& groesse)> anzahl;
    /// Draws the page with this number, from 0, into its area.
    std::function<void(QPainter& maler, const QSizeF& groesse, int nummer)> zeichnen;
    /// Upright and to the edges of the paper; else in landscape within its margins.
    bool urkunde = false;
};

/// All measures of a sheet are tenths of a millimetre; on paper of another shape the sheet is scaled to fit.
namespace blattmass {
inline constexpr double breite_min = 2770;  ///< A4 in landscape within its margins
inline constexpr double hoehe_min = 1700;
inline constexpr double urkunde_breite = 2100;  ///< A4 upright
inline constexpr double urkunde_hoehe = 2970;
}  // namespace blattmass

/// Paints a page into an area of any device.
void seite_malen(QPainter& maler, const QRectF& flaeche, const blattseiten& seiten, int nummer = 0);

/// Writes the pages as an A4 file, creating its folder as needed. Either the whole new file stands afterwards, or the
/// result is false and the old one is untouched.
bool blatt_als_pdf(const QString& pfad, const blattseiten& seiten);

/// Opens the dialog in which the operator chooses a printer. `bei_fehler` is called if the printer does not begin.
void blatt_drucken(QWidget* eltern, const blattseiten& seiten, const std::function<void()>& bei_fehler);

/// What saves a page, and what is said then.
struct pdf_auftrag {
    std::function<bool(const QString& pfad)> schreiben;
    std::function<void()> misslungen;  ///< called if that is false
    texte::dateiworte worte;
    QString inhalt = {};  ///< what the file holds, where the operator cannot know it; said below its place
};
/// Opens the dialog in which he names a file, as the button says it; `name` is a suggestion, below the program folder
/// and without an extension. Then he is told where it lies, and may open it.
void pdf_speichern(QWidget* eltern, const befehl& knopf, const dateien& ablage, const std::string& name,
                   pdf_auftrag auftrag);

/// How a text stands on a sheet.
struct blattschrift {
    double px = 0;
    bool fett = false;
    QColor farbe;
};
QFont schrift_mit(double px, bool fett);
/// One line of text that becomes smaller, and at last is cut, where it is too wide.
void blatttext(QPainter& maler, const QRectF& feld, Qt::Alignment ausrichtung, const QString& inhalt,
               const blattschrift& art);
void blatttext(QPainter& maler, const QRectF& feld, Qt::Alignment ausrichtung, const QString& inhalt,
               const QFont& schrift, const QColor& farbe);
/// The same font, smaller where the text is wider than its place.
QFont eingepasst(QFont schrift, const QString& inhalt, double platz);

}  // namespace tarvel::ui
