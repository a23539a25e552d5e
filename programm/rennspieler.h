#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/zeit.h"
#include "race/rennen.h"

namespace tarvel {

class programm;

/// Plays a race again from its log, in a program of its own on a machine on which nothing happens by itself: it reads
/// the program folder and changes nothing anywhere. All times are ms from the beginning of the log.
class rennspieler {
public:
    /// Something to jump to.
    struct marke {
        enum class sorte { runde, pause, sonst };
        zeit_ms bei = 0;
        sorte was = sorte::sonst;
        int spur = 0;  ///< 0 for all
    };

    enum class gueltigkeit {
        ganz,
        beschaedigt,  ///< plays to the line that is torn or damaged
        fremd         ///< of another version, or no log: plays nothing
    };

    /// A race from the bytes of its log. It stands where the race window opened. `ausstatten` gives its program what no
    /// log holds.
    rennspieler(std::filesystem::path programmordner, std::string inhalt,
                std::function<void(programm&)> ausstatten = {});
    rennspieler(const rennspieler&) = delete;
    rennspieler& operator=(const rennspieler&) = delete;
    ~rennspieler();

    gueltigkeit wie() const { return wie_; }
    /// The race has taken another way than it is written, and stands still there.
    bool abgewichen() const { return abgewichen_; }
    /// The race window opened then, and nothing was decided after that.
    zeit_ms anfang() const { return anfang_; }
    zeit_ms ende() const { return ende_; }
    zeit_ms stelle() const { return stelle_; }
    const std::vector<marke>& marken() const { return marken_; }
    /// The next mark behind `stelle`, the last one before it; none leaves it at the end or the beginning.
    zeit_ms naechste_marke(zeit_ms stelle) const;
    /// Where nobody drives and nothing happens for long, the moment at which that is nearly over; else `stelle`.
    zeit_ms nach_stillstand(zeit_ms stelle) const;
    zeit_ms vorige_marke(zeit_ms stelle) const;

    /// All up to this moment happens; what lies in an outage is its end. Stops after `hoechstens` doings; false if it
    /// has not come that far.
    bool vor(zeit_ms bis, int hoechstens);
    /// Stands at the beginning again, as another program. The one before lives until `alten_vergessen`.
    void von_vorn();
    void alten_vergessen();
    /// The race as it is at this moment.
    tarvel::rennen& rennen();
    /// And the program that it is in.
    programm& im_programm();

private:
    struct spiel;
    /// The program was away from its last doing to the first behind that.
    struct abwesenheit {
        zeit_ms weg = 0;
        zeit_ms wieder_da = 0;
    };

    void abtasten();
    void merken(zeit_ms zeit, std::string_view entscheidung);
    void stillstand_merken(zeit_ms bis, std::string_view ende);
    void schuldige_zeigen();
    void uhr_zeigen();

    std::filesystem::path ordner_;
    std::string inhalt_;
    std::function<void(programm&)> ausstatten_;
    gueltigkeit wie_ = gueltigkeit::fremd;
    bool abgewichen_ = false;
    zeit_ms anfang_ = 0;
    zeit_ms ende_ = 0;
    zeit_ms stelle_ = 0;
    int taten_ = 0;  ///< that are to be done: what closes the window is not
    int getan_ = 0;
    std::vector<marke> marken_;
    std::vector<abwesenheit> abwesenheiten_;
    struct stillstand {
        zeit_ms von = 0;
        zeit_ms bis = 0;
    };
    std::vector<stillstand> stillstaende_;
    /// Whom a pause was blamed on. The log has it where the pause ends.
    struct urteil {
        zeit_ms pause_seit = 0;
        std::int64_t schuldige = 0;  ///< a bit for each lane, as its number
        std::optional<double> sekunden{};
    };
    std::vector<urteil> urteile_;
    bool steht_ = true;     ///< while the log is looked through: nobody drives
    zeit_ms ereignet_ = 0;  ///< and when the last thing happened
    std::unique_ptr<spiel> alt_;
    std::unique_ptr<spiel> spiel_;
};

}  // namespace tarvel
