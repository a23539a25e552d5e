#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/fensterlogik.h"
#include "core/fensterregister.h"
#include "hardware/tx_zuschauer.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// The window "Hardwareinitialisierung": shown while the operator waits for the 4x4 USB module, and a moment longer
/// for what came of it.
class form5 final : public fensterlogik, private tx_zuschauer {
public:
    struct umgebung {
        const dateien& ablage;
        fensterregister& fenster;
        plattform::zeitgeber_dienst& zeitgeber;
    };

    form5(const umgebung& um, tx_modul& modul);

    bezeichnung Label1;   ///< what is going on, or what came of it
    bezeichnung Label2;   ///< and what follows from that
    bezeichnung hinweis;  ///< the last line that the module has said
    befehl Command1;      ///< does not wait any longer

    /// The module is there, and the window has gone.
    std::function<void()> bei_erfolg;

    void laden() override;
    void entladen() override;
    void schliessen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache_e_tx2()}; }
    sprachliste sprache_e_tx2();

private:
    void notiert(const std::string& zeile) override { hinweis.text(zeile); }
    void stand_geaendert() override;
    void beginnen();

    fensterregister& fenster_;
    tx_modul& modul_;
    std::unique_ptr<plattform::zeitgeber> timer1_;
    struct {
        std::string sucht, gut, schlecht, simulation;
    } wort_;
    bool wartet_ = false;  ///< for the module
};

}  // namespace tarvel
