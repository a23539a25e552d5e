#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "hardware/at2560_profil.h"
#include "platform/uhr.h"

namespace tarvel {

/// An event of the unit.
struct at_meldung {
    std::string ereignis;  ///< UTF-8
    zeit_ms zeit = 0;      ///< on the unit's clock; the answer to the time request has the time itself here
};

/// The bytes of the AT-2560, cut into its sequences: `:S13,12345;` from start to end character. Noise between them and
/// sequences that another one breaks off are dropped.
class at_empfang {
public:
    /// What nobody fetches is kept up to here, the newest bytes of it.
    static constexpr std::size_t bytes_max = std::size_t{64} * 1024;

    /// False if older bytes had to go for these.
    bool anhaengen(std::string_view bytes);
    void leeren() {
        at_empfang_.clear();
        zurueckgelegt_ = false;
    }

    /// Takes the next whole sequence out of the buffer as `at_befehl`. False, and none, if there is none yet.
    bool µC_neuer_befehl(const at_profil& profil);
    /// The next one that is taken out is this one again.
    void zuruecklegen() { zurueckgelegt_ = true; }
    /// The event of `at_befehl`; none in a sequence without a time code.
    std::optional<at_meldung> meldung(const at_profil& profil) const;
    const std::string& at_befehl() const { return at_befehl_; }

private:
    std::string at_empfang_;
    std::string at_befehl_;
    bool zurueckgelegt_ = false;
};

}  // namespace tarvel
