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
    std::string gesperrt;                               ///< lock file that keeps ports from opening
    std::map<int, std::string> geschrieben;             ///< all that the program has written to the port
    std::map<int, std::string> werte;                   ///< settings text of the last opening
    std::function<void(int, std::string_view)> geraet;  ///< the other end hears each writing at once

    /// Bytes from the device. Nothing if nobody has the port open.
    void senden(int nummer, std::string_view bytes);
    /// Unplugs the device.
    void abziehen(int nummer);
    bool offen(int nummer) const { return offene_.contains(nummer); }

    std::unique_ptr<plattform::serienport> erzeugen() override;
    std::vector<int> vorhandene() const override { return {da.begin(), da.end()}; }
    std::string sperrdatei() const override { return gesperrt; }

private:
    friend class test_port;
    std::map<int, test_port*> offene_;
};

}  // namespace tarvel::test
