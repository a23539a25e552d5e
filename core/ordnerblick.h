#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

/// What a folder of the machine holds: names without the folder, in UTF-8 and in alphabetical order.
struct ordnerblick {
    std::vector<std::string> ordner;
    std::vector<std::string> dateien;  ///< only those that end as asked for, in upper or lower case
};

/// A folder that cannot be read holds nothing. At most 5000 names of each kind.
ordnerblick ordner_ansehen(const std::filesystem::path& ort, const std::vector<std::string>& endungen);

/// How long ago the file was changed last; none without such a file.
std::optional<std::chrono::seconds> dateialter(const std::filesystem::path& datei);

/// The roots of the machine's file systems: drives, or the one root.
std::vector<std::string> laufwerke();

std::filesystem::path pfad_aus_utf8(std::string_view text);
/// Empty for a path that cannot be told in UTF-8.
std::string pfad_als_utf8(const std::filesystem::path& pfad);

/// Upper-case and lower-case letters of ASCII count as the same.
bool beginnt_mit(std::string_view name, std::string_view anfang);
bool endet_auf(std::string_view name, std::string_view endung);

}  // namespace tarvel
