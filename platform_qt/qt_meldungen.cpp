#include "platform_qt/qt_meldungen.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace tarvel::qt {

namespace {

QString als_text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Closing the box means no, or takes the way out where there is one.
plattform::dreifache_antwort frage_stellen(std::string_view text, std::string_view titel, const char* ausweg) {
    QMessageBox box(QMessageBox::Question, als_text(titel), als_text(text), QMessageBox::NoButton,
                    QApplication::activeWindow());
    box.setObjectName("frage");
    box.setTextFormat(Qt::PlainText);
    const QPushButton* ja = box.addButton("Ja", QMessageBox::YesRole);
    QPushButton* nein = box.addButton("Nein", QMessageBox::NoRole);
    box.setDefaultButton(nein);
    box.setEscapeButton(ausweg == nullptr ? nein : box.addButton(ausweg, QMessageBox::RejectRole));
    box.exec();
    using antwort = plattform::dreifache_antwort;
    return box.clickedButton() == ja ? antwort::ja : box.clickedButton() == nein ? antwort::nein : antwort::abbrechen;
}

}  // namespace

void QtMeldungen::zeigen(std::string_view text, std::string_view titel) {
    QMessageBox box(QMessageBox::Warning, als_text(titel), als_text(text), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setObjectName("meldung");
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool QtMeldungen::fragen(std::string_view text, std::string_view titel) {
    return frage_stellen(text, titel, nullptr) == plattform::dreifache_antwort::ja;
}

plattform::dreifache_antwort QtMeldungen::fragen_mit_ausweg(std::string_view text, std::string_view titel) {
    return frage_stellen(text, titel, "Abbrechen");
}

}  // namespace tarvel::qt
