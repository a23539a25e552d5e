#pragma once

#include <QPainter>
#include <vector>

#include "ui/blattausgabe.h"
#include "ui/ergebnisblatt.h"

namespace tarvel::ui {

/// Draws the page of a result, in tenths of a millimetre on A4.
class Blattzeichnung {
public:
    Blattzeichnung(QPainter& maler, const ergebnisblatt& blatt, const QSizeF& groesse)
        : maler_(maler), blatt_(blatt), groesse_(groesse) {}

    void zeichnen();

private:
    void text(const QRectF& feld, Qt::Alignment ausrichtung, const QString& inhalt, const blattschrift& art) {
        blatttext(maler_, feld, ausrichtung, inhalt, art);
    }
    double kopf();
    double vereinszeile();
    double tabelle(double oben);
    double ab_gruen(double oben);
    void tabellenzeile(const ergebnisblatt::zeile& zeile, const QRectF& feld);
    void zelle(const blattzelle& zelle, const QRectF& feld, std::size_t spalte);
    void spalten_messen();
    void diagramm(const QRectF& feld);
    void fuss();

    QPainter& maler_;
    const ergebnisblatt& blatt_;
    QSizeF groesse_;
    std::vector<double> breiten_;  ///< of the columns
};

}  // namespace tarvel::ui
