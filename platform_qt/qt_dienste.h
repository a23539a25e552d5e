#pragma once

#include "platform/dienste.h"
#include "platform_qt/druckerport.h"
#include "platform_qt/qt_abtaster.h"
#include "platform_qt/qt_anhaengedatei.h"
#include "platform_qt/qt_bibliothek.h"
#include "platform_qt/qt_dateisystem.h"
#include "platform_qt/qt_klang.h"
#include "platform_qt/qt_meldungen.h"
#include "platform_qt/qt_prozess.h"
#include "platform_qt/qt_serienport.h"
#include "platform_qt/qt_zeitgeber.h"
#include "platform_qt/tastenstempel.h"

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

class QtZufall final : public plattform::zufall {
public:
    double bruchteil() override;
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
    QtKalender kalender_;
    QtBildschirm bildschirm_;
    QtProzess prozess_;
    QtZufall zufall_;
    QtDateisystem dateisystem_;
    QtAnhaengeDienst anhaenge_;
    std::filesystem::path ordner_;
    QtKlang klang_{ordner_};
    QtSerienportDienst serienports_{ordner_, uhr_};
    QtBibliothekDienst bibliotheken_{ordner_};
    QtAbtasterDienst abtaster_{uhr_};
#ifdef Q_OS_WIN
    Portbibliothek druckerport_{bibliotheken_};
    Tastenstempel tastenstempel_;
#else
    Portdatei portdatei_;
    Portbibliothek druckerport_{bibliotheken_, &portdatei_};
#endif
};

}  // namespace tarvel::qt
