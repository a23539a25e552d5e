#include "ui/standzeichner.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QToolTip>
#include <algorithm>

#include "ui/stil.h"
#include "ui/textanzeige.h"
#include "ui/wettkampfbalken.h"

namespace tarvel::ui {
namespace {

/// At each side of a cell.
int zellenluft(const standmass& mass) {
    return std::max(6, mass.gross.pixelSize() / 5);
}

}  // namespace

QColor Standzeichner::grund(const QStyleOptionViewItem& option, const QModelIndex& zelle) const {
    if (option.state.testFlag(QStyle::State_Selected)) {
        return stil::akzent;
    }
    const stil::farbsatz& f = stil::auf_dem_schirm();
    return zelle.row() == 0 && mass_.mit_sieger ? f.sieger : zelle.row() % 2 == 1 ? f.streifen : f.karte;
}

Standzeichner::Satz Standzeichner::name_setzen(const QString& name, const QSize& platz) const {
    constexpr int lesbar_px = 11;
    Satz satz{{name}, mass_.gross, QFontMetrics(mass_.gross).horizontalAdvance(name) <= platz.width()};
    if (satz.ganz || !name.contains(' ')) {
        return satz;
    }
    satz.zeilen = umbrochen(name, QFontMetricsF(mass_.gross), 2).split('\n');
    const auto passt = [&](const QFontMetrics& masse) {
        return std::all_of(satz.zeilen.begin(), satz.zeilen.end(),
                           [&](const QString& zeile) { return masse.horizontalAdvance(zeile) <= platz.width(); });
    };
    const auto hoch = [&](const QFontMetrics& masse) { return 2 * masse.height() > platz.height(); };
    while (satz.schrift.pixelSize() > lesbar_px &&
           (hoch(QFontMetrics(satz.schrift)) || !passt(QFontMetrics(satz.schrift)))) {
        satz.schrift.setPixelSize(satz.schrift.pixelSize() - 1);
    }
    satz.ganz = passt(QFontMetrics(satz.schrift));
    return satz;
}

void Standzeichner::name_malen(QPainter& maler, const QString& name, const QRect& feld) const {
    const Satz satz = name_setzen(name, feld.size());
    const QFontMetrics masse(satz.schrift);
    QRect zeile(feld.left(), feld.top() + (feld.height() - static_cast<int>(satz.zeilen.size()) * masse.height()) / 2,
                feld.width(), masse.height());
    maler.setFont(satz.schrift);
    for (const QString& text : satz.zeilen) {
        maler.drawText(zeile, static_cast<int>(ausrichtung_ | Qt::AlignVCenter | Qt::TextSingleLine),
                       masse.elidedText(text, Qt::ElideRight, feld.width()));
        zeile.translate(0, masse.height());
    }
}

void Standzeichner::paint(QPainter* maler, const QStyleOptionViewItem& option, const QModelIndex& zelle) const {
    const QColor flaeche = grund(option, zelle);
    maler->fillRect(option.rect, flaeche);
    const QStringList zeilen = zelle.data().toString().split('\n');
    const QRect feld = option.rect.adjusted(zellenluft(mass_), 0, -zellenluft(mass_), 0);
    const QFontMetrics gross(mass_.gross);
    const QFontMetrics klein(mass_.klein);
    const int hoehe = gross.height() + (zeilen.size() > 1 ? klein.height() : 0);
    QRect oben(feld.left(), feld.top() + (feld.height() - hoehe) / 2, feld.width(), gross.height());
    const bool leer = ausrichtung_ != Qt::AlignLeft && !zelle.data().toString().contains(QRegularExpression("[1-9]"));
    const QColor schrift = stil::schrift_auf(flaeche);
    maler->setPen(leer ? stil::auf_dem_schirm().schrift_gesperrt : schrift);  // what has not been driven stands back
    if (ausrichtung_ == Qt::AlignLeft) {
        name_malen(*maler, zeilen.front(), feld);
        return;
    }
    maler->setFont(mass_.gross);
    maler->drawText(oben, static_cast<int>(ausrichtung_ | Qt::AlignVCenter | Qt::TextSingleLine),
                    gross.elidedText(zeilen.front(), Qt::ElideRight, feld.width()));
    if (zeilen.size() > 1) {
        const bool markiert = option.state.testFlag(QStyle::State_Selected);
        maler->setPen(leer       ? stil::auf_dem_schirm().schrift_gesperrt
                      : markiert ? schrift
                                 : stil::auf_dem_schirm().schrift_leise);
        maler->setFont(mass_.klein);
        maler->drawText(QRect(feld.left(), oben.bottom() + 1, feld.width(), klein.height()),
                        static_cast<int>(ausrichtung_ | Qt::AlignVCenter | Qt::TextSingleLine), zeilen.at(1));
    }
}

QSize Standzeichner::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*zelle*/) const {
    return {1, mass_.zeilenhoehe};  // a column is as wide as its window makes it
}

bool Standzeichner::helpEvent(QHelpEvent* ereignis, QAbstractItemView* spalte, const QStyleOptionViewItem& option,
                              const QModelIndex& zelle) {
    const QString text = zelle.data().toString();
    const QSize feld = option.rect.adjusted(zellenluft(mass_), 0, -zellenluft(mass_), 0).size();
    const bool abgeschnitten = !text.contains('\n') && !name_setzen(text, feld).ganz;
    QToolTip::showText(ereignis->globalPos(), abgeschnitten ? text : QString(), spalte);
    return true;
}

int Standzeichner::breite(const QListView& spalte) const {
    const QFontMetrics gross(mass_.gross);
    const QFontMetrics klein(mass_.klein);
    int breite = 0;
    for (int n = 0; n < spalte.model()->rowCount(); ++n) {
        const QStringList zeilen = spalte.model()->index(n, 0).data().toString().split('\n');
        breite = std::max({breite, gross.horizontalAdvance(zeilen.front()),
                           zeilen.size() > 1 ? klein.horizontalAdvance(zeilen.at(1)) : 0});
    }
    return breite + 2 * zellenluft(mass_) + 2;
}

void Balkenzeichner::paint(QPainter* maler, const QStyleOptionViewItem& option, const QModelIndex& zelle) const {
    const QColor flaeche = grund(option, zelle);
    maler->fillRect(option.rect, flaeche);
    const auto zeile = static_cast<std::size_t>(zelle.row());
    if (zeile >= balken_.size()) {
        return;
    }
    const double rand = option.rect.height() * 0.16;
    balken_malen(*maler, QRectF(option.rect).adjusted(zellenluft(mass()), rand, -zellenluft(mass()), -rand),
                 balken_[zeile], farben_, {laengster_balken(balken_), mass().gross, stil::schrift_auf(flaeche)});
}

}  // namespace tarvel::ui
