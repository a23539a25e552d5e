#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

#include "core/einstellungen.h"
#include "hardware/ereignisse.h"
#include "hardware/kontaktproben.h"
#include "hardware/rennverbindung.h"

namespace tarvel {

/// What the plain contacts on the lines of an interface say. The thread that samples them hands over each change with
/// its stamp; the race takes them later, and loses neither an edge nor its time. A lap, sector, sound or chaos contact
/// counts once each time it leaves its rest level; a tank contact counts for as long as it is away from it. The rest
/// level is the one that a line has as the race gets ready. A chaos switch that was turned on while no race could see
/// it counts as soon as one runs, if it is still on then.
class kontaktleser {
public:
    static constexpr std::size_t linien_max = 32;
    using linienzuordnung = std::array<ereignis_art, linien_max>;  ///< 0 for a line that means nothing

    struct umgebung {
        const einstellungen& einst;
        ereignis_tabelle& ereignisse;
        rennverbindung& rennen;
    };
    /// In what the devices differ.
    struct eigenheit {
        bool taster_sperrt_taste = false;    ///< a chaos button that is held locks the key, also where it is no switch
        bool tankt_nur_auf_kontakt = false;  ///< on one contact, also with a contact for the end of it
        bool schalter_zu_ist_an = false;     ///< a chaos switch is on if it is closed, also as the race gets ready
    };

    kontaktleser(const umgebung& um, eigenheit art) : um_(um), eigenheit_(art) {}

    /// Outputs among them are passed over.
    void zuordnen(const linienzuordnung& arten) { arten_ = arten; }
    /// Before the device is sampled for the first time.
    void beginnen(std::uint32_t linien);
    /// For the thread that samples from now on, after one that may still be at it and whose looks count no more.
    std::shared_ptr<kontaktproben> neuer_abtaster();
    /// What the lines are now is their rest; what has waited is forgotten.
    void ruhe_merken();
    /// The race stands in a pause since an outage, and has its rest levels from its log; what waits is forgotten.
    void nach_ausfall();
    /// It goes on behind a break in which nobody has followed the switch.
    void rennen_fortgesetzt() { schalter_wartet_ = chaostaster_gehalten(); }
    /// Delivers what has come since the last time.
    void auswerten();
    /// The device is gone: nothing is held any more.
    void verstummt();

private:
    void von_neuem();
    bool von_ruhe_weg(std::size_t linie, std::uint32_t linien) const;
    /// A lap of this sample would take the place of one that the race has still to count.
    bool zu_frueh(const kontaktprobe& p) const;
    void uebernehmen(const kontaktprobe& p);
    void weggegangen(ereignis_art nummer, zeit_ms stempel);
    void zurueckgekommen(ereignis_art nummer);
    void chaostaster_gedrueckt(ereignis_art nummer, zeit_ms stempel);
    void chaostaster_losgelassen();
    bool chaostaster_gehalten() const;
    void schalter_nachmelden();
    /// A car that has been taken off its tank contact during an outage must not refuel on.
    void tankkontakte_nachsehen();
    /// True if one of them is held.
    bool tankkontakte_halten();
    void tankkontakte_freigeben();

    umgebung um_;
    eigenheit eigenheit_;
    linienzuordnung arten_{};
    std::shared_ptr<kontaktproben> proben_ = std::make_shared<kontaktproben>(0);
    std::uint32_t stand_ = 0;  ///< the lines as the race knows them
    std::optional<kontaktprobe> wartet_;
    bool gewartet_ = false;
    bool chaos_von_hier_ = false;   ///< the chaos that waits, or runs, is of a button here
    bool schalter_wartet_ = false;  ///< the switch is on, and no race has seen it
    bool nach_ausfall_ = false;     ///< and nothing has been delivered yet
    spuren<bool> tank_frei_{};      ///< has left its tank contact, and the race does not know yet
};

}  // namespace tarvel
