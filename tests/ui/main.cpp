#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryFile>

#include "ui/stil.h"

namespace {

const char* const zwei_schirme = R"({"screens": [
    {"name": "1", "x": 0, "y": 0, "width": 800, "height": 800, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
    {"name": "2", "x": 800, "y": 0, "width": 1280, "height": 800, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

}  // namespace

int main(int argc, char** argv) {
    QTemporaryFile schirme;
    if (!schirme.open() || schirme.write(zwei_schirme) < 0 || !schirme.flush()) {
        return 1;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + schirme.fileName().toUtf8());
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tarvel::ui::stil::anwenden(anwendung);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
