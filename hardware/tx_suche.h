#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "hardware/tx_protokoll.h"
#include "platform/serienport.h"

namespace tarvel {

/// A port with a 4x4 USB module at its other end, perhaps. Its handlers stay the same from the search to the race.
struct tx_leitung {
    int nummer = 0;  ///< of the COM port
    std::unique_ptr<plattform::serienport> MSCommTX;
    tx::zeilenpuffer puffer;
};

/// Looks for the module on several ports at once: what is not the module is let go as soon as it has been found.
class tx_suche {
public:
    explicit tx_suche(plattform::serienport_dienst& dienst) : dienst_(dienst) {}

    /// A line that came in on a port that is open, and when its end was there.
    std::function<void(tx_leitung&, const tx::meldung&, zeit_ms)> bei_meldung;
    std::function<void(int)> bei_ereignis;  ///< number of another event of a port
    std::function<void(tx_leitung&)> bei_verlust;

    /// Opens the port, and greets what is behind it. False if it cannot be opened.
    bool versuchen(int nummer);
    bool versucht(int nummer) const;
    /// Greets again on all of them, for who was still booting, and asks for the version, for who greets nobody twice.
    void nochmals_gruessen();
    /// Takes the line out of the search, and ends it.
    std::unique_ptr<tx_leitung> nehmen(const tx_leitung& diese);
    void beenden() { leitungen_.clear(); }

private:
    void empfangen(tx_leitung& leitung, std::string_view bytes, zeit_ms stempel) const;

    plattform::serienport_dienst& dienst_;
    std::vector<std::unique_ptr<tx_leitung>> leitungen_;
};

}  // namespace tarvel
