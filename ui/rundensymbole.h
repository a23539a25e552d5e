#pragma once

#include <QGraphicsItem>
#include <QtCharts/QAbstractSeries>
#include <QtCharts/QChart>
#include <optional>
#include <vector>

namespace tarvel::ui {

/// The ground of a chart and what is written on it.
struct diagrammfarben {
    QColor grund, schrift, leise, gitter;
};
/// Of paper, or of the windows as they are now.
diagrammfarben diagrammfarben_von(bool papier);

/// In the order in which they are drawn: a best lap with a pause shows both.
enum class symbolform { punkt, lang, nachgetragen, beste, pause };

/// A lap that the chart points out.
struct rundensymbol {
    symbolform was = symbolform::beste;
    QPointF wert;  ///< lap number and seconds, within the axes
    QColor farbe;
    QString text;  ///< written beside it; empty for nothing
};

/// The symbols over the lines of a chart, with their times: each is set where it covers no other. One item for all of
/// them, so that hundreds cost no more than a few.
class Rundensymbole final : public QGraphicsItem {
public:
    explicit Rundensymbole(QChart& bild);

    /// `bezug` is a series with the axes of the values.
    void setSymbole(std::vector<rundensymbol> symbole, QAbstractSeries* bezug);
    /// Stands in the middle, in place of lines.
    void setHinweis(const QString& hinweis);
    void setSchrift(const QFont& schrift);
    void setFarben(const diagrammfarben& farben);

    QRectF boundingRect() const override;
    void paint(QPainter* maler, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    void text_setzen(QPainter& maler, const rundensymbol& symbol, std::vector<QRectF>& belegt) const;
    QPointF stelle(const rundensymbol& symbol) const;
    /// Half the width of a symbol.
    double radius(symbolform was) const;

    QChart& bild_;
    QAbstractSeries* bezug_ = nullptr;
    std::vector<rundensymbol> symbole_;
    QString hinweis_;
    QFont schrift_;
    diagrammfarben farben_ = diagrammfarben_von(true);
};

/// A lane's colour needs an edge to be seen on white.
bool zu_hell(const QColor& farbe);
/// That edge.
QColor randfarbe(const QColor& farbe);
/// The edge with which a lane's colour is seen on that ground; none if it needs none.
std::optional<QColor> rand_auf(const QColor& grund, const QColor& farbe);
/// A symbol of a chart: `radius` is half its width.
struct symbolmass {
    symbolform was;
    QPointF mitte;
    double radius;
};
void symbol_zeichnen(QPainter& maler, const symbolmass& symbol, const QColor& farbe, const diagrammfarben& auf);

}  // namespace tarvel::ui
