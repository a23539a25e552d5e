#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/einstellungen.h"
#include "core/fensterumgebung.h"
#include "core/namensliste.h"
#include "core/steuerelemente.h"
#include "results/urkunde.h"

namespace tarvel {

/// The window in which the certificates of a race are seen, printed and saved. The names of club and event that are
/// typed here stand on the sheet of a result as well.
class urkundenfenster final : public fensterlogik {
public:
    struct umfeld {
        fenster_umgebung welt;
        const einstellungen& einst;
        const namensliste& fahrer;
        const namensliste& fahrzeuge;
    };

    explicit urkundenfenster(const umfeld& um);

    bezeichnung Label_verein;
    feld verein;
    bezeichnung Label_veranstaltung;
    feld veranstaltung;
    bezeichnung Label_vorlage;
    auswahl vorlage;  ///< the first one is built in
    rahmen Frame_fahrer;
    liste fahrer;            ///< in the order of the places; who gets a certificate has a mark. The selected one shows.
    haken dabei;             ///< the selected one gets one
    befehl Command_alle;     ///< all of them do
    befehl Command_keiner;   ///< none does
    befehl Command_zurueck;  ///< the one before
    befehl Command_vor;
    bezeichnung Label_seite;
    bezeichnung Label_keine;  ///< in the place of the sheet, where nobody has a result
    befehl Command_drucken;
    befehl Command_pdf;
    befehl Command_ende;

    /// Print the pages, save them, and bring the picture up to date; filled by the drawing.
    std::function<void()> drucken;
    std::function<void()> als_pdf;
    std::function<void()> zeichnen;

    /// Opens the window. `rennen` says what was driven.
    void oeffnen(const rennergebnis& ergebnis, const std::string& rennen);
    /// The same for the table of a competition or a day. A name that a file has cut is whole again if only one of the
    /// drivers' list can be meant.
    void oeffnen(std::vector<tabellenplatz> plaetze, const std::string& datum, const std::string& rennen);

    std::vector<sprachliste> sprachdateien() override { return {sprache_u()}; }
    sprachliste sprache_u();
    void entladen() override;

    /// The certificates of those who are ticked.
    std::vector<urkunde> gewaehlte() const;
    /// The one that is shown, null without any.
    const urkunde* gezeigte() const;
    const urkundenvorlage& gezeigte_vorlage() const { return vorlage_; }
    const einstellungen& einst() const { return um_.einst; }
    /// Suggestion for their file, below the program folder and without an extension.
    std::string pdf_datei() const;
    const texte::dateiworte& papierdatei() const { return um_.welt.txt.papierdatei; }
    void pdf_misslungen() { melden(wort_.pdf_fehler); }
    void druck_misslungen() { melden(wort_.druckfehler); }

private:
    void aufschlagen(const std::string& rennen, const std::string& datum);
    void waehlbar_machen();
    void kopf_lesen();
    void neu_bilden();
    /// The row of the list says if its driver gets one.
    void zeilen_schreiben();
    void markierten_umschalten();
    void alle_waehlen(bool an);
    void blaettern(int schritt);
    void seite_zeigen();
    void vorlage_waehlen();
    void vorlage_laden(const std::string& name);
    void melden(const std::string& text) { um_.welt.meldungen.zeigen(text, um_.welt.txt.titel[1]); }

    umfeld um_;
    struct {
        std::string eingebaut, platz, ohne_platz, vorlage_fehlt, vorlage_fehler, schreibfehler, pdf_fehler;
        std::string druckfehler, klasse, urkunde;
    } wort_;
    vorlagentitel titel_;  ///< of the built-in template
    std::function<std::vector<urkunde>(const urkundenangaben&)> bilden_;
    urkundenangaben angaben_;
    papierkopf gespeichert_;
    std::string datum_;  ///< of the race
    urkundenvorlage vorlage_;
    std::vector<urkunde> urkunden_;
    std::vector<bool> gewaehlt_;  ///< which of them are made
    std::size_t seite_ = 0;       ///< of `urkunden_`
};

}  // namespace tarvel
