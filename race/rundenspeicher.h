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

    zeit_ms rundenzeit(int spur, int zeile) const { return gibt_es(zeile) ? an(zeile).rundenzeit[spur] : 0; }
    zeit_ms stempel(int spur, int zeile) const { return gibt_es(zeile) ? an(zeile).stempel[spur] : 0; }
    /// Pause that has come off the lap time: it comes off the time of whatever lap takes this one in.
    zeit_ms pause(int spur, int zeile) const { return gibt_es(zeile) ? an(zeile).pause[spur] : 0; }
    /// The crossing that closes the lap was added later.
    bool nachgetragen(int spur, int zeile) const { return gibt_es(zeile) && an(zeile).nachgetragen[spur]; }
    void setzen(int spur, int zeile, zeit_ms rundenzeit, zeit_ms stempel, zeit_ms pause = 0, bool nachgetragen = false);
    void leeren(int spur, int zeile) { setzen(spur, zeile, 0, 0); }
    void zeile_kopieren(int spur, int von, int nach);
    /// Rows 0 to `letzte` of a lane of another store.
    void spur_uebernehmen(int spur, const rundenspeicher& quelle, int quellspur, int letzte);

    /// All stamps move by `um` ms.
    void stempel_verschieben(zeit_ms um);

private:
    static constexpr int zeilen_anzahl = runden_max + 2;

    struct eintrag {
        spuren<zeit_ms> rundenzeit;
        spuren<zeit_ms> stempel;
        spuren<zeit_ms> pause;
        spuren<bool> nachgetragen;
    };

    static bool gibt_es(int zeile) { return zeile >= 0 && zeile < zeilen_anzahl; }
    const eintrag& an(int zeile) const { return zeilen_[static_cast<std::size_t>(zeile)]; }

    std::vector<eintrag> zeilen_;
};

}  // namespace tarvel
