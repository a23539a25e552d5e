#pragma once

#include "platform/dienste.h"
#include "platform_qt/qt_meldungen.h"
#include "platform_qt/qt_prozess.h"
#include "platform_qt/qt_zeitgeber.h"

namespace tarvel::qt {

class QtUhr final : public plattform::uhr {
public:
    zeit_ms jetzt() const override;
};

class QtKalender final : public plattform::kalender {
public:
    plattform::datum_uhrzeit jetzt() const override;
};

class QtBildschirm final : public plattform::bildschirm {
public:
    plattform::groesse_px groesse() const override;
};

/// No sound files belong to the program yet, so there is nothing to play.
class StummerKlang final : public plattform::klang {
public:
    void spielen(std::string_view /*datei*/) override {}
};

/// The machine as Qt and the operating system give it. Needs a running QApplication.
class QtDienste {
public:
    explicit QtDienste(std::filesystem::path programmordner) : ordner_(std::move(programmordner)) {}
    plattform::dienste dienste();

private:
    QtUhr uhr_;
    QtZeitgeberDienst zeitgeber_{uhr_};
    QtMeldungen meldungen_;
    StummerKlang klang_;
    QtKalender kalender_;
    QtBildschirm bildschirm_;
    QtProzess prozess_;
    std::filesystem::path ordner_;
};

}  // namespace tarvel::qt
