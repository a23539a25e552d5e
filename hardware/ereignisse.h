#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
#include <span>

#include "core/mitschrift.h"
#include "core/spuren.h"
#include "platform/uhr.h"

/// Sensor events. A source sets the row of its event, the race logic reads and clears it in its own tick: no callback.
/// A second edge before the tick overwrites the first. Only what a device tells in a pause, from before it, is queued.
namespace tarvel {

/// Number of everything that a hardware port can mean, inputs and outputs in one list. The irregular order stands in
/// assignment files: lanes 1 to 4 came first and run downwards, lanes 5 and 6 were added behind them.
using ereignis_art = int;

namespace art {
inline constexpr ereignis_art chaostaster = 1;
inline constexpr ereignis_art chaosanzeige = 2;
inline constexpr ereignis_art ampel_gruen = 3;
inline constexpr ereignis_art zieleinfahrt = 33;
/// Red lamp 1 to 5 of the start light.
constexpr ereignis_art ampel_rot(int lampe) {
    return 9 - lampe;
}
inline constexpr spuren<ereignis_art> rundenzaehlung{{16, 15, 14, 13, 34, 35}};
inline constexpr spuren<ereignis_art> bahnstrom{{24, 23, 22, 21, 40, 41}};
inline constexpr spuren<ereignis_art> tanken_ein{{32, 30, 28, 26, 36, 38}};
inline constexpr spuren<ereignis_art> tanken_aus{{31, 29, 27, 25, 37, 39}};
inline constexpr spuren<ereignis_art> fahrertaster{{54, 55, 56, 57, 58, 59}};
/// The lane whose driver's chaos button this is; 0 for every other event.
constexpr int spur_des_fahrertasters(ereignis_art nummer) {
    return nummer >= fahrertaster[1] && nummer <= fahrertaster[spuren_max] ? nummer - fahrertaster[1] + 1 : 0;
}
/// Numbers of the list that a device drives.
constexpr bool ist_ausgang(ereignis_art nummer) {
    constexpr ereignis_art erste_abschaltung = 21;
    constexpr ereignis_art letzte_abschaltung = 24;
    return (nummer >= chaosanzeige && nummer <= ampel_rot(1)) ||
           (nummer >= erste_abschaltung && nummer <= letzte_abschaltung) || nummer == zieleinfahrt ||
           nummer == bahnstrom[5] || nummer == bahnstrom[6];
}
/// And those that it reads.
constexpr bool ist_eingang(ereignis_art nummer) {
    return nummer >= chaostaster && nummer <= fahrertaster[spuren_max] && !ist_ausgang(nummer);
}
}  // namespace art

inline constexpr int sektorsensoren_max = 12;
/// Event of the first sector sensor; those of all lanes follow it, two a lane.
inline constexpr ereignis_art erste_zwischenzeit = 42;

/// Nobody drives a lap in it.
inline constexpr zeit_ms prellen_ms = 100;

struct ereignis_zeile {
    bool aktiv = false;       ///< an edge waits for the race logic
    bool pegel = false;       ///< level read in this poll
    bool pegel_ruhe = false;  ///< rest level of the line, taken when the race gets ready
    zeit_ms ereignis_zeit = 0;
    zeit_ms verschoben = 0;       ///< of that, to behind the pause that it lies before
    bool vorgemerkt = false;      ///< the race has taken note of it, though it still waits
    bool spaet_moeglich = false;  ///< stamped by a device that may tell it late, so by nothing that was read here
};

/// Why a crossing is forgotten before the race has counted.
enum class verwurf { pause, vor_dem_start };

class ereignis_tabelle {
public:
    static constexpr int zeilen_anzahl = 62;

    ereignis_zeile& operator[](ereignis_art nummer) { return zeilen_.at(static_cast<std::size_t>(nummer)); }
    const ereignis_zeile& operator[](ereignis_art nummer) const { return zeilen_.at(static_cast<std::size_t>(nummer)); }

    /// What sources deliver goes through this from now on.
    void mitschreiben(mitschrift& protokoll);

    /// As if no source had ever told anything.
    void vergessen();
    /// Tells the log of a race what waits already.
    void stand_mitschreiben();

