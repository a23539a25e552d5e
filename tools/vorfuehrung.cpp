// A short race of the whole program against a simulated timing device, told as text:
//   vorfuehrung [cu|at2560|iow|lpt|4x4|rc|tk] [<folder>]
// Needs no screen. The program has a folder of its own; settings, results and the lock of an installed one stay as they
// are. Ends with 0 if every lap has been measured right: to the millisecond by a device with a clock of its own.

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QLibrary>
#include <QLockFile>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform_qt/qt_dienste.h"
#include "ui/oberflaeche.h"
#include "ui/stil.h"

namespace tarvel {
namespace {

namespace fs = std::filesystem;

constexpr int runden = 5;
constexpr const char* com = "7";
constexpr zeit_ms schritt_ms = 60000;  // far more than a busy machine needs for any step but the race
constexpr zeit_ms rennen_ms = 120000;

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

const std::map<std::string, vorfuehrgeraet> vorfuehrgeraete{
    {"cu", {"Carrera Control Unit", TARVEL_CU_SIMULATOR, 6, "cu_comport", false}},
    {"at2560", {"AT-2560 USB", TARVEL_AT2560_SIMULATOR, 7, "uart_port", true}},
    {"iow", {"IOW 40 USB", TARVEL_IOWKIT, 1, nullptr, false, 4, TARVEL_IOWKIT, true, true, 10}},
    {"lpt", {"Druckeranschluss", TARVEL_INPOUT32, 3, nullptr, false, 4, TARVEL_INPOUT32, true, true, 10}},
    {"4x4", {"4x4 USB", TARVEL_M4X4_SIMULATOR, 4, nullptr, false, 6, nullptr, true, false, 200}},
    {"rc", {"Race Control", TARVEL_RC_SIMULATOR, 2, "selComPort", false, 4, TARVEL_RC_BIBLIOTHEK, false}},
    {"tk", {"Timekeeper", TARVEL_FTD2XX, 5, nullptr, false, 4, TARVEL_FTD2XX, true, true}}};

void schreiben(const std::string& text) {
    std::printf("%s\n", text.c_str());
    std::fflush(stdout);
}

/// Nobody may be there to answer: a message ends the demonstration.
class meldungsschreiber final : public plattform::meldungen {
public:
    void zeigen(std::string_view text, std::string_view /*titel*/) override { gemeldet += std::string(text) + "\n"; }
    bool fragen(std::string_view text, std::string_view titel) override {
        zeigen(text, titel);
        return false;
    }
    plattform::dreifache_antwort fragen_mit_ausweg(std::string_view text, std::string_view titel) override {
        zeigen(text, titel);
        return plattform::dreifache_antwort::abbrechen;
    }
    std::string gemeldet;
};

/// Takes no lock: an installed program may run meanwhile, and start.
class eigener_prozess final : public plattform::prozess {
public:
    bool ist_einzige_instanz() override { return true; }
    void beenden() override { beendet = true; }
    bool beendet = false;
};

/// The simulator as a program of its own, and the laps that it tells.
class simulatorlauf {
public:
    simulatorlauf(const vorfuehrgeraet& geraet, const QString& ordner) {
        if (geraet.ist_bibliothek) {
            bibliothek_beginnen(ordner + "/" + QFileInfo(geraet.simulator).fileName());
            return;
        }
        prozess_.setProcessChannelMode(QProcess::MergedChannels);
        QObject::connect(&prozess_, &QProcess::readyRead, &prozess_, [this] { lesen(); });
        prozess_.start(geraet.simulator, {"--ordner", ordner, "--com", com, "--spuren", QString::number(geraet.spuren),
                                          "--saat", "7", "--rundenzeit", "4200", "--dauer", "600"});
    }
    ~simulatorlauf() {
        if (lesen_ != nullptr) {
            return;
        }
        prozess_.terminate();
        if (!prozess_.waitForFinished(3000)) {
            prozess_.kill();
            prozess_.waitForFinished();
        }
    }

