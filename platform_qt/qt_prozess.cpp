#include "platform_qt/qt_prozess.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace tarvel::qt {
namespace {

QString sperrdatei() {
    // the same place from the desktop and from a bare shell: no folder that hangs on the session
    const QString ordner = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    QDir().mkpath(ordner);
    return ordner + "/tarvel.lock";
}

}  // namespace

QtProzess::QtProzess() : sperre_(sperrdatei()) {
    sperre_.setStaleLockTime(0);  // only a dead owner makes the lock stale, however long the club evening lasts
}

bool QtProzess::ist_einzige_instanz() {
    return sperre_.isLocked() || sperre_.tryLock(0) || sperre_.error() != QLockFile::LockFailedError;
}

void QtProzess::beenden() {
    // not quit(): that would ask the windows again, and they leave closing to the logic
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
}

}  // namespace tarvel::qt
