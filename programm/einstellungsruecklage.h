#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/einstellungsdatei.h"
#include "core/fensterregister.h"
#include "core/form1.h"
#include "hardware/tastenbelegung.h"
#include "platform/zeitgeber.h"
#include "programm/einstellungspflege.h"

namespace tarvel {

/// The settings that wait while a race, or an evening, goes on with those that it began with. What the operator changes
/// meanwhile stays changed behind it.
class einstellungsruecklage {
public:
    struct umgebung {
        einstellungsdatei& datei;
        einstellungen& einst;
        renneinrichtung& einrichtung;
        tastenbelegung& belegung;
        form1& haupt;
        const fensterregister& fenster;
        einstellungsfolgen& folgen;
        plattform::zeitgeber_dienst& zeitgeber;
    };
    /// What becomes of the set-up on the main window: those of the race may be what the director had typed last.
    enum class felder { zurueck, bleiben };

    explicit einstellungsruecklage(const umgebung& um);

    /// `holen` brings others into force. They go as soon as none of these windows is open any more, or at once if it
    /// says false, which is passed on.
    bool solange(std::vector<fenstername> offen, felder wie, const std::function<bool()>& holen);
    /// The windows may have closed just now.
    void abgelaufene_zurueckstellen();
    /// What is in force now stays: the operator himself has loaded it.
    void aufgeben();
    /// The same lines as a settings file is to hold them: without what is in force for now only.
    std::vector<std::string> fuer_die_datei(std::vector<std::string> in_kraft) const;
    /// The set-up that will stand on the main window when nothing is lent any more.
    const renneinrichtung& eigene_einrichtung() const;

private:
    struct stand {
        std::vector<std::string> zeilen;
        tastenbelegung belegung;
    };
    struct schicht {
        einstellungen einst;
        renneinrichtung einrichtung;
        stand davor;
        std::vector<fenstername> offen;
        felder wie = felder::zurueck;
        std::optional<stand> danach = std::nullopt;  ///< none while the others are only coming
        std::vector<std::string> nach_einem_start = {};
    };

    stand in_kraft() const { return {um_.datei.festhalten(), um_.belegung}; }
    std::vector<std::string> nach_einem_start();
    static std::vector<std::string> ueberlagert(const schicht& unten, std::vector<std::string> zeilen);
    void zurueckstellen();

    umgebung um_;
    std::vector<schicht> schichten_;  ///< an evening, and above it one of its races
    std::unique_ptr<plattform::zeitgeber> takt_;
};

}  // namespace tarvel
