#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "competition/wettkampfabend.h"
#include "core/fensterlogik.h"
#include "core/fensterumgebung.h"
#include "core/namensliste.h"
#include "core/namensspalten.h"
#include "core/steuerelemente.h"

namespace tarvel {

/// What the director leaves the evening for.
class wettkampf2_folgen : public schnittstelle {
public:
    /// The evening is over; of a qualifying the drivers in the order of their ranking.
    virtual void wettkampf_beendet(const std::optional<std::vector<std::string>>& qualifying) = 0;
    virtual void stand_speichern_unter() = 0;
    virtual void tabelle_speichern_unter() = 0;
    virtual void fahrerverwaltung_oeffnen() = 0;
    virtual void bahnstrom(bool an) = 0;
};

/// The window of the evening: the list of its races, who drives now and next, and all that the director does between
/// two races. Its control arrays count the lanes from 0.
class wettkampf2 final : public fensterlogik, private abendansicht {
public:
    wettkampf2(const fenster_umgebung& um, const einstellungen& einst, const renn_parameter& param,
               const namensliste& fahrerliste, wettkampfabend& abend, wettkampf2_folgen& folgen);

    template <class Element>
    using je_spur = std::array<Element, spuren_max>;

    rahmen Frame_blick;       ///< the evening at a glance
    bezeichnung Label2;       ///< caption of the race that is next
    bezeichnung Label_nr;     ///< its number
    bezeichnung Label_von;    ///< of how many
    bezeichnung Label_jetzt;  ///< caption: who drives
    je_spur<form> spurfarbe;
    je_spur<bezeichnung> listlabel;  ///< names of the lanes
    je_spur<bezeichnung> Label_b;    ///< their drivers
    je_spur<bild> Image_b;
    bezeichnung Label_danach;  ///< caption: who comes to the track
    je_spur<bezeichnung> Label_danach_b;
    bezeichnung Label_einsetzer;  ///< caption: who puts cars back; at the end who has won
    bezeichnung Label_einsetzer_fahrer;
    bezeichnung Label_noch;  ///< caption: how long the evening still takes
    bezeichnung Label_dauer;
    bezeichnung Label_warten;  ///< caption: seconds until the next race comes by itself
    bezeichnung Label_wartezeit;
    bezeichnung Label1;  ///< caption of the fastest lap
    bezeichnung label_best;
    bezeichnung label_fahrer;  ///< who has it

    bezeichnung Label_fehler;  ///< the state could not be kept
    rahmen Frame_liste;        ///< the list and what is done in it; away while the glance has the window to itself
    bezeichnung Label_liste;   ///< columns of the list
    bezeichnung Label_zeichen;
    liste List1;                ///< row n - 1 is race n
    namensspalten planspalten;  ///< of its rows
    haken opt_reihenfolge;      ///< a race that is selected comes next

    befehl Command1;  ///< save the state
    befehl Command2;  ///< start the race
    befehl Command3;  ///< totals
    befehl Command4;  ///< automatic flow
    form automatiklampe;
    befehl Command5;   ///< end of the evening
    befehl Command6;   ///< ranking
    befehl Command7;   ///< list of drivers
    befehl Command8;   ///< drive the selected race again
    befehl Command9;   ///< postpone it
    befehl Command10;  ///< save the table
    bezeichnung Label8;
    befehl Command11;        ///< track power on
    befehl Command12;        ///< and off
    befehl Command13;        ///< correct laps and metres
    befehl Command14;        ///< correct a name
    befehl Command_aushang;  ///< the glance without the list, and back

    rahmen Frame_runden;  ///< corrections of the selected race
    bezeichnung Label_rundenwahl;
    liste rundenliste;  ///< a row per lane, with centermode and part
    je_spur<bezeichnung> Label_anz;
    je_spur<feld> anz_runden;
    je_spur<feld> anz_meter;
    bezeichnung Label_runden;
    bezeichnung Label_meter;
    befehl Command_uebernehmen;
    befehl Command_runden_fertig;

