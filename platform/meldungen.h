#pragma once

#include <string_view>

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

enum class dreifache_antwort { ja, nein, abbrechen };

/// Message boxes. They return when the operator has closed the box; timers go on ticking meanwhile.
class meldungen : public schnittstelle {
public:
    /// What stands on the buttons from now on; at first it is German.
    virtual void knoepfe_beschriften(std::string_view /*ja*/, std::string_view /*nein*/, std::string_view /*ausweg*/) {}
    virtual void zeigen(std::string_view text, std::string_view titel) = 0;
    /// A question with yes and no; closing the box means no.
    virtual bool fragen(std::string_view text, std::string_view titel) = 0;
    /// The same where nothing is lost by a yes: Enter takes it. Closing the box means no.
    virtual bool anbieten(std::string_view text, std::string_view titel) { return fragen(text, titel); }
    /// With a way out; closing the box takes it.
    virtual dreifache_antwort fragen_mit_ausweg(std::string_view text, std::string_view titel) = 0;
    /// The same where nothing is lost by a yes: Enter takes it.
    virtual dreifache_antwort anbieten_mit_ausweg(std::string_view text, std::string_view titel) {
        return fragen_mit_ausweg(text, titel);
    }
    /// Says for some seconds that something is done. Waits for nobody, and takes no key from anybody.
    virtual void mitteilen(std::string_view /*text*/) {}
};

}  // namespace tarvel::plattform
