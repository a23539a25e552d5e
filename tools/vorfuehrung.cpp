// A short race of the whole program against a simulated timing device, told as text:
//   vorfuehrung [cu|at2560|iow|lpt|4x4|rc|tk] [<folder>]
// Needs no screen. The program has a folder of its own; settings, results and the lock of an installed one stay as they
// are. Ends with 0 if every lap has been measured right: to the millisecond by a device with a clock of its own.

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QLockFile>
#include <QPainter>
#include <QProcess>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform_qt/qt_dienste.h"
#include "tools/vorfuehrgeraete.h"
#include "ui/oberflaeche.h"
#include "ui/stil.h"

namespace tarvel {
namespace {

namespace fs = std::filesystem;

constexpr int runden = 5;
constexpr zeit_ms schritt_ms = 60000;  // far more than a busy machine needs for any step but the race
constexpr zeit_ms rennen_ms = 120000;

void berichten(const std::string& text) {
    std::printf("%s\n", text.c_str());
    std::fflush(stdout);
}

/// Nobody may be there to answer: a message ends the demonstration.
class meldungsschreiber final : public plattform::meldungen {
public:
    void zeigen(std::string_view text, std::string_view /*titel*/) override { gemeldet += std::string(text) + "\n"; }
    bool fragen(std::string_view text, std::string_view titel, const plattform::antwortworte& /*worte*/) override {
        zeigen(text, titel);
        return false;
    }
    plattform::dreifache_antwort fragen_mit_ausweg(std::string_view text, std::string_view titel,
                                                   const plattform::antwortworte& /*worte*/) override {
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

/// The files that come with the program, as a fresh installation has them.
fs::path ordner_anlegen(const vorfuehrgeraet& geraet, const fs::path& ordner) {
    fs::create_directories(ordner);
    fs::copy(TARVEL_QUELLEN "/data", ordner, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    fs::remove_all(ordner / "Anschluesse");  // a link that a crash has left may lead to somebody else's terminal by now
    for (const auto& [kurz, eines] : vorfuehrgeraete()) {
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
        berichten(std::string("Simulator: ") + geraet_.name +
                  (geraet_.ist_bibliothek ? std::string() : std::string(" an COM") + simulatorlauf::com));
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
            std::get<auswahl>(e.zeile(geraet_.comzeile).element).eingeben(std::string("COM") + simulatorlauf::com);
        }
        auto& software = std::get<haken>(e.zeile("opt_cu_prgstart").element);
        software.gesetzt(true);
        e.Command1.klicken();
        warten("das Messgerät", schritt_ms, [this] {
            return p_.geraete.verbunden() && p_.form1.inhalt.sichtbar() &&
                   p_.form1.modus_label.text().starts_with(p_.txt.hardware_name.at(geraet_.hardware));
        });
        berichten("Verbunden: " + p_.form1.modus_label.text());
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
        berichten("Rennen über " + std::to_string(runden) + " Runden. Die Startampel läuft …");
        p_.rennen.bahn1.Command1.klicken();
        warten("Grün", schritt_ms, [this] {  // a race is prepared, and not over any more, before its light
            return !p_.rennen.zustand.rennen_beendet && !p_.rennen.umgebung.ampel_laeuft();
        });
        if (!geraet_.sieht_ampel) {
            simulator_.los();
        }
        berichten("Grün!\n\n  Spur  Fahrer                Runde  Zeit");
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
                berichten(zeile.toStdString());
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
        berichten(
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
        berichten("Ergebnis: " + ergebnis.string() + "\nBild:     " + bild_.string());
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
    const auto geraet = tarvel::vorfuehrgeraete().find(argumente.value(0, "cu").toStdString());
    if (geraet == tarvel::vorfuehrgeraete().end() || argumente.size() > 2) {
        std::fprintf(stderr, "vorfuehrung [cu|at2560|iow|lpt|4x4|rc|tk] [<Ordner>]\n");
        return 2;
    }
    const QString ordner = argumente.value(1, TARVEL_QUELLEN "/Tarvel/Vorfuehrung");
    return tarvel::vorfuehren(geraet->second, std::filesystem::absolute(ordner.toStdU16String()));
}
