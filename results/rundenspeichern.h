#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/speichernfenster.h"
#include "platform/kalender.h"
#include "results/einzelrennen_datei.h"
#include "results/tabellenworte.h"

namespace tarvel {

/// Saves results: under a name of the operator's choice in its window, or by itself.
class rundenspeichern final : public speichernfenster {
public:
    rundenspeichern(const trennzeichen_tabelle& trennzeichen, const plattform::kalender& kalender,
                    const fenster_umgebung& um);

    std::vector<sprachliste> sprachdateien() override { return {sprache()}; }
    /// The texts of the window and of the files.
    sprachliste sprache();
    /// Opens the window for the single race, as its result is when it is saved: it must outlive the window.
    void oeffnen(const rennergebnis& ergebnis);
    /// Saves the single race without a question. A failure shows its message and is false, unless the operator has
    /// saved this very result already.
    bool automatisch_speichern(const rennergebnis& ergebnis);
    /// A file with the result of a race stands; below the program folder.
    std::function<void(const std::string& pfad, const rennergebnis& ergebnis)> bei_ergebnis;
    /// Writes the result of one of many races; `melden`: tells `bei_ergebnis`. A failure is not shown.
    bool rennen_schreiben(const std::string& pfad, const rennergebnis& ergebnis, bool melden);
    struct ergebnisziel {
        std::string vorschlag;  ///< of its name, without the ending
        std::string_view ordner;
        std::string_view endung;
        std::string titel = {};      ///< of the window, if not that of results
        bool einstellungen = false;  ///< the file holds settings, and a failure speaks of these
    };
    /// Opens the window for another file of the results. `schreiben` gets its name; a failure shows its message.
    void oeffnen(const ergebnisziel& ziel, std::function<bool(const std::string& name)> schreiben);
    /// The words of a competition's table.
    const wettkampf_worte& tabellenworte();
    /// Always false.
    bool schreibfehler_melden();
    /// Adds the result to the file of the day race, likewise. A file that is none of a day race stays as it is.
    bool tages_ergebnis_schreiben(const std::string& datei, const rennergebnis& ergebnis);

private:
    std::vector<std::string> zeilen(const rennergebnis& ergebnis) const {
        return einzelrennen_zeilen(ergebnis, wort_, trennzeichen_);
    }
    bool fehler_zeigen(const std::string& text);
    bool einzelrennen_schreiben(const std::string& pfad, const rennergebnis& ergebnis, bool melden = true);
    std::string stempel() const;

    const trennzeichen_tabelle& trennzeichen_;
    const plattform::kalender& kalender_;
    ergebnis_worte wort_;
    wettkampf_worte tabelle_;
    std::string titel_;
    std::string name_fehlt_;
    std::string schreibfehler_;
    std::string einstellungsfehler_;
    std::string tagesfehler_;
    std::vector<std::string> gesichert_;  ///< the result that was written last
};

}  // namespace tarvel
