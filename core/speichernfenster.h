#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/fensterumgebung.h"
#include "core/steuerelemente.h"

namespace tarvel {

/// Where files of one kind lie.
struct dateiort {
    std::string ordner;  ///< below the program folder
    std::string endung;  ///< with its dot
};

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
    /// What is loaded may lie in one of these places too, ...
    std::vector<dateiort> weitere_orte = {};
    /// ... and then is given with its folder; takes the place of `ausfuehren`.
    std::function<bool(const std::string& pfad)> laden_von = {};
};

/// The window in which a file is chosen for saving or loading.
class speichernfenster : public fensterlogik {
public:
    /// `welches` of the windows it is, `sprachdatei` the file of the window's texts.
    speichernfenster(fenster_umgebung um, fenstername welches, std::string_view sprachdatei);

    bezeichnung ueberschrift;
    liste dateiliste;
    feld name;
    haken alle_dateien;
    befehl Command1;  ///< does it
    befehl Command2;  ///< cancel

    std::vector<sprachliste> sprachdateien() override { return {sprache()}; }
    void oeffnen(dateiauftrag auftrag);
    /// The texts of the window.
    sprachliste sprache();
    /// What is said of a file that is none of the program's.
    const std::string& ungueltig_text() const { return wort_.ungueltig; }

protected:
    fenster_umgebung um_;

private:
    void liste_fuellen();
    void ausfuehren();
    /// The name as typed, or with its ending, where there is such a file; else where one would be.
    std::string pfad_von(const std::string& datei) const;
    void melden(const std::string& text);

    struct worte {
        std::string name_fehlt;
        std::string zeichen;
        std::string die_datei;
        std::string nicht_vorhanden;
        std::string ueberschreiben;
        std::string ungueltig;
    };

    std::string sprachdatei_;
    worte wort_;
    dateiauftrag auftrag_;
};

}  // namespace tarvel
