#include "ui/blattzeichnung.h"

#include <QFontMetricsF>
#include <QGraphicsScene>
#include <algorithm>
#include <array>
#include <cmath>

#include "core/texte.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

// all measures in tenths of a millimetre
constexpr double schrift_titel = 78;
constexpr double schrift_kopf = 44;
constexpr double schrift_verein = 52;
constexpr double kopf_links = 44;
constexpr double schrift_spalte = 31;
constexpr double schrift_wert = 46;
constexpr double schrift_zusatz = 33;
constexpr double schrift_fuss = 26;

constexpr double zeile_spalten = 56;
constexpr double zeile_wert = 116;
constexpr double zeile_fuss = 40;
constexpr double abstand = 24;
constexpr double luft_spalte = 30;      // at both sides of a cell together
constexpr double diagramm_je_px = 2.1;  // the chart measures its lines in pixels

constexpr double zahlen_anteil_max = 0.68;  // of the width; the names keep the rest

struct spaltenart {
    Qt::AlignmentFlag ausrichtung;
    bool fett;
};
constexpr std::array<spaltenart, 9> spaltenarten{{{Qt::AlignLeft, true},
                                                  {Qt::AlignHCenter, true},
                                                  {Qt::AlignLeft, true},
                                                  {Qt::AlignRight, true},
                                                  {Qt::AlignRight, false},
                                                  {Qt::AlignRight, true},
                                                  {Qt::AlignRight, false},
                                                  {Qt::AlignRight, false},
                                                  {Qt::AlignRight, false}}};
constexpr std::size_t spalte_spur = 1;
constexpr std::size_t spalte_fahrer = 2;

const QColor gold{255, 250, 232};
const QColor streifen{247, 248, 250};

}  // namespace

void Blattzeichnung::zeichnen() {
    spalten_messen();
    const double unten = groesse_.height() - zeile_fuss - abstand;
    const double oben = ab_gruen(tabelle(kopf() + abstand)) + 1.5 * abstand;
    // on a tall page the chart is no tower
    diagramm({0, oben, groesse_.width(), std::min(unten - oben, groesse_.width() * 0.75)});
    fuss();
}

double Blattzeichnung::vereinszeile() {
    if (blatt_.verein.isEmpty()) {
        return 0;
    }
    const double hoch = schrift_verein * 1.35;
    text({kopf_links, 0, groesse_.width() - kopf_links, hoch}, Qt::AlignLeft, blatt_.verein,
         {schrift_verein, true, stil::akzent});
    return hoch;
}

double Blattzeichnung::kopf() {
    const double oben = vereinszeile();
    const double titel = oben + schrift_titel * 1.25;
    const double unten = titel + schrift_kopf * 1.4;
    maler_.fillRect(QRectF(0, 6, 14, unten - 12), stil::akzent);
    text({kopf_links, oben, groesse_.width() - kopf_links, titel - oben}, Qt::AlignLeft, blatt_.titel,
         {schrift_titel, true, stil::schrift});
    text({kopf_links, titel, groesse_.width() - kopf_links, unten - titel}, Qt::AlignLeft, blatt_.kopf,
         {schrift_kopf, false, stil::schrift_leise});
    return unten;
}

void Blattzeichnung::spalten_messen() {
    const auto breite = [](const QString& inhalt, double px, bool fett) {
        return QFontMetricsF(schrift_mit(px, fett)).horizontalAdvance(inhalt) + 2;
    };
    double zahlen = 0;
    for (std::size_t i = 0; i < blatt_.spalten.size(); ++i) {
        double noetig = i == spalte_fahrer ? 0 : breite(blatt_.spalten[i], schrift_spalte, false);
        for (const ergebnisblatt::zeile& zeile : blatt_.zeilen) {
            noetig = std::max({noetig, breite(zeile.zellen[i].text, schrift_wert, spaltenarten.at(i).fett),
                               breite(zeile.zellen[i].zusatz, schrift_zusatz, false)});
        }
        breiten_.push_back(noetig + luft_spalte);
        zahlen += i == spalte_fahrer ? 0 : breiten_.back();
    }
    const double schrumpfung = std::min(1.0, groesse_.width() * zahlen_anteil_max / zahlen);
    for (double& spalte : breiten_) {
        spalte *= schrumpfung;
    }
    breiten_.at(spalte_fahrer) = groesse_.width() - zahlen * schrumpfung;
}

