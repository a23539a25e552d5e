#pragma once

#include <functional>
#include <string>

#include "core/bildwahl.h"
#include "core/dateien.h"
#include "core/namensliste.h"
#include "core/speichernfenster.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "platform/meldungen.h"

namespace tarvel {

/// The page of the drivers, and in the same way that of the vehicles. It works on a copy: the program's list and the
/// file that it starts from change when the window takes the values over. Pictures, and lists that are saved under a
/// name, are written at once.
class listenseite {
public:
    /// What the two pages differ in.
    struct art {
        namensliste& liste;
        const std::string& datei;     ///< that the program starts from, below the folder of the lists
        const std::string& standard;  ///< the entry in front of every list, which belongs to the program
        std::string endung;
        std::string deutsch;    ///< title of the page
        std::string voll;       ///< said when the list has no room
        std::string bildtitel;  ///< of the window that a picture is chosen in
        int laden_text;         ///< of `texte::datei_text`; the text for saving is the next one
        int nicht_geladen;      ///< of `texte::meldung`
        int nicht_gespeichert;  ///< of `texte::meldung`
    };
    struct umgebung {
        const dateien& ablage;
        const texte& txt;
        plattform::meldungen& meldungen;
        speichernfenster& dateiwahl;
        bildwahl& bilder;
    };

    listenseite(umgebung um, art a);

    rahmen titel;
    bezeichnung Label_name;
    feld name;  ///< to be added
    liste namen;
    bild vorschau;  ///< picture of the selected entry
    befehl hinzufuegen;
    befehl entfernen;
    befehl alle_loeschen;
    befehl Liste_laden;
    befehl Liste_speichern;
    befehl kein_bild;
    befehl anderes_bild;

    void texte_nennen(sprachliste& texte);
    /// Shows the program's list.
    void zeigen();
    /// A picture file from anywhere on the machine becomes that of the selected entry.
    void bild_ablegen(const std::filesystem::path& bild);
    /// The program takes the page's list, and its file is written if the list has changed. False after a failed write.
    bool uebernehmen();
    /// There is something on the page that the program has not taken, a name that is still typed included.
    bool ungesichert() const;

private:
    void befehle_verbinden();
    void anzeigen(int markiert);
    void auswahl_folgen();
    void name_hinzufuegen();
    void laden_oeffnen();
    void speichern_oeffnen();
    void bild_neu_zuordnen();
    /// What a picture for the selected entry needs; it gets it.
    bildwahl::auftrag bildauftrag();
    void bild_setzen(const std::string& stamm);
    void melden(int nummer);

    umgebung um_;
    art art_;
    namensliste kopie_;
    std::string datei_;  ///< last one loaded or saved here
    bool nicht_geschrieben_ = false;
    std::string voll_text_;
    std::string bildtitel_text_;
    std::string frage_text_;
    std::string ersetzt_text_;
};

}  // namespace tarvel
