#include "platform_qt/qt_klang.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "core/dateien.h"
#include "platform_qt/klangdatei.h"

namespace tarvel::qt {
namespace {

constexpr qint64 datei_max = 50'000'000;
constexpr int vorrat_ms = 80;  ///< what the output holds ahead: a sound starts within it, and a busy loop is bridged
constexpr qint64 neuer_versuch_ms = 10'000;

template <class Wert>
void schreiben(char*& ziel, Wert wert) {
    std::memcpy(ziel, &wert, sizeof wert);
    ziel += sizeof wert;
}

/// The machine's own format, with samples of a kind that we write.
QAudioFormat format_von(const QAudioDevice& geraet) {
    QAudioFormat format = geraet.preferredFormat();
    if (format.sampleFormat() != QAudioFormat::Float) {
        format.setSampleFormat(QAudioFormat::Int16);
    }
    return format;
}

}  // namespace

void Klangquelle::spielen(std::shared_ptr<const klangwerte> klang) {
    klang_ = std::move(klang);
    stelle_ = 0;
}

qint64 Klangquelle::bytesAvailable() const {
    return format_.bytesForDuration(1'000'000) + QIODevice::bytesAvailable();
}

qint64 Klangquelle::readData(char* ziel, qint64 laenge) {
    const int rahmen_bytes = std::max(format_.bytesPerFrame(), 1);  // 0 for a format that is none
    const qint64 rahmen = laenge / rahmen_bytes;
    for (qint64 i = 0; i < rahmen; ++i) {
        const float wert = klang_ != nullptr && stelle_ < klang_->size() ? (*klang_)[stelle_++] : 0.0F;
        for (int kanal = 0; kanal < format_.channelCount(); ++kanal) {
            if (format_.sampleFormat() == QAudioFormat::Float) {
                schreiben(ziel, wert);
            } else {
                schreiben(ziel, static_cast<qint16>(std::lround(wert * 32767)));
            }
        }
    }
    return rahmen * rahmen_bytes;
}

QtKlang::QtKlang(std::filesystem::path programmordner) : ordner_(std::move(programmordner)) {}

QtKlang::~QtKlang() {
    schliessen();
}

void QtKlang::oeffnen() {
    if (geraete_ == nullptr) {
        geraete_ = std::make_unique<QMediaDevices>();
        QObject::connect(geraete_.get(), &QMediaDevices::audioOutputsChanged, geraete_.get(),
                         [this] { nachfuehren(); });
    } else if (ausgabe_ != nullptr) {
        return;
    }
    seit_versuch_.start();
    geraet_ = QMediaDevices::defaultAudioOutput();
    const QAudioFormat format = format_von(geraet_);
    if (geraet_.isNull() || !format.isValid()) {
        return;
    }
    quelle_ = std::make_unique<Klangquelle>(format);
    ausgabe_ = std::make_unique<QAudioSink>(geraet_, format);
    ausgabe_->setBufferSize(format.bytesForDuration(qint64{1000} * vorrat_ms));
    ausgabe_->start(quelle_.get());
    if (std::exchange(rate_, format.sampleRate()) != rate_) {
        for (const auto& alt : std::exchange(klaenge_, {})) {  // now, not in the middle of the next race
            holen(alt.first);
        }
    }
}

bool QtKlang::gestoert() const {
    return ausgabe_ != nullptr && ausgabe_->state() == QAudio::StoppedState && ausgabe_->error() != QAudio::NoError;
}

void QtKlang::nachfuehren() {
    if (gestoert() || QMediaDevices::defaultAudioOutput() != geraet_) {
        schliessen();
        oeffnen();
    }
}

void QtKlang::schliessen() {
    if (ausgabe_ != nullptr) {
        ausgabe_->reset();  // without playing to the end
    }
    ausgabe_.reset();
    quelle_.reset();
}

std::shared_ptr<const klangwerte> QtKlang::holen(std::string_view datei) {
    const std::filesystem::path pfad = dateien(ordner_).pfad(datei);
    const QFileInfo angaben(QString::fromStdU16String(pfad.u16string()));
    if (datei.empty() || !angaben.isFile() || angaben.size() > datei_max) {
        return {};
    }
    const QDateTime stand = angaben.lastModified();
    const auto gefunden = klaenge_.find(datei);
    if (gefunden != klaenge_.end() && gefunden->second.stand == stand) {
        return gefunden->second.werte;
    }
    QFile inhalt(angaben.filePath());
    const QByteArray bytes = inhalt.open(QIODevice::ReadOnly) ? inhalt.readAll() : QByteArray();
    auto werte = std::make_shared<const klangwerte>(klangdatei_lesen(
        {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())}, rate_));
    klaenge_[std::string(datei)] = {stand, werte};
    return werte;
}

void QtKlang::bereitstellen(std::string_view datei) {
    oeffnen();
    if (ausgabe_ != nullptr) {
        holen(datei);
    }
}

void QtKlang::spielen(std::string_view datei) {
    oeffnen();
    if (gestoert() && seit_versuch_.elapsed() > neuer_versuch_ms) {
        nachfuehren();
    }
    if (ausgabe_ == nullptr) {
        return;
    }
    if (auto werte = holen(datei); werte != nullptr) {
        quelle_->spielen(std::move(werte));
    }
}

}  // namespace tarvel::qt
