#pragma once

#include <string>
#include <string_view>

#include "core/dateien.h"
#include "core/erscheinung.h"

namespace tarvel {

/// Where the templates of certificates lie, and what stands over everything that goes to paper.
inline constexpr std::string_view urkunden_ordner = "Urkunden";

/// Whose evening it was. Kept beside the settings: who lends his settings file does not lend his club.
struct papierkopf {
    std::string verein;
    std::string veranstaltung;
    std::string vorlage;  ///< file of the certificate below `urkunden_ordner`; empty for the built-in one. Each
                          ///< language has its own.

    bool operator==(const papierkopf&) const = default;
    /// Both names in one line; empty without any.
    std::string zeile() const;
};

/// With the template of this language, named by the folder of its texts. A file that is missing or short leaves the
/// rest empty.
papierkopf papierkopf_laden(const dateien& ablage, std::string_view sprachordner = sprachordner_standard);
/// The templates of other languages stay as they are.
bool papierkopf_speichern(const dateien& ablage, const papierkopf& kopf,
                          std::string_view sprachordner = sprachordner_standard);

}  // namespace tarvel
