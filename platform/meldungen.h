#pragma once

#include <string_view>

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

enum class dreifache_antwort { ja, nein, abbrechen };

/// What two answers do, for the buttons of a question that yes and no alone do not tell. Empty: yes or no.
struct antwortworte {
    std::string_view ja;
    std::string_view nein;
};

/// Message boxes. They return when the operator has closed the box; timers go on ticking meanwhile.
class meldungen : public schnittstelle {
public:
    /// What stands on the buttons from now on; at first it is German.
    virtual void knoepfe_beschriften(std::string_view /*ja*/, std::string_view /*nein*/, std::string_view /*ausweg*/) {}
    virtual void zeigen(std::string_view text, std::string_view titel) = 0;
    /// The same of what has gone well: nothing warns.
    virtual void bestaetigen(std::string_view text, std::string_view titel) { zeigen(text, titel); }
    /// A question with yes and no; closing the box means no.
    virtual bool fragen(std::string_view text, std::string_view titel, const antwortworte& worte = {}) = 0;
    /// The same where nothing is lost by a yes: Enter takes it. Closing the box means no.
    virtual bool anbieten(std::string_view text, std::string_view titel, const antwortworte& worte = {}) {
        return fragen(text, titel, worte);
    }
    /// With a way out; closing the box takes it.
    virtual dreifache_antwort fragen_mit_ausweg(std::string_view text, std::string_view titel,
                                                const antwortworte& worte = {}) = 0;
    /// The same where nothing is lost by a yes: Enter takes it.
    virtual dreifache_antwort anbieten_mit_ausweg(std::string_view text, std::string_view titel,
                                                  const antwortworte& worte = {}) {
        return fragen_mit_ausweg(text, titel, worte);
    }
    /// Says for some seconds that something is done. Waits for nobody, and takes no key from anybody.
    virtual void mitteilen(std::string_view /*text*/) {}
};

}  // namespace tarvel::plattform
