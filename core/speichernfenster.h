#pragma once

#include <functional>
#include <string>

#include "core/fensterumgebung.h"
#include "core/steuerelemente.h"

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
    std::string name_fehlt = {};        ///< what is said of an empty name, if not the window's own text
    bool andere_endung_bleibt = false;  ///< a name with any ending of three letters gets no second one
};

/// The window in which a file is chosen for saving or loading.
class speichernfenster {
public:
    /// `fenstername` is the window's name in the register, `sprachdatei` the file of its texts.
    speichernfenster(fenster_umgebung um, std::string_view fenstername, std::string_view sprachdatei);

    rahmen titel;  ///< carries the window's title
    bezeichnung ueberschrift;
    liste dateiliste;
    feld name;
    haken alle_dateien;
    befehl Command1;  ///< does it
    befehl Command2;  ///< cancel

    void laden() { sprache().anwenden(um_.ablage); }
    void oeffnen(dateiauftrag auftrag);
    /// The texts of the window.
    sprachliste sprache();
    /// What is said of a file that is none of the program's.
    const std::string& ungueltig_text() const { return wort_.ungueltig; }

private:
    void liste_fuellen();
    void ausfuehren();
    void melden(const std::string& text);

    struct worte {
        std::string name_fehlt;
        std::string zeichen;
        std::string die_datei;
        std::string nicht_vorhanden;
        std::string ueberschreiben;
        std::string ungueltig;
    };

    fenster_umgebung um_;
    std::string fenstername_;
    std::string sprachdatei_;
    worte wort_;
    dateiauftrag auftrag_;
};

}  // namespace tarvel
