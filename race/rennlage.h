#pragma once

#include <string>

#include "race/fruehstartstrafe.h"
#include "race/positionen.h"
#include "race/rennansicht.h"
#include "race/rueckstand.h"
#include "race/spurlage.h"
#include "race/umgebung.h"

namespace tarvel {

/// Tells what each lane is in, from the state of the race, and changes nothing of it. The race tick has no part in
/// this: whoever draws the race asks for it, a few times a second, from outside all that the race's log holds.
class rennlage {
public:
    struct teile {
        const positionen& plaetze;
        const fruehstartstrafe& fruehstart;
        rennansicht& ansicht;
    };

    rennlage(const renn_umgebung& um, const teile& t);

    /// Brings the words of the race window up to date.
    void nachfuehren();
    spurlage lage_von(int spur) const;
    /// By what the blocks of the lanes are put in order: their places where that is chosen, else their numbers.
    spuren<int> ordnung() const;

private:
    int sekunden_bis_strom(int spur) const;
    bool in_der_box(int spur) const;
    /// The best placed lane that is in the race and has begun to count; 0 for none.
    int fuehrende() const;
    void spur_zeigen(int spur, int fuehrende);
    /// Behind the lane that leads, 0 for none.
    void rueckstand_zeigen(int spur, int fuehrende);
    void hinweis_zeigen(int spur);
    void pause_zeigen();
    /// Who asks for another pause right behind one is told why none begins.
    bool pause_eben_verweigert() const;
    bool zeit_entscheidet() const;
    int vorn_nach_zeit_neben(int fuehrende);
    void rekordzeile_zeigen(int fuehrende);
    void restrunden_zeigen();

    renn_umgebung um_;
    teile t_;
    spuren<bool> hatte_sprit_{};  ///< in this race: a device may not have told its levels yet
    /// All that the gap of a lane follows from.
    struct rueckstandsgrund {
        int fuehrende = 0;
        int seine = 0;
        int ihre = 0;
        zeit_ms stempel = 0;  ///< of its last crossing
        zeit_ms vorn = 0;     ///< and of the leader's in that lap
        bool gewertet = false;

        bool operator==(const rueckstandsgrund&) const = default;
    };
    spuren<rueckstandsgrund> rueckstandsgrund_{};  ///< of what is shown
    /// Likewise.
    struct hinweisgrund {
        spurhinweis was = spurhinweis::keiner;
        ablehnung grund{};
        zeit_ms zeit = 0;

        bool operator==(const hinweisgrund&) const = default;
    };
    zeit_ms wartende_runde(int spur) const;
    bool wartende_zu_kurz(int spur) const;
    letzte_ablehnung zuletzt_abgelehnt(int spur) const;
    bool eben_abgelehnt(int spur, const letzte_ablehnung& letzte) const;
    bool eben_verbuesst(int spur) const;
    static bool wird_gesagt(ablehnung grund);
    hinweisgrund hinweis_von(int spur) const;
    std::string hinweis_gesagt(const hinweisgrund& g) const;
    spuren<hinweisgrund> hinweisgrund_{};
    int pausensekunden_ = 0;
    /// Likewise.
    struct zeilengrund {
        bool pause_verweigert = false;
        int vorn = 0;  ///< by the time that counts, while another leads over the line

        bool operator==(const zeilengrund&) const = default;
    };
    zeilengrund rekordzeile_;
    /// All that `vorn_` follows from.
    struct zeitgrund {
        int fuehrende = 0;
        spuren<bool> dabei{};
        spuren<int> runden{};
        spuren<zeit_ms> stempel{};
        spuren<zeit_ms> strafe{};

        bool operator==(const zeitgrund&) const = default;
    };
    zeitgrund zeitgrund_;
    int vorn_ = 0;
    int restrunden_ = 0;
};

}  // namespace tarvel
