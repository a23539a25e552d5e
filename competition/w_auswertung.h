#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "competition/wettkampfabend.h"
#include "competition/wettkampfblatt.h"
#include "core/fensterlogik.h"
#include "core/fensterumgebung.h"
#include "core/steuerelemente.h"
#include "results/urkundenfenster.h"

namespace tarvel {

/// The standing of the evening with all its figures and a bar for each driver: one list for each column, whose rows
/// belong together. The columns of `je` are the lanes from 1 on, or the heats where each meets each.
class w_auswertung final : public fensterlogik, private abendansicht {
public:
    w_auswertung(const fenster_umgebung& um, const einstellungen& einst, wettkampfabend& abend,
                 urkundenfenster& urkunden);

    static constexpr std::size_t je_max = jeder_zeile::heats_max;

    bezeichnung Label_stand;  ///< how far the evening is, and by what it is judged
    bezeichnung Label1;       ///< heads of the columns
    bezeichnung Label2;
    bezeichnung Label3;  ///< what the figures are
    bezeichnung Label_gesamt;
    std::array<bezeichnung, je_max> Label_je;  ///< a lane's with its colour
    bezeichnung Label_zeit;
    bezeichnung Label_balken;
    liste List_platz;
    liste List_name;
    liste List_gesamt;                          ///< laps, and metres in a second line
    std::array<tarvel::liste, je_max> List_je;  ///< laps, and the best lap in a second line
    liste List_zeit;
    liste List_balken;  ///< the bars in words
    befehl Command1;    ///< to the rows before
    befehl Command2;    ///< and to those behind
    befehl Command_drucken;
    befehl Command_pdf;
    befehl Command_urkunden;  ///< of the standing as it is
    befehl Command_schliessen;

    /// Print the standing or save it as pages; filled by the drawing.
    std::function<void()> drucken;
    std::function<void()> als_pdf;
    /// Brings all lists to where this row is the first one; filled by the drawing.
    std::function<void(int)> rollen;

    /// The drawing tells which row is the first one in sight, and how many are.
    void gerollt(int erste_zeile, int sichtbare);
    /// Of the rows of the lists.
    const std::vector<wettkampf_balken>& balken() const { return balken_; }
    const spuren<farbe>& farben() const { return einst_.farben_spur; }
    bool je_heat() const { return abend_.stand().modus == wettkampf_modus::jeder_gegen_jeden; }
    const spuren<bool>& spur_aktiv() const { return abend_.stand().spur_aktiv; }

    wettkampfblatt blatt() const;
    /// Suggestion for the file of the pages, below the program folder and without an extension.
    std::string blatt_datei() const;
    const texte::dateiworte& papierdatei() const { return um_.txt.papierdatei; }
    void pdf_misslungen() { um_.meldungen.zeigen(wort_.pdf_fehler, um_.txt.titel[1]); }
    void druck_misslungen() { um_.meldungen.zeigen(wort_.druckfehler, um_.txt.titel[1]); }

    std::vector<sprachliste> sprachdateien() override { return {sprache_w3()}; }
    sprachliste sprache_w3();
    void laden() override;

private:
    struct worte {
        std::string titel, kein_wettkampf, pdf_fehler, druckfehler;
    };

    void stand_zeigen() override;
    void befehle_verbinden();
    std::vector<liste*> listen();
    void koepfe_zeigen(std::size_t spalten);
    void zeilen_zeigen();
    void balken_zeigen();
    void auswaehlen(int zeile);
    void blaettern(int seiten);
    void urkunden_zeigen();
    void blaettern_zeigen();

    fenster_umgebung um_;
    const einstellungen& einst_;
    wettkampfabend& abend_;
    urkundenfenster& urkunden_;
    worte wort_;
    wettkampfblatt_worte blattwort_;
    std::vector<wettkampf_balken> balken_;
    std::vector<int> fahrer_;  ///< places in the start list of the rows
    int gewaehlter_ = 0;       ///< place in the start list, 0 for nobody
    int erste_zeile_ = 0;
    int sichtbare_ = 1;
};

}  // namespace tarvel
