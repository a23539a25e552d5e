#include "platform_qt/qt_dienste.h"

#include <QDateTime>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QScreen>
#include <chrono>
#include <ctime>

namespace tarvel::qt {

zeit_ms QtUhr::jetzt() const {
#ifdef Q_OS_LINUX  // the other clock stands still while a laptop sleeps, and a device's does not
    timespec seit_start{};
    if (::clock_gettime(CLOCK_BOOTTIME, &seit_start) == 0) {
        return zeit_ms{seit_start.tv_sec} * 1000 + seit_start.tv_nsec / 1000000;
    }
#endif
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

plattform::datum_uhrzeit QtKalender::jetzt() const {
    const QDateTime moment = QDateTime::currentDateTime();
    const QDate tag = moment.date();
    const QTime zeit = moment.time();
    return {tag.year(), tag.month(), tag.day(), zeit.hour(), zeit.minute(), zeit.second()};
}

plattform::groesse_px QtBildschirm::groesse() const {
    const QSize groesse = QGuiApplication::primaryScreen()->size();
    return {groesse.width(), groesse.height()};
}

double QtZufall::bruchteil() {
    return QRandomGenerator::global()->generateDouble();
}

plattform::dienste QtDienste::dienste() {
    return {uhr_,         zeitgeber_,    meldungen_,   klang_,    kalender_,    bildschirm_, prozess_, zufall_,
            serienports_, bibliotheken_, druckerport_, abtaster_, dateisystem_, anhaenge_,   ordner_};
}

}  // namespace tarvel::qt
