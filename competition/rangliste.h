#pragma once

#include <array>
#include <string>
#include <vector>

#include "competition/wettkampfabend.h"
#include "core/fensterlogik.h"
#include "core/fensterumgebung.h"
#include "core/namensspalten.h"
#include "core/steuerelemente.h"

namespace tarvel {

/// The ranking of the evening, in the order by which it is judged; that order is chosen here.
class rangliste final : public fensterlogik, private abendansicht {
public:
    rangliste(const fenster_umgebung& um, const einstellungen& einst, wettkampfabend& abend);

    bezeichnung Label_stand;  ///< of which competition, and after how many races
    bezeichnung Label1;       ///< caption of the order
    auswahl cbo_sortierung;
    bezeichnung Label_kopf;  ///< heads of the columns, each above its place in the lines
    liste List_name;
    namensspalten spalten;  ///< of its lines and their heads
    befehl Command1;        ///< closes the window

    std::vector<sprachliste> sprachdateien() override { return {sprache_rl()}; }
    sprachliste sprache_rl();
    void laden() override;

private:
    struct worte {
        std::string kein_wettkampf, nach, von, rennen, nummer, name, runden, meter, zeit, beste;
        std::array<std::string, 3> ordnung;  ///< by metres, laps, best lap
    };

    void stand_zeigen() override;
    void ordnung_gewaehlt();
    std::string kopfzeile() const;

    fenster_umgebung um_;
    const einstellungen& einst_;
    wettkampfabend& abend_;
    worte wort_;
};

}  // namespace tarvel
