#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "competition/wettkampfabend.h"
#include "core/einstellungsdatei.h"
#include "results/rundenspeichern.h"

namespace tarvel {

/// The state of the evening that runs. No clean-up at program start touches a file of this ending.
inline constexpr std::string_view laufender_wettkampf = "Ergebnisse\\Wettkampf\\laufend.wtk";

/// Keeps a competition in its files: the evening that runs, dated states, the results of its races, its table.
class wettkampfspeicher final : public wettkampfablage {
public:
    struct umgebung {
        einstellungsdatei& datei;
        const einstellungen& einst;
        const dateien& ablage;
        const texte& txt;
        const plattform::kalender& kalender;
        rundenspeichern& fenster;
    };

    explicit wettkampfspeicher(const umgebung& um) : um_(um) {}

    bool laufenden_sichern(const wettkampf& stand) override;
    void laufenden_weglegen(bool fertig) override;
    bool zwischenstand_sichern(const wettkampf& stand) override;
    bool rennen_sichern(const wettkampf& stand, const abendergebnis& eines) override;
    bool tabelle_sichern(const wettkampf& stand) override;
    void fehler_melden() override { um_.fenster.schreibfehler_melden(); }

    /// The table of a competition stands; below the program folder.
    std::function<void(const std::string& pfad, const wettkampf& stand)> bei_tabelle;

    /// Where an evening lies that was not ended, or that cannot be read.
    std::string laufenden_aufheben();
    /// The evenings that were not ended, the last one first.
    std::vector<std::string> unbeendete() const;
    /// This evening goes on from here as the one that runs: what the file had of it is there now.
    void uebernommen(const std::string& pfad) const;
    /// Open the window in which a file is chosen. The competition must outlive it.
    void stand_speichern_unter(const wettkampf& stand);
    void tabelle_speichern_unter(const wettkampf& stand);
    void laden_von(std::function<bool(const std::string& pfad)> laden);

private:
    bool stand_schreiben(const std::string& pfad, const wettkampf& stand);
    bool tabelle_schreiben(const std::string& pfad, const wettkampf& stand);
    /// The names of the competition's files begin with it.
    std::string stamm(const wettkampf& stand) const;
    /// A path of that beginning and ending that is free.
    std::string freier_pfad(const std::string& anfang, const std::string& endung) const;

    umgebung um_;
};

}  // namespace tarvel
