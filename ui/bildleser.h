#pragma once

#include <QCache>
#include <QImage>
#include <QObject>
#include <QPointer>
#include <QThreadPool>
#include <filesystem>
#include <functional>
#include <map>
#include <vector>

namespace tarvel::ui {

/// Reads pictures: small ones at once, photographs in a thread of their own, so that no lap waits for them. A copy of
/// the size that was asked for is kept until its file changes.
class Bildleser {
public:
    using Dateien = std::vector<std::filesystem::path>;
    using Nehmer = std::function<void(const QImage&)>;

    Bildleser();
    Bildleser(const Bildleser&) = delete;
    Bildleser& operator=(const Bildleser&) = delete;
    ~Bildleser();

    /// Gives `nehmer` the first of the files that is a picture, at most `kante` pixels wide and high, or a null image
    /// if none is. False if that comes later; then only while `empfaenger` lives.
    bool lesen(const Dateien& dateien, int kante, QObject* empfaenger, Nehmer nehmer);
    /// The picture at once, at most `kante` pixels wide and high; for paper, while no race runs. Null if it is none.
    static QImage gleich_lesen(const std::filesystem::path& datei, int kante);
    /// The next larger of a few sizes, so that few copies serve every place.
    static int stufe(double kante);

private:
    struct Wartender {
        QPointer<QObject> empfaenger;
        Dateien dateien;  ///< the first is being read
        Nehmer nehmer;
    };

    void spaeter_lesen(const QString& schluessel, int kante, Wartender wartender);
    void gelesen(const QString& schluessel, int kante, const QImage& bild);
    void behalten(const QString& schluessel, const QImage& bild);

    std::map<QString, std::vector<Wartender>> wartend_;
    QCache<QString, QImage> kopien_;  ///< cost in kilobytes
    QObject bote_;                    ///< lives in the thread of the windows
    QThreadPool faden_;
};

}  // namespace tarvel::ui
