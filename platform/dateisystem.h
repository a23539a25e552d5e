#pragma once

#include <filesystem>
#include <string_view>

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

/// What the standard library does not tell or do with files.
class dateisystem : public schnittstelle {
public:
    /// Writes a file that is not there yet, and returns once the disk has it. Nothing of that name is followed or
    /// written over. False leaves no file behind.
    virtual bool neue_datei(const std::filesystem::path& pfad, std::string_view inhalt) const = 0;
    /// The entry itself leads elsewhere: a link, or a folder's junction.
    virtual bool ist_verweis(const std::filesystem::path& pfad) const = 0;
};

}  // namespace tarvel::plattform
