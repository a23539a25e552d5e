#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "race/protokollkopf.h"
#include "race/protokollworte.h"

namespace tarvel {

/// What can happen in a race, as its log tells it.
enum class vorgang {
    gruen,
    fruehstart,
    runde,      ///< `nummer` of the lap, its time is `wert`; of it `grenze` is added for the driver's time penalty
    abgelehnt,  ///< `grund()`; `wert` and `grenze` for a crossing that was too fast
    abzug,      ///< `nummer` of laps that are left
    sektor,     ///< `nummer`, its time is `wert`
    platz,      ///< `nummer`
    pause,
    weiter,      ///< `wert`: length of the pause
    durchfahrt,  ///< rolled over the line as the pause began
    schalter,
    pause_verlangt,  ///< too soon behind the last one
    strafe,          ///< `wert` in s; `nummer` is 1 if they are without power
    strom_aus,
    strom_an,
    leer,  ///< `nummer` of the `leer_aktion`; `wert` is the lap that waits for the end of its penalty, 0 for none;
           ///< `grenze` is 1 if it is the last, which the penalty makes longer
    voll,
    tankt,  ///< `nummer` of hundredths of a litre at the beginning
    tank_ende,
    ziel,
    letzte,
    ende,       ///< `nummer` is 1 if it was ended by hand
    befehl,     ///< `nummer` as in `hergang_befehle`
    taste,      ///< code `nummer`, row `wert` of the assignment or 0
    geraet,     ///< told event `nummer`, `wert` times in a row
    verloren,   ///< the device is gone
    korrektur,  ///< `text`
};

/// The commands that happenings name, by their names in the log.
inline constexpr std::string_view hergang_befehle[] = {
    "oeffnen", "zumachen",   "start",           "abbruch",     "ende",     "pause",     "einfahren",
    "weiter",  "schliessen", "ampel_abbrechen", "eingefahren", "umsetzen", "fortsetzen"};

/// One thing that happened in a race.
struct geschehen {
    static constexpr zeit_ms keine = std::numeric_limits<zeit_ms>::min();

    vorgang was{};
    int spur = 0;             ///< 0: all
    int fahrer = 0;           ///< the lane on which its driver began the race: drivers change lanes
    zeit_ms zeit = 0;         ///< ms from the moment the race window opened
    zeit_ms stempel = keine;  ///< of the race's clock, as the stamps of the laps
    zeit_ms seit_gruen = 0;   ///< ms from the green light; negative before it
    zeit_ms bis = keine;      ///< end of what lasts, or of the lock that refused the crossing, from the green light
    std::int64_t nummer = 0;
    std::int64_t wert = 0;
    std::int64_t grenze = 0;
    bool nach_pause = false;  ///< the lock that refused the crossing was the penalty of a pause
    bool nach_ende = false;   ///< the lap was counted behind the end of the race
    std::string text{};

    ablehnung grund() const { return static_cast<ablehnung>(nummer); }
    bool ist_abgelehnt() const { return was == vorgang::abgelehnt; }
    /// The command of this name.
    bool ist_befehl(std::string_view name) const;
};

/// What happened in a race, read from its log.
struct rennhergang {
    std::optional<protokollkopf> kopf;  ///< none: no log, or of another version
    std::vector<geschehen> alle;        ///< in order of time
    bool ganz = false;                  ///< read to the last byte; else up to a line that is torn or damaged
    std::string ende;                   ///< time of day as its result has it, "14:12:34"; empty if it has none
    bool hat_gruen = false;             ///< without a start, times count from the opening of the window

    /// Who drove on the lane then; empty for all, and where nobody did.
    std::string fahrername(const geschehen& g) const;
    /// Refused crossings of the lane, or of all with 0.
    std::vector<geschehen> abgelehnte(int spur) const;
    /// How long the pauses were that have ended.
    zeit_ms pausen() const;
    /// The last moment that anything is known of, from the green light.
    zeit_ms dauer() const;
    /// Up to here it was driven: to the end of the race and what was counted behind it. Without an end, as `dauer`.
    zeit_ms gefahren_bis() const;
};

/// The head alone, from the first bytes of a log.
std::optional<protokollkopf> hergang_kopf(std::string_view anfang);

/// Bears any bytes; what is behind a damaged line is left out.
rennhergang hergang_lesen(std::string_view inhalt);

class hergangsleser;

/// Reads a log while it grows.
class hergangsmitleser {
public:
    /// From what there is so far.
    explicit hergangsmitleser(std::string_view bisher);
    ~hergangsmitleser();
    hergangsmitleser(const hergangsmitleser&) = delete;
    hergangsmitleser& operator=(const hergangsmitleser&) = delete;

    /// The next line, as it is written.
    void zeile(std::string_view geschrieben);
    /// What has happened, in the order in which it was told; numbered from 0.
    std::size_t anzahl() const { return hergang_.alle.size(); }
    geschehen an(std::size_t nummer) const;
    std::string fahrername(const geschehen& g) const { return hergang_.fahrername(g); }

private:
    rennhergang hergang_;
    std::unique_ptr<hergangsleser> leser_;  ///< null for a log that cannot be read
};

}  // namespace tarvel
