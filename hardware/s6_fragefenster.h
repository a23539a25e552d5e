#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/einstellungswerte.h"
#include "core/fensterlogik.h"
#include "core/fensterregister.h"

namespace tarvel {

/// The window with two questions about the 4x4 USB module: in which mode this start is to be, and, when the mode has
/// changed between analog and digital, with which settings the program starts anew.
class s6_fragefenster final : public fensterlogik {
public:
    s6_fragefenster(const dateien& ablage, fensterregister& fenster);

    static constexpr std::size_t vorgabe = 5;  ///< of the choices: what the settings file says

    rahmen Frame_modus;
    std::array<haken, vorgabe + 1> Option1;  ///< of them exactly one is set
    bezeichnung Label_datei;                 ///< the settings file of the last choice
    befehl Command1;                         ///< takes the choice
    rahmen Frame_neustart;
    bezeichnung Label_neustart;
    befehl Command2;  ///< goes on without a restart
    bezeichnung Label_mit;
    befehl Command3;  ///< restart with the standard settings
    befehl Command4;  ///< restart with the settings in force

    /// Asks at the start. `antwort` gets the mode, nothing where the settings hold.
    void modus_fragen(const std::string& datei, std::function<void(std::optional<modul_4x4>)> antwort);
    /// Asks about the restart. `antwort` gets whether the settings in force are to be taken.
    void neustart_anbieten(std::function<void(bool)> antwort);

    void laden() override;
    /// The way that changes least.
    void schliessen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache_e_tx4()}; }
    sprachliste sprache_e_tx4();

private:
    void waehlen(std::size_t platz);
    void modus_antworten();
    void neustart_antworten(bool aktuelle);

    fensterregister& fenster_;
    std::function<void(std::optional<modul_4x4>)> bei_modus_;
    std::function<void(bool)> bei_neustart_;
};

}  // namespace tarvel
