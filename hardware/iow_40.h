#pragma once

#include <memory>
#include <optional>
#include <span>

#include "core/einstellungen.h"
#include "core/texte.h"
#include "hardware/ausgaben.h"
#include "hardware/geraetebedienung.h"
#include "hardware/iow_leitung.h"
#include "hardware/kontaktleser.h"
#include "hardware/messgeraet.h"
#include "platform/abtaster.h"
#include "platform/meldungen.h"
#include "platform/zeitgeber.h"

namespace tarvel {

class dateien;

/// The IO-Warrior 40 USB: contacts and lamps on 32 pins that the profile file gives their meaning. Its outputs are the
/// report that the outputs of the program keep.
class iow_40 final : public messgeraet {
public:
    struct umgebung {
        const einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        ereignis_tabelle& ereignisse;
        tarvel::ausgaben& ausgaben;
        plattform::zeitgeber_dienst& zeitgeber;
        plattform::abtaster_dienst& abtaster;
        plattform::bibliothek_dienst& bibliotheken;
        plattform::meldungen& meldungen;
        rennverbindung& rennen;
        geraetebedienung& bedienung;
    };

    explicit iow_40(const umgebung& um);
    iow_40(const iow_40&) = delete;
    iow_40& operator=(const iow_40&) = delete;
    ~iow_40() override { schliessen(); }

    /// Its vendor's library; the window of its pins is to use the same.
    const std::shared_ptr<iow_bibliothek>& bibliothek() const { return bibliothek_; }

    hardware_art welches() const override { return hardware_art::iow_40; }
    /// Reads the profile of the settings and opens the first board. Without a board the operator's side knows.
    bool oeffnen() override;
    /// For its outputs alone, beside the device that measures. Without a board nothing happens, and nobody is told.
    void nebenher_oeffnen();
    void schliessen() override;
    void wieder_aufnehmen() override;
    bool verbunden() const override { return leitung_.offen() && !leitung_.haengt(); }

    void abfragen() override { iow_auswerten(); }
    void rennfenster_offen() override { iow_pegel_merken(); }
    void einfahren_beginnt() override { iow_pegel_merken(); }
    void rennen_bereit() override { iow_pegel_merken(); }
    void nach_ausfall(ausfall_stand /*stand*/) override { kontakte_.nach_ausfall(); }
    void rennen_fortgesetzt() override { kontakte_.rennen_fortgesetzt(); }

private:
    void iow_belegung_laden();
    void iow_auswerten();
    void iow_pegel_merken() { kontakte_.ruhe_merken(); }
    bool anfangen();
    void anhalten();
    void ausgaben_uebernehmen();
    void lebenstakt_tick();
    void platine_verloren();

    umgebung um_;
    std::shared_ptr<iow_bibliothek> bibliothek_;
    iow_leitung leitung_;
    kontaktleser kontakte_;
    std::unique_ptr<plattform::zeitgeber> lebenstakt_;  ///< a board that takes no report any more is gone
    bool gewuenscht_ = false;                           ///< open, or to be opened as soon as it is there
    bool nebenher_ = false;                             ///< the same, but another device measures
};

}  // namespace tarvel