    void los() { prozess_.write("los\n"); }
    bool bereit() const { return lesen_ != nullptr || ausgabe_.contains("Bereit an"); }
    bool beendet() const { return lesen_ == nullptr && prozess_.state() == QProcess::NotRunning; }
    std::string ausgabe() const { return ausgabe_.toStdString(); }
    /// Lap times of a car in ms, its first lap first.
    const std::vector<zeit_ms>& rundenzeiten(int wagen) {
        if (lesen_ != nullptr) {
            std::array<int, 1000> zeiten{};
            const int anzahl = lesen_(wagen, zeiten.data(), static_cast<int>(zeiten.size()));
            runden_[wagen].assign(zeiten.begin(), zeiten.begin() + std::min<int>(anzahl, zeiten.size()));
        }
        return runden_[wagen];
    }

private:
    /// The one that the program loads too.
    void bibliothek_beginnen(const QString& pfad) {
        bibliothek_.setFileName(pfad);
        auto* const einstellen = reinterpret_cast<void (*)(const char*)>(bibliothek_.resolve("SimulatorEinstellen"));
        lesen_ = reinterpret_cast<int (*)(int, int*, int)>(bibliothek_.resolve("SimulatorRunden"));
        if (einstellen == nullptr || lesen_ == nullptr) {
            throw std::runtime_error(bibliothek_.errorString().toStdString());
        }
        einstellen("--spuren 4 --saat 7 --rundenzeit 4200");
    }
    void lesen() {
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

    QProcess prozess_;
    QLibrary bibliothek_;
    int (*lesen_)(int, int*, int) = nullptr;  ///< of the library; null for a simulator on its own
    QString ausgabe_;
    qsizetype gelesen_ = 0;
    std::map<int, std::vector<zeit_ms>> runden_;
};

/// The files that come with the program, as a fresh installation has them.
fs::path ordner_anlegen(const vorfuehrgeraet& geraet, const fs::path& ordner) {
    fs::create_directories(ordner);
    fs::copy(TARVEL_QUELLEN "/data", ordner, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    fs::remove_all(ordner / "Anschluesse");  // a link that a crash has left may lead to somebody else's terminal by now
    for (const auto& [kurz, eines] : vorfuehrgeraete) {
        if (eines.bibliothek != nullptr) {  // of another demonstration, or of an older build
            fs::remove(ordner / fs::path(eines.bibliothek).filename());
        }
    }
    if (geraet.bibliothek != nullptr) {
        fs::copy_file(geraet.bibliothek, ordner / fs::path(geraet.bibliothek).filename());
    }
    if (geraet.mit_befehlsdatei) {
        const fs::path datei = ordner / "tvk_at2560.uart";
        QProcess::execute(geraet.simulator, {"--profil", QString::fromStdU16String(datei.u16string())});
    }
    return ordner;
}

class vorfuehrung {
public:
    vorfuehrung(const vorfuehrgeraet& geraet, const fs::path& ordner)
        : geraet_(geraet),
          ordner_(ordner_anlegen(geraet, ordner)),
          simulator_(geraet, QString::fromStdU16String(ordner.u16string())) {}

    void zeigen() {
        warten("den Simulator", schritt_ms, [this] { return simulator_.bereit(); });
        schreiben(std::string("Simulator: ") + geraet_.name +
                  (geraet_.ist_bibliothek ? std::string() : std::string(" an COM") + com));
        p_.starten();
        warten("das Hauptfenster", schritt_ms, [this] { return p_.fenster.ist_offen(fenstername::Form1); });
        messgeraet_waehlen();
        rennen_einrichten();
        fahren();
        vergleichen();
        speichern();
        p_.programm_beenden();
    }

private:
    [[noreturn]] void scheitern(const std::string& text) const {
        throw std::runtime_error(text + "\nDer Simulator:\n" + simulator_.ausgabe());
    }

    /// Lets the event loop run until it is so.
    void warten(const std::string& worauf, zeit_ms hoechstens, const std::function<bool()>& eingetreten) {
        constexpr int blick_ms = 10;
        QEventLoop schleife;
        QTimer blick;
        QElapsedTimer seit;
        seit.start();
        QObject::connect(&blick, &QTimer::timeout, &schleife, [&] {
            if (eingetreten() || stoerung() || seit.elapsed() > hoechstens) {
                schleife.quit();
            }
        });
        blick.start(blick_ms);
        schleife.exec();
        if (!meldungen_.gemeldet.empty()) {
            scheitern("Das Programm meldet: " + meldungen_.gemeldet);
        }
        if (stoerung()) {
            scheitern(simulator_.beendet() ? "Der Simulator hat sich beendet." : "Das Programm wurde geschlossen.");
        }
        if (!eingetreten()) {
            scheitern("Vergeblich gewartet auf " + worauf + ".");
        }
    }
    bool stoerung() const { return simulator_.beendet() || prozess_.beendet || !meldungen_.gemeldet.empty(); }

    void messgeraet_waehlen() {
        einstellungsfenster& e = p_.einstellungsfenster;
        e.oeffnen(einstellungsfenster::seite_hardware);
        e.hardware.at(geraet_.hardware).umschalten();
        if (geraet_.comzeile != nullptr) {
            std::get<auswahl>(e.zeile(geraet_.comzeile).element).eingeben(std::string("COM") + com);
        }
        auto& software = std::get<haken>(e.zeile("opt_cu_prgstart").element);
        software.gesetzt(true);
        e.Command1.klicken();
        warten("das Messgerät", schritt_ms, [this] {
            return p_.geraete.verbunden() && p_.form1.inhalt.sichtbar() &&
                   p_.form1.modus_label.text().starts_with(p_.txt.hardware_name.at(geraet_.hardware));
        });
        schreiben("Verbunden: " + p_.form1.modus_label.text());
    }

    void rennen_einrichten() {
        form1& f = p_.form1;
        f.rennart.eingeben(p_.txt.text_runden);
        f.renndauer.eingeben(std::to_string(runden));
        f.wertmin.eingeben("3");
        for (const int spur : alle_spuren) {
            const std::size_t i = feld_index(spur);
            if (f.spur.at(i).gesetzt() != (spur <= geraet_.spuren)) {
                f.spur.at(i).umschalten();
            }
            if (spur > geraet_.spuren) {
                continue;
            }
            f.fahrer.at(i).waehlen(spur);  // the first entry is nobody
            f.auto_.at(i).waehlen(spur);
        }
        f.Command1.klicken();
        warten("den Rennbildschirm", schritt_ms, [this] { return p_.fenster.ist_offen(fenstername::bahn1); });
        if (QGuiApplication::platformName() == "offscreen") {  // its screen is smaller than any that a club has
            o_.bahn1.showNormal();
            o_.bahn1.resize(1920, 1080);
        }
        schreiben("Rennen über " + std::to_string(runden) + " Runden. Die Startampel läuft …");
        p_.rennen.bahn1.Command1.klicken();
        warten("Grün", schritt_ms, [this] {
            return !p_.rennen.zustand.rennen_beendet && (geraet_.sieht_ampel || !p_.rennen.umgebung.ampel_laeuft());
        });
        if (!geraet_.sieht_ampel) {
            simulator_.los();
        }
        schreiben("Grün!\n\n  Spur  Fahrer                Runde  Zeit");
    }

    void fahren() {
        constexpr int runden_vor_dem_bild = 3;
        warten("das Ende des Rennens", rennen_ms, [this] {
            runden_melden();
            if (bild_.empty() && p_.rennen.zustand.fuehrungsrunden >= runden_vor_dem_bild &&
                !p_.fenster.ist_offen(fenstername::Form2)) {
                aufnehmen();
            }
            return p_.fenster.ist_offen(fenstername::auswertung);
        });
        runden_melden();
    }

    void runden_melden() {
        for (const int spur : alle_spuren) {
            for (; gemeldet_[spur] < p_.rennen.zustand.konto.runden(spur);) {
                const int runde = ++gemeldet_[spur];
                const QString zeile =
                    QString("  %1     %2 %3  %4")
                        .arg(spur)
                        .arg(QString::fromStdString(p_.rennen.bahn1.namenslabel[spur].text()), -20)
                        .arg(runde, 6)
                        .arg(QString::fromStdString(zeit_formatieren(p_.rennen.zustand.konto.rundenzeit(spur, runde),
                                                                     true, p_.einst.trennzeichen)));
                schreiben(zeile.toStdString());
            }
        }
    }

    void aufnehmen() {
        o_.takt.ausfuehren();
        bild_ = ordner_ / "rennen.png";
        if (!o_.bahn1.grab().save(QString::fromStdU16String(bild_.u16string()))) {
            scheitern("Das Bild lässt sich nicht schreiben: " + bild_.string());
        }
    }

    /// What the program has measured is what the device has seen.
    void vergleichen() {
        int verglichen = 0;
        for (const int spur : alle_spuren) {
            const int gefahren = p_.rennen.zustand.konto.runden(spur);
            for (int runde = 1; runde <= gefahren; ++runde) {
                const auto i = static_cast<std::size_t>(runde - 1);
                warten("die Zeiten des Simulators", schritt_ms,
                       [&] { return simulator_.rundenzeiten(spur).size() > i; });
                const zeit_ms gemessen = p_.rennen.zustand.konto.rundenzeit(spur, runde);
                const zeit_ms wahr = simulator_.rundenzeiten(spur)[i];
                schlechteste_ = std::max(schlechteste_, std::abs(gemessen - wahr));
                if (std::abs(gemessen - wahr) > geraet_.abweichung) {
                    scheitern("Spur " + std::to_string(spur) + ", Runde " + std::to_string(runde) + ": gemessen " +
                              std::to_string(gemessen) + " ms, gefahren " + std::to_string(wahr) + " ms.");
                }
                ++verglichen;
            }
        }
        if (verglichen < runden) {
            scheitern("Es wurden nur " + std::to_string(verglichen) + " Runden gezählt.");
        }
        schreiben(
            "\n" + std::to_string(verglichen) + " Runden gezählt, jede auf " +
            (schlechteste_ == 0 ? "die Tausendstelsekunde" : std::to_string(schlechteste_) + " Tausendstelsekunden") +
            " richtig.");
    }

    void speichern() {
        p_.auswertung.Command4.klicken();
        warten("das Fenster zum Speichern", schritt_ms,
               [this] { return p_.fenster.ist_offen(fenstername::rundenspeichern); });
        const std::string name = p_.rundenspeichern.name.text();
        p_.rundenspeichern.Command1.klicken();
        warten("das Speichern", schritt_ms, [this] { return !p_.fenster.ist_offen(fenstername::rundenspeichern); });
        const fs::path ergebnis = ordner_ / "Ergebnisse" / "Einzelrennen" / name;
        if (!fs::exists(ergebnis) || bild_.empty()) {
            scheitern("Das Ergebnis fehlt: " + ergebnis.string());
        }
        schreiben("Ergebnis: " + ergebnis.string() + "\nBild:     " + bild_.string());
    }

    const vorfuehrgeraet& geraet_;
    fs::path ordner_;
    simulatorlauf simulator_;
    qt::QtDienste maschine_{ordner_};
    meldungsschreiber meldungen_;
    eigener_prozess prozess_;
    programm p_{eigene_dienste()};
    ui::Oberflaeche o_{p_};
    spuren<int> gemeldet_;
    fs::path bild_;
    zeit_ms schlechteste_ = 0;

    plattform::dienste eigene_dienste() {
        const plattform::dienste d = maschine_.dienste();
        return {d.uhr,         d.zeitgeber, meldungen_,    d.klang,       d.kalender,
                d.bildschirm,  prozess_,    d.zufall,      d.serienports, d.bibliotheken,
                d.druckerport, d.abtaster,  d.dateisystem, d.anhaenge,    d.programmordner};
    }
};

int vorfuehren(const vorfuehrgeraet& geraet, const fs::path& ordner) {
    fs::create_directories(ordner);
    QLockFile sperre(QString::fromStdU16String((ordner / "vorfuehrung.lock").u16string()));
    sperre.setStaleLockTime(0);
    if (!sperre.tryLock(0)) {
        std::fprintf(stderr, "In %s läuft schon eine Vorführung.\n", ordner.string().c_str());
        return 1;
    }
    try {
        vorfuehrung(geraet, ordner).zeigen();
    } catch (const std::exception& fehler) {
        std::fprintf(stderr, "\nDie Vorführung ist gescheitert. %s\n", fehler.what());
        return 1;
    }
    return 0;
}

void ohne_bildschirm_zeichnen() {
#ifndef Q_OS_WIN
    const auto fehlt = [](const char* name) { return qEnvironmentVariableIsEmpty(name); };
    if (fehlt("DISPLAY") && fehlt("WAYLAND_DISPLAY") && fehlt("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // A machine without a screen has neither a window manager nor, mostly, sound: that is no news.
        qInstallMessageHandler([](QtMsgType art, const QMessageLogContext&, const QString& text) {
            if (art == QtCriticalMsg || art == QtFatalMsg) {
                std::fprintf(stderr, "%s\n", text.toUtf8().constData());
            }
        });
    }
#endif
}

}  // namespace
}  // namespace tarvel

int main(int argc, char** argv) {
    tarvel::ohne_bildschirm_zeichnen();
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tarvel::ui::stil::anwenden(anwendung);
    const QStringList argumente = QApplication::arguments().mid(1);
    const auto geraet = tarvel::vorfuehrgeraete.find(argumente.value(0, "cu").toStdString());
    if (geraet == tarvel::vorfuehrgeraete.end() || argumente.size() > 2) {
        std::fprintf(stderr, "vorfuehrung [cu|at2560|iow|lpt|4x4|rc|tk] [<Ordner>]\n");
        return 2;
    }
    const QString ordner = argumente.value(1, TARVEL_QUELLEN "/Tarvel/Vorfuehrung");
    return tarvel::vorfuehren(geraet->second, std::filesystem::absolute(ordner.toStdU16String()));
}
