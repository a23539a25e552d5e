#pragma once

#include <array>
#include <string>

#include "core/spuren.h"
#include "core/steuerelemente.h"
#include "race/ansicht_geometrie.h"
#include "race/rueckstand.h"
#include "race/spurlage.h"

namespace tarvel {

/// A clock of the race window: its parts are labels of their own.
struct rennuhr_felder {
    rahmen uhrframe;
    bezeichnung stunden;
    bezeichnung minuten;
    bezeichnung sekunden;
    bezeichnung tausendstel;
    bezeichnung nach_stunden;  ///< separators behind the part; this one goes with the hours
    bezeichnung nach_minuten;
    bezeichnung nach_sekunden;
};

/// How the window is laid out, as a control: a drawing hears of it when it changes.
class ansicht_wahl : public steuerelement {
public:
    const ansicht_inhalt& inhalt() const { return inhalt_; }
    void inhalt(const ansicht_inhalt& neu) { setzen(inhalt_, neu); }

private:
    ansicht_inhalt inhalt_;
};

/// The controls of the race window. Their arrays are indexed by lane or, as `std::array`, by lane - 1.
struct bahn1 {
    spuren<bezeichnung> namenslabel;
    spuren<bild> Image1;          ///< driver
    spuren<bild> Image2;          ///< vehicle
    spuren<bezeichnung> zaehler;  ///< laps
    spuren<bezeichnung> lrunde;   ///< last lap
    spuren<bezeichnung> brunde;   ///< best lap
    spuren<bezeichnung> straflabel;
    spuren<form> bahnshape;  ///< background of the lane
    spuren<rahmen> frame_tank;
    spuren<bezeichnung> t_bahn;                    ///< litres
    std::array<form, spuren_max> tankbalken;       ///< the same as a bar
    std::array<bezeichnung, spuren_max> l_PosAnz;  ///< place
    std::array<liste, spuren_max> t_liste;         ///< laps, row n holds lap n
    std::array<bild, spuren_max> ampel_rt;         ///< small lights of the lane: lit while visible
    std::array<bild, spuren_max> ampel_ge;
    std::array<bild, spuren_max> ampel_gr;

    spuren<lage_anzeige> lage;         ///< says in a word what the lane is in; hidden while it drives
    spuren<hinweis_anzeige> hinweis;   ///< at its foot: why a crossing did not count just now, or that a lap waits
    spuren<bezeichnung> rueckstand;    ///< behind the leader, as people say it; hidden where there is nothing to say
    bezeichnung pausendauer;           ///< with the word of the pause, large over all lanes
    bezeichnung restrunden;            ///< of a lap race, in the place of the second clock
    bezeichnung Label_restrunden;      ///< its caption
    spuren<bezeichnung> Label_schuld;  ///< caption of the boxes of the blame

    ansicht_wahl ansicht;
    rahmen titel;                     ///< carries the window's title
    spuren<bezeichnung> Label_spur;   ///< number of the lane
    spuren<bezeichnung> Label_platz;  ///< captions of the displays
    spuren<bezeichnung> Label_lrunde;
    spuren<bezeichnung> Label_brunde;
    spuren<bezeichnung> bestzeit_label;  ///< best time of the lane before the race; hidden if there is none
    bezeichnung bestzeit_gesamt;         ///< the record of the track, with its holder
    bezeichnung ergebnisfolge;           ///< in its place behind the end: the order of the result, where it is another;
                                         ///< while they drive, who is ahead by the time that counts where
                                         ///< another leads; and for a moment why no pause begins

