#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "competition/rennplan.h"
#include "competition/teilnehmerliste.h"
#include "core/bildwahl.h"
#include "core/einstellungen.h"
#include "core/fensterumgebung.h"
#include "core/letzte_fahrer.h"
#include "core/renn_parameter.h"
#include "core/renneinrichtung.h"
#include "core/speichernfenster.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"
#include "platform/schnittstelle.h"
#include "platform/zufall.h"

namespace tarvel {

/// What a competition begins with.
struct wettkampfvorgabe {
    std::string titel;                ///< without commas, never empty
    std::vector<std::string> fahrer;  ///< in the order of the start list; no fillers, nobody twice, no more than fit
    std::vector<std::string> bilder;  ///< of each driver, a file below the program folder
    planvorgabe plan;                 ///< for which a plan can be drawn up
    bool qualifying = false;          ///< its ranking becomes the start list of the next competition
};

/// What follows the set-up.
class wettkampf1_folgen : public schnittstelle {
public:
    virtual void beginnen(const wettkampfvorgabe& vorgabe) = 0;
    /// A competition that was saved goes on.
    virtual void laden() = 0;
};

/// The window `wettkampf1`: who takes part in a competition, in which order, and what plan comes of it. On its left
/// stand the drivers to choose from, on its right the start list.
class wettkampf1 final : public fensterlogik {
public:
    struct umgebung {
        fenster_umgebung welt;
        const einstellungen& einst;
        renneinrichtung& einrichtung;
        renn_parameter& param;
        const namensliste& fahrerliste;
        const letzte_fahrer& zuletzt_gefahren;
        speichernfenster& dateiwahl;
        bildwahl& bilder;
        plattform::zufall& zufall;
        wettkampf1_folgen& folgen;
    };

    explicit wettkampf1(umgebung um);

    bezeichnung Label_titel;
    feld Text1;  ///< title of the competition

    rahmen Frame_gesamt;
    liste rennliste;  ///< the drivers to choose from
    bezeichnung label_anzahl;
    befehl Command22;  ///< load them from a file
    befehl Command23;  ///< save them

    befehl Command16;  ///< the chosen driver to the start list
    befehl Command17;  ///< all of them
    befehl Command18;  ///< the chosen driver back
    befehl Command19;  ///< all of them
    befehl Command15;  ///< the right list becomes as the left one
    befehl Command20;  ///< the left list becomes as the right one
    befehl Command21;  ///< exchanges them

    rahmen Frame_auswahl;
    bezeichnung Label_name;
    tarvel::auswahl auswahl;  ///< a name to be added
    befehl Command1;          ///< adds it
    liste auswahlliste;       ///< the start list, its numbers in front of the names
    bezeichnung label_anzahl2;
    befehl Command10;  ///< up
    befehl Command12;  ///< down
    befehl Command13;  ///< shuffle
    befehl Command2;   ///< strikes the chosen driver
    befehl Command7;   ///< strikes all
    befehl Command5;   ///< load the start list from a file
    befehl Command6;   ///< save it

    rahmen Frame_bild;
    bild Image1;             ///< of the driver chosen in either list
    bezeichnung Label_bild;  ///< his name
    befehl Command24;        ///< another picture for him
    befehl Command14;        ///< pictures named like drivers

    /// What the plan will be like.
    enum planzeile {
        plan_art,
        plan_spuren,
        plan_rennen,
        plan_je_fahrer,
        plan_frei,
        plan_laenge,
        plan_dauer,
        plan_zeilen
    };
    rahmen Frame_plan;
    std::array<bezeichnung, plan_zeilen> Label_plan;
    std::array<bezeichnung, plan_zeilen> plan_wert;
    std::array<form, spuren_max> spurfarbe;  ///< of the lanes that are driven on, with their numbers
    bezeichnung plan_hinweis;                ///< what speaks against it
    bezeichnung Label_hinweis;

    befehl Command3;   ///< begins the competition
    befehl Command11;  ///< begins a qualifying
    befehl Command9;   ///< goes on with one that was saved
    befehl Command25;  ///< evaluation of results, where there is a window for it
    befehl Command8;   ///< options
    befehl Command4;   ///< back to the main window

