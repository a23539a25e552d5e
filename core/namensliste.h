#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"

namespace tarvel {

struct listeneintrag {
    std::string name;
    std::string bild;  ///< file stem without folder and extension, empty for none
    bool operator==(const listeneintrag&) const = default;
};

/// A list of drivers or of vehicles with their pictures, as it stands in a file. The standard entry in front of the
/// list
/// ("kein Fahrer", "Standardfahrzeug") belongs to the program and is never written.
class namensliste {
public:
    static constexpr std::size_t namen_max = 100;

    /// `kopfwort` is the first line of its files, `eingebaut` the names that stand in for an unusable file.
    namensliste(std::string kopfwort, std::vector<std::string> eingebaut);

    /// False for a file that is missing, has another first line or no end: then the built-in names stand.
    bool laden(const dateien& ablage, std::string_view datei);
    /// Writes up to the first entry without a name.
    bool speichern(const dateien& ablage, std::string_view datei) const;

    const std::vector<listeneintrag>& eintraege() const { return eintraege_; }
    /// Picture of a name; empty for none, or for a name that is not in the list.
    std::string bild_von(std::string_view name) const;
    /// A row with the name of a picture file takes it as its picture. `stamm` is the file's name without its extension.
    void bild_zuordnen(std::string_view stamm);

private:
    void eingebaute_setzen();

    std::string kopfwort_;
    std::vector<std::string> eingebaut_;
    std::vector<listeneintrag> eintraege_;
};

}  // namespace tarvel
