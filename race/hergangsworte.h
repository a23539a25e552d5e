#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "core/sprache.h"
#include "race/rennhergang.h"

namespace tarvel {

/// "1:05,432", with so many decimals; "-0:03,000" before the green light.
std::string hergang_zeit(zeit_ms zeit, int stellen, char komma);

/// What happened, in words that a race director uses.
struct hergangsworte {
    sprachliste& eintragen(sprachliste& texte);
    /// What came later, for the end of the list.
    sprachliste& nachtragen(sprachliste& texte);

    /// "Runde 12: 5,432 s", "zu kurz: 3,214 s, gezählt wird ab 5,100 s".
    std::string von(const geschehen& g) const;
    /// "5,432 s", "1:05,432 min".
    std::string dauer(zeit_ms zeit) const;

    char komma = ',';

private:
    std::string ablehnung_von(const geschehen& g) const;
    std::string runde_von(const geschehen& g) const;
    std::string taste_von(const geschehen& g) const;
    /// What a row of the key assignment means, or a device's event: they share their numbers. `sonst` for none.
    std::string bedeutung(std::int64_t zeile, const std::string& sonst) const;

    std::map<vorgang, std::string> vorlagen_;  ///< with "%1" and "%2" for what is put in
    std::map<ablehnung, std::string> gruende_;
    std::map<int, std::string> leer_;
    std::map<int, std::string> befehle_;
    std::map<std::string_view, std::string> bedeutungen_;  ///< by the names of `tastenzeilen`
    std::string bis_, sperre_pause_, anlauf_, abgebrochen_, ohne_strom_, mehrmals_, unbelegt_, runde_wartet_,
        und_laenger_, mit_zeitstrafe_, nach_ende_;
};

}  // namespace tarvel
