#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/serienport.h"

namespace tarvel::test {

class test_port;

/// Serial ports on a script: what was written is on record, and the other end says what it is told to.
class test_anschluesse final : public plattform::serienport_dienst {
public:
    std::set<int> da;                                   ///< COM numbers that exist
    std::map<int, plattform::portangaben> bekannt;      ///< what the system tells of them
    std::string gesperrt;                               ///< lock file that keeps ports from opening
    std::map<int, std::string> geschrieben;             ///< all that the program has written to the port
    std::map<int, std::string> werte;                   ///< settings text of the last opening
    std::function<void(int, std::string_view)> geraet;  ///< the other end hears each writing at once

    explicit test_anschluesse(const plattform::uhr& uhr) : uhr_(uhr) {}

    /// Bytes from the device. Nothing if nobody has the port open.
    void senden(int nummer, std::string_view bytes) { senden(nummer, bytes, uhr_.jetzt()); }
    /// Bytes that were there at `stempel`, while the program was busy.
    void senden(int nummer, std::string_view bytes, zeit_ms stempel);
    /// Unplugs the device.
    void abziehen(int nummer);
    /// The port reports this number.
    void ereignis(int nummer, int ereignis);
    bool offen(int nummer) const { return offene_.contains(nummer); }

    std::unique_ptr<plattform::serienport> erzeugen() override;
    std::vector<int> vorhandene() const override { return {da.begin(), da.end()}; }
    plattform::portangaben angaben(int nummer) const override;
    int fehlernummer() const override { return fehler_; }
    std::string sperrdatei() const override { return gesperrt; }

private:
    friend class test_port;
    const plattform::uhr& uhr_;
    std::map<int, test_port*> offene_;
    int fehler_ = 0;
};

}  // namespace tarvel::test
