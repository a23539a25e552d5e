#include <gtest/gtest.h>

#include <QApplication>

#include "ui/stil.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tarvel::ui::stil::anwenden(anwendung);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
