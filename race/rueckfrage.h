#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/steuerelemente.h"
#include "platform/uhr.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// A command that no slip of the hand may give. While there is something to lose, its first press only asks; a second
/// one within three seconds gives it, at the moment of that press. What comes within 0.4 seconds of the first is a slip
/// and does nothing. The race goes on meanwhile, and its log knows the command only.
class rueckfrage {
public:
    struct umfeld {
        const plattform::uhr& uhr;
        plattform::zeitgeber_dienst& zeitgeber;
        std::function<bool()> noetig;  ///< there is something to lose
        const std::string& wort;       ///< what it asks
        const std::string& tipp;       ///< shown under the pointer meanwhile
    };

    /// Takes the place of what the button did so far.
    rueckfrage(befehl& knopf, umfeld um);
    rueckfrage(const rueckfrage&) = delete;
    rueckfrage& operator=(const rueckfrage&) = delete;

    /// A press, whether the button may be pressed or not.
    void druecken();
    /// The command itself.
    void bestaetigen();
    bool fragt() const { return sekunden_->laeuft(); }
    /// Nobody has meant it.
    void zuruecknehmen();

private:
    void fragen();
    void rest_zeigen();

    befehl& knopf_;
    umfeld um_;
    std::function<void()> tun_;
    std::unique_ptr<plattform::zeitgeber> sekunden_;
    zeit_ms seit_ = 0;  ///< of the first press
    int rest_ = 0;      ///< seconds
    std::string tipp_;  ///< of the button before
};

}  // namespace tarvel
