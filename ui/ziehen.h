#pragma once

#include <QMimeData>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <memory>

class QRubberBand;

namespace tarvel::ui {

/// What is being dragged: a driver by his name, a lane by its number, or a file from outside.
struct Zuglast {
    QString fahrer;
    int spur = 0;
    std::filesystem::path datei;

    bool leer() const { return fahrer.isEmpty() && spur == 0 && datei.empty(); }
    static Zuglast aus(const QMimeData& daten);
    /// Within the program alone: a file cannot be taken out.
    std::unique_ptr<QMimeData> als_daten() const;
};

/// A widget that something can be dragged from.
class Zugquelle final : public QObject {
public:
    /// `last` tells what is under this point of the widget; an empty one is not dragged.
    Zugquelle(QWidget* flaeche, std::function<Zuglast(const QPoint&)> last);
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    QWidget* flaeche_;
    std::function<Zuglast(const QPoint&)> last_;
    QPoint griff_;
    bool gegriffen_ = false;
};

/// A widget that something can be dropped on.
class Zugziel final : public QObject {
public:
    /// `ort` tells which part of the widget would take the load at this point, an empty rectangle for none: it is
    /// framed while the pointer is there. `nehmen` takes it once the drag is over, so that it may ask.
    Zugziel(QWidget* flaeche, std::function<QRect(const QPoint&, const Zuglast&)> ort,
            std::function<void(const QPoint&, const Zuglast&)> nehmen);
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    QWidget* flaeche_;
    std::function<QRect(const QPoint&, const Zuglast&)> ort_;
    std::function<void(const QPoint&, const Zuglast&)> nehmen_;
    QRubberBand* rahmen_;
};

/// A widget that takes a picture file as a whole.
void bild_annehmen(QWidget* flaeche, std::function<void(const std::filesystem::path&)> nehmen);

}  // namespace tarvel::ui
