#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>
#include <vector>

#include "platform/serienport.h"

namespace tarvel::qt {

/// Which device a COM number stands for. On Windows the name is the port's own. Elsewhere COMn is the link
/// `Anschluesse/COMn` below the program folder if there is one; without it COM1 to COM4 are the ports of the board and
/// the USB serial ports follow in the order of their names.
class Portnamen {
public:
    explicit Portnamen(std::filesystem::path programmordner) : ordner_(std::move(programmordner)) {}

    /// Name or path for the port's opening; empty if there is no such port.
    QString von(int nummer) const;
    /// COM numbers of all ports that are there, ascending.
    std::vector<int> vorhandene() const;
    plattform::portangaben angaben(int nummer) const;

private:
    QString verweis(int nummer) const;

    std::filesystem::path ordner_;
};

/// COM number of a port of the system, given the USB serial ports in their order; 0 if it has none.
int com_nummer(const QString& systemname, const QStringList& usb_ports);

}  // namespace tarvel::qt
