#pragma once

#include <optional>
#include <string>
#include <vector>

#include "competition/wettkampf1.h"
#include "competition/wettkampf2.h"
#include "competition/wettkampfabend.h"
#include "competition/wettkampfdatei.h"
#include "competition/wettkampfspeicher.h"
#include "core/einstellungsdatei.h"
#include "core/form1.h"
#include "programm/einstellungspflege.h"
#include "programm/einstellungsruecklage.h"
#include "programm/wettkampfumfeld.h"

namespace tarvel {

/// How a competition goes through the program: from its set-up, or from a file, into the evening, and out of it again.
class wettkampfablauf final : public wettkampf1_folgen, public wettkampf2_folgen {
public:
    struct umgebung {
        einstellungsdatei& datei;
        einstellungen& einst;
        renneinrichtung& einrichtung;
        renn_parameter& param;
        const texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
        plattform::meldungen& meldungen;
        const plattform::kalender& kalender;
        form1& haupt;
        einstellungsruecklage& ruecklage;
        einstellungsfolgen& folgen;
        wettkampfumfeld& umfeld;
        wettkampfabend& abend;
        wettkampfspeicher& speicher;
    };

    explicit wettkampfablauf(const umgebung& um) : um_(um) {}
    wettkampf1* vorbereitung = nullptr;  ///< set before the first competition

    /// An evening that the end of the program has cut off is offered to go on. `rennen` tells of its race that was cut
    /// off with it. True if it goes on.
    bool unterbrochenen_anbieten(const std::string& rennen = {});
    /// The last evening that was not ended, whenever that was. None if there is none; after a yes it goes on, and a no
    /// is for what is to be shown after it, if there is something.
    std::optional<plattform::dreifache_antwort> letzten_anbieten(bool noch_eines);

    void beginnen(const wettkampfvorgabe& vorgabe) override;
    void laden() override;
    void wettkampf_beendet(const std::optional<std::vector<std::string>>& qualifying) override;
    void stand_speichern_unter() override { um_.speicher.stand_speichern_unter(um_.abend.stand()); }
    void tabelle_speichern_unter() override { um_.speicher.tabelle_speichern_unter(um_.abend.stand()); }
    void fahrerverwaltung_oeffnen() override { um_.umfeld.fahrerverwaltung_oeffnen(); }
    void bahnstrom(bool an) override { um_.umfeld.bahnstrom_von_hand(an); }

private:
    bool laden(const std::string& pfad, einstellungen_aus_datei wie);
    /// Hands the race over as the file last read has it set up. False, and nothing, if nobody can drive that.
    bool rennen_der_datei_uebergeben(const wettkampf& gelesen);
    /// `aus` is the file it goes on from, if it is not a new one.
    void eroeffnen(wettkampf neu, const std::string& aus = {});
    std::string frage(const wettkampf& w) const;
    /// The settings of an evening that is taken up again are its own as long as it lasts, but of a device whose
    /// settings are those of the track here.
    bool wieder_aufnehmen(const std::string& pfad, einstellungsruecklage::felder wie);

    umgebung um_;
};

}  // namespace tarvel
