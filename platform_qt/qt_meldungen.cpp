#include "platform_qt/qt_meldungen.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace tarvel::qt {

namespace {

QString als_text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace

void QtMeldungen::knoepfe_beschriften(std::string_view ja, std::string_view nein, std::string_view ausweg) {
    ja_ = als_text(ja);
    nein_ = als_text(nein);
    ausweg_ = als_text(ausweg);
}

/// Closing the box means no, or takes the way out where there is one.
plattform::dreifache_antwort QtMeldungen::stellen(std::string_view text, std::string_view titel, art wie) const {
    QMessageBox box(QMessageBox::Question, als_text(titel), als_text(text), QMessageBox::NoButton,
                    QApplication::activeWindow());
    box.setObjectName("frage");
    box.setTextFormat(Qt::PlainText);
    QPushButton* ja = box.addButton(ja_, QMessageBox::YesRole);
    QPushButton* nein = box.addButton(nein_, QMessageBox::NoRole);
    box.setDefaultButton(wie.ja_vorn ? ja : nein);
    box.setEscapeButton(wie.mit_ausweg ? box.addButton(ausweg_, QMessageBox::RejectRole) : nein);
    box.exec();
    using antwort = plattform::dreifache_antwort;
    return box.clickedButton() == ja ? antwort::ja : box.clickedButton() == nein ? antwort::nein : antwort::abbrechen;
}

void QtMeldungen::zeigen(std::string_view text, std::string_view titel) {
    QMessageBox box(QMessageBox::Warning, als_text(titel), als_text(text), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setObjectName("meldung");
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool QtMeldungen::fragen(std::string_view text, std::string_view titel) {
    return stellen(text, titel, {}) == plattform::dreifache_antwort::ja;
}

bool QtMeldungen::anbieten(std::string_view text, std::string_view titel) {
    return stellen(text, titel, {.ja_vorn = true}) == plattform::dreifache_antwort::ja;
}

plattform::dreifache_antwort QtMeldungen::fragen_mit_ausweg(std::string_view text, std::string_view titel) {
    return stellen(text, titel, {.mit_ausweg = true});
}

}  // namespace tarvel::qt
