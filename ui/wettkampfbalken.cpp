#include "ui/wettkampfbalken.h"

#include <QFontMetricsF>
#include <algorithm>

#include "ui/rundensymbole.h"
#include "ui/stil.h"

namespace tarvel::ui {

int laengster_balken(const std::vector<wettkampf_balken>& alle) {
    int laengster = 0;
    for (const wettkampf_balken& einer : alle) {
        laengster = std::max(laengster, einer.gesamt);
    }
    return laengster;
}

void balken_malen(QPainter& maler, const QRectF& feld, const wettkampf_balken& balken, const spuren<farbe>& farben,
                  const balkenmass& mass) {
    const QFontMetricsF metrik(mass.schrift);
    const double luft = metrik.horizontalAdvance(' ');
    // the longest one leaves room for its total
    const double breite = feld.width() - metrik.horizontalAdvance(QString::number(mass.laengster)) - 2 * luft;
    const double je_runde = mass.laengster > 0 ? std::max(breite, 0.0) / mass.laengster : 0;
    double x = feld.left();
    QFont innen = mass.schrift;
    innen.setPixelSize(std::max(1, innen.pixelSize() * 3 / 4));
    const QFontMetricsF innenmetrik(innen);
    maler.setFont(innen);
    for (const int spur : alle_spuren) {
        const QRectF teil(x, feld.top(), je_runde * balken.runden[spur], feld.height());
        if (teil.width() <= 0) {
            continue;
        }
        const QColor farbe = stil::farbe_von(farben[spur]);
        maler.fillRect(teil, farbe);
        maler.setPen(QPen(zu_hell(farbe) ? randfarbe(farbe) : farbe.darker(125), 0));
        maler.setBrush(Qt::NoBrush);
        maler.drawRect(teil);
        const QString runden = QString::number(balken.runden[spur]);
        if (innenmetrik.horizontalAdvance(runden) + 2 < teil.width()) {
            maler.setPen(stil::schrift_auf(farbe));
            maler.drawText(teil, Qt::AlignCenter, runden);
        }
        x = teil.right();
    }
    QFont fett = mass.schrift;
    fett.setBold(true);
    maler.setFont(fett);
    maler.setPen(balken.gesamt > 0 ? mass.schriftfarbe : stil::schrift_gesperrt);
    maler.drawText(QRectF(x + luft, feld.top(), feld.right() - x, feld.height()),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, QString::number(balken.gesamt));
}

}  // namespace tarvel::ui
