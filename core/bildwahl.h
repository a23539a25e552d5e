#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/fensterumgebung.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"

namespace tarvel {

/// The window `fahrerbild_laden`: finds a picture anywhere on the machine and copies it to the pictures of the program.
class bildwahl final : public fensterlogik {
public:
    /// What comes back instead of a name when the operator cancels.
    static constexpr std::string_view abgebrochen = "--cancel--";

    struct auftrag {
        std::string titel;
        std::string bildordner;
        std::string standardstamm;  ///< of the picture for entries without one
        std::string name;           ///< entry that the picture is for; names the copy
        /// Gets the stem of the copy, or `abgebrochen`.
        std::function<void(const std::string&)> fertig;
    };

    explicit bildwahl(fenster_umgebung um);

    bezeichnung Label_laufwerk;
    auswahl laufwerk;
    bezeichnung pfad;
    bezeichnung Label_ordner;
    tarvel::liste ordner;  ///< row 0 leads one folder up
    bezeichnung Label_datei;
    tarvel::liste datei;
    bild vorschau;          ///< its file is a full path
    befehl Command_suchen;  ///< with the file window of the desktop
    befehl Command1;        ///< take it
    befehl Command2;        ///< cancel

    std::vector<sprachliste> sprachdateien() override { return {sprache_fbl()}; }
    void oeffnen(auftrag a);
    /// The same without the window, of a picture that is known already.
    void hereinnehmen(const auftrag& a, const std::filesystem::path& bild);
    const std::filesystem::path& ort() const { return ort_; }
    /// Shows the file's folder, and in it the file; a file that is no picture's by its name is not there.
    void zeigen(const std::filesystem::path& bilddatei);
    /// Without a picture.
    void schliessen() override;
    /// The texts of the window.
    sprachliste sprache_fbl();

private:
    void ordner_zeigen(const std::filesystem::path& ort);
    void ordner_betreten();
    void datei_gewaehlt();
    void uebernehmen();
    /// Stem of the copy; a message and none if there is none.
    std::optional<std::string> kopieren(const auftrag& a, const std::filesystem::path& quelle);

    fenster_umgebung um_;
    auftrag auftrag_;
    std::filesystem::path ort_;
    std::string kein_bild_text_;
    std::string nicht_kopiert_text_;
};

}  // namespace tarvel
