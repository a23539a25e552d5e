#pragma once

#include <array>
#include <string>

#include "core/bestzeiten.h"
#include "core/einstellungen.h"
#include "core/fensterlogik.h"
#include "core/fensterregister.h"
#include "core/namensspalten.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "optionen/optionsfolgen.h"
#include "platform/kalender.h"
#include "platform/meldungen.h"

namespace tarvel {

/// The window `beste_zeiten_verwaltung`: corrects best times by hand, and chooses and creates their files. It works on
/// a copy, which is written and takes effect when the window closes. Its control arrays count the lanes from 0.
class beste_zeiten_verwaltung final : public fensterlogik {
public:
    struct umgebung {
        einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
        plattform::meldungen& meldungen;
        const plattform::kalender& kalender;
        tarvel::bestzeiten& bestzeiten;
        optionsfolgen& folgen;
        bestzeitfolgen& bestzeitfolge;
    };

    explicit beste_zeiten_verwaltung(umgebung um);

    bezeichnung Label_modus;
    auswahl Combo1;  ///< when best times are saved
    bezeichnung Label_datei;
    auswahl Combo2;  ///< the files that are there
    bezeichnung Label_neu;
    feld bestefile_name;  ///< of a new file
    befehl Command36;     ///< load the chosen file
    befehl Command37;     ///< create the new one

    std::array<bezeichnung, spuren_max> Label_spur;
    std::array<liste, spuren_max> bestefile_list;  ///< row n holds place n + 1: time, name, date
    std::array<namensspalten, spuren_max> namen;   ///< of their rows
    bezeichnung bestlabel1;
    bezeichnung bestlabel2;  ///< the record of the track

    rahmen Frame_korrektur;              ///< the fields of the selected entry
    std::array<bezeichnung, 4> Label_k;  ///< their captions
    feld Text1;                          ///< time
    feld Text2;                          ///< name
    feld Text3;                          ///< date
    feld Text4;                          ///< vehicle
    befehl Command34;                    ///< write the fields into the entry
    befehl Command29;                    ///< empty the entry
    befehl Command35;                    ///< empty all
    befehl Command1;                     ///< close

    void oeffnen();
    /// Keeps everything and closes. After a failed write the window stays, unless the operator gives the changes up.
    void schliessen() override;
    void laden() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache_bt()}; }
    /// The texts of the window.
    sprachliste sprache_bt();

private:
    struct worte {
        std::array<std::string, 3> modus;
        std::string spur;
        std::string zeit_unlesbar;
        std::string nichts_gewaehlt;
        std::string wirklich_loeschen;
        std::string eintrag_loeschen;
        std::string name_fehlt;
        std::string zeichen;
        std::string die_datei;
        std::string schon_da;
        std::string verwerfen;
    };

    void befehle_verbinden();
    void datei_zeigen();
    void liste_fuellen(int spur);
    std::string listenzeile(const bestzeit& eintrag, std::size_t breite) const;
    void felder_leeren();
    void eintrag_waehlen(int spur);
    void rekord_zeigen();
    void geaendert();
    void eintrag_aendern();
    void eintrag_loeschen();
    void alle_loeschen();
    void datei_laden();
    void datei_anlegen();
    bool speichern();
    void in_kraft_setzen();
    void melden(const std::string& text);
    std::string zeit_text(zeit_ms zeit) const;

    umgebung um_;
    worte wort_;
    bestzeiten kopie_;
    bestzeiten geschrieben_;  ///< what the file holds
    std::string datei_;
    int spur_ = 0;  ///< lane of the selected entry, 0 for none
};

}  // namespace tarvel
