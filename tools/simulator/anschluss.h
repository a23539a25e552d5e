#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tarvel::simulator {

/// Where the simulator is plugged in.
struct anschluss_ort {
    std::string ordner = "Tarvel";  ///< program folder; the link is made in its folder `Anschluesse`
    int com = 7;                    ///< number of the link
    std::string port;               ///< serial device instead of a pseudo-terminal, such as "/dev/ttyUSB0" or "COM5"
    int baud = 19200;               ///< of that device
};

/// The device's end of the line: a pseudo-terminal with the link `Anschluesse/COMn`, or a serial port. Whatever it
/// opened and linked is gone with it.
class anschluss {
public:
    explicit anschluss(anschluss_ort ort);
    anschluss(const anschluss&) = delete;
    anschluss& operator=(const anschluss&) = delete;
    ~anschluss();

    /// Empty if it went well, else a German message.
    std::string oeffnen();
    /// Unplugged: the line is cut and the link gone, until it is opened again.
    void abziehen();
    /// What has arrived, after at most this many milliseconds.
    std::string lesen(int wartezeit_ms);
    /// What the other side does not take is lost.
    void schreiben(std::string_view bytes);
    /// The other side has its end open.
    bool verbunden() const;
    /// How the port is called that the program has to open.
    std::string name() const;

private:
    struct leitung;
    anschluss_ort ort_;
    std::unique_ptr<leitung> leitung_;
};

/// Whether the operator wants the program to end. From its first call on, such a wish no longer ends it by force.
bool ende_gewuenscht();

}  // namespace tarvel::simulator
