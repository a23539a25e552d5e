#include "platform_qt/qt_prozess.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <chrono>

namespace tarvel::qt {
namespace {

constexpr std::chrono::milliseconds aufraeumen_ms{1000};

QString sperrdatei() {
    // the same place from the desktop and from a bare shell: no folder that hangs on the session
    const QString ordner = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    QDir().mkpath(ordner);
    return ordner + "/tarvel.lock";
}

/// A link, a pipe or a folder in the place of the lock is none of the program's: opening it could wait for ever.
void fremdes_entfernen(const QString& datei) {
    const QFileInfo da(datei);
    if (da.isSymLink() || (da.exists() && !da.isFile())) {
        da.isDir() && !da.isSymLink() ? QDir().rmdir(datei) : QFile::remove(datei);
    }
}

}  // namespace

QtProzess::QtProzess() : QtProzess(sperrdatei()) {}

QtProzess::QtProzess(const QString& datei) : sperre_(datei) {
    sperre_.setStaleLockTime(0);  // only a dead owner makes the lock stale, however long the club evening lasts
}

bool QtProzess::ist_einzige_instanz() {
    if (sperre_.isLocked()) {
        return true;
    }
    fremdes_entfernen(sperre_.fileName());
    if (sperre_.tryLock(0) || sperre_.error() != QLockFile::LockFailedError) {
        return true;
    }
    // What the file says may be garbled, or be of the machine's former name. An owner that lives holds the file itself,
    // and then it cannot be removed.
    QLockFile aufraeumen(sperre_.fileName() + ".weg");  // of two starts at once only one does so
    return aufraeumen.tryLock(aufraeumen_ms) && sperre_.removeStaleLockFile() && sperre_.tryLock(0);
}

void QtProzess::beenden() {
    // not quit(): that would ask the windows again, and they leave closing to the logic
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
}

}  // namespace tarvel::qt
