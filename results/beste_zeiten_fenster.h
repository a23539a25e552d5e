#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/bestzeiten.h"
#include "core/einstellungen.h"
#include "core/fensterlogik.h"
#include "core/fensterregister.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "platform/dauer.h"
#include "platform/kalender.h"
#include "platform/meldungen.h"
#include "platform/zeitgeber.h"
#include "race/rennergebnis.h"

namespace tarvel {

/// What a lane brings from the race to the best times.
struct spur_angebot {
    bool aktiv = false;
    std::string fahrer;
    std::string fahrzeug;
    zeit_ms beste = 0;            ///< 0 for no lap
    std::vector<zeit_ms> runden;  ///< in the order driven
};

/// What the lanes of a race offer: of one that has gone on only the laps that were driven on the lane from line to
/// line.
spuren<spur_angebot> bestzeit_angebote(const rennergebnis& ergebnis);

/// The window at the end of a race: takes new best times into the table, with corrections of the operator's. Its
/// control arrays count the lanes from 0.
class beste_zeiten_fenster final : public fensterlogik {
public:
    struct umgebung {
        const einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
        plattform::meldungen& meldungen;
        const plattform::kalender& kalender;
        tarvel::bestzeiten& bestzeiten;
        bestzeitfolgen& folgen;
    };

    beste_zeiten_fenster(umgebung um, plattform::zeitgeber_dienst& zeitgeber);

    bezeichnung Label1;                     ///< what to do
    bezeichnung Label_gruen;                ///< what is green then
    std::array<bezeichnung, 4> Label_kopf;  ///< captions of the columns: driver, vehicle, lap, stored best
    std::array<rahmen, spuren_max> Frame;   ///< all of a lane, in its colour
    std::array<haken, spuren_max> spur_chk;
    std::array<feld, spuren_max> btext_name;
    std::array<feld, spuren_max> btext_kfz;
    std::array<auswahl, spuren_max> beste_combo;  ///< the laps, the best first; may be typed
    std::array<bezeichnung, spuren_max> beste_alt;
    std::array<form, spuren_max> Shape1;  ///< green while the value would be saved
    befehl Command1;                      ///< save
    befehl Command2;                      ///< cancel
    befehl Command3;                      ///< the entries as they were

    /// Opens the window, and runs `danach` once when it is closed, however that is. With best times switched off
    /// nothing opens and `danach` runs at once. A window that is unloaded from elsewhere forgets it. One that comes
    /// `von_selbst` may find nobody: after a while it saves, also where it is the operator who does that, and no
    /// message holds it up.
    void oeffnen(const spuren<spur_angebot>& angebote, std::function<void()> danach, bool von_selbst = false);
    /// Closes without saving.
    void schliessen() override;
    void laden() override;
    void entladen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache_best()}; }
    /// The texts of the window.
    sprachliste sprache_best();

    /// What could not be saved while nobody was there is in the table, and gets another try; a failure is told.
    void nachsichern();
    /// The lane's value would be saved now.
    bool wird_gespeichert(int spur) const;

private:
    void eingangswerte_zeigen();
    void eintrag_geaendert();
    void anzeigen();
    bool automatisch() const { return um_.einst.beste_modus == bestzeit_speicherung::automatisch; }
    void warten();
    void wartezeit_zeigen();
    void timer1_tick();
    /// A failure is told, or nobody is there and the window closes; then the table alone has the new times.
    void speichern(bool bediener_da);
    zeit_ms neue_zeit(int spur) const;

    umgebung um_;
    std::unique_ptr<plattform::zeitgeber> timer1_;  ///< saves by itself where that is wanted, or nobody is there
    spuren<spur_angebot> angebote_;
    std::function<void()> danach_;
    std::string wort_spur_;
    std::string wort_speichern_;
    std::string ungesichert_;  ///< best-time file that lacks what the table has; empty for none
    bool von_selbst_ = false;
    dauer_s rest_{};  ///< of the wait that runs
};

}  // namespace tarvel