    /// Plain delivery: stamps the row with `messzeit`.
    void ereignis_melden(ereignis_art nummer) { tun(eingang::setzen, nummer, messzeit); }
    /// Delivery of something that happened at `stempel`. Before `gilt_ab` it is forgotten like all that waited then.
    void ereignis_melden(ereignis_art nummer, zeit_ms stempel) { tun(eingang::melden, nummer, stempel); }
    /// Delivery of a passage by a device that may tell it late. It comes as much later as the pauses behind it were
    /// long, so that they come off its lap as off any other; one from within a pause is forgotten. While the race
    /// stands still, those from before wait until it goes on.
    void ueberfahrt_melden(ereignis_art nummer, zeit_ms stempel) { tun(eingang::ueberfahrt, nummer, stempel); }
    /// Delivery at `stempel` that counts whatever it is from.
    void ereignis_setzen(ereignis_art nummer, zeit_ms stempel) { tun(eingang::setzen, nummer, stempel); }
    /// The source takes back what waits.
    void ereignis_weg(ereignis_art nummer) { tun(eingang::weg, nummer); }
    /// A line's level at rest; it is at rest now.
    void ruhe_lernen(ereignis_art nummer, bool pegel) { tun(eingang::ruhe, nummer, pegel ? 1 : 0); }
    /// The personal chaos button of a lane was pressed.
    void chaos_knopf(int spur) { tun(eingang::knopf, spur); }
    /// A device's chaos button is held, or is no longer.
    void chaos_taster(bool gedrueckt) { tun(eingang::taster, gedrueckt ? 1 : 0); }
    /// A unit that repeats its chaos switch has told it again, or is silent from now on.
    void chaos_nachhall(int zaehler) { tun(eingang::nachhall, zaehler); }

    /// The oldest passage of a lane that waits stands in its row. False if none does.
    bool vorlassen(int spur);
    /// The race stands still from this moment on.
    void anhalten(zeit_ms ab) { steht_seit_ = ab; }
    /// The race has started, or gone on after the pause that had begun at `beginn`.
    void gelten_lassen(zeit_ms ab, std::optional<zeit_ms> beginn = {});
    /// Forgets all that waits in rows 0 to 41 and takes their level for the rest level's.
    void ruhe_herstellen();
    /// All stamps move by `um` ms.
    void stempel_verschieben(zeit_ms um);
    /// All but those of crossings, which the clock itself has stamped.
    void uhr_nachruecken(zeit_ms um);
    /// Forgets waiting crossings of all lanes, but in a pause not those from before it.
    void rundenzaehlung_leeren();
    /// The same with the sector sensors.
    void strecke_leeren();
    /// A waiting crossing of lane 3 is one of lane 1 too, and one of lane 4 is one of lane 2.
    void spuren_3_4_mitzaehlen();

    /// Told of each crossing that is forgotten, with its lane and stamp.
    std::function<void(int spur, zeit_ms stempel, verwurf grund)> verworfen;

    zeit_ms messzeit = 0;  ///< stamp of the last race tick
    /// The race has started, or gone on after a pause: what comes late from before is no crossing.
    zeit_ms gilt_ab = std::numeric_limits<zeit_ms>::min();
    int chaos_at_zaehler = 0;             ///< held up by a unit that repeats its chaos switch while it is on
    bool chaos_taster_gedrueckt = false;  ///< a device's chaos button is held: the key has no say
    spuren<bool> chaos_fahrer{};          ///< whose personal chaos button was pressed

private:
    /// What waits for the end of the pause, oldest first.
    struct schlange {
        struct ueberfahrt {
            zeit_ms stempel = 0;
            zeit_ms verschoben = 0;
        };
        static constexpr std::size_t platz = 32;  // more laps are in no buffer

        void einreihen(const ueberfahrt& neu);
        std::array<ueberfahrt, platz> wartende{};
        std::size_t anzahl = 0;
    };

    struct pause {
        zeit_ms von = 0;
        zeit_ms bis = 0;
    };
    enum class eingang { melden, setzen, ueberfahrt, weg, ruhe, knopf, taster, nachhall, zeile };
    static constexpr std::size_t eingaenge = 9;

    void tun(eingang was, std::int64_t erstes, std::int64_t zweites = 0);
    void ausfuehren(eingang was, const mitschrift::werte& w);
    void setzen(ereignis_art nummer, zeit_ms stempel);
    void ueberfahrt_setzen(ereignis_art nummer, zeit_ms stempel, zeit_ms verschoben);
    void verwerfen(ereignis_art nummer, zeit_ms stempel, verwurf grund) const;
    /// What waits in the row is forgotten.
    void zeile_verwerfen(ereignis_art nummer);
    void ueberfahrt_aufnehmen(ereignis_art nummer, zeit_ms stempel);
    /// By how much a passage comes later; nothing for one from within a pause.
    std::optional<zeit_ms> verschiebung(zeit_ms stempel) const;

    std::array<ereignis_zeile, zeilen_anzahl> zeilen_{};
    std::array<pause, 8> pausen_{};  ///< the last ones of the race, the last one first; nothing is told later
    std::size_t pausen_anzahl_ = 0;
    spuren<schlange> schlangen_;
    std::optional<zeit_ms> steht_seit_;
    mitschrift* protokoll_ = nullptr;
    std::array<int, eingaenge> eingang_{};  ///< numbers of the doings
};

}  // namespace tarvel
