#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/schnittstelle.h"
#include "platform/uhr.h"

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

    /// New bytes, one or more at a time, and the machine's clock when they were there: a busy program gets them later.
    /// The handler may close the port; until it returns it is not called again.
    std::function<void(std::string_view, zeit_ms)> bei_empfang;
    /// Something else that the port reports, by the number that the system has for it.
    std::function<void(int)> bei_ereignis;
    /// The device was unplugged; the port is closed already.
    std::function<void()> bei_verlust;
};

/// What the system tells of a port; what it does not know is empty.
struct portangaben {
    std::string typ;
    std::string name;
    std::string beschreibung;
};

class serienport_dienst : public schnittstelle {
public:
    virtual std::unique_ptr<serienport> erzeugen() = 0;
    /// COM numbers of the ports that are there now, in ascending order.
    virtual std::vector<int> vorhandene() const = 0;
    virtual portangaben angaben(int /*nummer*/) const { return {}; }
    /// The number that the system has for why the last port did not open; 0 if it opened, or is not there.
    virtual int fehlernummer() const { return 0; }
    /// The lock file of another program or user that kept the last port from opening; empty for any other reason.
    virtual std::string sperrdatei() const { return {}; }
};

}  // namespace tarvel::plattform
