#include "ui/ampelfeld.h"

#include <QPainter>
#include <utility>

#include "ui/lampe.h"

namespace tarvel::ui {
namespace {

/// Colour of a lamp that there is no picture of, by the name of its file.
QColor farbe_von_datei(const std::string& datei) {
    return datei.find("gr_") != std::string::npos ? QColor(30, 230, 70) : QColor(255, 40, 30);
}

}  // namespace

Ampelfeld::Ampelfeld(bild& element, const QString& name, Binder& binder,
                     std::function<std::filesystem::path(const std::string&)> pfad, QWidget* eltern)
    : QWidget(eltern), element_(element), pfad_(std::move(pfad)) {
    for (const char* lampe : {"rt_an", "rt_aus", "gr_an", "gr_aus"}) {
        bild_von(std::string("ampel/") + lampe + ".gif");
    }
    binder.verbinden(element, this, name, [this] {
        if (gezeigt_ != element_.datei()) {
            gezeigt_ = element_.datei();
            update();
        }
    });
}

const QPixmap& Ampelfeld::bild_von(const std::string& datei) {
    const QString schluessel = QString::fromStdString(datei);
    if (!bilder_.contains(schluessel)) {
        bilder_[schluessel] = QPixmap(QString::fromStdU16String(pfad_(datei).u16string()));
    }
    if (!passend_.contains(schluessel)) {
        const QPixmap& ganz = bilder_[schluessel];
        const QSize groesse = size() * devicePixelRatioF();
        passend_[schluessel] =
            ganz.isNull() ? ganz : ganz.scaled(groesse, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    return passend_[schluessel];
}

void Ampelfeld::resizeEvent(QResizeEvent* ereignis) {
    passend_.clear();
    for (const QString& datei : bilder_.keys()) {
        bild_von(datei.toStdString());
    }
    QWidget::resizeEvent(ereignis);
}

void Ampelfeld::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    const QPixmap& lampe = bild_von(element_.datei());
    if (!lampe.isNull()) {
        maler.drawPixmap(rect(), lampe);
        return;
    }
    maler.fillRect(rect(), QColor(24, 26, 30));
    const bool leuchtet = element_.datei().find("_an") != std::string::npos;
    const double rand = width() * 0.1;
    lampe_malen(maler, QRectF(rect()).adjusted(rand, rand, -rand, -rand), farbe_von_datei(element_.datei()), leuchtet);
}

}  // namespace tarvel::ui
