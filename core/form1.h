#pragma once

#include <array>
#include <functional>
#include <memory>

#include "core/einstellungen.h"
#include "core/fensterregister.h"
#include "core/namensliste.h"
#include "core/renn_parameter.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "platform/bildschirm.h"
#include "platform/meldungen.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// The main window: the form on which a race is set up. Its control arrays count the lanes from 0.
class form1 {
public:
    struct umgebung {
        const einstellungen& einst;
        const texte& txt;
        renn_parameter& param;
        fensterregister& fenster;
        plattform::meldungen& meldungen;
        const plattform::bildschirm& bildschirm;
        plattform::zeitgeber_dienst& zeitgeber;
    };

    explicit form1(umgebung um);

    bezeichnung version_label;
    auswahl rennart;
    bezeichnung dauerlabel;
    feld stddauer;  ///< hours of a time race
    bezeichnung Label8;
    feld renndauer;  ///< `M,SS` minutes and seconds, or laps
    bezeichnung Label19;
    bezeichnung Label9;
    feld wertmin;  ///< shortest lap in seconds
    bezeichnung Label10;
    bezeichnung Label2;
    feld massstab;
    haken t_aktiv;
    std::array<haken, spuren_max> spur;
    std::array<feld, spuren_max> lspur;  ///< metres
    std::array<auswahl, spuren_max> fahrer;
    std::array<auswahl, spuren_max> auto_;
    bezeichnung label_spurlaenge;
    bild startbild;                          ///< picture over the fields
    std::array<form, spuren_max> spurfarbe;  ///< colour of the lane
    bezeichnung Label6;                      ///< settings file in force
    bezeichnung modus_label;                 ///< status line: the timing hardware in force
    befehl Command1;                         ///< single race
    befehl Command2;                         ///< end of the program
    befehl Command5;                         ///< save the settings
    befehl Command7;                         ///< load settings
    befehl command_tasten;                   ///< key assignment

    /// Switches the track power on; filled by the part that owns the outputs.
    std::function<void()> bahnstrom_ein;
    /// Ends the program.
    std::function<void()> beenden;
    std::function<void()> einstellungen_speichern;
    std::function<void()> einstellungen_laden;

    /// Load handler of the window.
    void laden();
    void entladen() { timer1_->aus(); }
    /// Every field to its default.
    /// What follows from fields that a settings file has filled: lanes 5 and 6 close their fields if they are off.
    void spuren_nach_laden();
    void farben_einstellen();
    /// Fills the choices of drivers and vehicles; what is chosen on the lanes stays.
    void listen_zeigen(const namensliste& fahrerliste, const namensliste& fahrzeugliste);
    void modus_anzeigen();
    void einstellungsname_anzeigen(std::string_view name);

    /// Brings every field within its limits, silently.
    void werte_pruefen();
    /// The same, and the scale, which a settings file refuses beyond its limits.
    void vor_dem_speichern_pruefen();
    /// Parses `renndauer` and writes it back in its tidy form.
    void renndauer_normalisieren();
    /// Fills `spur_aktiv` and `spuren_anzahl`.
    void spuren_zaehlen();
    /// Begins a single race: corrections, checks with their messages, hand-over, race window.
    void Command1_Click();
    void rennart_geaendert();

private:
    bool renndauer_zulaessig() const;
    void rennen_uebergeben();
    void spur_geaendert(std::size_t index);
    zeit_ms renndauer_lesen() const;

    void bildschirm_anpassen();
    bool kleiner_bildschirm() const;

    umgebung um_;
    std::unique_ptr<plattform::zeitgeber> timer1_;  ///< once, a second after the window has appeared
    zeit_ms dauer_minuten_ = 0;
    zeit_ms dauer_sekunden_ = 0;
};

}  // namespace tarvel
