#include "platform_qt/qt_serienport.h"

#include <QFile>
#include <QHash>
#include <QPointer>
#include <QStringList>

namespace tarvel::qt {
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

bool QtSerienport::oeffnen(int nummer, std::string_view werte) {
    schliessen();
    fehler_ = {};
    const QString name = namen_.von(nummer);
    const std::optional<Portwerte> portwerte = portwerte_lesen(werte);
    if (name.isEmpty() || !portwerte) {
        return false;
    }
    auto faden = std::make_unique<Portfaden>(uhr_, [this](const Portnachricht& nachricht) { einwerfen(nachricht); });
    const QSerialPort::SerialPortError fehler = faden->oeffnen(name, *portwerte);
    if (fehler == QSerialPort::NoError) {
        faden_ = std::move(faden);
    } else {
        fehler_ = {fehler,
                   fehler == QSerialPort::PermissionError ? sperrdatei_von(QSerialPort(name).portName()) : QString()};
    }
    return offen();
}

void QtSerienport::schliessen() {
    faden_.reset();
    eingang_.clear();
}

/// By the port's thread.
void QtSerienport::einwerfen(const Portnachricht& nachricht) {
    const std::lock_guard schutz(sperre_);
    eingang_.push_back(nachricht);
    if (eingang_.size() == 1) {
        QMetaObject::invokeMethod(
            &briefkasten_, [this] { austragen(); }, Qt::QueuedConnection);
    }
}

std::optional<Portnachricht> QtSerienport::naechste() {
    const std::lock_guard schutz(sperre_);
    if (eingang_.empty()) {
        return {};
    }
    const Portnachricht erste = eingang_.front();
    eingang_.pop_front();
    return erste;
}

void QtSerienport::zustellen(const Portnachricht& nachricht) {
    const QByteArray& bytes = nachricht.bytes;
    switch (nachricht.art) {
        case Portnachricht::Art::bytes:
            if (bei_empfang) {
                bei_empfang({bytes.constData(), static_cast<std::size_t>(bytes.size())}, nachricht.stempel);
            }
            return;
        case Portnachricht::Art::ereignis:
            if (bei_ereignis) {
                bei_ereignis(nachricht.ereignis);
            }
            return;
        case Portnachricht::Art::verlust:
            schliessen();
            if (bei_verlust) {
                bei_verlust();
            }
            return;
    }
}

void QtSerienport::austragen() {
    if (traegt_aus_) {  // a handler shows a dialog, and goes on behind it
        return;
    }
    traegt_aus_ = true;
    const QPointer<QObject> noch_da(&briefkasten_);
    while (const std::optional<Portnachricht> eine = naechste()) {
        zustellen(*eine);
        if (noch_da.isNull()) {
            return;
        }
    }
    traegt_aus_ = false;
}

}  // namespace tarvel::qt
