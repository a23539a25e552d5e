#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/fensterlogik.h"
#include "race/hergangsworte.h"
#include "race/rennen.h"
#include "race/rennhergang.h"
#include "results/protokollfenster.h"
#include "results/protokollmithoerer.h"

namespace tarvel {

/// What the race director has before him while the race window fills another screen: what the log says, in words. The
/// commands beside that are those of the race window.
class leitstand final : public fensterlogik {
public:
    struct umfeld {
        const dateien& ablage;
        fensterregister& fenster;
        rennen& r;
        protokollfenster& protokoll;
        plattform::zeitgeber_dienst& zeitgeber;
    };

    explicit leitstand(const umfeld& um);

    bezeichnung Label_verlauf;
    liste List_verlauf;  ///< the newest first
    haken Check_runden;  ///< laps that were counted too

    void laden() override;
    void entladen() override;
    /// Means that the race window is to be closed.
    void schliessen() override { um_.r.befehle.fenster_schliessen(); }
    bool escape_schliesst() const override { return false; }
    std::vector<sprachliste> sprachdateien() override { return {sprache_ls()}; }
    sprachliste sprache_ls();

    rennen& das_rennen() { return um_.r; }

private:
    bool gehoert_dazu(const geschehen& g) const;
    std::string in_worten(const geschehen& g) const;
    void zeigen();

    umfeld um_;
    hergangsworte worte_;
    std::string spur_;  ///< the word
    std::unique_ptr<plattform::zeitgeber> takt_;
    protokollmithoerer mithoerer_;
};

}  // namespace tarvel
