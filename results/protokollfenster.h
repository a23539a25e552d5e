#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/einstellungen.h"
#include "core/fensterlogik.h"
#include "core/fensterumgebung.h"
#include "race/hergangsworte.h"
#include "race/rennen.h"
#include "race/rennhergang.h"
#include "results/korrekturworte.h"
#include "results/protokollmithoerer.h"

namespace tarvel {

/// The window that explains a race from its log: a table of what happened, and the same as a strip over time.
class protokollfenster final : public fensterlogik {
public:
    struct umfeld {
        fenster_umgebung welt;
        const einstellungen& einst;
        rennen& r;
        plattform::zeitgeber_dienst& zeitgeber;
    };
    /// Kinds that a race director tells apart; the index of their tick boxes.
    enum gruppe : std::size_t {
        runden,
        abgelehnt,
        start_ziel,
        pausen,
        strafen,
        tanken,
        plaetze,
        befehle,
        geraete,
        gruppen_anzahl
    };
    static gruppe gruppe_von(vorgang was);

    explicit protokollfenster(const umfeld& um);

    rahmen Frame_dateien;  ///< the logs to choose from
    bezeichnung Label_dateien;
    liste List_dateien;
    bezeichnung Label_kopf;     ///< which race
    bezeichnung Label_hinweis;  ///< what is to say about the log
    bezeichnung Label_spur;
    auswahl cbo_spur;  ///< all lanes, then each
    std::array<haken, gruppen_anzahl> Check_gruppe;
    befehl Command_groesser;
    befehl Command_kleiner;
    befehl Command_ganz;
    befehl Command_drucken;
    befehl Command_pdf;
    befehl Command_wiedergabe;
    befehl Command_weiter;  ///< ends the pause that the window was opened in
    befehl Command_schliessen;

    /// Filled by the drawing: other rows, another choice or another part of the time are to be shown; paper.
    std::function<void()> inhalt_neu;
    std::function<void()> wahl_neu;
    std::function<void()> ausschnitt_neu;
    std::function<void()> drucken;
    std::function<void()> als_pdf;
    /// Plays the race of this log again, shortly before the moment of the chosen row if there is one but the first;
    /// without it there is no such command.
    std::function<void(const std::string& datei, std::optional<zeit_ms> ab)> wiedergeben;

    /// Opens the window on one log, by its name below the program folder. In a pause the race goes before it: the
    /// window is not modal, shows what still comes, and closes with the pause.
    void zeigen(const std::string& datei);
    /// Opens it with all logs to choose from, at first on the named one or the newest.
    void auswahl_zeigen(std::string_view zuerst = {});
    /// What is said of a result that no log is left of.
    const std::string& ohne_protokoll();

    void laden() override;
    void entladen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache_pr()}; }
    sprachliste sprache_pr();
    /// How it says what happened, in the language of now.
    hergangsworte in_worten();

    const rennhergang& hergang() const { return hergang_; }
    /// What the table shows: places in `hergang().alle`.
    const std::vector<std::size_t>& zeilen() const { return zeilen_; }
    const geschehen& zeile(std::size_t nummer) const { return hergang_.alle[zeilen_.at(nummer)]; }
    std::string zeit_von(const geschehen& g) const { return hergang_zeit(g.seit_gruen, 3, worte_.komma); }
    std::string worte_von(const geschehen& g) const {
        return g.was == vorgang::korrektur ? korrektur_.von(g.text, worte_) : worte_.von(g);
    }
    std::string fahrer(int spur) const;
    /// Who drove there as it happened.
    std::string fahrername(const geschehen& g) const { return hergang_.fahrername(g); }
    bool faehrt(int spur) const;
    const einstellungen& einst() const { return um_.einst; }
    const std::array<std::string, 4>& spalten() const { return wort_.spalten; }
    /// From when on the times of the first column count.
    const std::string& zeit_tipp() const { return wort_.zeit_tipp; }

    /// The chosen row of the table, -1 none.
    int gewaehlt() const { return gewaehlt_; }
    void waehlen(int zeile);
    /// The row that is next to this moment on this lane, 0 for any; -1 if none is that near.
    int naechste_zeile(int spur, zeit_ms zeit, zeit_ms hoechstens) const;

    /// The part of the time that the strip shows, from the green light.
    struct zeitraum {
        zeit_ms von = 0;
        zeit_ms bis = 1;
        zeit_ms dauer() const { return bis - von; }
        bool operator==(const zeitraum&) const = default;
    };
    const zeitraum& ausschnitt() const { return ausschnitt_; }
    zeitraum ganzes() const;
    /// `faktor` below 1 shows less; the moment `um` stays where it is.
    void zoomen(double faktor, zeit_ms um);
    void schieben(zeit_ms um);

    /// What was driven, and when.
    std::string kopf() const { return Label_kopf.text(); }
    /// Suggestion for the file of the pages, below the program folder and without an extension.
    std::string blatt_datei() const;
    const texte::dateiworte& papierdatei() const { return um_.welt.txt.papierdatei; }
    void pdf_misslungen() { fehler_melden(wort_.pdf_fehler); }
    void druck_misslungen() { fehler_melden(wort_.druckfehler); }

private:
    struct worte {
        std::string alle_spuren, spur, rundenrennen, eine_runde, zeitrennen, ohne_ende, unlesbar, beschaedigt, keine,
            einer, mehrere;
        std::string pdf_fehler, druckfehler, kein_protokoll, mit_pausen, zeit_tipp, ab, von_bis;
        std::array<std::string, 4> spalten;  ///< of the table
    };

    void befehle_verbinden();
    void oeffnen(anzeige_art art);
    void dateien_auflisten();
    void datei_lesen(const std::string& name);
    void inhalt_zeigen(std::string_view inhalt);
    /// What has come to the log since, while the window is open in a pause.
    void nachgekommenes_zeigen();
    /// Shows what is ticked; of that, `gewaehltes` of all happenings stays chosen.
    void filtern(std::size_t gewaehltes);
    void filtern() { filtern(gewaehltes()); }
    /// The place of the chosen row in all happenings; behind their end for none.
    std::size_t gewaehltes() const;
    void ausschnitt_setzen(zeitraum neu);
    /// Which race, and when: from the opening of its window on, to its end if that is known.
    std::string beschreibung(const protokollkopf& kopf, std::string_view ende) const;
    std::string hinweis() const;
    void fehler_melden(const std::string& text) { um_.welt.meldungen.zeigen(text, um_.welt.txt.titel[1]); }

    umfeld um_;
    worte wort_;
    hergangsworte worte_;
    korrekturworte korrektur_;
    std::unique_ptr<plattform::zeitgeber> pausentimer_;
    std::unique_ptr<plattform::zeitgeber> blicktimer_;  ///< in a pause: what has come since
    protokollmithoerer mithoerer_;
    std::vector<std::string> namen_;  ///< of the logs in the list
    std::string name_;                ///< of the log that is shown, without its folder
    rennhergang hergang_;
    std::vector<std::size_t> zeilen_;
    int gewaehlt_ = -1;
    zeitraum ausschnitt_;
};

}  // namespace tarvel
