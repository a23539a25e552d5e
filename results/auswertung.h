#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "core/fensterlogik.h"
#include "core/steuerelemente.h"
#include "race/rennen.h"
#include "results/beste_zeiten_fenster.h"
#include "results/ergebnisworte.h"
#include "results/rundennachtrag.h"
#include "results/rundenspeichern.h"
#include "results/rundenverlauf.h"
#include "results/urkundenfenster.h"
#include "results/wertung.h"

namespace tarvel {

struct hergangsworte;

/// The result window: shows the standing of the race, lets the race director correct it, and decides how the program
/// goes on. Its control arrays count the lanes from 0.
class auswertung final : public fensterlogik {
public:
    struct umfeld {
        rennen& r;
        einstellungen& einst;
        plattform::zeitgeber_dienst& zeitgeber;
        wertung& stand;
        rundenspeichern& speichern;
        beste_zeiten_fenster& bestzeiten;
        urkundenfenster& urkunden;
    };

    explicit auswertung(const umfeld& um);

    template <class Element>
    using je_spur = std::array<Element, spuren_max>;

    je_spur<rahmen> Frame;  ///< all of a lane; its row is the place
    je_spur<bezeichnung> platz;
    je_spur<bild> Image1;  ///< driver
    je_spur<bild> Image2;  ///< vehicle
    je_spur<bezeichnung> fahrer;
    je_spur<bezeichnung> fahrzeug;
    je_spur<bezeichnung> Label_spur;  ///< captions of the cells
    je_spur<bezeichnung> Label_runden;
    je_spur<bezeichnung> Label_zeit;
    je_spur<bezeichnung> Label_beste;
    je_spur<bezeichnung> Label_tank;
    je_spur<bezeichnung> runden_aus;
    je_spur<bezeichnung> beste_aus;
    je_spur<bezeichnung> zeit_aus;
    je_spur<bezeichnung> abstandlabel;
    je_spur<bezeichnung> rueckstandlabel;  ///< the gap as people say it
    je_spur<bezeichnung> kmh_label;
    je_spur<bezeichnung> ges_meter;
    je_spur<bezeichnung> meter_label;
    je_spur<feld> meter;  ///< metres beyond the last lap
    je_spur<bezeichnung> aus_straflabel;
    je_spur<rahmen> Frame_tank;       ///< only where it counts
    je_spur<bezeichnung> tankinhalt;  ///< litres
    je_spur<tarvel::liste> liste;     ///< row n - 1 holds lap n
    je_spur<befehl> cmd_anzeige;      ///< what the list shows of a lap
    je_spur<befehl> cmd_rd_inc;       ///< deletes the selected lap
    je_spur<befehl> cmd_rd_add;       ///< selects the next lap

    bezeichnung kopf_label;      ///< what was driven, and when
    bezeichnung Label_ab_gruen;  ///< the order from the green light, where that is another
    rahmen Frame_stand;          ///< the lanes, and in their place
    rahmen Frame_verlauf;        ///< the chart
    befehl Command1;             ///< repeats the race
    befehl Command2;             ///< starts a race with the drivers on their next lanes
    befehl Command3;             ///< goes on, likewise
    befehl Command4;             ///< saves under a name
    befehl Command5;             ///< back to the main window
    befehl Command6;             ///< begins and ends the entry of metres
    befehl Command7;             ///< the competition waits
    befehl Command8;             ///< deletes the selected lap
    befehl Command9;             ///< best times
    befehl Command10;            ///< evaluates anew
    befehl Command_verlauf;      ///< chart or standing
    befehl Command_protokoll;    ///< what happened, and when
    befehl Command_nachtragen;   ///< opens the frame in which a lap is added
    befehl Command_zurueck;      ///< the last correction, or the last that was taken back
    befehl Command_wieder;
    rundennachtrag nachtrag;  ///< in place of the standing
    befehl Command_drucken;
    befehl Command_pdf;
    befehl Command_urkunden;
    befehl Command_wiedergabe;  ///< the race runs again
    rahmen Frame1;              ///< the two commands that move drivers
    haken spurwechsel;          ///< drivers go to their next lanes; as the operator left it
    haken tauschfahrzeug;       ///< and vehicles with them
    bezeichnung Label_bis;      ///< new target of a race that goes on
    feld neues_ziel;            ///< laps, or minutes and seconds as on the main window
    bezeichnung ziel_einheit;
    bezeichnung trainingslabel;    ///< counts down to the next round of a training
    bezeichnung Label_vorlaeufig;  ///< crossings behind the end are still taken, and the result may change; or no more

