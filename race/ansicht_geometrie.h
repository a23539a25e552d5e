#pragma once

#include <array>
#include <cstddef>

#include "core/spuren.h"
#include "race/zuschnitt.h"

namespace tarvel {

/// The design size of the race window; at 1280 x 1024 pixels it has 15 units a pixel.
namespace entwurf {
inline constexpr double breite = 19200;
inline constexpr double hoehe = 15360;
inline constexpr double spalte = 3200;           ///< width of a column
inline constexpr double zeile = 2092;            ///< height of a row
inline constexpr double zaehler_schrift = 2600;  ///< font of the counter of laps at the start
inline constexpr double balkenhoehe = 520;       ///< of a full tank
inline constexpr double zaehler_links = 900;     ///< indent of the counter of laps in its field of a row
}  // namespace entwurf

/// How the lanes stand in the race window: one column each, one row each, or a single lane large.
enum class ansicht_art { spalten, zeilen, einfahrer };
enum class tankanzeige_art { keine, zahl, balken };

/// What a view has to find room for.
struct ansicht_inhalt {
    ansicht_art art = ansicht_art::spalten;
    spuren<bool> spur_aktiv;
    tankanzeige_art tank = tankanzeige_art::keine;
    bool fahrzeugbild = false;
    bool bestzeit = false;     ///< the best times of the lanes before the race
    bool grosse_zeit = false;  ///< large clocks, where the lanes leave the room for them
    bool logobild = false;
    bool wrpic1 = false;
    bool wrpic2 = false;
    bool einfahrzeit = false;       ///< the command that begins the warm-up
    bool naechstes_rennen = false;  ///< who drives next
    bool pause = false;             ///< the word of the pause
    bool befehle_woanders = false;  ///< another window has the commands, and asks whose fault a pause was
    bool licht_der_pause = false;   ///< stands in the place of the large clock, which moves over the second one

    bool operator==(const ansicht_inhalt&) const = default;
};

/// The controls of a lane, by their names.
enum class spur_teil : std::size_t {
    yellowframe,
    Label_spur,
    namenslabel,
    Image1,
    ampel_rt,
    ampel_ge,
    ampel_gr,
    Label_platz,
    l_PosAnz,
    ch_strafzeit_hacken,
    Label_schuld,
    zaehler,
    Image2,
    frame_tank,
    tanktitel,  ///< this and the next two stand within `frame_tank`
    t_bahn,
    tankbalken,
    Label_lrunde,
    lrunde,
    Label_brunde,
    brunde,
    bestzeit_label,
    t_liste,
    straflabel,
    rueckstand,
    anzahl
};

/// The controls of the window that belong to no lane.
enum class fenster_teil : std::size_t {
    logobild,
    ziel_label,
    Label_naechstesrennen,
    Label5,
    bestzeit_gesamt,
    uhrframe1,
    nachlauflabel,  ///< in the place of the clock
    uhrframe2,
    wrpic1,
    ch_strafframe,
    Frame1,
    Command1,  ///< the commands stand within `Frame1`
    Command6,
    Command3,
    Command4,
    werbe_label,
    Command2,
    wrpic2,
    restrunden,     ///< in the place of the second clock
    cu_startframe,  ///< over the blocks, clear of what a pause wants answered; in a pause below its word
    anzahl
};

/// Place of a control, empty for one that is not shown, and the size of its font.
struct platz {
    rechteck ort;
    int schrift_px = 0;
};

/// One place for each control of an enumeration.
template <class Teil>
class plaetze {
public:
    platz& operator[](Teil teil) { return plaetze_.at(static_cast<std::size_t>(teil)); }
    const platz& operator[](Teil teil) const { return plaetze_.at(static_cast<std::size_t>(teil)); }

private:
    std::array<platz, static_cast<std::size_t>(Teil::anzahl)> plaetze_;
};

struct ansicht_geometrie {
    int lesbar_px = 0;  ///< no font of what matters in a race is smaller, where its place has the room
    plaetze<fenster_teil> fenster;
    spuren<rechteck> block;         ///< of the chosen lanes, in the order of their numbers
    plaetze<spur_teil> spur;        ///< from the upper left corner of the block; the same in each of them
    plaetze<spur_teil> spur_tafel;  ///< the same of a lane that says in a word what it is in: `tafel` is for that
    rechteck tafel;
    rechteck unterer_teil;  ///< of the block, which the word of a pause may lie over; empty where it has its own place
    rechteck pause;         ///< of that word, in the window
    rechteck streifen;      ///< of the lane's colour along an edge of its block
    rechteck zaehler_weit;  ///< place of `zaehler` with half its indent
    rechteck licht_der_pause;
};

/// Lays the window out for this size in pixels.
ansicht_geometrie ansicht_aufteilen(const ansicht_inhalt& inhalt, int breite, int hoehe);

}  // namespace tarvel
