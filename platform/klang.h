#pragma once

#include <string_view>

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

/// Plays one wave file at a time and returns at once; a later sound cuts the earlier one.
class klang : public schnittstelle {
public:
    /// Reads the file ahead of time, so that its first play waits for nothing.
    virtual void bereitstellen(std::string_view datei) = 0;
    /// `datei` is a name below the program folder. A missing file plays nothing.
    virtual void spielen(std::string_view datei) = 0;
};

}  // namespace tarvel::plattform