    /// Print the standing or save it as a page, and bring the chart up to date; filled by the drawing.
    std::function<void()> drucken;
    std::function<void()> als_pdf;
    std::function<void()> verlauf_zeichnen;
    /// The log of the race, and the race again; null without one.
    std::function<void()> protokoll_zeigen;
    std::function<void()> wiedergabe_zeigen;
    /// How the window "Protokoll" says what happened.
    std::function<hergangsworte()> hergang_in_worten;
    /// Counts late crossings and shows the standing.
    void laden() override;
    /// Opens with the corrections that this result had before the program's end.
    void wieder_oeffnen();
    void entladen() override;
    /// A crossing behind the end may still count.
    bool zaehlt_nach() const { return ch_durch3_->laeuft(); }
    /// Everything anew from the race record.
    void auswertung_anzeigen();
    /// An entry of metres that has not been finished counts too.
    void meter_eingabe_uebernehmen();

    void cmd1_fortsetzung();
    void cmd2_fortsetzung();
    void cmd3_fortsetzung();
    void cmd5_fortsetzung();
    /// Closing the window means leaving it; an entry of metres has to be finished first.
    void schliessen() override { Command5.klicken(); }
    bool escape_schliesst() const override { return false; }
    std::vector<sprachliste> sprachdateien() override { return {sprache_a()}; }

    /// What the window shows.
    const rennergebnis& ergebnis() const { return u_.stand.ergebnis(); }
    /// What was driven, and when.
    std::string kopf() const;
    /// Whose evening it is.
    papierkopf blattkopf() const { return papierkopf_laden(um_.ablage); }
    const std::string& wort_strafzeit() const { return wort_.strafzeit; }
    const einstellungen& einst() const { return um_.einst; }
    /// Suggestion for the file of the page, below the program folder and without an extension.
    std::string blatt_datei() const;
    const texte::dateiworte& papierdatei() const { return um_.txt.papierdatei; }
    void pdf_misslungen() { um_.meldungen.zeigen(wort_.pdf_fehler, um_.txt.titel[1]); }
    void druck_misslungen() { um_.meldungen.zeigen(wort_.druckfehler, um_.txt.titel[1]); }

    diagramm_worte diagramm;  ///< words of the chart and of the page
    blatt_worte blatt;

    /// The texts of the window.
    sprachliste sprache_a();

private:
    /// What the list of a lane shows beside the lap times.
    enum class anzeige { zeit, mit_sektorzeit, mit_tempo, mit_beidem };
    using schritt = selbstlauf::schritt;
    enum class aktion { keine, wiederholen, neu_starten, fortsetzen, hauptmenue };

    struct worte {
        std::string zeitrennen, rundenrennen, vorzeitig, spur, rundenliste, strafzeit;
        std::string tempo;  ///< names the two speeds
        std::string meter_eingeben, fertig, spur_wechseln, rennen, hauptmenue, weiter;
        std::string runde_waehlen, keine_sektoren, maximum, maximum_titel, training, weiter_in, verlust;
        std::string minuten, runden, verlauf, stand, minuten_hinweis, pdf_fehler, druckfehler, restmeter;
        std::string ergebnis;       ///< names its page
        std::string endgueltig;     ///< crossings behind the end are taken no more
        std::string abstand;        ///< explains the gap to the leader
        std::string gesamtzeit;     ///< and what the total time is
        std::string neue_bestzeit;  ///< and a best lap in red
        std::string zurueck, wieder, nachgetragen, geteilt, ausfall, nachtrag_waehlen, hinter_dem_ziel;
        std::string keine_zahl, zu_viele_meter, trotzdem;
        std::string plaetze_stimmen, plaetze_neu;
        std::string zum_tagesrennen;         ///< explains where the way out leads in the list of a day
        std::string ende;                    ///< in front of the time of day
        std::string folge;                   ///< in front of the order that the race window does not show
        std::string folge_ab_erster;         ///< the same where it is the own first crossing that makes it
        std::array<std::string, 3> wertung;  ///< by metres, laps, best lap
    };

