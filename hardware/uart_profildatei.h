#pragma once

#include <functional>
#include <string>

#include "core/fensterumgebung.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"
#include "hardware/at2560_profil.h"

namespace tarvel {

/// The window `UART_Profildatei`: picks the command file of the AT-2560, or names a new one.
class uart_profildatei final : public fensterlogik {
public:
    explicit uart_profildatei(fenster_umgebung um);

    bezeichnung hinweis;
    liste dateiliste;
    bezeichnung Label_name;
    feld name;
    befehl Command1;  ///< take it
    befehl Command2;  ///< cancel

    /// Keeps the name of the file and reads it.
    std::function<void(const std::string&)> gewaehlt;

    std::vector<sprachliste> sprachdateien() override { return {sprache()}; }
    /// Opens the window on the file of this name.
    void oeffnen(const std::string& datei);
    /// The texts of the window.
    sprachliste sprache();

private:
    void uebernehmen();

    fenster_umgebung um_;
    std::string bisher_;  ///< the file in force: a new one is made like it
    std::string zeichen_text_;
};

}  // namespace tarvel
