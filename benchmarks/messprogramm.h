#pragma once

#include <QCoreApplication>
#include <QTemporaryDir>
#include <filesystem>

#include "platform_qt/qt_dienste.h"
#include "ui/oberflaeche.h"
#include "ui/stil.h"

namespace messung {

/// Takes no lock: an installed program may run meanwhile, and nobody may be there to answer its question.
class eigener_prozess final : public tarvel::plattform::prozess {
public:
    bool ist_einzige_instanz() override { return true; }
    void beenden() override { QCoreApplication::exit(); }
};

/// The real program with its windows, in a program folder of its own. Needs a QApplication.
struct messprogramm {
    /// Starts it and chooses all six lanes.
    bool starten() {
        tarvel::ui::stil::anwenden(*qobject_cast<QApplication*>(QCoreApplication::instance()));
        std::filesystem::copy(TARVEL_DATEN, programmordner, std::filesystem::copy_options::recursive);
        if (!p.starten()) {
            return false;
        }
        p.fenster.entladen(tarvel::fenstername::Form3);
        for (auto& spur : p.form1.spur) {
            spur.gesetzt(true);
        }
        return true;
    }

    QTemporaryDir ordner;
    std::filesystem::path programmordner{ordner.path().toStdU16String()};
    tarvel::qt::QtDienste maschine{programmordner};
    eigener_prozess prozess;
    tarvel::programm p{eigene_dienste()};
    tarvel::ui::Oberflaeche oberflaeche{p};

private:
    tarvel::plattform::dienste eigene_dienste() {
        const tarvel::plattform::dienste d = maschine.dienste();
        return {d.uhr,         d.zeitgeber, d.meldungen,   d.klang,       d.kalender,
                d.bildschirm,  prozess,     d.zufall,      d.serienports, d.bibliotheken,
                d.druckerport, d.abtaster,  d.dateisystem, d.anhaenge,    d.programmordner};
    }
};

}  // namespace messung