    void befehle_verbinden();
    void spurbefehle_verbinden(std::size_t i);
    void platzierung_pruefen();
    void tipps_eintragen(sprachliste& texte);
    void korrekturtexte(sprachliste& texte);
    void ansagen_setzen();
    void bedienung_einrichten();
    void ziel_vorschlagen();
    void ziel_einheit_zeigen();
    /// To those who look at the race window.
    void folge_auf_der_bahn_nennen();
    void spur_anzeigen(const rennergebnis::spur& s);
    void bilder_anzeigen(const rennergebnis::spur& s);
    void rundenliste_schreiben(const rennergebnis::spur& s);
    std::string rundenzeile(const rennergebnis::spur& s, std::size_t runde) const;

    void zeitgeber_verbinden(plattform::zeitgeber_dienst& dienst);
    void zeitgeber_aus();
    void zielsignal_beenden();
    void nachzaehlen();
    void nachzaehlen_beenden();
    void training_tick();
    void w_auto5_tick();
    /// Nobody is thrown out of an entry, or of a window in front of this one. A device that comes back tells so
    /// whether somebody is there or not.
    bool eingabe_offen() const;
    void urkunden_zeigen();
    std::string art_und_ziel() const;
    /// One second of the wait; true when it is over.
    bool wartezeit_vorbei(const std::string& wort);
    enum class ansicht { stand, verlauf, nachtrag };
    void zeigen(ansicht was);
    void verlauf_nachfuehren();

    void Command6_klick();
    void meter_eingabe(bool an);
    /// Each entry is a number, and within its lane unless the operator insists.
    bool meter_pruefen();
    void korrektur_beginnen();
    void runde_loeschen();
    void korrekturen_anbieten();
    std::string korrektur_text(const korrekturschritt& schritt) const;
    void korrektur_zuruecknehmen();
    void korrektur_wiederherstellen();
    void nachtrag_oeffnen();
    void nachtrag_fuellen(int spur, int runde);
    offene_runden offene_runden_lesen() const;
    void runde_nachtragen(const korrektur& k);
    /// The operator sees in its list what he has added.
    void nachgetragene_waehlen(const korrekturschritt& neue);
    void runde_loeschen_auf(std::size_t i);
    void anzeige_weiterschalten(std::size_t i);

    /// Opens the best times if there is a new one; `danach` follows when they are closed, or at once.
    void bestzeiten_vor(aktion danach, bool von_selbst = false);
    void bestzeiten_oeffnen(aktion danach, bool von_selbst = false);
    void bestzeiten_pruefen();
    void ausfuehren(aktion was);
    /// False if the result could not be saved and the operator does not want to lose it.
    bool ergebnis_abgeben(weitergang wie);
    void rennen_verlassen();
    void bahn_neu_oeffnen();
    aktion weg_hinaus() const;
    void selbstlauf_beginnen();
    void selbstlauf_unterbrechen();
    bool geht_von_selbst_weiter() const {
        return selbst_.was == schritt::neu_starten || selbst_.was == schritt::fortsetzen;
    }
    void wechselschema_anwenden();
    rennziel ziel_max() const {
        return um_.teil_von->fortsetzbar_bis().value_or(rennziel::aus_zahl(um_.param.renn_ziel.art(), 0));
    }
    /// Of the next part, as long as the first.
    rennziel naechstes_ziel() const;
    bool ziel_lesen(rennziel& ziel) const;
    /// The same with its messages.
    bool ziel_pruefen(rennziel& ziel);

    rennen& r_;
    const renn_umgebung& um_;
    umfeld u_;
    worte wort_;
    anlassworte anlass_;
    std::unique_ptr<plattform::zeitgeber> zieltimer_;  ///< ends the signal at the race end
    std::unique_ptr<plattform::zeitgeber> ch_durch3_;  ///< counts late crossings
    std::unique_ptr<plattform::zeitgeber> ch_durch4_;  ///< and ends that
    std::unique_ptr<plattform::zeitgeber> w_auto5_;    ///< leaves by itself
    std::unique_ptr<plattform::zeitgeber> tmr_dauertraining_;
    je_spur<std::unique_ptr<plattform::zeitgeber>> beste_blink_timer_;
    je_spur<anzeige> anzeige_modus_{};
    aktion aktion_nach_bestzeiten_ = aktion::keine;
    bool neue_bestzeit_ = false;
    bool meter_eingabe_an_ = false;
    int gewaehlte_spur_ = 0;  ///< whose list the operator has clicked, 0 none
    dauer_s gewartet_{};      ///< of the wait before it goes on by itself
    selbstlauf selbst_;       ///< of the race whose result is shown
    bool wieder_ = false;     ///< the result has its corrections already
    bool automatik_ = false;  ///< what is being left goes on without the operator
};

}  // namespace tarvel
