#include "platform_qt/qt_serienport.h"

#include <QFile>
#include <QHash>
#include <QStringList>

#ifndef Q_OS_WIN
#include <poll.h>
#endif

namespace tarvel::qt {
namespace {

constexpr qint64 stau_max = 4096;  // bytes that a device has not taken: it takes none any more
constexpr int wache_ms = 1000;
constexpr int abschied_ms = 100;  // for the last commands before the port is closed

}  // namespace

std::optional<Portwerte> portwerte_lesen(std::string_view text) {
    static const QHash<QString, QSerialPort::Parity> paritaeten{{"N", QSerialPort::NoParity},
                                                                {"E", QSerialPort::EvenParity},
                                                                {"O", QSerialPort::OddParity},
                                                                {"M", QSerialPort::MarkParity},
                                                                {"S", QSerialPort::SpaceParity}};
    static const QHash<QString, QSerialPort::StopBits> stopbits{
        {"1", QSerialPort::OneStop}, {"1.5", QSerialPort::OneAndHalfStop}, {"2", QSerialPort::TwoStop}};
    const QStringList teile =
        QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())).toUpper().split(',');
    if (teile.size() != 4) {
        return {};
    }
    const int baud = teile[0].toInt();
    const int datenbits = teile[2].toInt();
    if (baud < 1 || datenbits < QSerialPort::Data5 || datenbits > QSerialPort::Data8 ||
        !paritaeten.contains(teile[1]) || !stopbits.contains(teile[3])) {
        return {};
    }
    return Portwerte{baud, paritaeten[teile[1]], static_cast<QSerialPort::DataBits>(datenbits), stopbits[teile[3]]};
}

QString sperrdatei_von(const QString& port) {
#ifdef Q_OS_WIN
    Q_UNUSED(port)
#else
    const QString name = "/LCK.." + QString(port).replace('/', '_');
    for (const char* ordner : {"/var/lock", "/etc/locks", "/var/spool/locks", "/var/spool/uucp", "/tmp", "/var/tmp",
                               "/var/lock/lockdev", "/run/lock"}) {
        if (QFile::exists(ordner + name)) {
            return ordner + name;
        }
    }
#endif
    return {};
}

QtSerienport::QtSerienport(const Portnamen& namen, QString& sperrdatei) : namen_(namen), sperrdatei_(sperrdatei) {
    QObject::connect(&port_, &QSerialPort::readyRead, &port_, [this] { lesen(); });
    QObject::connect(&port_, &QSerialPort::errorOccurred, &port_,
                     [this](QSerialPort::SerialPortError art) { fehler(art); });
    QObject::connect(&wache_, &QTimer::timeout, &port_, [this] { nachsehen(); });
}

QtSerienport::~QtSerienport() {
    port_.disconnect();
}

bool QtSerienport::oeffnen(int nummer, std::string_view werte) {
    schliessen();
    sperrdatei_.clear();
    const QString name = namen_.von(nummer);
    const std::optional<Portwerte> portwerte = portwerte_lesen(werte);
    if (name.isEmpty() || !portwerte) {
        return false;
    }
    port_.setPortName(name);
    port_.setBaudRate(portwerte->baud);
    port_.setParity(portwerte->paritaet);
    port_.setDataBits(portwerte->datenbits);
    port_.setStopBits(portwerte->stopbits);
    port_.setFlowControl(QSerialPort::NoFlowControl);
    const bool offen = port_.open(QIODevice::ReadWrite);
    if (offen) {
        wache_.start(wache_ms);
    } else if (port_.error() == QSerialPort::PermissionError) {
        sperrdatei_ = sperrdatei_von(port_.portName());
    }
    return offen;
}

void QtSerienport::schliessen() {
    wache_.stop();
    if (port_.isOpen()) {
        port_.flush();
        if (port_.bytesToWrite() > 0) {
            port_.waitForBytesWritten(abschied_ms);
        }
        port_.clear();  // else closing waits for a device that takes nothing any more
        port_.close();
    }
}

bool QtSerienport::schreiben(std::string_view bytes) {
    if (!port_.isOpen() || port_.bytesToWrite() > stau_max) {
        return false;
    }
    const auto laenge = static_cast<qint64>(bytes.size());
    return port_.write(bytes.data(), laenge) == laenge;
}

void QtSerienport::lesen() {
    const QByteArray bytes = port_.readAll();
    if (bei_empfang && !bytes.isEmpty()) {
        bei_empfang({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    }
}

void QtSerienport::nachsehen() {
#ifdef Q_OS_WIN
    port_.pinoutSignals();  // fails, and says so, on a port that is gone
#else
    pollfd stand{port_.handle(), 0, 0};
    if (::poll(&stand, 1, 0) > 0 && (stand.revents & (POLLERR | POLLHUP | POLLNVAL)) != 0) {
        fehler(QSerialPort::ResourceError);
    }
#endif
}

void QtSerienport::fehler(QSerialPort::SerialPortError art) {
    if (art != QSerialPort::ResourceError || !port_.isOpen()) {
        return;
    }
    wache_.stop();
    port_.close();
    if (bei_verlust) {
        bei_verlust();
    }
}

}  // namespace tarvel::qt
