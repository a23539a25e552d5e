#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/wechselschema.h"
#include "optionen/optionszeile.h"
#include "platform/meldungen.h"

namespace tarvel {

/// Ties the rows of the lane change scheme together: a scheme that is chosen shows its order, and the order in the
/// field becomes a new scheme under the name beside it.
class schemawahl {
public:
    struct umgebung {
        const dateien& ablage;
        const texte& txt;
        plattform::meldungen& meldungen;
    };
    struct zeilen {
        optionszeile& auswahl;
        optionszeile& folge;
        optionszeile& name;
        optionszeile& hinzufuegen;
    };

    schemawahl(const umgebung& um, const zeilen& z);

    /// The order in the field has changed.
    std::function<void()> folge_geaendert;

    void texte_nennen(sprachliste& texte);
    /// Fills the choice from the file; `gewaehlt` stays in it, also where the file no longer has it.
    void zeigen(const std::string& gewaehlt);

private:
    void auswahl_geaendert();
    void schema_hinzufuegen();
    void folge_melden() const;
    void eintraege_zeigen();
    void melden(const std::string& text) { um_.meldungen.zeigen(text, um_.txt.titel[0]); }

    umgebung um_;
    optionszeile& ungueltig_;  ///< its message is the word for a wrong scheme
    auswahl& auswahl_;
    feld& folge_;
    feld& name_;
    std::vector<wechselschema> schemas_;
    std::string datei_fehler_;
    std::string name_fehlt_;
    std::string name_vergeben_;
};

}  // namespace tarvel
