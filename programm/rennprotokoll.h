#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/einstellungsdatei.h"
#include "hardware/tastenbelegung.h"
#include "race/protokollkopf.h"
#include "race/rennen.h"

namespace tarvel {

/// The log of each race: begins it as the race window opens, and can do it again.
class rennprotokoll final : public protokollfuehrung {
public:
    struct umgebung {
        tarvel::rennen& rennen;
        renn_parameter& param;
        tastenbelegung& belegung;
        ereignis_tabelle& ereignisse;
        einstellungsdatei& datei;
        const plattform::uhr& uhr;
        const plattform::kalender& kalender;
    };

    explicit rennprotokoll(const umgebung& um) : um_(um) {}

    /// Where the lines go; null for nowhere. Must outlive the race.
    protokollsenke* senke = nullptr;

    void beginnen() override;
    void abschliessen() override;

    enum class ausgang {
        ganz,         ///< to the last line, and all as it was written
        beschaedigt,  ///< up to a line that is torn or damaged
        anders,       ///< to a line where the race goes another way
        fremd         ///< no log that this version can do again
    };
    /// Does a race again from its log, with settings, set-up and keys as they were. The race is then as it was behind
    /// the last line, and all that stands for the world is left to whoever called.
    ausgang nachspielen(std::string_view inhalt);
    /// The line of the log where it went another way.
    std::optional<mitschrift::unterschied> abweichung() const { return um_.rennen.protokoll.abweichung(); }

private:
    umgebung um_;
};

}  // namespace tarvel
