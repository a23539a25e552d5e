#pragma once

#include <functional>

#include "hardware/tastatur.h"
#include "race/chaos.h"
#include "race/rennablauf.h"
#include "race/umgebung.h"

namespace tarvel {

/// The commands and keys of the race window.
class rennbefehle : private tasten_rennen {
public:
    struct teile {
        rennablauf& ablauf;
        rennende& ende;
        rundenzaehlung& zaehlung;
        rennansicht& ansicht;
        tanken& tank;
        chaos& pause;
    };

    rennbefehle(const renn_umgebung& um, const teile& t, const tastenbelegung& belegung);

    /// Asked before each start by its command; false leaves it at that. May be empty.
    std::function<bool()> darf_starten;

    /// A key of the race; `code` is the Windows-1252 value of the typed character. `alter`: ms since it was pressed,
    /// without which it counts as pressed at the last tick.
    void taste(int code, std::optional<zeit_ms> alter = {});
    /// The key as an event alone: what the start light takes of it.
    void taste_auswerten(int code, std::optional<zeit_ms> alter = {});
    /// The key stands for a crossing of the line.
    bool ist_rundentaste(int code) const;
    /// Whether that key does anything in a race.
    bool ist_belegt(int code) const { return belegung_.ist_belegt(code); }
    bool ist_nachttaste(int code) const { return belegung_.taste(tastenbelegung::zeile_nacht) == code; }
    /// How the dark screen gets bright again; empty without a key for it.
    std::string nachthinweis() const;
    /// Stops the race without a result.
    void rennen_abbrechen();
    /// Closing the window means the same, and asks where the command of that name asks.
    void fenster_schliessen();
    /// Ends the race by hand: it gets its result from what it has.
    void rennen_beenden();

private:
    bool darf();
    /// In a log somebody may have been asked, and have said no.
    bool bejaht();
    void abbrechen_wenn_bejaht();
    bool beendet() const override { return um_.zustand.rennen_beendet; }
    void bildschirm_dunkel() override { t_.ansicht.bildschirm_dunkel(); }
    void chaos_taste() override { t_.pause.taste(); }
    bool runde_abziehen(int spur) override { return t_.zaehlung.runde_abziehen(spur); }

    renn_umgebung um_;
    teile t_;
    const tastenbelegung& belegung_;
    tastatur tastatur_;
    std::function<void()> schliessen_;
    int taste_ = 0;  ///< number of the doing
};

}  // namespace tarvel
