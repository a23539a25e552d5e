#include "platform_qt/qt_meldungen.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace tarvel::qt {

void QtMeldungen::zeigen(std::string_view text, std::string_view titel) {
    const auto als_text = [](std::string_view utf8) {
        return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    };
    QMessageBox box(QMessageBox::Warning, als_text(titel), als_text(text), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setObjectName("meldung");
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

}  // namespace tarvel::qt