    /// Opens the options on the page of the competition.
    std::function<void()> einstellungen_oeffnen;

    void oeffnen();
    void laden() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache_w1()}; }
    sprachliste sprache_w1();
    /// The start list written anew, in the order of a qualifying's ranking. Names that may not stand in it are left
    /// out.
    void qualifying_uebernehmen(const std::vector<std::string>& rangfolge);
    /// A picture file from anywhere on the machine becomes that of the chosen driver.
    void bild_ablegen(const std::filesystem::path& bild);
    /// There may be other drivers now, and another kind of plan.
    void optionen_geschlossen();

    const teilnehmerliste& gesamtliste() const { return gesamt_; }
    const teilnehmerliste& teilnehmer() const { return start_; }

private:
    /// A list, its drawing, and the file that it is saved in unless another is named.
    struct seite {
        teilnehmerliste& inhalt;
        liste& anzeige;
        std::string datei;
    };

    void listen_verbinden();
    void befehle_verbinden();
    void ansagen_setzen();
    void farben_wettkampf1_einstellen();
    void fahrerliste_uebernehmen();
    void neue_fahrer_aufnehmen();
    /// Redraws both lists; the row of this side is marked then.
    void listen_schreiben();
    void listen_schreiben(const seite& wo, int zeile);
    void auswahl_folgen();
    void auswahl_Change();
    seite* markierte_seite();
    void bild_zeigen(const listeneintrag* wer);

    bool name_hinzufuegen();
    listeneintrag eintrag_von(const std::string& name) const;
    void verschieben(seite& von, seite& nach);
    void alle_verschieben(seite& von, seite& nach);
    void ersetzen(seite& ziel, const seite& quelle);
    void listen_tauschen();
    void hoch_oder_runter(int richtung);
    void streichen();
    void alle_streichen();
    void mischen();

    void laden_oeffnen(seite& wo);
    void speichern_oeffnen(seite& wo);
    void laden_beenden(seite& wo, const namensliste& gelesen);
    void bildnamen_zuordnen();
    void bild_neu_zuordnen();
    /// What a picture for the chosen driver needs; he gets it. None while nobody is chosen.
    std::optional<bildwahl::auftrag> bildauftrag();

    planvorgabe plan_vorgeben() const;
    void plan_zeigen();
    void planwerte_zeigen(const rennplan& plan);
    std::string dauer_text(zeit_ms dauer) const;
    std::string mangel_text(planmangel mangel) const;
    std::string titel_ohne_kommas() const;
    bool ueberzaehlige_genehmigt(std::size_t passen);
    void wettkampf_starten(bool qualifying);

    std::string mangel_text(namensmangel mangel, const std::string& name) const;
    void melden(const std::string& text) { um_.welt.meldungen.zeigen(text, um_.welt.txt.titel[0]); }
    /// Names the entries that were left out on the way into a list.
    void nicht_uebernommen_melden(const std::vector<std::string>& namen);

    struct worte {
        std::string titel_standard;
        std::string fahrer;
        std::string ein_fahrer;
        std::string voll;
        std::string gesamt_voll;
        std::string enthalten;
        std::string platzhalter;
        std::string ersetzt;
        std::string nicht_uebernommen;
        std::string nicht_geladen;
        std::string alle_streichen;
        std::string bildtitel;
        std::string bilder;
        std::string zu_wenige;
        std::string zu_viele;
        std::string keine_spur;
        std::string nicht_zwei;
        std::string passen_nicht;
        std::string fallen_heraus;
        std::array<std::string, wettkampf_modus_max + 1> modus;  ///< index from 1
        std::string teile;
        std::string keine;
        std::string stunden;
        std::string minuten;
    };

    umgebung um_;
    teilnehmerliste gesamt_;
    teilnehmerliste start_;
    seite links_;
    seite rechts_;
    std::string anzahl_text(std::size_t fahrer) const {
        return std::to_string(fahrer) + " " + (fahrer == 1 ? wort_.ein_fahrer : wort_.fahrer);
    }

    std::vector<listeneintrag> bekannte_;  ///< the driver list as it was looked at last
    worte wort_;
};

}  // namespace tarvel
