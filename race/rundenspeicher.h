#pragma once

#include <vector>

#include "core/spuren.h"
#include "platform/uhr.h"

namespace tarvel {

/// Most laps of a lane.
inline constexpr int runden_max = 9999;

/// The lap store: for each lane and row the lap time and the stamp of the crossing that closed it. Lap n lies in row n;
/// the first crossing, which only starts the count, fills row 0. Rows outside 0 to 10000 hold nothing: reading one
/// gives 0, writing one does nothing.
class rundenspeicher {
public:
    rundenspeicher() : zeilen_(zeilen_anzahl) {}

    struct runde {
        zeit_ms zeit = 0;
        zeit_ms stempel = 0;
        zeit_ms pause = 0;          ///< has come off `zeit`: it comes off the time of whatever lap takes this one in
        bool nachgetragen = false;  ///< the crossing that closes the lap was added later
        bool angefangen = false;    ///< a part of it was driven before the race went on
        int teil = 0;               ///< how often the race had gone on when it was closed
        bool ausfall = false;       ///< the program was away in it, and the car perhaps drove on: `zeit` says little
        zeit_ms zuschlag = 0;       ///< of the penalty of an empty tank; is in `zeit`
        zeit_ms gewartet = 0;       ///< counted so much later than its crossing, which is what `stempel` says
    };

    runde auf(int spur, int zeile) const { return gibt_es(zeile) ? an(zeile)[spur] : runde{}; }
    void setzen(int spur, int zeile, const runde& neu);
    void leeren(int spur, int zeile) { setzen(spur, zeile, {}); }
    void zeile_kopieren(int spur, int von, int nach) { setzen(spur, nach, auf(spur, von)); }
    /// Rows 0 to `letzte` of a lane of another store.
    void spur_uebernehmen(int spur, const rundenspeicher& quelle, int quellspur, int letzte);

    /// All stamps move by `um` ms.
    void stempel_verschieben(zeit_ms um);

private:
    static constexpr int zeilen_anzahl = runden_max + 2;

    using eintrag = spuren<runde>;

    static bool gibt_es(int zeile) { return zeile >= 0 && zeile < zeilen_anzahl; }
    const eintrag& an(int zeile) const { return zeilen_[static_cast<std::size_t>(zeile)]; }

    std::vector<eintrag> zeilen_;
};

}  // namespace tarvel
