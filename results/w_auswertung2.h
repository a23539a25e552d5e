#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/einstellungen.h"
#include "core/fensterlogik.h"
#include "core/fensterumgebung.h"
#include "platform/kalender.h"
#include "results/ergebnisansicht.h"
#include "results/ergebnisworte.h"
#include "results/fahrervergleich.h"
#include "results/korrekturrahmen.h"
#include "results/papierkopf.h"
#include "results/tabellenverlauf.h"
#include "results/tagesfuehrung.h"
#include "results/urkundenfenster.h"
#include "results/w_ausw_debug.h"

namespace tarvel {

/// The results viewer: opens result files of any kind, puts several together, sorts, adds up, corrects and saves them,
/// and shows races as sheet and chart. A source file changes only if it is saved over.
class w_auswertung2 final : public fensterlogik {
public:
    struct umfeld {
        fenster_umgebung welt;
        const einstellungen& einst;
        const renneinrichtung& einrichtung;
        const plattform::kalender& kalender;
        urkundenfenster& urkunden;
    };
    /// What the window shows in its middle.
    enum class blick { tabelle, blatt, verlauf, vergleich };
    static constexpr std::size_t blicke_anzahl = 4;
    static constexpr std::size_t klassen_max = 36;

    explicit w_auswertung2(const umfeld& um);

    bezeichnung Label1;  ///< what to do
    std::array<befehl, 3> Command19;
    bezeichnung Label_ordner;  ///< where the list of files is
    liste Dir1;                ///< folders in it; the first one may lead back
    liste File1;
    befehl Command4;          ///< open
    befehl Command2;          ///< add
    bezeichnung Label_datei;  ///< what is in memory
    std::array<befehl, blicke_anzahl> Command_blick;
    std::array<rahmen, blicke_anzahl> Frame_blick;
    bezeichnung Label_rennen;
    auswahl cbo_rennen;  ///< the race that sheet and chart show
    befehl Command_drucken;
    befehl Command_pdf;
    befehl Command_urkunden;
    bezeichnung Label_fuehrung;  ///< who leads a day race whose drivers are not added up yet
    bezeichnung Label_kopf;      ///< over the columns of the list
    liste auswertung_schoen;
    befehl Command10;  ///< details of laps, ...
    befehl command9;   ///< of metres, ...
    befehl Command11;  ///< and of best laps, in or out
    befehl Command3;   ///< sort anew
    befehl Command22;  ///< the ways of sorting, in or out
    befehl Command21;  ///< the same, beside the classes
    rahmen Frame_sortieren;
    bezeichnung Label10;
    std::array<haken, 3> opt_sortieren_nach;  ///< metres, laps, best lap
    befehl Command20;                         ///< add up the same drivers
    befehl Command18;                         ///< correct the selected line
    befehl Command_zurueck;                   ///< the last correction counts no more,
    befehl Command_wieder;                    ///< or again
    bezeichnung korrekturzeile;
    rahmen Frame_klassen;
    std::array<haken, klassen_max> Check1;  ///< one for each class that there is
    befehl Command8;                        ///< all classes
    befehl Command6;                        ///< save what is shown
    befehl Command1;                        ///< sort and show
    befehl Command16;                       ///< save
    rahmen Frame7;
    feld Text3;
    befehl Command17;          ///< saves under this name
    befehl Command12;          ///< or not
    befehl Command13;          ///< lines in memory, in or out
    befehl Command_protokoll;  ///< logs of races
    befehl Command5;           ///< close
    korrekturrahmen korrektur;

    /// Print what is shown or save it as pages, and bring it up to date; filled by the drawing.
    std::function<void()> drucken;
    std::function<void()> als_pdf;
    std::function<void()> zeichnen;

    /// Opens the window on a file below the program folder; an empty path opens it alone.
    void datei_zeigen(const std::string& pfad);
    /// The file whose one race is shown, below the program folder; none for a table of many races.
    std::optional<std::string> gezeigtes_rennen() const;
    /// Its log, likewise; none if there is none of it.
    std::optional<std::string> gezeigtes_protokoll() const;

    /// Of a file of one race, what people know as its result: the sheet.
    void blatt_zeigen();

    void laden() override;
    void entladen() override;
    void schliessen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache_w_ausw()}; }
    sprachliste sprache_w_ausw();

    w_ausw_debug& debug() { return debug_; }
    blick gezeigt() const { return blick_; }
    /// How people call the file of a result: one that was saved by itself by its time.
    std::string anzeigename(std::string_view pfad) const;
    /// The row of the list is a head.
    bool ist_kopf(std::size_t zeile) const { return zeile < ansicht_.zeilen.size() && ansicht_.zeilen[zeile].kopf; }
    const namensspalten& namen() const { return ansicht_.namen; }
    const std::string& wort_strafzeit() const { return ansicht_wort_.strafzeit; }
    const std::optional<rennergebnis>& rennen() const { return rennen_; }
    std::vector<fahrerstreuung> vergleich() const;
    /// What its times are.
    const std::string& vergleichsachse() const;
    const einstellungen& einst() const { return um_.einst; }
    /// What was driven, and when; over the sheet and the charts.
    std::string kopf() const;
    /// Whose evening it was.
    papierkopf blattkopf() const { return papierkopf_laden(um_.welt.ablage); }
    /// Suggestion for the file of the page, below the program folder and without an extension.
    std::string blatt_datei() const;
    const texte::dateiworte& papierdatei() const { return um_.welt.txt.papierdatei; }
    void pdf_misslungen() { fehler_melden(wort_.pdf_fehler); }
    void druck_misslungen() { fehler_melden(wort_.druckfehler); }

    diagramm_worte diagramm;
    blatt_worte blatt;
    struct {
        std::string titel, beste, median, streuung, zeiten, achse_runden, achse_beste, achse_addiert, leer;
    } vergleichswort;

