#pragma once

#include <QByteArray>
#include <QSerialPort>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <functional>
#include <string_view>

#include "platform/uhr.h"

namespace tarvel::qt {

/// The values of a port's settings text.
struct Portwerte {
    qint32 baud;
    QSerialPort::Parity paritaet;
    QSerialPort::DataBits datenbits;
    QSerialPort::StopBits stopbits;
};

/// What a port has to say, and the clock's reading as it did.
struct Portnachricht {
    enum class Art { bytes, ereignis, verlust };
    Art art;
    zeit_ms stempel;
    QByteArray bytes;
    int ereignis = 0;
};

/// A serial port on a thread of its own: what holds the program up neither delays a stamp nor lets the line overflow.
/// The thread never waits for the program.
class Portfaden final : private QThread {
public:
    /// Called on the thread.
    using Abnehmer = std::function<void(const Portnachricht&)>;

    Portfaden(const plattform::uhr& uhr, Abnehmer abnehmer);
    Portfaden(const Portfaden&) = delete;
    Portfaden& operator=(const Portfaden&) = delete;
    /// Closes the port, and gives the device a moment to take its last commands. Then nothing is called any more.
    ~Portfaden() override;

    /// Once at most. Waits until the system has opened the port, or refused.
    QSerialPort::SerialPortError oeffnen(const QString& name, const Portwerte& werte);
    /// False if the device has not taken anything for long.
    bool schreiben(std::string_view bytes);

private:
    void run() override;
    void lesen();
    void nachsehen();
    void fehler(QSerialPort::SerialPortError art);
    void zumachen();

    const plattform::uhr& uhr_;
    const Abnehmer abnehmer_;
    QSerialPort port_;
    QTimer wache_{&port_};               ///< a device that is gone shows itself to whoever asks
    std::atomic<qint64> unterwegs_ = 0;  ///< bytes that the system has not taken yet
};

}  // namespace tarvel::qt
