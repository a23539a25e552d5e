#include "ui/bildleser.h"

#include <QImageReader>
#include <algorithm>
#include <array>
#include <cstdint>
#include <system_error>
#include <utility>

#include "core/dateien.h"

namespace fs = std::filesystem;

namespace tarvel::ui {
namespace {

constexpr std::array<int, 4> stufen{200, 400, 800, 1600};  // no window shows a photograph larger
constexpr int kopien_max_kb = 96 * 1024;
constexpr std::uintmax_t kleine_datei = std::uintmax_t{128} * 1024;
constexpr qint64 kleines_bild_px = qint64{512} * 1024;  // a few milliseconds

QString als_qt(const fs::path& datei) {
    return QString::fromStdU16String(datei.u16string());
}

/// Names the file as it is now, in this size; empty if it is none that may be opened.
QString schluessel_von(const fs::path& datei, int kante) {
    std::error_code fehler;
    if (datei.empty() || !ist_lesbar(datei, bild_bytes_max)) {
        return {};
    }
    const std::uintmax_t groesse = fs::file_size(datei, fehler);
    const auto stand = fs::last_write_time(datei, fehler);
    if (fehler) {
        return {};
    }
    return als_qt(datei) + QString("|%1|%2|%3").arg(groesse).arg(stand.time_since_epoch().count()).arg(kante);
}

void einrichten(QImageReader& leser) {
    leser.setDecideFormatFromContent(true);  // a picture keeps its kind when it is copied under another name
    leser.setAutoTransform(true);
}

bool schnell_gelesen(const fs::path& datei) {
    QImageReader leser(als_qt(datei));
    einrichten(leser);
    const QSize voll = leser.size();
    std::error_code fehler;
    return voll.isValid() ? qint64{voll.width()} * voll.height() <= kleines_bild_px
                          : fs::file_size(datei, fehler) <= kleine_datei;
}

/// Null if it is no picture.
QImage bild_lesen(const fs::path& datei, int kante) {
    QImageReader leser(als_qt(datei));
    einrichten(leser);
    const QSize voll = leser.size();
    if (voll.width() > kante || voll.height() > kante) {  // a JPEG is read small much faster
        leser.setScaledSize(voll.scaled(kante, kante, Qt::KeepAspectRatio).expandedTo({1, 1}));
    }
    const QImage bild = leser.read();
    return bild.width() > kante || bild.height() > kante
               ? bild.scaled(kante, kante, Qt::KeepAspectRatio, Qt::SmoothTransformation)  // its head was silent
               : bild;
}

}  // namespace

Bildleser::Bildleser() : kopien_(kopien_max_kb) {
    faden_.setMaxThreadCount(1);
    faden_.setThreadPriority(QThread::LowPriority);
}

Bildleser::~Bildleser() {
    faden_.clear();
    faden_.waitForDone();
}

QImage Bildleser::gleich_lesen(const fs::path& datei, int kante) {
    return !datei.empty() && ist_lesbar(datei, bild_bytes_max) ? bild_lesen(datei, kante) : QImage();
}

int Bildleser::stufe(double kante) {
    const auto* passend = std::find_if(stufen.begin(), stufen.end(), [kante](int s) { return s >= kante; });
    return passend == stufen.end() ? stufen.back() : *passend;
}

void Bildleser::behalten(const QString& schluessel, const QImage& bild) {
    if (kopien_.contains(schluessel)) {
        return;
    }
    kopien_.insert(schluessel, new QImage(bild), static_cast<int>(bild.sizeInBytes() / 1024) + 1);
}

bool Bildleser::lesen(const Dateien& dateien, int kante, QObject* empfaenger, Nehmer nehmer) {
    for (auto datei = dateien.begin(); datei != dateien.end(); ++datei) {
        const QString schluessel = schluessel_von(*datei, kante);
        if (schluessel.isEmpty()) {
            continue;
        }
        const QImage* kopie = kopien_.object(schluessel);
        if (kopie == nullptr && !schnell_gelesen(*datei)) {
            spaeter_lesen(schluessel, kante, {empfaenger, {datei, dateien.end()}, std::move(nehmer)});
            return false;
        }
        const QImage bild = kopie != nullptr ? *kopie : bild_lesen(*datei, kante);
        behalten(schluessel, bild);
        if (!bild.isNull()) {
            nehmer(bild);
            return true;
        }
    }
    nehmer({});
    return true;
}

void Bildleser::spaeter_lesen(const QString& schluessel, int kante, Wartender wartender) {
    std::vector<Wartender>& alle = wartend_[schluessel];
    const std::filesystem::path datei = wartender.dateien.front();
    alle.push_back(std::move(wartender));
    if (alle.size() > 1) {
        return;  // it is being read
    }
    faden_.start([this, datei, schluessel, kante] {
        const QImage bild = bild_lesen(datei, kante);
        QMetaObject::invokeMethod(
            &bote_, [this, schluessel, kante, bild] { gelesen(schluessel, kante, bild); }, Qt::QueuedConnection);
    });
}

void Bildleser::gelesen(const QString& schluessel, int kante, const QImage& bild) {
    behalten(schluessel, bild);
    const auto alle = wartend_.extract(schluessel);
    for (const Wartender& w : alle.mapped()) {
        if (w.empfaenger && !bild.isNull()) {
            w.nehmer(bild);
        } else if (w.empfaenger) {
            lesen({w.dateien.begin() + 1, w.dateien.end()}, kante, w.empfaenger, w.nehmer);
        }
    }
}

}  // namespace tarvel::ui
