#include "platform_qt/portfaden.h"

#include "platform_qt/feines_wecken.h"

#ifndef Q_OS_WIN
#include <poll.h>
#endif

namespace tarvel::qt {
namespace {

constexpr qint64 stau_max = 4096;  // bytes that a device has not taken: it takes none any more
constexpr int wache_ms = 1000;
constexpr int abschied_ms = 100;  // for the last commands before the port is closed

}  // namespace

Portfaden::Portfaden(const plattform::uhr& uhr, Abnehmer abnehmer) : uhr_(uhr), abnehmer_(std::move(abnehmer)) {
    connect(&port_, &QSerialPort::readyRead, &port_, [this] { lesen(); });
    connect(&port_, &QSerialPort::errorOccurred, &port_, [this](QSerialPort::SerialPortError art) { fehler(art); });
    connect(&port_, &QSerialPort::bytesWritten, &port_, [this](qint64 bytes) { unterwegs_ -= bytes; });
    connect(&wache_, &QTimer::timeout, &port_, [this] { nachsehen(); });
    port_.moveToThread(this);
}

Portfaden::~Portfaden() {
    if (isRunning()) {
        QMetaObject::invokeMethod(
            &port_,
            [this] {
                zumachen();
                quit();
            },
            Qt::QueuedConnection);
        wait();
    }
}

void Portfaden::run() {
    const FeinesWecken wecken;
    exec();
}

QSerialPort::SerialPortError Portfaden::oeffnen(const QString& name, const Portwerte& werte) {
    start(TimeCriticalPriority);
    if (!isRunning()) {
        return QSerialPort::UnknownError;
    }
    QSerialPort::SerialPortError ergebnis = QSerialPort::NoError;
    QMetaObject::invokeMethod(
        &port_,
        [&] {
            port_.setPortName(name);
            port_.setBaudRate(werte.baud);
            port_.setParity(werte.paritaet);
            port_.setDataBits(werte.datenbits);
            port_.setStopBits(werte.stopbits);
            port_.setFlowControl(QSerialPort::NoFlowControl);
            if (port_.open(QIODevice::ReadWrite)) {
                wache_.start(wache_ms);
            } else {
                ergebnis = port_.error();
            }
        },
        Qt::BlockingQueuedConnection);
    return ergebnis;
}

bool Portfaden::schreiben(std::string_view bytes) {
    if (unterwegs_ > stau_max) {
        return false;
    }
    const QByteArray kopie(bytes.data(), static_cast<qsizetype>(bytes.size()));
    unterwegs_ += kopie.size();
    return QMetaObject::invokeMethod(
        &port_, [this, kopie] { port_.write(kopie); }, Qt::QueuedConnection);
}

void Portfaden::lesen() {
    if (const QByteArray bytes = port_.readAll(); !bytes.isEmpty()) {
        abnehmer_({Portnachricht::Art::bytes, uhr_.jetzt(), bytes});
    }
}

void Portfaden::nachsehen() {
#ifdef Q_OS_WIN
    port_.pinoutSignals();  // fails, and says so, on a port that is gone
#else
    pollfd stand{port_.handle(), 0, 0};
    if (::poll(&stand, 1, 0) > 0 && (stand.revents & (POLLERR | POLLHUP | POLLNVAL)) != 0) {
        fehler(QSerialPort::ResourceError);
    }
#endif
}

void Portfaden::fehler(QSerialPort::SerialPortError art) {
    if (!port_.isOpen() || art == QSerialPort::NoError || art == QSerialPort::TimeoutError) {
        return;
    }
    lesen();  // perhaps its last words
    abnehmer_({Portnachricht::Art::ereignis, uhr_.jetzt(), {}, static_cast<int>(art)});
    if (art == QSerialPort::ResourceError) {
        wache_.stop();
        port_.close();
        abnehmer_({Portnachricht::Art::verlust, uhr_.jetzt(), {}});
    }
}

void Portfaden::zumachen() {
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

}  // namespace tarvel::qt
