#pragma once

#include <string>

#include "hardware/ereignisse.h"
#include "hardware/tx_protokoll.h"
#include "platform/schnittstelle.h"

namespace tarvel {

class tx_modul;

/// A window that follows what the module does.
class tx_zuschauer : public schnittstelle {
public:
    /// A line for the window's list.
    virtual void notiert(const std::string& /*zeile*/) {}
    /// A sensor, and the event that it stands for; 0 none.
    virtual void ausgeloest(const tx::sensor& /*was*/, ereignis_art /*nummer*/) {}
    /// Connection, mode, firmware or an output is another one.
    virtual void stand_geaendert() {}
};

}  // namespace tarvel
