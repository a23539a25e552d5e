#pragma once

#include <string>

#include "core/spuren.h"
#include "platform/schnittstelle.h"

namespace tarvel {

/// A race of the day: where its result goes, and in which class each lane's driver is.
struct tagesauftrag {
    std::string datei;            ///< below the program folder
    spuren<std::string> klassen;  ///< empty for none
};

/// What follows the window.
class tagesrennen_folgen : public schnittstelle {
public:
    /// The race that is set up in the main window begins.
    virtual void tagesrennen_beginnen(const tagesauftrag& auftrag) = 0;
    /// The day's file is looked at.
    virtual void tagesergebnisse_zeigen(const std::string& pfad) = 0;
};

}  // namespace tarvel