    rahmen aendernframe;
    bezeichnung Label_namenwahl;
    liste aendernliste;
    bezeichnung Label_neuer_name;
    feld neuer_name;
    befehl Command_umbenennen;
    befehl Command_namen_fertig;

    std::vector<sprachliste> sprachdateien() override { return {sprache_w2()}; }
    sprachliste sprache_w2();
    void laden() override;
    void schliessen() override { Command5.klicken(); }
    bool escape_schliesst() const override { return false; }
    /// No evening runs, or all its races are driven and kept, or the director says so. What has been typed is stored
    /// first; if it is no number it goes with a message, and the evening stays.
    bool darf_enden();
    /// The program ends: an evening of which all races are driven is not to be offered at the next start. A qualifying
    /// is, for its final.
    void fertigen_beenden();
    /// Asks whether the results of a race may be lost.
    bool wiederholen_fragen() { return fragen(wort_.wiederholen, wort_.wiederholen_titel); }

private:
    enum class feldgruppe { blick, aushang, runden, namen };
    /// A result that can be corrected.
    struct korrekturzeile {
        int teil = 1;
        int spur = 0;
    };
    /// What the fields of one held as they were shown.
    struct korrekturstand {
        int rennen = 0;
        korrekturzeile zeile;
        std::string runden;
        std::string meter;
    };
    struct worte {
        std::string titel, spur, rennen, von, stunden, minuten, ende;
        std::string automatik_ein, automatik_aus, automatik_unterbrochen, teil, niemand, und, weitere, einsetzer,
            sieger, liste, gruppenliste, aushang, rennliste;
        std::string wiederholen, wiederholen_titel, ende_frage, verlust_frage, behalten_frage, behalten, verwerfen;
        std::string ist_ein, ist_aus, gefahren, zurueckgestellt, teile_gefahren;
        std::string name_leer, name_vergeben, name_fueller, keine_zahl;
    };

    void stand_zeigen() override;
    void wartezeit_zeigen() override;
    bool beschaeftigt() const override { return offen_ == feldgruppe::runden || offen_ == feldgruppe::namen || fragt_; }
    bool fragen(const std::string& text, const std::string& ueberschrift);
    bool behalten_fragen();
    void befehle_verbinden();
    void felder_zeigen(feldgruppe welche);

    void blick_zeigen();
    void spuren_zeigen(const abendblick& blick);
    std::string einsetzer_text(const std::vector<std::string>& namen) const;
    void spalten_legen();
    void liste_zeigen();
    void beste_zeigen();
    void befehle_zeigen();
    void automatik_zeigen();
    /// What the marks in the list mean that are there.
    void zeichen_erklaeren();
    std::string rennzeile(int rennen) const;
    /// Driven, postponed, or how many of its parts are driven.
    std::string rennmarke(int rennen) const;
    std::string dauer_text(const abendblick& blick) const;

    /// The selected race, 0 for none.
    int gewaehltes() const { return List1.markiert() + 1; }
    void rennen_gewaehlt();
    void wiederholen();
    void zurückstellen();
    void wettkampf_beenden();

    void korrektur_zeigen();
    void korrekturfelder_zeigen();
    /// What has been typed is stored; false, with a message, if it is no number.
    bool korrektur_uebernehmen();
    void zum_naechsten_rennen();
    /// What the button does comes behind that, and not at all if it fails.
    void nach_korrektur(befehl& knopf, std::function<void()> tun);
    void namen_zeigen();
    void umbenennen();

    fenster_umgebung um_;
    const einstellungen& einst_;
    const renn_parameter& param_;
    const namensliste& fahrerliste_;
    wettkampfabend& abend_;
    wettkampf2_folgen& folgen_;
    worte wort_;
    std::vector<korrekturzeile> korrigierbar_;  ///< the rows of `rundenliste`
    std::optional<korrekturstand> korrigiert_;  ///< nothing while no result can be changed
    std::vector<int> umbenennbar_;              ///< places of the rows of `aendernliste`
    feldgruppe offen_ = feldgruppe::blick;
    int gezeigtes_rennen_ = 0;  ///< the current one when the list was drawn last
    bool fragt_ = false;
};

}  // namespace tarvel
