#pragma once

#include <QPainter>
#include <QWidget>
#include <vector>

#include "results/protokollfenster.h"
#include "ui/streifenzeichen.h"

namespace tarvel::ui {

/// What a strip over time shows: a row for each lane, and all of it that lasts as a bar.
struct streifeninhalt {
    struct zeile {
        int spur = 0;
        QString name;
        QColor farbe;
    };
    std::vector<zeile> zeilen;
    double namen_em = 0;                  ///< width of the names, in heights of the letters
    std::vector<geschehen> geschehnisse;  ///< in order of time
    streifenlegende legende;
    protokollfenster::zeitraum zeitraum;
    int gewaehlt = -1;  ///< of the happenings
};

streifeninhalt streifeninhalt_bilden(const protokollfenster& logik);
/// `schrift_px` is the height of its letters, from which all other measures follow.
void streifen_malen(QPainter& maler, const QRectF& flaeche, const streifeninhalt& inhalt, double schrift_px,
                    const stil::farbsatz& farben);

/// The strip in the window: the wheel zooms, dragging moves, a click chooses.
class Protokollstreifen final : public QWidget {
public:
    Protokollstreifen(protokollfenster& logik, QWidget* eltern);

    /// Other happenings are to be shown.
    void neuerInhalt();
    /// Another part of the time, or another one is chosen.
    void neuerBlick();
    const streifeninhalt& inhalt() const { return inhalt_; }
    /// The place of a moment on a lane.
    QPointF ortVon(int spur, zeit_ms zeit) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    bool event(QEvent* ereignis) override;

private:
    double schriftPx() const;
    zeit_ms zeitBei(double x) const;
    zeit_ms zeitVon(double pixel) const;
    /// The row of the table that lies there, -1 for none.
    int zeileBei(const QPointF& ort) const;

    protokollfenster& logik_;
    streifeninhalt inhalt_;
    QPointF druck_;  ///< where the button went down
    double gezogen_bis_ = 0;
    bool gezogen_ = false;
};

}  // namespace tarvel::ui
