#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <filesystem>
#include <system_error>

#include "platform_qt/qt_dienste.h"
#include "programm/programm.h"
#include "ui/oberflaeche.h"
#include "ui/stil.h"

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    QApplication::setApplicationName("Tarvel");
    QApplication::setQuitOnLastWindowClosed(false);
    QTranslator qt_texte;  // of the colour dialog and the like
    if (qt_texte.load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&qt_texte);
    }
    tarvel::ui::stil::anwenden(anwendung);

    const std::filesystem::path ordner(QCoreApplication::applicationDirPath().toStdU16String());
    std::error_code egal;
    std::filesystem::current_path(ordner, egal);

    tarvel::qt::QtDienste maschine(ordner);
    tarvel::programm programm(maschine.dienste());
    tarvel::ui::Oberflaeche oberflaeche(programm);
    return programm.starten() ? QApplication::exec() : 0;
}
