#include "ui/standzeichner.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QToolTip>
#include <algorithm>

#include "ui/stil.h"
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
    const bool abgeschnitten =
        QFontMetrics(mass_.gross).horizontalAdvance(text) > option.rect.width() - 2 * zellenluft(mass_);
    QToolTip::showText(ereignis->globalPos(), abgeschnitten && !text.contains('\n') ? text : QString(), spalte);
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
