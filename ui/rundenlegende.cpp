#include "ui/rundenlegende.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

namespace tarvel::ui {
namespace {

// in heights of a line of text
constexpr double zeilenhoehe = 1.25;
constexpr double zeichenbreite = 1.5;
constexpr double luft = 1.1;  // behind an entry

constexpr double breite_anteil = 1.0 / 3;  // of the width, that a name may take

}  // namespace

void Rundenlegende::setEintraege(std::vector<legendeneintrag> eintraege) {
    prepareGeometryChange();
    eintraege_ = std::move(eintraege);
    plaetze_.clear();
    hoehe_ = 0;
}

void Rundenlegende::ordnen(double breite, const QFont& schrift) {
    prepareGeometryChange();
    breite_ = breite;
    schrift_ = schrift;
    plaetze_.clear();
    const QFontMetricsF mass(schrift);
    const double zeile = mass.height() * zeilenhoehe;
    const double zeichen = mass.height() * zeichenbreite;
    QPointF ecke;
    std::size_t erster = 0;  // of the row
    const auto zeile_mitten = [&] {
        const double ende = plaetze_.empty() ? 0 : plaetze_.back().feld.right();
        for (; erster < plaetze_.size(); ++erster) {
            plaetze_[erster].feld.translate((breite - ende) / 2, 0);
        }
    };
    for (const legendeneintrag& eintrag : eintraege_) {
        const double platz_text = breite * (eintrag.symbol ? 1 : breite_anteil) - zeichen - luft * mass.height();
        const QString text =
            mass.elidedText(eintrag.text, Qt::ElideMiddle, platz_text - mass.horizontalAdvance(eintrag.zusatz)) +
            eintrag.zusatz;
        const double laenge = zeichen + mass.horizontalAdvance(text);
        const bool symbole_beginnen = eintrag.symbol && erster < plaetze_.size() && !eintraege_[erster].symbol;
        if (ecke.x() > 0 && (ecke.x() + laenge > breite || symbole_beginnen)) {
            zeile_mitten();
            ecke = {0, ecke.y() + zeile};
        }
        plaetze_.push_back({QRectF(ecke, QSizeF(laenge, zeile)), text});
        ecke.rx() += laenge + luft * mass.height();
    }
    zeile_mitten();
    hoehe_ = plaetze_.empty() ? 0 : ecke.y() + zeile;
}

void Rundenlegende::paint(QPainter* maler, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/) {
    maler->setRenderHint(QPainter::Antialiasing);
    maler->setFont(schrift_);
    const double hoehe = QFontMetricsF(schrift_).height();
    for (std::size_t i = 0; i < plaetze_.size(); ++i) {
        const QRectF& feld = plaetze_[i].feld;
        const QColor& farbe = eintraege_[i].farbe;
        const QPointF mitte(feld.left() + hoehe * zeichenbreite / 2.4, feld.center().y());
        if (eintraege_[i].symbol) {
            symbol_zeichnen(*maler, {*eintraege_[i].symbol, mitte, schrift_.pixelSize() * 0.42}, farbe, farben_);
        } else {
            const QPointF halb(hoehe * 0.5, 0);
            if (const auto rand = rand_auf(farben_.grund, farbe)) {
                maler->setPen(QPen(*rand, hoehe * 0.32, Qt::SolidLine, Qt::RoundCap));
                maler->drawLine(mitte - halb, mitte + halb);
            }
            maler->setPen(QPen(farbe, hoehe * 0.2, Qt::SolidLine, Qt::RoundCap));
            maler->drawLine(mitte - halb, mitte + halb);
        }
        maler->setPen(farben_.schrift);
        maler->drawText(feld.adjusted(hoehe * zeichenbreite, 0, hoehe, 0), Qt::AlignLeft | Qt::AlignVCenter,
                        plaetze_[i].text);
    }
}

}  // namespace tarvel::ui
