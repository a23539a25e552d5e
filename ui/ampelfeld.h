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

/// One lamp of the start light: the picture that its control names, in the size of the widget, or a drawn lamp where
/// there is no such picture. All pictures are read once, so that a step of the light waits for no file.
class Ampelfeld final : public QWidget {
public:
    Ampelfeld(bild& element, const QString& name, Binder& binder,
              std::function<std::filesystem::path(const std::string&)> pfad, QWidget* eltern);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    const QPixmap& bild_von(const std::string& datei);

    bild& element_;
    std::string gezeigt_;
    std::function<std::filesystem::path(const std::string&)> pfad_;
    QHash<QString, QPixmap> bilder_;   ///< as they were read
    QHash<QString, QPixmap> passend_;  ///< in the size of the widget
};

}  // namespace tarvel::ui