private:
    struct worte {
        std::string titel, keine_datei, dateifehler, anderer_typ, nicht_sortierbar, klasse_fragen, klasse_titel;
        std::string eintrag_waehlen, falscher_wert, schreibfehler, name_fehlt, zeichen, ueberschreiben, veraendert;
        std::string verwerfen, zu_lang, summe_zu_lang, nicht_ueber, zu_viele, kein_blatt, pdf_fehler, druckfehler;
        std::string keine_tabelle, ende, eintrag, eintraege, eine_weitere, weitere, addiert, addiert_alle, rennen;
        std::string debug_auf, debug_zu, alle_plaetze, automatisch, ohne_klasse;
        std::array<std::string, 3> wertung;
        std::array<std::array<std::string, 2>, 3> details;  ///< in, out
        std::array<std::string, 5> art;                     ///< by the kind of file
    };
    struct datei {
        std::vector<std::string> zeilen;
        bool zu_lang = false;     ///< has more than the program holds
        std::size_t abdruck = 0;  ///< tells its lines from others
    };

    void befehle_verbinden();
    void sortierbefehle_verbinden();
    void speicherbefehle_verbinden();
    void dateitexte(sprachliste& texte);
    void meldungstexte(sprachliste& texte);

    void ordner_zeigen(const std::string& ordner);
    void ordner_betreten();
    /// The file that is chosen; a message and an empty text without one.
    std::string gewaehlte_datei();
    std::optional<datei> datei_lesen(const std::string& pfad) const;
    std::optional<ergebnistabelle> tabelle_von(const std::string& pfad, std::size_t& abdruck);
    void oeffnen(const std::string& pfad);
    void dazu(const std::string& pfad);

    void neu_sortieren();
    sortier_modus sortieren_nach() const;
    void fahrer_addieren();
    void korrektur_beginnen();
    void korrektur_eintragen();
    void korrektur_beenden();
    /// One of the corrections has been taken back, or counts again.
    void korrigiertes_zeigen();
    std::string namensvorschlag() const;
    void speichern_oeffnen(bool auswahl);
    void speichern_schliessen();
    void speichern();
    bool darf_schreiben(const std::string& pfad);
    std::vector<std::string> zu_speichern() const;
    void debug_umschalten();

    /// Corrections that are not saved go only if the operator wants it.
    bool darf_verwerfen();
    void tabelle_neu();
    void tabelle_anzeigen();
    /// Over the table: what is in memory.
    void datei_nennen();
    /// Files of the folder in sight go with time; what is saved is kept elsewhere.
    bool automatischer_ordner() const;
    void ordner_nennen();
    void fuehrung_nennen();
    void rennplaetze_eintragen();
    void klassen_zeigen();
    std::set<std::string> ausgelassene_klassen() const;
    void details_umschalten(std::size_t welche);
    void details_zeigen();
    void blicken(blick neu);
    void rennen_zeigen();
    std::optional<rennergebnis> gewaehltes_rennen() const;
    void marken_aus_dem_protokoll(rennergebnis& rennen);
    void urkunden_zeigen();
    /// As its name says; without that, the day on which it was written last.
    std::string tag_der_datei() const;
    void bedienung_einrichten();
    void hinweisen(const std::string& text) { um_.welt.meldungen.zeigen(text, um_.welt.txt.titel[0]); }
    void fehler_melden(const std::string& text) { um_.welt.meldungen.zeigen(text, um_.welt.txt.titel[1]); }

    umfeld um_;
    w_ausw_debug debug_;
    worte wort_;
    ansicht_worte ansicht_wort_;
    fuehrungsworte fuehrung_;
    std::string ordner_;                            ///< below the program folder
    std::vector<std::string> dateien_;              ///< in memory, with their folders
    std::map<std::string, std::size_t> abdruecke_;  ///< of the files as they were opened or saved last
    std::optional<ergebnistabelle> tabelle_;
    ergebnisansicht ansicht_;
    detailwahl details_;
    blick blick_ = blick::tabelle;
    std::optional<rennergebnis> rennen_;
    bool protokoll_gelesen_ = false;               ///< of the file in memory
    std::optional<rennergebnis> protokolliertes_;  ///< its race, as the log has it
    bool nur_auswahl_ = false;                     ///< is to be saved
    tabellenverlauf korrekturen_;
    std::array<std::string, klassen_max> klassen_;  ///< of the boxes, as the file has them
    bool klassen_vereint_ = false;                  ///< drivers were added up whatever their class
    bool sortiert_ = false;                         ///< the places are those of the last sorting
};

}  // namespace tarvel
