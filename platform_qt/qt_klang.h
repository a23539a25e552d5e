#pragma once

#include <QAudioDevice>
#include <QAudioSink>
#include <QDateTime>
#include <QElapsedTimer>
#include <QIODevice>
#include <QMediaDevices>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/klang.h"

namespace tarvel::qt {

using klangwerte = std::vector<float>;

/// What the output plays: the sound of the moment, and silence behind it.
class Klangquelle final : public QIODevice {
public:
    explicit Klangquelle(const QAudioFormat& format) : format_(format) {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    void spielen(std::shared_ptr<const klangwerte> klang);
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;

protected:
    qint64 readData(char* ziel, qint64 laenge) override;
    qint64 writeData(const char* /*daten*/, qint64 /*laenge*/) override { return -1; }

private:
    QAudioFormat format_;
    std::shared_ptr<const klangwerte> klang_;
    std::size_t stelle_ = 0;
};

/// Plays wave files below the program folder through the machine's standard output. The output stays open and plays
/// silence: opening one takes tens of milliseconds on many machines, and a race tick cannot wait for that. Without an
/// output everything is silent until there is one.
class QtKlang final : public plattform::klang {
public:
    explicit QtKlang(std::filesystem::path programmordner);
    QtKlang(const QtKlang&) = delete;
    QtKlang& operator=(const QtKlang&) = delete;
    ~QtKlang() override;

    void bereitstellen(std::string_view datei) override;
    void spielen(std::string_view datei) override;

private:
    struct eintrag {
        QDateTime stand;
        std::shared_ptr<const klangwerte> werte;
    };

    void oeffnen();
    void schliessen();
    /// The output has stopped by itself.
    bool gestoert() const;
    /// Opens what has become the standard output, or one that has stopped.
    void nachfuehren();
    /// The file's sound at the rate of the output; nothing if there is no such file. A changed file is read anew.
    std::shared_ptr<const klangwerte> holen(std::string_view datei);

    std::filesystem::path ordner_;
    std::unique_ptr<QMediaDevices> geraete_;  ///< made with the first sound
    QAudioDevice geraet_;
    QElapsedTimer seit_versuch_;  ///< to open an output
    int rate_ = 0;                ///< of `klaenge_`
    std::unique_ptr<Klangquelle> quelle_;
    std::unique_ptr<QAudioSink> ausgabe_;
    std::map<std::string, eintrag, std::less<>> klaenge_;
};

}  // namespace tarvel::qt
