#pragma once

#include <QSerialPort>
#include <QTimer>
#include <optional>

#include "platform/serienport.h"
#include "platform_qt/portnamen.h"

namespace tarvel::qt {

class QtSerienport final : public plattform::serienport {
public:
    QtSerienport(const Portnamen& namen, QString& sperrdatei);
    ~QtSerienport() override;

    bool oeffnen(int nummer, std::string_view werte) override;
    void schliessen() override;
    bool offen() const override { return port_.isOpen(); }
    bool schreiben(std::string_view bytes) override;

private:
    void lesen();
    void fehler(QSerialPort::SerialPortError art);
    void nachsehen();

    const Portnamen& namen_;
    QString& sperrdatei_;
    QSerialPort port_;
    QTimer wache_;  ///< a device that is gone shows itself to whoever asks
};

class QtSerienportDienst final : public plattform::serienport_dienst {
public:
    explicit QtSerienportDienst(std::filesystem::path programmordner) : namen_(std::move(programmordner)) {}

    std::unique_ptr<plattform::serienport> erzeugen() override {
        return std::make_unique<QtSerienport>(namen_, sperrdatei_);
    }
    std::vector<int> vorhandene() const override { return namen_.vorhandene(); }
    std::string sperrdatei() const override { return sperrdatei_.toStdString(); }

private:
    Portnamen namen_;
    QString sperrdatei_;
};

/// The lock file that is there for a port of this name; empty if there is none.
QString sperrdatei_von(const QString& port);

/// The values of a port's settings text.
struct Portwerte {
    qint32 baud;
    QSerialPort::Parity paritaet;
    QSerialPort::DataBits datenbits;
    QSerialPort::StopBits stopbits;
};

/// Nothing if the text is not four values with commas between them, or one of them does not exist.
std::optional<Portwerte> portwerte_lesen(std::string_view text);

}  // namespace tarvel::qt
