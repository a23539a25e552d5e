#pragma once

#include <string>

#include "core/speichernfenster.h"
#include "results/einzelrennen_datei.h"

namespace tarvel {

/// Saves results: under a name of the operator's choice in its window, or by itself.
class rundenspeichern final : public speichernfenster {
public:
    rundenspeichern(rennen& r, const wertung& stand, const fenster_umgebung& um);

    std::vector<sprachliste> sprachdateien() override { return {sprache()}; }
    /// The texts of the window and of the files.
    sprachliste sprache();
    /// Opens the window for the single race.
    void oeffnen();
    /// Saves the single race without a question. A failure shows its message and is false, unless the operator has
    /// saved this very result already.
    bool automatisch_speichern();
    /// Adds the result to the file of the day race, likewise. A file that is none of a day race stays as it is.
    bool tages_ergebnis_schreiben(const std::string& datei);

private:
    std::vector<std::string> zeilen() const { return einzelrennen_zeilen({r_.umgebung, r_.sektoren, stand_, wort_}); }
    bool einzelrennen_schreiben(const std::string& pfad);
    /// Always false.
    bool schreibfehler_melden();
    std::string stempel() const;

    rennen& r_;
    const wertung& stand_;
    ergebnis_worte wort_;
    std::string titel_;
    std::string name_fehlt_;
    std::string schreibfehler_;
    std::string tagesfehler_;
    std::vector<std::string> gesichert_;  ///< the result that was written last
};

}  // namespace tarvel