    form hintergrund;     ///< behind everything
    rennuhr_felder uhr1;  ///< main clock: time left, in a lap race time driven
    rennuhr_felder uhr2;  ///< second clock: time driven
    bezeichnung nachlauflabel;
    bezeichnung ziel_label;  ///< what is driven for
    bezeichnung Label_naechstesrennen;
    bezeichnung Label5;  ///< who drives in the next race
    bild logobild;       ///< pictures of the club, shown where there is a file of theirs
    bild wrpic1;
    bild wrpic2;
    bezeichnung werbe_label;
    rahmen Frame1;
    befehl Command1;           ///< start
    befehl Command2;           ///< abort without a result
    befehl Command3;           ///< begins and ends a pause
    befehl Command4;           ///< end with the result so far
    befehl Command6;           ///< begins the warm-up before the race
    befehl Command_protokoll;  ///< in a pause: what has happened so far
    rahmen ch_strafframe;      ///< asks whose fault the pause was
    bezeichnung ch_Label1;
    bezeichnung ch_Label2;
    feld ch_Text1;  ///< seconds
    bezeichnung ch_Label3;
    spuren<haken> ch_strafzeit_hacken;  ///< the lanes that are to blame
    spuren<form> yellowframe;           ///< bars in a pause
    rahmen cu_startframe;               ///< says what is to do at a device that is started at its own key
    bezeichnung cu_startlabel;
    bezeichnung geraetealarm;  ///< large over the lanes: the timing device is gone
    rahmen Nachtabschaltung;   ///< dark cover over the whole window

    struct worte {
        std::string restzeit;
        std::string rennzeit;
        std::string stunden;
        std::string minuten;
        std::string spur;
        std::string fahrer;
        std::string runden;
        std::string rundenliste;
        std::string strafzeit;
        std::string pause;           ///< of the command that begins one, before the first
        std::string pause_wieder;    ///< and after it
        std::string pause_gesperrt;  ///< asked for too soon behind the last one
        std::string weiter;
        std::string fortsetzen;
        std::string startampel;
        std::string fruehstart;
        /// What it costs; index is the action, "%1" are seconds.
        std::array<std::string, 6> fruehstart_folgen;
        std::string letzte_runde;  ///< captions of the displays of a lane's times
        std::string beste_runde;
        std::string sektor;  ///< in front of its number
        std::string topspeed;
        std::string bestzeit;  ///< in front of the time
        std::string cu_start;  ///< what is to do at the device, for the start
        std::string cu_pause;  ///< and in a pause
        std::string nacht;     ///< in front of the key that ends the dark
        std::string prestage;  ///< rows of the drag race's tree
        std::string stage;
        std::string ohne_messung;   ///< asks whether to start without the timing device
        std::string zurueckholen;   ///< how a race that was broken off by mistake is driven on
        std::string ohne_ergebnis;  ///< what stopping a race that runs means
        std::string ohne_rest;      ///< and ending it
        std::string wirklich;       ///< asks whether a command is meant
        std::string ohne_protokoll;
        std::string ohne_ende;  ///< what is driven for, where nothing is
        std::string rekord;     ///< in front of the record of the track
        std::string lage;       ///< what a screen reader calls these
        lageworte lagen;
        std::string rueckstand;  ///< likewise
        std::string hinweis;
        std::string zu_kurz;  ///< in front of the time of the lap
        std::string noch_in_der_box;
        std::string vor_gruen;
        std::string in_der_pause;
        std::string noch_ohne_strom;  ///< serves the penalty of its empty tank
        std::string erst_ab;          ///< in front of the time from which laps count
        std::string noch_gesperrt;    ///< behind a false start, or a pause's penalty
        std::string sekunden_strafe;  ///< in the lap that was just shown, behind their number
        std::string runde_wartet;     ///< counts behind a penalty
        std::string nach_zeit_vorn;   ///< in front of the driver
        rueckstand_worte zurueck;
        std::array<std::string, 3> training;  ///< its kinds
    };
    worte wort;  ///< of the window's language, for texts that are put together

    bool zeilenansicht() const { return ansicht.inhalt().art == ansicht_art::zeilen; }
    double zaehler_schrift = 0;   ///< font size of `zaehler` at the start, in design units
    double zaehler_links = 0;     ///< its left edge at the start
    double tank_balkenhoehe = 1;  ///< height of `tankbalken` at a full tank
};

}  // namespace tarvel
