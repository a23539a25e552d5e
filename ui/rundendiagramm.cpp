#include "ui/rundendiagramm.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace tarvel::ui {

// the view takes it along: one made without a chart makes its own, which setChart() would leave behind
Rundendiagramm::Rundendiagramm(QWidget* eltern) : Rundendiagramm(new Rundenbild, eltern) {}

Rundendiagramm::Rundendiagramm(Rundenbild* bild, QWidget* eltern) : QChartView(bild, eltern), bild_(bild) {
    setRenderHint(QPainter::Antialiasing);
    setFocusPolicy(Qt::NoFocus);  // there is nothing to operate
    setFrameShape(QFrame::NoFrame);
    setBackgroundBrush(Qt::NoBrush);
    viewport()->setAutoFillBackground(false);
}

void Rundendiagramm::setInhalt(rundenbild_inhalt inhalt) {
    bild_->setFarben(diagrammfarben_von(false));
    bild_->setInhalt(std::move(inhalt));
    setAccessibleName(QString::fromStdString(bild_->inhalt().wort.achse_zeit));
    setAccessibleDescription(bild_->beschreibung());
}

void Rundendiagramm::changeEvent(QEvent* ereignis) {
    QChartView::changeEvent(ereignis);
    if (ereignis->type() == QEvent::PaletteChange && bild_ != nullptr) {
        bild_->setFarben(diagrammfarben_von(false));
        bild_->setInhalt(rundenbild_inhalt(bild_->inhalt()));
    }
}

void Rundendiagramm::resizeEvent(QResizeEvent* ereignis) {
    QChartView::resizeEvent(ereignis);
    bild_->setGroesse(viewport()->size());
}

bool Rundendiagramm::viewportEvent(QEvent* ereignis) {
    if (ereignis->type() != QEvent::ToolTip) {
        return QChartView::viewportEvent(ereignis);
    }
    const auto* hilfe = static_cast<QHelpEvent*>(ereignis);
    const QString text = bild_->runde_bei(bild_->mapFromScene(mapToScene(hilfe->pos())));
    // a driver's name is text, whatever signs are in it
    QToolTip::showText(hilfe->globalPos(), text.isEmpty() ? text : Qt::convertFromPlainText(text), this);
    return true;
}

}  // namespace tarvel::ui
