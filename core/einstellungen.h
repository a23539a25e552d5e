#pragma once

#include <array>
#include <string>

#include "core/einstellungswerte.h"
#include "core/erscheinung.h"
#include "core/geraeteeinstellungen.h"
#include "core/spuren.h"
#include "core/steuerelemente.h"
#include "core/wechselschema.h"
#include "core/wettkampfmodus.h"
#include "core/zeit.h"
#include "platform/dauer.h"

namespace tarvel {

inline constexpr int sounds_max = 64;

/// Which timing hardware is in force. The keyboard works beside each of them.
struct messhardware {
    bool hw_simulation = true;
    bool hw_iow = false;
    bool hw_race_control = false;
    bool hw_lpt = false;
    modul_4x4 hw_4x4_modus = modul_4x4::aus;
    bool hw_timekeeper = false;
    spurmodus tk_spurmodus = spurmodus::keiner;  ///< of the Timekeeper; index in `texte::spurmodus_name`
    bool hw_cu = false;
    bool hw_uart = false;

    bool hw_4x4() const { return hw_4x4_modus > modul_4x4::aus; }
    /// The one in force.
    hardware_art modus() const;
    /// The device is chosen, or no longer is; the others stay as they are.
    bool gewaehlt(hardware_art welche) const;
    void waehlen(hardware_art welche, bool an);
    /// The keyboard counts as the hardware while none of the devices does that has no keyboard beside it.
    void simulation_ableiten();
    bool operator==(const messhardware&) const = default;
};

/// What the operator sets for all races. Its defaults stand in the table of the settings file.
struct einstellungen {
    messhardware hardware;

    // start and end
    startzeit start_option = startzeit::fest;
    ampelwahl start_ampel_modus = ampelwahl::keine;
    bool start_zeit_sensor = false;  ///< each lane is timed from its own first crossing
    bool zielmodus_erster = false;   ///< true "erster im Ziel", false "letzter im Ziel"
    bool runde_beenden = false;      ///< lap race: all cars finish the lap they are in
    bool fahrzeug_wechseln = false;  ///< cars change the lane with their drivers, in single races
    sortier_modus auswertung_nach = sortier_modus::runden;
    bool aut_speichern = false;
    bool aut_loeschen = false;  ///< delete automatic result files at program start
    nachtrennen nachtrennen_modus = nachtrennen::aus;
    fruehstart_aktion fruehstart_option = fruehstart_aktion::ohne;
    dauer_hs fruehstart_strafzeit{};
    dauer_s fruehstart_schritte{};  ///< added per false start

    // fuel
    tankweise tank_art = tankweise::auf_einem_kontakt;
    leer_aktion tank_straf_option = leer_aktion::ohne;
    int tank_inhalt = 0;        ///< litres
    int tank_verbrauch = 0;     ///< litres per lap
    dauer_s tank_rundenzeit{};  ///< nominal lap
    dauer_hs tank_wartezeit{};  ///< from the contact to the first drop
    dauer_hs tank_strafzeit{};  ///< of an empty tank
    double tank_warnung = 0;    ///< litres
    rundenzaehlung_auf tank_runden_modus = rundenzaehlung_auf::keinem_tanksensor;
    bool tankanzeige_grafisch = false;
    int tanksensor_justierung = 0;

    // pause
    dauer_ms sensor_timeout{};  ///< crossings at the beginning of a pause, and behind the end, still count
    bool chaosampel_an = false;
    bool chaos_schalter = false;      ///< the chaos input is a switch, not a button
    dauer_s chaos_strafzeit{};        ///< below 0 off
    bool chaos_strafe_strom = false;  ///< true time penalty, false power cut

    // timing hardware
    bool bahnstrom_invers = false;
    bool ampel_invers = false;
    bool sensorkalibrierung = false;
    bool zeit_methode_alt = false;
    iow_anschluss iow;
    race_control_einstellungen rc;
    druckeranschluss_einstellungen lpt;
    modul_4x4_einstellungen s6;
    timekeeper_anschluss tk;
    control_unit_einstellungen cu;
    at2560_anschluss uart;

    // competition and training
    wechselweise w_wechselmodus = wechselweise::normal;
    bool freie_slots = false;
    bool w_einfahren_an = false;
    bool w_edauer_runden = false;  ///< the warm-up is measured in laps
    int w_edauer = 0;              ///< laps, or seconds
    bool w_autom = false;
    dauer_ms w_zeit1{};  ///< until the next race
    dauer_ms w_zeit2{};  ///< after the warm-up
    bool w_speichern = false;
    bool centermode = false;
    std::string wechselschema_name;
    wechsel_folge wechsel_schema{};
    gruppenwahl gruppen;  ///< in a file of its own, beside those of the settings
    erscheinung anzeige;  ///< in a file of its own as well
    trainingsart training_art = trainingsart::normal;
    dauer_s training_wechseldauer{};
    training_weitergang training_weiter = training_weitergang::neu_starten;

    // display
    bool darstellung_zeile = false;  ///< one row per lane instead of one column
    bool fahrzeugbild_an = false;
    bool blinken_an = false;
    bool grosse_zeit = false;
    bool fenstermodus = false;
    rennbildwahl rennbild;  ///< in a file of its own, beside those of the settings
    sektor_ort sektor_anzeige = sektor_ort::keiner;
    sektor_ort topspeed_anzeige = sektor_ort::keiner;
    bool real_speed = false;
    std::array<bool, 4> sektor_an{};                   ///< index 1 to 3 the sensors; 0 any of them
    std::array<spuren<std::string>, 4> sektor_laenge;  ///< metres, index 1 to 3
    std::string beste_datei;
    bestzeit_speicherung beste_modus = bestzeit_speicherung::aus;
    spuren<farbe> farben_spur;
    std::array<farbe, 4> farben_ampel{};    ///< index 1 to 3; 1 is the background of the race window
    std::array<farbe, 3> farben_schrift{};  ///< index 1 and 2
    farbe farbe_ampel_rot_aus = 0;
    farbe farbe_ampel_gruen_aus = 0;

    // sounds
    bool sound_an = false;
    int snd_beste_runde = 0;  ///< the best-lap sound plays above this number of laps
    std::string sound_ordner;
    std::array<std::string, sounds_max + 1> sound_dateien;  ///< index 1 to 64, empty for no sound

    /// Its sensor serves another lane: nobody drives on it.
    bool spur_verliehen(int spur) const {
        return (spur == 3 || spur == 4) && (rc.rc_ziel_sensor34 || rc.rc_tank_sensor34);
    }
    /// The timing hardware has to be started anew after a change from `andere`: another device, or one that is reached
    /// by another way.
    bool hardware_anders_als(const einstellungen& andere) const;
    /// What has a file of its own is as in `andere`: it does not change with the settings file.
    void nebendateien_behalten(const einstellungen& andere);
    /// Brings the values up to date that follow from others; none of them stands in a file.
    void folgen_ableiten();
    dauer_ms ampel_takt{1500};  ///< last step of the start light

    trennzeichen_tabelle trennzeichen = trennzeichen_standard;  ///< kept in a file of their own
};

}  // namespace tarvel
