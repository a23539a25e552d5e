#pragma once

#include <functional>

#include "core/einstellungen.h"
#include "core/renn_parameter.h"
#include "core/texte.h"
#include "race/veranstaltung.h"
#include "results/rundenspeichern.h"

namespace tarvel {

/// The largest target that a race may go on to.
rennziel renn_maximum(const renn_parameter& param);

/// A race of its own: its result is saved by itself if the settings say so.
class einzelrennen : public veranstaltung {
public:
    struct umgebung {
        const renn_parameter& param;
        const einstellungen& einst;
        const texte& txt;
        rundenspeichern& speichern;
    };

    explicit einzelrennen(const umgebung& um) : um_(um) {}

    std::string kennung() const override { return "einzelrennen"; }
    bool ist_fueller(int spur) const override { return um_.txt.ist_freier_platz(um_.param.fahrer_name[spur]); }
    bool fueller_fahren(bool fortgesetzt) const override { return !fortgesetzt || um_.einst.freie_slots; }
    std::optional<rennziel> fortsetzbar_bis() const override { return renn_maximum(um_.param); }
    bool uebernehmen(const rennergebnis& ergebnis, weitergang wie) override;
    void begonnen() override {
        if (bei_start) {
            bei_start();
        }
    }

    /// Somebody has pressed start.
    std::function<void()> bei_start;

protected:
    umgebung um_;
};

}  // namespace tarvel
