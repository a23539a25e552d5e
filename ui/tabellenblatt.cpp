#include "ui/tabellenblatt.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <algorithm>

#include "core/texte.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

// all measures in tenths of a millimetre
constexpr double kopf_hoehe = 175;
constexpr double fuss_hoehe = 45;
constexpr double schrift_max = 52;
constexpr double zeile_je_px = 1.35;  // height of a row
const QColor streifen{247, 248, 250};

QFont schrift_fuer(const tabellenblatt& blatt, double breite) {
    qsizetype zeichen = blatt.spalten.size();
    for (const tabellenblatt::zeile& zeile : blatt.zeilen) {
        zeichen = std::max(zeichen, zeile.text.size());
    }
    constexpr int probe = 100;
    QFont schrift = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    schrift.setPixelSize(probe);
    const double je_zeichen = QFontMetricsF(schrift).horizontalAdvance('0') / probe;
    const double px = breite / (je_zeichen * static_cast<double>(std::max<qsizetype>(zeichen, 1) + 1));
    schrift.setPixelSize(static_cast<int>(std::clamp(px, 1.0, schrift_max)));
    return schrift;
}

std::size_t zeilen_je_seite(const QFont& schrift, const QSizeF& groesse) {
    const double hoehe = schrift.pixelSize() * zeile_je_px;
    return static_cast<std::size_t>(std::max((groesse.height() - kopf_hoehe - fuss_hoehe) / hoehe - 1, 1.0));
}

int seiten_von(const tabellenblatt& blatt, const QSizeF& groesse) {
    const std::size_t je_seite = zeilen_je_seite(schrift_fuer(blatt, groesse.width()), groesse);
    return static_cast<int>(std::max<std::size_t>((blatt.zeilen.size() + je_seite - 1) / je_seite, 1));
}

void seite_zeichnen(QPainter& maler, const QSizeF& groesse, const tabellenblatt& blatt, int nummer) {
    const QFont schrift = schrift_fuer(blatt, groesse.width());
    const double hoehe = schrift.pixelSize() * zeile_je_px;
    const auto zeile = [&](double y, const QString& text, bool fett, const QColor& farbe) {
        QFont diese = schrift;
        diese.setBold(fett);
        maler.setFont(diese);
        maler.setPen(farbe);
        maler.drawText(QRectF(10, y, groesse.width() - 10, hoehe),
                       Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    };
    blatttext(maler, {0, 0, groesse.width(), 85}, Qt::AlignLeft, blatt.titel, {78, true, stil::schrift});
    blatttext(maler, {0, 90, groesse.width(), 55}, Qt::AlignLeft, blatt.kopf, {44, false, stil::schrift_leise});
    zeile(kopf_hoehe - 10, blatt.spalten, true, stil::schrift_leise);
    maler.setPen(QPen(stil::linie, 3));
    maler.drawLine(QPointF(0, kopf_hoehe + hoehe - 6), QPointF(groesse.width(), kopf_hoehe + hoehe - 6));
    const std::size_t je_seite = zeilen_je_seite(schrift, groesse);
    const std::size_t von = static_cast<std::size_t>(nummer) * je_seite;
    for (std::size_t n = von; n < std::min(von + je_seite, blatt.zeilen.size()); ++n) {
        const double y = kopf_hoehe + static_cast<double>(n - von + 1) * hoehe;
        if ((n - von) % 2 == 1) {
            maler.fillRect(QRectF(0, y, groesse.width(), hoehe), streifen);
        }
        zeile(y, blatt.zeilen[n].text, blatt.zeilen[n].kopf, stil::schrift);
    }
    const QString fuss = QString::fromStdString(std::string(programm_name)) + "  ·  " + QString::number(nummer + 1) +
                         " / " + QString::number(seiten_von(blatt, groesse));
    blatttext(maler, {0, groesse.height() - fuss_hoehe, groesse.width(), fuss_hoehe}, Qt::AlignRight, fuss,
              {26, false, stil::schrift_leise});
}

}  // namespace

blattseiten tabellenseiten(const tabellenblatt& blatt) {
    return {
        blatt.titel, [blatt](const QSizeF& groesse) { return seiten_von(blatt, groesse); },
        [blatt](QPainter& maler, const QSizeF& groesse, int nummer) { seite_zeichnen(maler, groesse, blatt, nummer); }};
}

}  // namespace tarvel::ui
