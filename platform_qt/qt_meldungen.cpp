#include "platform_qt/qt_meldungen.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

namespace tarvel::qt {

namespace {

QString als_text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Its first letter presses the button, alone or with the Alt key.
QString mit_kuerzel(const QString& wort) {
    return "&" + QString(wort).replace("&", "&&");
}

void kasten_zeigen(QMessageBox::Icon zeichen, std::string_view text, std::string_view titel) {
    QMessageBox box(zeichen, als_text(titel), als_text(text), QMessageBox::Ok, QApplication::activeWindow());
    box.setObjectName("meldung");
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

}  // namespace

void QtMeldungen::knoepfe_beschriften(std::string_view ja, std::string_view nein, std::string_view ausweg) {
    ja_ = als_text(ja);
    nein_ = als_text(nein);
    ausweg_ = als_text(ausweg);
}

/// Closing the box means no, or takes the way out where there is one.
plattform::dreifache_antwort QtMeldungen::stellen(std::string_view text, std::string_view titel, const art& wie) const {
    QMessageBox box(QMessageBox::Question, als_text(titel), als_text(text), QMessageBox::NoButton,
                    QApplication::activeWindow());
    box.setObjectName("frage");
    box.setTextFormat(Qt::PlainText);
    QPushButton* ja =
        box.addButton(mit_kuerzel(wie.worte.ja.empty() ? ja_ : als_text(wie.worte.ja)), QMessageBox::YesRole);
    QPushButton* nein =
        box.addButton(mit_kuerzel(wie.worte.nein.empty() ? nein_ : als_text(wie.worte.nein)), QMessageBox::NoRole);
    box.setDefaultButton(wie.ja_vorn ? ja : nein);
    box.setEscapeButton(wie.mit_ausweg ? box.addButton(mit_kuerzel(ausweg_), QMessageBox::RejectRole) : nein);
    box.exec();
    using antwort = plattform::dreifache_antwort;
    return box.clickedButton() == ja ? antwort::ja : box.clickedButton() == nein ? antwort::nein : antwort::abbrechen;
}

void QtMeldungen::zeigen(std::string_view text, std::string_view titel) {
    kasten_zeigen(QMessageBox::Warning, text, titel);
}

void QtMeldungen::bestaetigen(std::string_view text, std::string_view titel) {
    kasten_zeigen(QMessageBox::Information, text, titel);
}

bool QtMeldungen::fragen(std::string_view text, std::string_view titel, const plattform::antwortworte& worte) {
    return stellen(text, titel, {.worte = worte}) == plattform::dreifache_antwort::ja;
}

bool QtMeldungen::anbieten(std::string_view text, std::string_view titel, const plattform::antwortworte& worte) {
    return stellen(text, titel, {.worte = worte, .ja_vorn = true}) == plattform::dreifache_antwort::ja;
}

plattform::dreifache_antwort QtMeldungen::fragen_mit_ausweg(std::string_view text, std::string_view titel,
                                                            const plattform::antwortworte& worte) {
    return stellen(text, titel, {.worte = worte, .mit_ausweg = true});
}

plattform::dreifache_antwort QtMeldungen::anbieten_mit_ausweg(std::string_view text, std::string_view titel,
                                                              const plattform::antwortworte& worte) {
    return stellen(text, titel, {.worte = worte, .ja_vorn = true, .mit_ausweg = true});
}

void QtMeldungen::mitteilen(std::string_view text) {
    constexpr int dauer_ms = 4000;
    auto* zettel = new QLabel(
        als_text(text), nullptr,
        Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput);
    zettel->setObjectName("mitteilung");
    zettel->setTextFormat(Qt::PlainText);
    zettel->setAttribute(Qt::WA_ShowWithoutActivating);
    zettel->setAttribute(Qt::WA_DeleteOnClose);
    zettel->setStyleSheet("background: #1c2028; color: white; padding: 12px 20px; font-weight: bold;");
    zettel->ensurePolished();  // else it is measured without its bold letters
    zettel->adjustSize();
    const QWidget* fenster = QApplication::activeWindow();
    const QRect wo = fenster != nullptr ? fenster->frameGeometry() : QApplication::primaryScreen()->availableGeometry();
    zettel->move(wo.center() - zettel->rect().center());  // clear of the commands at the window's foot
    zettel->show();
    QTimer::singleShot(dauer_ms, zettel, &QWidget::close);
}

}  // namespace tarvel::qt
