#pragma once

#include <QLibrary>
#include <QProcess>
#include <QString>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "core/spuren.h"
#include "platform/uhr.h"

namespace tarvel {

/// A device that a demonstration can be driven with.
struct vorfuehrgeraet {
    const char* name;
    const char* simulator;
    std::size_t hardware;  ///< place of its tick box on the options' page
    const char* comzeile;  ///< row of its port there; null where the program finds it
    bool mit_befehlsdatei;
    int spuren = spuren_max;
    const char* bibliothek = nullptr;  ///< to lie in the program's folder, with the simulator behind it
    bool sieht_ampel = true;           ///< else its cars are told when to go
    bool ist_bibliothek = false;       ///< the simulator is that library itself
    zeit_ms abweichung = 0;            ///< a lap may be off by so much: of a device without a clock
};
/// By the word that chooses each.
const std::map<std::string, vorfuehrgeraet>& vorfuehrgeraete();

/// The simulator as a program of its own, and the laps that it tells.
class simulatorlauf {
public:
    static constexpr const char* com = "7";

    simulatorlauf(const vorfuehrgeraet& geraet, const QString& ordner);
    simulatorlauf(const simulatorlauf&) = delete;
    simulatorlauf& operator=(const simulatorlauf&) = delete;
    ~simulatorlauf();

    void los() { prozess_.write("los\n"); }
    bool bereit() const { return lesen_ != nullptr || ausgabe_.contains("Bereit an"); }
    bool beendet() const { return lesen_ == nullptr && prozess_.state() == QProcess::NotRunning; }
    std::string ausgabe() const { return ausgabe_.toStdString(); }
    /// Lap times of a car in ms, its first lap first.
    const std::vector<zeit_ms>& rundenzeiten(int wagen);

private:
    /// The one that the program loads too.
    void bibliothek_beginnen(const QString& pfad);
    void lesen();

    QProcess prozess_;
    QLibrary bibliothek_;
    int (*lesen_)(int, int*, int) = nullptr;  ///< of the library; null for a simulator on its own
    QString ausgabe_;
    qsizetype gelesen_ = 0;
    std::map<int, std::vector<zeit_ms>> runden_;
};

}  // namespace tarvel
