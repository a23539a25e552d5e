#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "hardware/cu_protokoll.h"
#include "platform/dienste.h"

namespace tarvel {

/// Most COM numbers on which a Control Unit can be.
inline constexpr int cu_comport_max = 20;

/// The line to a Control Unit: commands go out, polls go out one after another, and records come in.
class cu_leitung {
public:
    explicit cu_leitung(const plattform::dienste& dienste);

    /// False if the number is none of 1 to 20, or the port is not there.
    bool oeffnen(int nummer);
    void schliessen();
    bool offen() const { return port_->offen(); }
    /// Writes a command; false on a closed port.
    bool senden(std::string_view befehl);
    /// Polls, unless the last poll still waits for its answer.
    void abfragen();
    /// The next whole record, empty if there is none.
    std::string satz() { return cu::satz_abtrennen(empfang_); }
    /// Something has come in that is no whole record yet.
    bool rest_da() const { return !empfang_.empty(); }
    void verwerfen() { empfang_.clear(); }

private:
    void empfangen(std::string_view bytes);

    const plattform::uhr& uhr_;
    std::unique_ptr<plattform::serienport> port_;
    std::string empfang_;
    bool antwort_offen_ = false;
    zeit_ms abgefragt_ = 0;  ///< reading of the machine's clock at the last poll
};

}  // namespace tarvel
