#include "platform_qt/qt_klang.h"

#include <QFileInfo>
#include <QUrl>

#include "core/dateien.h"

namespace tarvel::qt {

void QtKlang::spielen(std::string_view datei) {
    const std::filesystem::path pfad = dateien(ordner_).pfad(datei);
    const QString name = QString::fromStdU16String(pfad.u16string());
    if (datei.empty() || !QFileInfo(name).isFile()) {
        return;
    }
    if (effekt_ == nullptr) {
        effekt_ = std::make_unique<QSoundEffect>();
    }
    effekt_->stop();
    effekt_->setSource(QUrl::fromLocalFile(QFileInfo(name).absoluteFilePath()));
    effekt_->play();
}

}  // namespace tarvel::qt
