#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

/// One serial port. Ports are named by their COM number.
class serienport : public schnittstelle {
public:
    /// Closes what was open. `nummer` counts from 1; `werte` are baud rate, parity letter, data bits and stop bits as
    /// in "19200,N,8,1". False if the port is not there, in use, or the values make no sense.
    virtual bool oeffnen(int nummer, std::string_view werte) = 0;
    virtual void schliessen() = 0;
    virtual bool offen() const = 0;
    /// Hands the bytes to the system and returns at once. False on a closed port, and on one that takes nothing any
    /// more.
    virtual bool schreiben(std::string_view bytes) = 0;

    /// New bytes, one or more at a time. The handler may close the port.
    std::function<void(std::string_view)> bei_empfang;
    /// The device was unplugged; the port is closed already.
    std::function<void()> bei_verlust;
};

class serienport_dienst : public schnittstelle {
public:
    virtual std::unique_ptr<serienport> erzeugen() = 0;
    /// COM numbers of the ports that are there now, in ascending order.
    virtual std::vector<int> vorhandene() const = 0;
    /// The lock file of another program or user that kept the last port from opening; empty for any other reason.
    virtual std::string sperrdatei() const { return {}; }
};

}  // namespace tarvel::plattform
