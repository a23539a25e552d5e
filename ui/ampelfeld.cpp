#include "ui/ampelfeld.h"

#include <QPainter>
#include <algorithm>
#include <string_view>
#include <utility>

#include "core/dateien.h"
#include "ui/lampe.h"

namespace tarvel::ui {
namespace {

/// Colour of a lamp that there is no picture of, by the name of its file.
QColor farbe_von_datei(const std::string& datei) {
    return datei.find("gr_") != std::string::npos   ? QColor(30, 230, 70)
           : datei.find("ge_") != std::string::npos ? QColor(255, 200, 20)
                                                    : QColor(255, 40, 30);
}

std::string erloschen(std::string datei) {
    constexpr std::string_view an = "_an";
    const std::size_t ort = datei.rfind(an);
    return ort == std::string::npos ? datei : datei.replace(ort, an.size(), "_aus");
}

}  // namespace

Ampelfeld::Ampelfeld(bild& element, art a, const QString& name, Binder& binder,
                     std::function<std::filesystem::path(const std::string&)> pfad, QWidget* eltern)
    : QWidget(eltern), art_(a), pfad_(std::move(pfad)) {
    if (a == art::erlischt) {
        binder.verbinden(element, this, name, [this, &element] {
            bild_von(element.datei());
            bild_von(erloschen(element.datei()));
            nachfuehren(element.sichtbar() ? element.datei() : erloschen(element.datei()));
            setVisible(true);
        });
        return;
    }
    for (const char* lampe : {"rt_an", "rt_aus", "gr_an", "gr_aus"}) {
        bild_von(std::string("ampel/") + lampe + ".gif");
    }
    binder.verbinden(element, this, name, [this, &element] { nachfuehren(element.datei()); });
}

void Ampelfeld::nachfuehren(const std::string& datei) {
    if (gezeigt_ != datei) {
        gezeigt_ = datei;
        update();
    }
}

void Ampelfeld::setRing(const QColor& farbe) {
    if (ring_ != farbe) {
        ring_ = farbe;
        update();
    }
}

const QPixmap& Ampelfeld::bild_von(const std::string& datei) {
    const QString schluessel = QString::fromStdString(datei);
    if (!bilder_.contains(schluessel)) {
        const std::filesystem::path pfad = pfad_(datei);
        const QPixmap gelesen =
            ist_lesbar(pfad, bild_bytes_max) ? QPixmap(QString::fromStdU16String(pfad.u16string())) : QPixmap();
        const int ab = art_ == art::erlischt ? gelesen.width() * 7 / 100 : 0;
        bilder_[schluessel] = gelesen.copy(gelesen.rect().adjusted(ab, ab, -ab, -ab));
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
    constexpr double rand = 0.1;  // of the housing around the lamp
    QPainter maler(this);
    const int kante = std::min(width(), height());
    const QRect platz((width() - kante) / 2, (height() - kante) / 2, kante, kante);
    const QRectF rund = QRectF(platz).adjusted(rand * kante, rand * kante, -rand * kante, -rand * kante);
    if (const QPixmap& lampe = bild_von(gezeigt_); !lampe.isNull()) {
        maler.drawPixmap(platz, lampe);
    } else {
        maler.fillRect(platz, QColor(24, 26, 30));
        lampe_malen(maler, rund, farbe_von_datei(gezeigt_), gezeigt_.find("_an") != std::string::npos);
    }
    if (ring_.isValid()) {
        maler.setRenderHint(QPainter::Antialiasing);
        maler.setPen(QPen(ring_, std::max(2.0, 0.04 * kante)));
        maler.setBrush(Qt::NoBrush);
        maler.drawEllipse(rund);
    }
}

}  // namespace tarvel::ui
