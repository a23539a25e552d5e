#pragma once

#include <string>

#include "results/einzelrennen.h"

namespace tarvel {

/// The races of a day: each result is added to the day's file.
class tagesrennen final : public einzelrennen {
public:
    using einzelrennen::einzelrennen;

    std::string datei;  ///< below the program folder

    std::string kennung() const override { return "tagesrennen " + datei; }
    std::string anlass(const anlassworte& wort) const override {
        const std::string name = datei.substr(datei.find_last_of('\\') + 1);
        return wort.tagesrennen + " " + name.substr(0, name.rfind('.'));
    }
    /// The next race of the day is set up there, and there its standing is seen.
    fenstername zurueck() const override { return fenstername::Tagesrennen; }
    anzeige_art zurueck_als() const override { return anzeige_art::modal; }
    bool uebernehmen(const rennergebnis& ergebnis, weitergang wie) override {
        return wie == weitergang::verlassen ? um_.speichern.tages_ergebnis_schreiben(datei, ergebnis)
                                            : einzelrennen::uebernehmen(ergebnis, wie);
    }
};

}  // namespace tarvel
