#include "tools/vorfuehrgeraete.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <stdexcept>

namespace tarvel {

const std::map<std::string, vorfuehrgeraet>& vorfuehrgeraete() {
    static const std::map<std::string, vorfuehrgeraet> alle{
        {"cu", {"Carrera Control Unit", TARVEL_CU_SIMULATOR, 6, "cu_comport", false}},
        {"at2560", {"AT-2560 USB", TARVEL_AT2560_SIMULATOR, 7, "uart_port", true}},
        {"iow", {"IOW 40 USB", TARVEL_IOWKIT, 1, nullptr, false, 4, TARVEL_IOWKIT, true, true, 10}},
        {"lpt", {"Druckeranschluss", TARVEL_INPOUT32, 3, nullptr, false, 4, TARVEL_INPOUT32, true, true, 10}},
        {"4x4", {"4x4 USB", TARVEL_M4X4_SIMULATOR, 4, nullptr, false, 6, nullptr, true, false, 200}},
        {"rc", {"Race Control", TARVEL_RC_SIMULATOR, 2, "selComPort", false, 4, TARVEL_RC_BIBLIOTHEK, false}},
        {"tk", {"Timekeeper", TARVEL_FTD2XX, 5, nullptr, false, 4, TARVEL_FTD2XX, true, true}}};
    return alle;
}

simulatorlauf::simulatorlauf(const vorfuehrgeraet& geraet, const QString& ordner) {
    if (geraet.ist_bibliothek) {
        bibliothek_beginnen(ordner + "/" + QFileInfo(geraet.simulator).fileName());
        return;
    }
    prozess_.setProcessChannelMode(QProcess::MergedChannels);
    QObject::connect(&prozess_, &QProcess::readyRead, &prozess_, [this] { lesen(); });
    prozess_.start(geraet.simulator, {"--ordner", ordner, "--com", com, "--spuren", QString::number(geraet.spuren),
                                      "--saat", "7", "--rundenzeit", "4200", "--dauer", "600"});
}

simulatorlauf::~simulatorlauf() {
    if (lesen_ != nullptr) {
        return;
    }
    prozess_.terminate();
    if (!prozess_.waitForFinished(3000)) {
        prozess_.kill();
        prozess_.waitForFinished();
    }
}

const std::vector<zeit_ms>& simulatorlauf::rundenzeiten(int wagen) {
    if (lesen_ != nullptr) {
        std::array<int, 1000> zeiten{};
        const int anzahl = lesen_(wagen, zeiten.data(), static_cast<int>(zeiten.size()));
        runden_[wagen].assign(zeiten.begin(), zeiten.begin() + std::min<int>(anzahl, zeiten.size()));
    }
    return runden_[wagen];
}

void simulatorlauf::bibliothek_beginnen(const QString& pfad) {
    bibliothek_.setFileName(pfad);
    auto* const einstellen = reinterpret_cast<void (*)(const char*)>(bibliothek_.resolve("SimulatorEinstellen"));
    lesen_ = reinterpret_cast<int (*)(int, int*, int)>(bibliothek_.resolve("SimulatorRunden"));
    if (einstellen == nullptr || lesen_ == nullptr) {
        throw std::runtime_error(bibliothek_.errorString().toStdString());
    }
    einstellen("--spuren 4 --saat 7 --rundenzeit 4200");
}

void simulatorlauf::lesen() {
    static const QRegularExpression runde("^Wagen (\\d)  Runde \\d+ +(\\d+),(\\d{3}) s");
    static const QRegularExpression erste("^Wagen (\\d)  erste");
    ausgabe_ += QString::fromUtf8(prozess_.readAll());
    for (; ausgabe_.indexOf('\n', gelesen_) >= 0; gelesen_ = ausgabe_.indexOf('\n', gelesen_) + 1) {
        const QString zeile = ausgabe_.mid(gelesen_, ausgabe_.indexOf('\n', gelesen_) - gelesen_);
        if (const auto treffer = runde.match(zeile); treffer.hasMatch()) {
            runden_[treffer.captured(1).toInt()].push_back(treffer.captured(2).toInt() * 1000 +
                                                           treffer.captured(3).toInt());
        } else if (const auto start = erste.match(zeile); start.hasMatch()) {
            runden_[start.captured(1).toInt()].clear();
        }
    }
}

}  // namespace tarvel