double Blattzeichnung::tabelle(double oben) {
    double x = 0;
    for (std::size_t i = 0; i < blatt_.spalten.size(); ++i) {
        text(QRectF(x, oben, breiten_[i], zeile_spalten).adjusted(luft_spalte / 2, 0, -luft_spalte / 2, 0),
             spaltenarten.at(i).ausrichtung, blatt_.spalten[i], {schrift_spalte, false, stil::schrift_leise});
        x += breiten_[i];
    }
    double y = oben + zeile_spalten;
    for (std::size_t n = 0; n < blatt_.zeilen.size(); ++n) {
        const QRectF feld(0, y, groesse_.width(), zeile_wert);
        maler_.fillRect(feld, blatt_.zeilen[n].sieger ? gold : n % 2 == 1 ? streifen : stil::karte);
        tabellenzeile(blatt_.zeilen[n], feld);
        maler_.setPen(QPen(n == 0 ? stil::schrift_leise : stil::linie, 3));
        maler_.drawLine(feld.topLeft(), feld.topRight());
        y += zeile_wert;
    }
    maler_.setPen(QPen(stil::schrift_leise, 3));
    maler_.drawLine(QPointF(0, y), QPointF(groesse_.width(), y));
    return y;
}

double Blattzeichnung::ab_gruen(double oben) {
    const double hoch = schrift_zusatz * 1.6;
    for (const QString& zeile : blatt_.ab_gruen.split('\n', Qt::SkipEmptyParts)) {
        text(QRectF(0, oben, groesse_.width(), hoch).adjusted(luft_spalte / 2, 0, -luft_spalte / 2, 0), Qt::AlignLeft,
             zeile, {schrift_zusatz, false, stil::schrift_leise});
        oben += hoch;
    }
    return oben;
}

void Blattzeichnung::tabellenzeile(const ergebnisblatt::zeile& zeile, const QRectF& feld) {
    double x = 0;
    for (std::size_t i = 0; i < zeile.zellen.size(); ++i) {
        const QRectF platz = QRectF(x, feld.top(), breiten_[i], feld.height());
        if (i == spalte_spur) {
            const double hoch = schrift_wert * 1.5;
            QRectF marke(0, 0, hoch, hoch);
            marke.moveCenter(platz.center());
            maler_.setPen(QPen(QColor(0, 0, 0, 110), 2));
            maler_.setBrush(zeile.farbe);
            maler_.drawRoundedRect(marke, 12, 12);
            text(marke, Qt::AlignHCenter, zeile.zellen[i].text,
                 {schrift_wert, true, zu_hell(zeile.farbe) ? stil::schrift : stil::karte});
        } else {
            zelle(zeile.zellen[i], platz.adjusted(luft_spalte / 2, 0, -luft_spalte / 2, 0), i);
        }
        x += breiten_[i];
    }
}

void Blattzeichnung::zelle(const blattzelle& zelle, const QRectF& feld, std::size_t spalte) {
    const spaltenart& art = spaltenarten.at(spalte);
    QRectF oben = feld;
    if (!zelle.zusatz.isEmpty()) {
        const double rand = feld.height() * 0.07;
        oben = QRectF(feld.left(), feld.top() + rand, feld.width(), feld.height() * 0.5);
        text({QPointF(feld.left(), oben.bottom()), QPointF(feld.right(), feld.bottom() - rand)}, art.ausrichtung,
             zelle.zusatz, {schrift_zusatz, false, spalte == spalte_fahrer ? stil::schrift_leise : stil::akzent});
    }
    text(oben, art.ausrichtung, zelle.text, {schrift_wert, art.fett, stil::schrift});
}

void Blattzeichnung::diagramm(const QRectF& feld) {
    auto* bild = new Rundenbild;
    QGraphicsScene buehne;
    buehne.addItem(bild);  // which belongs to it from here
    bild->setInhalt(blatt_.bild);
    const QSizeF groesse = feld.size() / diagramm_je_px;
    bild->setGroesse(groesse, schrift_wert / diagramm_je_px);
    buehne.render(&maler_, feld, QRectF(QPointF(), groesse), Qt::IgnoreAspectRatio);
}

void Blattzeichnung::fuss() {
    const QString name = QString::fromUtf8(programm_name.data(), static_cast<qsizetype>(programm_name.size()));
    text({0, groesse_.height() - zeile_fuss, groesse_.width(), zeile_fuss}, Qt::AlignRight, name,
         {schrift_fuss, false, stil::schrift_leise});
}

}  // namespace tarvel::ui
