#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/sprache.h"
#include "results/ergebnistabelle.h"

namespace tarvel {

/// Who leads a day race when all that each driver has driven is added up.
struct tagesfuehrender {
    std::string klasse;  ///< empty without classes
    std::string name;
    std::int64_t runden = 0;
};

/// One for each class, in their order; nobody who has not driven a lap. Empty for a table of another kind.
std::vector<tagesfuehrender> tagesfuehrung(ergebnistabelle tabelle, sortier_modus nach);

/// How it is said in a line: "In Führung: Anna, 24 Runden", in classes "In Führung: Klasse 1: Anna, …".
struct fuehrungsworte {
    std::string in_fuehrung, runde, runden;

    void eintragen(sprachliste& texte);
    /// `klasse` is the word for a class. Empty without anybody; of many classes the first ones.
    std::string zeile(const std::vector<tagesfuehrender>& wer, const std::string& klasse) const;
};

}  // namespace tarvel
