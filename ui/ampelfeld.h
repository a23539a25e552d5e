#pragma once

#include <QHash>
#include <QPixmap>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <string>

#include "core/steuerelemente.h"
#include "ui/binder.h"

namespace tarvel::ui {

/// One lamp of a start light: the picture that its control names, in the size of the widget, or a drawn lamp where
/// there is no such picture. Its pictures are read once, so that a step of the light waits for no file.
class Ampelfeld final : public QWidget {
public:
    enum class art {
        wechselt,  ///< the control names one picture after the other
        erlischt   ///< a control that is hidden is a lamp that is out: the picture with "aus" for "an"
    };

    Ampelfeld(bild& element, art a, const QString& name, Binder& binder,
              std::function<std::filesystem::path(const std::string&)> pfad, QWidget* eltern);

    /// The rim of the lamp.
    void setRing(const QColor& farbe);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    /// The picture in the size of the widget, of a small lamp without its housing.
    const QPixmap& bild_von(const std::string& datei);
    void nachfuehren(const std::string& datei);

    art art_;
    std::string gezeigt_;
    QColor ring_;
    std::function<std::filesystem::path(const std::string&)> pfad_;
    QHash<QString, QPixmap> bilder_;   ///< as they were read
    QHash<QString, QPixmap> passend_;  ///< in the size of the widget
};

}  // namespace tarvel::ui
