#pragma once

#include <optional>
#include <vector>

#include "core/spuren.h"
#include "race/rennergebnis.h"
#include "race/rundenspeicher.h"

namespace tarvel {

/// The laps of a race: how many each lane has, how long they took, and which was its best. Whatever counts a lap, takes
/// one off or gives one back does it here; a number of laps cannot be set.
class rundenkonto {
public:
    /// Laps counted; -1 before the first crossing, which makes it 0.
    int runden(int spur) const { return spur_[spur].runden; }
    /// The lap that the lane is in: its row is what the next crossing fills.
    int laufende(int spur) const { return spur_[spur].runden + 1; }
    /// Laps up to this one were driven, in whole or in part, before the race went on.
    int vor_fortsetzung(int spur) const { return spur_[spur].vor_fortsetzung; }
    /// How often the race has gone on.
    int teil() const { return teil_; }
    /// Best lap in ms, 0 until there is one.
    zeit_ms beste(int spur) const { return spur_[spur].beste; }
    /// A lap is held back that will be given back.
    bool haelt_zurueck(int spur) const { return spur_[spur].zurueckgehalten; }

    /// Rows as in `rundenspeicher`.
    zeit_ms rundenzeit(int spur, int zeile) const { return speicher_.auf(spur, zeile).zeit; }
    zeit_ms stempel(int spur, int zeile) const { return speicher_.auf(spur, zeile).stempel; }
    zeit_ms pause(int spur, int zeile) const { return speicher_.auf(spur, zeile).pause; }
    /// The row as a result has it, without sectors and metres.
    rennergebnis::runde runde(int spur, int zeile) const {
        const rundenspeicher::runde r = speicher_.auf(spur, zeile);
        return {r.zeit, {}, r.pause, r.stempel, 0, r.nachgetragen, r.angefangen, r.teil, r.ausfall, r.zuschlag};
    }

    /// A new race begins with its first part.
    void von_vorn() { teil_ = 0; }
    /// For a new race: no crossing yet.
    void leeren(int spur);
    /// The stamp from which the lane's first lap is timed until a crossing starts the count.
    void start_stempeln(int spur, zeit_ms stempel) { speicher_.setzen(spur, 0, {0, stempel}); }
    /// Counts a crossing. Nobody counts beyond `runden_max`. `verschoben`: so much earlier than its stamp it was
    /// driven.
    void zaehlen(int spur, zeit_ms rundenzeit, zeit_ms stempel, zeit_ms pause, zeit_ms verschoben = 0);
    /// The program has been away since `stempel`, in the lap that the lane was in.
    void ausgefallen(int spur, zeit_ms stempel) { spur_[spur].ausfall_bei = stempel; }
    /// The lane's last lap counts as `zeit`. True if that is its best one now; the first lap always is.
    bool beste_werten(int spur, zeit_ms zeit);

    /// Takes one lap off, also as best lap. A lane with 0 laps stays at 0, while one before its first crossing goes
    /// further below. Returns the pause that had come off that lap and now comes off the one that takes it in.
    zeit_ms abziehen(int spur);
    /// As `abziehen`, for a lane that has a lap, but the lap is kept to be given back.
    zeit_ms zurueckhalten(int spur);
    /// How much later than its crossing a lap that was held back has counted.
    zeit_ms gewartet(int spur, int zeile) const { return speicher_.auf(spur, zeile).gewartet; }
    /// The lap that is held back counts again, `zuschlag` ms longer, after `gewartet` ms. Nothing without one.
    void zurueckgeben(int spur, zeit_ms zuschlag, zeit_ms gewartet);
    /// The lane has had these laps, row 0 first; those up to lap `vor_fortsetzung` before the race went on. A lap that
    /// is held back is still the one behind.
    void runden_setzen(int spur, const std::vector<rennergebnis::runde>& runden, int vor_fortsetzung);
    /// The lane is out: it has no lap, and starts from none should the race go on.
    void streichen(int spur) { spur_[spur].runden = 0; }

    /// The race goes on. `unterwegs`: the lane has driven a part of the lap that it is in.
    void fortsetzen(int spur, bool unterwegs);
    /// Green: what is counted from here on belongs to the next part.
    void teil_beginnen() { ++teil_; }
    /// Lane i takes the laps of lane `herkunft[i]`; 0 leaves it as it is.
    void fahrer_umsetzen(const spuren<int>& herkunft);
    /// The crossing that was counted last was `um` ms later than it was stamped.
    void letzten_stempel_verschieben(int spur, zeit_ms um);
    /// All stamps move by `um` ms.
    void stempel_verschieben(zeit_ms um);
    /// Only those from which on the program has been away: no crossing has stamped them.
    void ausfaelle_verschieben(zeit_ms um);

private:
    struct spur_konto {
        int runden = -1;
        int vor_fortsetzung = 0;
        zeit_ms beste = 0;
        bool zurueckgehalten = false;
        std::optional<zeit_ms> ausfall_bei;  ///< the program was away in the lap that it is in
    };

    /// So long as no crossing shows otherwise, the lap is one that can be the best.
    bool bestenfaehig(int spur, int zeile) const {
        return !speicher_.auf(spur, zeile).ausfall && !speicher_.auf(spur, zeile - 1).nachgetragen;
    }

    void beste_suchen(int spur);

    spuren<spur_konto> spur_;
    int teil_ = 0;
    rundenspeicher speicher_;
};

}  // namespace tarvel
