#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/dateien.h"
#include "core/steuerelemente.h"

namespace tarvel {

struct listeneintrag {
    std::string name;
    std::string bild;  ///< file stem without folder and extension, empty for none
    bool operator==(const listeneintrag&) const = default;
};

/// A list of drivers or of vehicles with their pictures, as it stands in a file. The standard entry in front of the
/// list ("kein Fahrer", "Standardfahrzeug") belongs to the program and is never written.
class namensliste {
public:
    static constexpr std::size_t namen_max = 100;
    static constexpr int name_laenge_max = 40;  ///< characters that the operator may type

    /// What tells a list of drivers from one of vehicles.
    struct art {
        std::string kopfwort;      ///< first line of its files
        std::string bildordner;    ///< folder of its pictures
        std::string standardbild;  ///< file shown for an entry without a picture
    };

    explicit namensliste(art a) : art_(std::move(a)) {}

    /// The names that stand in for an unusable file.
    void eingebaut(std::vector<std::string> namen) { eingebaut_ = std::move(namen); }

    /// False for a file that is missing, has another first line or no end: then the built-in names stand.
    bool laden(const dateien& ablage, std::string_view datei);
    /// Writes up to the first entry without a name.
    bool speichern(const dateien& ablage, std::string_view datei) const;

    /// The text is one of the marks that divide a list file, and so can be no name.
    static bool ist_marke(std::string_view name);

    const art& listenart() const { return art_; }
    const std::vector<listeneintrag>& eintraege() const { return eintraege_; }
    bool voll() const { return eintraege_.size() >= namen_max; }
    /// Appends a name without a picture, unless the list is full.
    void hinzufuegen(std::string_view name);
    /// Rows count from 0; one that does not exist changes nothing.
    void entfernen(std::size_t zeile);
    void leeren() { eintraege_.clear(); }
    void bild_setzen(std::size_t zeile, std::string_view stamm);

    /// File of the picture of a row from 0: the standard picture if there is no such row, or its picture is not there.
    std::string bilddatei(const dateien& ablage, std::size_t zeile) const;
    /// The same for the first row of this name.
    std::string bilddatei(const dateien& ablage, std::string_view name) const;
    /// The same in a picture control, with the stand-in for a file that cannot be shown.
    void bild_zeigen(const dateien& ablage, std::string_view name, bild& anzeige) const;
    /// Every row with the name of a file in the picture folder takes it as its picture; `ausser` is the stem of a file
    /// that is left out. Returns the number of these rows.
    int bilder_uebernehmen(const dateien& ablage, std::string_view ausser);

private:
    void eingebaute_setzen();

    art art_;
    std::vector<std::string> eingebaut_;
    std::vector<listeneintrag> eintraege_;
};

}  // namespace tarvel
