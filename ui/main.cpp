#include <QApplication>
#include <QIcon>
#include <QScreen>
#include <QStringList>
#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

#include "platform_qt/qt_dienste.h"
#include "programm/programm.h"
#include "ui/oberflaeche.h"
#include "ui/stil.h"

namespace {

QIcon programmsymbol() {
    QIcon symbol;
    for (const int seite : {16, 24, 32, 48, 64, 128, 256}) {
        symbol.addFile(QString(":/bilder/symbol_%1.png").arg(seite), QSize(seite, seite));
    }
    return symbol;
}

/// A factor of nothing or less hides the window or ends the program in its first drawing.
void faktoren_pruefen() {
    constexpr double faktor_min = 0.2;
    constexpr double faktor_max = 10;
    for (const char* name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"}) {
        const QStringList eintraege = qEnvironmentVariable(name).split(';');
        const bool gut = std::all_of(eintraege.begin(), eintraege.end(), [](const QString& eintrag) {
            const double faktor = eintrag.section('=', -1).toDouble();  // behind the name of a screen
            return faktor >= faktor_min && faktor <= faktor_max;
        });
        if (!gut) {
            qunsetenv(name);
        }
    }
}

/// Where the desktop does not enlarge its windows itself, a screen of 4K would show them half as large as they are
/// meant.
void grossem_schirm_anpassen(int argc, std::vector<char*> argumente) {
    constexpr int kante_4k = 2000;
    const QGuiApplication nur_zum_messen(argc, argumente.data());
    const QScreen* schirm = QGuiApplication::primaryScreen();
    const bool gross = schirm != nullptr && std::min(schirm->size().width(), schirm->size().height()) >= kante_4k;
    if (gross && schirm->devicePixelRatio() == 1 && !qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        qputenv("QT_SCALE_FACTOR", "2");
    }
}

}  // namespace

int main(int argc, char** argv) {
    faktoren_pruefen();
    grossem_schirm_anpassen(argc, {argv, argv + argc + 1});
    QApplication anwendung(argc, argv);
    QApplication::setApplicationName("Tarvel");
    QApplication::setWindowIcon(programmsymbol());
    QApplication::setQuitOnLastWindowClosed(false);
    tarvel::ui::stil::anwenden(anwendung);

    const std::filesystem::path ordner(QCoreApplication::applicationDirPath().toStdU16String());
    std::error_code egal;
    std::filesystem::current_path(ordner, egal);

    tarvel::qt::QtDienste maschine(ordner);
    tarvel::programm programm(maschine.dienste());
    tarvel::ui::Oberflaeche oberflaeche(programm);
    return programm.starten() ? QApplication::exec() : 0;
}
