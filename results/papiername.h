#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/dateien.h"

namespace tarvel {

/// When something was driven, as results have it: "21.11.2026" and "14:03:22", or nothing.
struct papierzeit {
    std::string datum;
    std::string uhrzeit;
};

/// Suggestion for the file of a page, without an extension: "<folder>\\2026-11-21 14.03 <what>", so that a folder lists
/// the days in their order. Signs that no file system takes become "_".
std::string papiername(std::string_view ordner, const papierzeit& wann, const std::string& was);

/// Where a page with this name is offered to be saved: in the folder used last, if it still stands, else below the
/// program folder. A name that is taken gets a number: nobody overwrites a page by accident.
std::filesystem::path papierdatei_vorschlagen(const dateien& ablage, const std::string& name, std::string_view endung);
/// It has been saved there.
void papierordner_merken(const dateien& ablage, const std::filesystem::path& datei);

}  // namespace tarvel
