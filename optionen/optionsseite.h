#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "optionen/optionszeile.h"

namespace tarvel {

/// Rows that belong together.
struct optionsgruppe {
    std::string deutsch;
    int spalte = 0;  ///< column of the page, from 0
    rahmen titel;
    std::vector<optionszeile_zeiger> zeilen;

    optionsgruppe& operator<<(optionszeile_zeiger zeile) {
        zeilen.push_back(std::move(zeile));
        return *this;
    }
};

/// One page of the options window.
struct optionsseite {
    explicit optionsseite(std::string_view name_deutsch) : deutsch(name_deutsch) {}

    std::string deutsch;
    rahmen titel;
    std::vector<std::unique_ptr<optionsgruppe>> gruppen;

    optionsgruppe& gruppe(std::string_view name_deutsch, int spalte);
    /// The page's texts in the order of the language file.
    void texte_nennen(sprachliste& texte);
};

using optionsseite_zeiger = std::unique_ptr<optionsseite>;

/// The pages that are nothing but their rows.
namespace optionsseiten {

optionsseite_zeiger start_ziel();
optionsseite_zeiger wettkampf_training();
optionsseite_zeiger tanken_chaos();
optionsseite_zeiger sektoren_topspeed();
optionsseite_zeiger bestzeiten();
/// Group 0 holds what all hardware shares, group k+1 the values of hardware k.
optionsseite_zeiger messhardware();
/// The captions of the 64 files come from a language file of their own.
optionsseite_zeiger sounds();
optionsseite_zeiger farben();
optionsseite_zeiger trennzeichen();

/// German names of the sound events; index 0 is the first event.
std::vector<std::string> sound_ereignisse();

}  // namespace optionsseiten
}  // namespace tarvel
