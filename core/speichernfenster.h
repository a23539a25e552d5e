#pragma once

#include <functional>
#include <string>

#include "core/dateien.h"
#include "core/fensterregister.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "platform/meldungen.h"

namespace tarvel {

/// What the window is opened for: to save one kind of file, or to load it.
struct dateiauftrag {
    bool speichern = false;
    std::string titel;         ///< of the window
    std::string ueberschrift;  ///< over the list
    std::string knopf;
    std::string ordner;     ///< below the program folder
    std::string endung;     ///< with its dot; added to names without it
    std::string vorschlag;  ///< name shown first
    /// Does it, and reports itself what goes wrong; false leaves the window open.
    std::function<bool(const std::string& name)> ausfuehren;
};

/// The window in which a file is chosen for saving or loading.
class speichernfenster {
public:
    struct umgebung {
        const dateien& ablage;
        const texte& txt;
        fensterregister& fenster;
        plattform::meldungen& meldungen;
    };

    explicit speichernfenster(umgebung um);

    rahmen titel;  ///< carries the window's title
    bezeichnung ueberschrift;
    liste dateiliste;
    feld name;
    haken alle_dateien;
    befehl Command1;  ///< does it
    befehl Command2;  ///< cancel

    void oeffnen(dateiauftrag auftrag);

private:
    void liste_fuellen();
    void ausfuehren();
    void melden(const std::string& text);

    umgebung um_;
    dateiauftrag auftrag_;
};

}  // namespace tarvel
