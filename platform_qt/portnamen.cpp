#include "platform_qt/portnamen.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSerialPortInfo>
#include <algorithm>

namespace tarvel::qt {
namespace {

constexpr int com_max = 256;
constexpr int feste_ports = 4;  // COM1 to COM4 sit on the board

QStringList usb_ports(const QList<QSerialPortInfo>& ports) {
    static const QRegularExpression usb("^tty(USB|ACM)[0-9]+$");
    QStringList namen;
    for (const QSerialPortInfo& port : ports) {
        if (usb.match(port.portName()).hasMatch()) {
            namen << port.portName();
        }
    }
    std::sort(namen.begin(), namen.end(), [](const QString& a, const QString& b) {  // ttyUSB2 before ttyUSB10
        return a.size() != b.size() && a.left(6) == b.left(6) ? a.size() < b.size() : a < b;
    });
    return namen;
}

int nummer_am_ende(const QString& text, const QString& vorspann) {
    bool ist_zahl = false;
    const int nummer = text.startsWith(vorspann, Qt::CaseInsensitive) ? text.mid(vorspann.size()).toInt(&ist_zahl) : 0;
    return ist_zahl ? nummer : -1;
}

}  // namespace

int com_nummer(const QString& systemname, const QStringList& usb_ports) {
#ifdef Q_OS_WIN
    Q_UNUSED(usb_ports)
    return std::max(nummer_am_ende(systemname, "COM"), 0);
#else
    const int fest = nummer_am_ende(systemname, "ttyS");
    if (fest >= 0 && fest < feste_ports) {
        return fest + 1;
    }
    const auto usb = usb_ports.indexOf(systemname);
    return usb < 0 ? 0 : feste_ports + 1 + static_cast<int>(usb);
#endif
}

QString Portnamen::verweis(int nummer) const {
#ifdef Q_OS_WIN
    Q_UNUSED(nummer)
    return {};
#else
    const std::filesystem::path pfad = ordner_ / "Anschluesse" / ("COM" + std::to_string(nummer));
    return QFileInfo(QString::fromStdU16String(pfad.u16string())).canonicalFilePath();
#endif
}

QString Portnamen::von(int nummer) const {
    if (nummer < 1 || nummer > com_max) {
        return {};
    }
#ifdef Q_OS_WIN
    return "COM" + QString::number(nummer);
#else
    if (QString ziel = verweis(nummer); !ziel.isEmpty()) {
        return ziel;
    }
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    const QStringList usb = usb_ports(ports);
    for (const QSerialPortInfo& port : ports) {
        if (com_nummer(port.portName(), usb) == nummer) {
            return port.systemLocation();
        }
    }
    return {};
#endif
}

plattform::portangaben Portnamen::angaben(int nummer) const {
    const QString pfad = von(nummer);
    const QSerialPortInfo port(QFileInfo(pfad).fileName());
    QString typ = port.isNull() ? "" : "RS232";
    if (port.hasVendorIdentifier()) {
        typ = QString("USB %1:%2")
                  .arg(port.vendorIdentifier(), 4, 16, QChar('0'))
                  .arg(port.productIdentifier(), 4, 16, QChar('0'));
    }
    return {typ.toStdString(), pfad.toStdString(), port.description().toStdString()};
}

std::vector<int> Portnamen::vorhandene() const {
    std::vector<int> nummern;
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    const QStringList usb = usb_ports(ports);
    for (const QSerialPortInfo& port : ports) {
        if (const int nummer = com_nummer(port.portName(), usb); nummer > 0) {
            nummern.push_back(nummer);
        }
    }
    for (int nummer = 1; nummer <= com_max; ++nummer) {
        if (!verweis(nummer).isEmpty()) {
            nummern.push_back(nummer);
        }
    }
    std::sort(nummern.begin(), nummern.end());
    nummern.erase(std::unique(nummern.begin(), nummern.end()), nummern.end());
    return nummern;
}

}  // namespace tarvel::qt
