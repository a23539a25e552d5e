#pragma once

namespace tarvel {

// What the operator chooses among. The numbers are those of the settings file; a file may hold others.

/// What a race goes by.
enum class renn_art { zeit = 2, runden = 3 };

enum class startzeit { fest = 1, variabel = 2 };

/// The start light.
enum class ampelwahl {
    keine,
    fuenf_rot_gruen,
    fuenf_rot,
    vier_rot_gruen,
    vier_rot,
    drei_rot,
    dragrace,
    nur_lampen_fuenf,  ///< this and the next two light the real lamps alone
    nur_lampen_vier,
    nur_lampen_drei
};

/// The race under a dark cover.
enum class nachtrennen { aus, rennen, rennen_und_ampel };

enum class fruehstart_aktion { ohne, startabbruch, disqualifikation, stromunterbrechung, runde_abzug, zeitstrafe };

/// By what the places of a result go; any other number means laps.
enum class sortier_modus { meter = 1, runden = 2, beste = 3 };

enum class tankweise { auf_einem_kontakt = 1, zwischen_zwei_kontakten = 2 };

enum class leer_aktion { ohne, disqualifikation, runde_weg, stromunterbrechung, zeitstrafe };

/// Which sensor of the tanks counts laps too.
enum class rundenzaehlung_auf { keinem_tanksensor, tanksensor_1, tanksensor_2 };

enum class bestzeit_speicherung { aus, automatisch, manuell };

/// Where a sector's time or speed shows: in place of the best lap, or of the last one.
enum class sektor_ort { keiner, klein, gross };

/// What the race window shows beyond the places and times of the lanes.
struct rennbildwahl {
    bool worte = true;          ///< each lane says in a word what it is in
    bool nach_platz = false;    ///< the lanes stand by their places, not by their numbers
    bool auf_schirm_2 = false;  ///< the race window fills the second screen, if there is one

    bool operator==(const rennbildwahl&) const = default;
};

enum class wechselweise { normal = 1, jeder_gegen_jeden = 2, nur_einmal = 3 };

enum class trainingsart { normal, intervall, dauer };

/// How a training goes on after the drivers have changed.
enum class training_weitergang { neu_starten, fortsetzen };

/// The timing hardware, in the order of `texte::hardware_name`. No file holds these numbers.
enum class hardware_art {
    tastatur,  ///< alone; it works beside the others too
    iow_40,
    race_control,
    druckeranschluss,
    usb_4x4,
    timekeeper,
    control_unit,
    at_2560
};

/// Mode of the 4x4 module.
enum class modul_4x4 { aus = 3, modus_1, modus_2, modus_3, modus_4 };

/// Track mode of a timing device that knows digital tracks.
enum class spurmodus { keiner, analog, digital_124_132, digital_143, fehler };

}  // namespace tarvel
