#pragma once

#include <array>
#include <string>

#include "core/spuren.h"
#include "core/steuerelemente.h"
#include "core/wechselschema.h"
#include "core/zeit.h"

namespace tarvel {

inline constexpr int sounds_max = 64;
/// `start_ampel_modus` of the drag race.
inline constexpr int dragrace_ampel = 6;

/// Which timing hardware is in force. The keyboard works beside each of them.
struct messhardware {
    bool hw_simulation = true;
    bool hw_iow = false;
    bool hw_race_control = false;
    bool hw_lpt = false;
    int hw_4x4_modus = 3;  ///< 3 off, above 3 on
    bool hw_timekeeper = false;
    int tk_spurmodus = 0;  ///< track mode of the Timekeeper, index in `texte::modus_name`
    bool hw_cu = false;
    bool hw_uart = false;

    static constexpr int timekeeper = 5;  ///< its `modus`
    /// Index in `texte::hardware_name` of the device in force; 0 is the keyboard alone.
    int modus() const;
    /// The keyboard counts as the hardware while none of the devices does that has no keyboard beside it.
    void simulation_ableiten();
    bool operator==(const messhardware&) const = default;
};

/// What the operator sets for all races. Its defaults stand in the table of the settings file.
struct einstellungen {
    messhardware hardware;

    // start and end
    int start_option = 0;            ///< 1 fixed start time, 2 variable
    int start_ampel_modus = 0;       ///< index of the start light, 0 none
    bool start_zeit_sensor = false;  ///< each lane is timed from its own first crossing
    bool zielmodus_erster = false;   ///< true "erster im Ziel", false "letzter im Ziel"
    bool runde_beenden = false;      ///< lap race: all cars finish the lap they are in
    bool fahrzeug_wechseln = false;  ///< cars change the lane with their drivers, in single races
    int auswertung_nach = 0;         ///< 1 metres, 2 laps, 3 best lap
    bool aut_speichern = false;
    bool aut_loeschen = false;     ///< delete automatic result files at program start
    int nachtrennen_modus = 0;     ///< above 0 the race starts under the dark cover
    int fruehstart_option = 0;     ///< index of the action on a false start
    int fruehstart_strafzeit = 0;  ///< hundredths of a second
    int fruehstart_schritte = 0;   ///< seconds added per false start

    // fuel
    int tank_art = 0;           ///< 1 on one contact, 2 between two contacts
    int tank_straf_option = 0;  ///< index of the action on an empty tank
    int tank_inhalt = 0;        ///< litres
    int tank_verbrauch = 0;     ///< litres per lap
    int tank_rundenzeit = 0;    ///< nominal lap in seconds
    int tank_wartezeit = 0;     ///< hundredths of a second
    int tank_strafzeit = 0;     ///< hundredths of a second
    double tank_warnung = 0;    ///< litres
    int tank_runden_modus = 0;  ///< 0 none, 1 or 2: that tank sensor counts laps
    bool tankanzeige_grafisch = false;
    int tanksensor_justierung = 0;

    // pause
    int sensor_timeout = 0;  ///< ms
    bool chaosampel_an = false;
    bool chaos_schalter = false;      ///< the chaos input is a switch, not a button
    int chaos_strafzeit = 0;          ///< seconds, below 0 off
    bool chaos_strafe_strom = false;  ///< true time penalty, false power cut

    // timing hardware
    bool rc_rev_zz = false;
    bool rc_rev_sz = false;
    int rc_level = 0;
    int rc_delay_ms = 0;
    int rc_post_ms = 0;
    bool rc_schalter = false;
    int rc_wert = 0;
    std::string rc_com_port;
    bool rc_tank_sensor34 = false;
    bool rc_ziel_sensor34 = false;   ///< the sensors of lanes 3 and 4 also count for lanes 1 and 2
    bool rc_mod1 = false;            ///< false is mode 2
    std::array<int, 4> rc_sensor{};  ///< event per box sensor, index 0 to 3
    int lpt_adresse = 0;
    std::array<int, 6> lpt_eingang{};   ///< event per pin, index 1 to 5
    std::array<int, 13> lpt_ausgang{};  ///< event per pin, index 1 to 12
    bool bahnstrom_invers = false;
    bool ampel_invers = false;
    bool sensorkalibrierung = false;
    bool zeit_methode_alt = false;
    bool s6_option = false;
    std::array<int, 9> s6_eingang{};              ///< event per module input, index 1 to 8
    spuren<std::array<int, 5>> s6_eingang_modus;  ///< event per lane and module mode, modes 1 to 4
    std::string tk_datei;
    std::string iow_datei;
    int cu_modus = 0;        ///< COM port of the Control Unit
    bool cu_option = false;  ///< old lap timing of the unit
    bool cu_tankautomatik = false;
    bool cu_sondermodus = false;  ///< the program starts the race, not the unit
    spuren<int> cu_spur_wert;     ///< controller setting 0 to 15
    int uart_port = 0;
    std::string uart_baud;
    int uart_datenbits = 0;
    std::string uart_parity;
    std::string uart_stopbits;
    std::string uart_datei;

    // competition and training
    int w_wechselmodus = 0;
    bool freie_slots = false;
    bool w_einfahren_an = false;
    bool w_edauer_runden = false;  ///< the warm-up is measured in laps
    int w_edauer = 0;
    bool w_autom = false;
    int w_zeit1 = 0;  ///< ms until the next race
    int w_zeit2 = 0;  ///< ms after the warm-up
    bool w_speichern = false;
    bool centermode = false;
    std::string wechselschema_name;
    wechsel_folge wechsel_schema{};
    int training_art = 0;
    int training_wechseldauer = 0;  ///< seconds
    int training_weiter = 0;

    // display
    bool darstellung_zeile = false;  ///< one row per lane instead of one column
    bool fahrzeugbild_an = false;
    bool blinken_an = false;
    bool grosse_zeit = false;
    bool fenstermodus = false;
    int sektor_anzeige = 0;  ///< 0 none, 1 small, 2 large
    int topspeed_anzeige = 0;
    bool real_speed = false;
    std::array<bool, 4> sektor_an{};                   ///< index 1 to 3 the sensors; 0 any of them
    std::array<spuren<std::string>, 4> sektor_laenge;  ///< metres, index 1 to 3
    std::string beste_datei;
    int beste_modus = 0;
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

    /// The timing hardware has to be started anew after a change from `andere`.
    bool hardware_anders_als(const einstellungen& andere) const;
    /// Brings the values up to date that follow from others; none of them stands in a file.
    void folgen_ableiten();
    int ampel_takt = 1500;                ///< ms of the last step of the start light
    spuren<std::string> cu_reglerbefehl;  ///< command for the controller of each lane

    trennzeichen_tabelle trennzeichen = trennzeichen_standard;  ///< kept in a file of their own
};

}  // namespace tarvel
