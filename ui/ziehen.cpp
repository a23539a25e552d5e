#include "ui/ziehen.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMouseEvent>
#include <QRubberBand>
#include <QTimer>
#include <QUrl>
#include <utility>

namespace tarvel::ui {
namespace {

const QString fahrer_art = "application/x-tarvel-fahrer";
const QString spur_art = "application/x-tarvel-spur";

}  // namespace

Zuglast Zuglast::aus(const QMimeData& daten) {
    Zuglast last;
    last.fahrer = QString::fromUtf8(daten.data(fahrer_art));
    last.spur = daten.data(spur_art).toInt();
    const QList<QUrl> dateien = daten.urls();
    if (dateien.size() == 1 && dateien.front().isLocalFile()) {
        last.datei = std::filesystem::path(dateien.front().toLocalFile().toStdU16String());
    }
    return last;
}

std::unique_ptr<QMimeData> Zuglast::als_daten() const {
    auto daten = std::make_unique<QMimeData>();
    if (!fahrer.isEmpty()) {
        daten->setData(fahrer_art, fahrer.toUtf8());
    }
    if (spur != 0) {
        daten->setData(spur_art, QByteArray::number(spur));
    }
    return daten;
}

Zugquelle::Zugquelle(QWidget* flaeche, std::function<Zuglast(const QPoint&)> last)
    : QObject(flaeche), flaeche_(flaeche), last_(std::move(last)) {
    flaeche_->installEventFilter(this);
    flaeche_->setCursor(Qt::OpenHandCursor);
}

bool Zugquelle::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() == QEvent::MouseButtonPress) {
        const auto* maus = static_cast<QMouseEvent*>(ereignis);
        gegriffen_ = maus->button() == Qt::LeftButton;
        griff_ = maus->position().toPoint();
    } else if (ereignis->type() == QEvent::MouseButtonRelease) {
        gegriffen_ = false;
    } else if (ereignis->type() == QEvent::MouseMove && gegriffen_) {
        const QPoint hier = static_cast<QMouseEvent*>(ereignis)->position().toPoint();
        if ((hier - griff_).manhattanLength() >= QApplication::startDragDistance()) {
            gegriffen_ = false;
            if (const Zuglast last = last_(griff_); !last.leer()) {
                auto* zug = new QDrag(flaeche_);
                zug->setMimeData(last.als_daten().release());
                zug->exec(Qt::MoveAction);
            }
        }
        return true;  // a list does not select the rows on the way
    }
    return QObject::eventFilter(ziel, ereignis);
}

Zugziel::Zugziel(QWidget* flaeche, std::function<QRect(const QPoint&, const Zuglast&)> ort,
                 std::function<void(const QPoint&, const Zuglast&)> nehmen)
    : QObject(flaeche),
      flaeche_(flaeche),
      ort_(std::move(ort)),
      nehmen_(std::move(nehmen)),
      rahmen_(new QRubberBand(QRubberBand::Rectangle, flaeche)) {
    flaeche_->setAcceptDrops(true);
    flaeche_->installEventFilter(this);
}

bool Zugziel::eventFilter(QObject* ziel, QEvent* ereignis) {
    const QEvent::Type art = ereignis->type();
    if (art == QEvent::DragLeave) {
        rahmen_->hide();
        return true;
    }
    if (art != QEvent::DragEnter && art != QEvent::DragMove && art != QEvent::Drop) {
        return QObject::eventFilter(ziel, ereignis);
    }
    auto* zug = static_cast<QDropEvent*>(ereignis);
    const Zuglast last = Zuglast::aus(*zug->mimeData());
    const QPoint hier = zug->position().toPoint();
    const QRect ort = last.leer() ? QRect() : ort_(hier, last);
    const bool passt = !ort.isEmpty();
    if (art == QEvent::DragEnter ? !last.leer() : passt) {
        zug->setDropAction(last.datei.empty() ? Qt::MoveAction : Qt::CopyAction);
        zug->accept();
    } else {
        zug->ignore();
    }
    if (art == QEvent::Drop) {
        rahmen_->hide();
        if (passt) {  // a message box within the drag would hold up whoever it comes from
            QTimer::singleShot(0, this, [this, hier, last] { nehmen_(hier, last); });
        }
    } else {
        rahmen_->setGeometry(ort);
        rahmen_->setVisible(passt);
    }
    return true;
}

void bild_annehmen(QWidget* flaeche, std::function<void(const std::filesystem::path&)> nehmen) {
    new Zugziel(
        flaeche,
        [flaeche](const QPoint&, const Zuglast& last) { return last.datei.empty() ? QRect() : flaeche->rect(); },
        [nehmen = std::move(nehmen)](const QPoint&, const Zuglast& last) { nehmen(last.datei); });
}

}  // namespace tarvel::ui
