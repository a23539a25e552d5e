#pragma once

#include <QCoreApplication>
#include <QTemporaryDir>
#include <filesystem>

#include "platform_qt/qt_dienste.h"
#include "ui/oberflaeche.h"
#include "ui/stil.h"

namespace messung {

/// The real program with its windows, in a program folder of its own. Needs a QApplication.
struct messprogramm {
    /// Starts it and chooses all six lanes.
    bool starten() {
        tarvel::ui::stil::anwenden(*qobject_cast<QApplication*>(QCoreApplication::instance()));
        std::filesystem::copy(TARVEL_DATEN, programmordner, std::filesystem::copy_options::recursive);
        if (!p.starten()) {
            return false;
        }
        p.fenster.entladen(fenstername::Form3);
        for (auto& spur : p.form1.spur) {
            spur.gesetzt(true);
        }
        return true;
    }

    QTemporaryDir ordner;
    std::filesystem::path programmordner{ordner.path().toStdU16String()};
    tarvel::qt::QtDienste maschine{programmordner};
    tarvel::programm p{maschine.dienste()};
    tarvel::ui::Oberflaeche oberflaeche{p};
};

}  // namespace messung
