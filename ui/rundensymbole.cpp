#include "ui/rundensymbole.h"

#include <QPainter>
#include <algorithm>
#include <array>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int ebene = 20;           // over lines and axes
constexpr double kontrast_min = 2;  // against the ground

}  // namespace

diagrammfarben diagrammfarben_von(bool papier) {
    const stil::farbsatz& f = papier ? stil::auf_papier() : stil::auf_dem_schirm();
    const bool hell = &f == &stil::auf_papier();
    return {f.karte, f.schrift, f.schrift_leise, hell ? QColor(228, 231, 236) : f.linie};
}

bool zu_hell(const QColor& farbe) {
    return stil::kontrast(Qt::white, farbe) < kontrast_min;
}

QColor randfarbe(const QColor& farbe) {
    return farbe.darker(220);
}

std::optional<QColor> rand_auf(const QColor& grund, const QColor& farbe) {
    if (stil::kontrast(grund, farbe) >= kontrast_min) {
        return std::nullopt;
    }
    return stil::helligkeit(grund) > stil::helligkeit(Qt::gray) ? randfarbe(farbe) : QColor(Qt::lightGray);
}

void symbol_zeichnen(QPainter& maler, const symbolmass& symbol, const QColor& farbe, const diagrammfarben& auf) {
    const auto& [was, mitte, radius] = symbol;
    const QColor rand = rand_auf(auf.grund, farbe).value_or(farbe);
    const QPointF rechts(radius, 0);
    const QPointF unten(0, radius);
    maler.setPen(QPen(auf.schrift, radius / 5));
    maler.setBrush(farbe);
    switch (was) {
        case symbolform::punkt:
            maler.setPen(QPen(rand, radius / 3));
            maler.drawEllipse(mitte, radius, radius);
            break;
        case symbolform::pause:
            maler.setPen(QPen(rand, radius / 3));
            maler.setBrush(auf.grund);
            maler.drawPolygon(QPolygonF({mitte - unten, mitte + rechts, mitte + unten, mitte - rechts}));
            break;
        case symbolform::nachgetragen:
            maler.drawRect(QRectF(mitte - rechts - unten, mitte + rechts + unten));
            maler.drawLine(mitte - rechts, mitte + rechts);
            maler.drawLine(mitte - unten, mitte + unten);
            break;
        case symbolform::lang:
            maler.drawPolygon(QPolygonF({mitte - unten, mitte + rechts + unten, mitte - rechts + unten}));
            break;
        case symbolform::beste:
            maler.drawEllipse(mitte, radius, radius);
            break;
    }
}

Rundensymbole::Rundensymbole(QChart& bild) : QGraphicsItem(&bild), bild_(bild) {
    setZValue(ebene);
    setAcceptedMouseButtons(Qt::NoButton);
}

void Rundensymbole::setSymbole(std::vector<rundensymbol> symbole, QAbstractSeries* bezug) {
    symbole_ = std::move(symbole);
    bezug_ = bezug;
    update();
}

void Rundensymbole::setHinweis(const QString& hinweis) {
    hinweis_ = hinweis;
    update();
}

void Rundensymbole::setFarben(const diagrammfarben& farben) {
    farben_ = farben;
    update();
}

void Rundensymbole::setSchrift(const QFont& schrift) {
    schrift_ = schrift;
    update();
}

QRectF Rundensymbole::boundingRect() const {
    return bild_.rect();
}

QPointF Rundensymbole::stelle(const rundensymbol& symbol) const {
    const QPointF ort = bild_.mapToPosition(symbol.wert, bezug_);
    return symbol.was == symbolform::lang ? ort + QPointF(0, radius(symbol.was)) : ort;  // its tip touches the edge
}

double Rundensymbole::radius(symbolform was) const {
    constexpr std::array<double, 5> je_schrift{0.16, 0.4, 0.34, 0.55, 0.36};
    return schrift_.pixelSize() * je_schrift.at(static_cast<std::size_t>(was));
}

void Rundensymbole::paint(QPainter* maler, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/) {
    maler->setRenderHint(QPainter::Antialiasing);
    if (!hinweis_.isEmpty()) {
        QFont gross = schrift_;
        gross.setPixelSize(gross.pixelSize() * 3 / 2);
        maler->setFont(gross);
        maler->setPen(farben_.leise);
        maler->drawText(bild_.rect(), Qt::AlignCenter | Qt::TextWordWrap, hinweis_);
    }
    maler->setFont(schrift_);
    std::vector<QRectF> belegt;
    for (const rundensymbol& symbol : symbole_) {
        symbol_zeichnen(*maler, {symbol.was, stelle(symbol), radius(symbol.was)}, symbol.farbe, farben_);
        if (symbol.was != symbolform::punkt) {
            const QPointF ecke(radius(symbol.was), radius(symbol.was));
            belegt.emplace_back(stelle(symbol) - ecke, stelle(symbol) + ecke);
        }
    }
    for (auto symbol = symbole_.rbegin(); symbol != symbole_.rend(); ++symbol) {
        if (!symbol->text.isEmpty()) {
            text_setzen(*maler, *symbol, belegt);
        }
    }
}

void Rundensymbole::text_setzen(QPainter& maler, const rundensymbol& symbol, std::vector<QRectF>& belegt) const {
    const QFontMetricsF mass(schrift_);
    const QSizeF groesse(mass.horizontalAdvance(symbol.text) + mass.height() * 0.5, mass.height());
    const QPointF mitte = stelle(symbol);
    const double abstand = 1.6 * radius(symbol.was);
    constexpr int ringe = 4;
    for (int ring = 0; ring < ringe; ++ring) {
        const double dx = abstand + groesse.width() / 2 + ring * groesse.width() / 2;
        const double dy = abstand + groesse.height() / 2 + ring * groesse.height();
        // a best lap has its room below the lines, a clipped one beside its arrow
        const std::vector<QPointF> versatz =
            symbol.was == symbolform::lang
                ? std::vector<QPointF>{{dx, groesse.height() / 4}, {-dx, groesse.height() / 4}}
                : std::vector<QPointF>{{0, dy}, {dx, dy / 2}, {-dx, dy / 2}, {dx, -dy / 2}, {-dx, -dy / 2}, {0, -dy}};
        for (const QPointF& weg : versatz) {
            QRectF feld({}, groesse);
            feld.moveCenter(mitte + weg);
            if (!bild_.plotArea().adjusted(-2, -2, 2, 2).contains(feld) ||
                std::any_of(belegt.begin(), belegt.end(), [&](const QRectF& da) { return da.intersects(feld); })) {
                continue;
            }
            maler.setPen(QPen(rand_auf(farben_.grund, symbol.farbe).value_or(symbol.farbe), 1.5));
            if (ring > 0) {
                maler.drawLine(mitte, feld.center());
            }
            QColor schleier = farben_.grund;
            schleier.setAlpha(225);
            maler.setBrush(schleier);
            maler.drawRoundedRect(feld, feld.height() / 4, feld.height() / 4);
            maler.setPen(farben_.schrift);
            maler.drawText(feld, Qt::AlignCenter, symbol.text);
            belegt.push_back(feld);
            return;
        }
        if (symbol.was == symbolform::lang) {
            return;  // its time is in the tip
        }
    }
}

}  // namespace tarvel::ui
