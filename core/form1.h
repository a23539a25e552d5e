#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "core/bestzeiten.h"
#include "core/einstellungen.h"
#include "core/erscheinung.h"
#include "core/fensterlogik.h"
#include "core/fensterregister.h"
#include "core/letzte_fahrer.h"
#include "core/namensliste.h"
#include "core/renn_parameter.h"
#include "core/renneinrichtung.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "platform/bildschirm.h"
#include "platform/meldungen.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// The main window: the form on which a race is set up. Its control arrays count the lanes from 0.
class form1 final : public fensterlogik, public einrichtungsansicht {
public:
    struct umgebung {
        const einstellungen& einst;
        renneinrichtung& einrichtung;
        texte& txt;
        renn_parameter& param;
        const dateien& ablage;
        const namensliste& fahrerliste;
        const namensliste& fahrzeugliste;
        const letzte_fahrer& zuletzt_gefahren;
        const tarvel::bestzeiten& bestzeiten;
        fensterregister& fenster;
        plattform::meldungen& meldungen;
        const plattform::bildschirm& bildschirm;
        plattform::zeitgeber_dienst& zeitgeber;
    };

    explicit form1(umgebung um);

    bezeichnung version_label;
    bezeichnung untertitel;            ///< what the program is, over the start picture
    bild startbild;                    ///< picture over the fields
    std::array<bild, 2> eigenes_bild;  ///< of the club, beside the start picture where the files are there

    rahmen inhalt;         ///< all that the operator works on
    rahmen µwartehinweis;  ///< in its place while a timing unit is set up
    bezeichnung µwarte_titel;
    bezeichnung µwarte_text;

    rahmen Frame_rennen;
    bezeichnung Label_rennart;
    auswahl rennart;
    bezeichnung dauerlabel;
    feld stddauer;  ///< hours of a time race
    bezeichnung Label8;
    feld renndauer;  ///< `M,SS` minutes and seconds, or laps
    bezeichnung Label19;
    bezeichnung Label9;
    feld wertmin;  ///< shortest lap in seconds
    bezeichnung Label10;
    bezeichnung Label2;
    feld massstab;
    haken t_aktiv;
    bezeichnung tank_label;  ///< the tank options, while fuel is driven for

    rahmen Frame_spuren;
    bezeichnung label_spurlaenge;  ///< captions of the columns
    bezeichnung Label_meter;
    bezeichnung Label_fahrer;
    bezeichnung Label_auto;
    bezeichnung Label_bestzeit;
    std::array<form, spuren_max> spurfarbe;  ///< colour of the lane
    std::array<haken, spuren_max> spur;
    std::array<feld, spuren_max> lspur;  ///< metres
    std::array<auswahl, spuren_max> fahrer;
    std::array<auswahl, spuren_max> auto_;
    std::array<bild, spuren_max> fahrerbild;
    std::array<bild, spuren_max> autobild;
    std::array<bezeichnung, spuren_max> Label_fahrzeug;  ///< best time of the lane
    befehl command_liste;                                ///< the drivers beside the lanes, in or out
    rahmen Frame_liste;
    bezeichnung Label_liste;    ///< what is done with them
    tarvel::liste fahrerreihe;  ///< who drove lately, then all others of the list

    bezeichnung Label6;         ///< settings file in force
    bezeichnung modus_label;    ///< status line: the timing hardware in force
    bezeichnung Label7;         ///< "Bahnstrom"
    befehl Command1;            ///< single race
    befehl Command2;            ///< end of the program
    befehl Command3;            ///< competition
    befehl Command4;            ///< options
    befehl Command5;            ///< save the settings
    befehl Command6;            ///< track power on
    befehl Command7;            ///< load settings
    befehl command17;           ///< day race
    befehl Command18;           ///< looks at results that were saved
    befehl Command8;            ///< options, page of the drivers
    befehl Command9;            ///< options, page of the vehicles
    befehl Command10;           ///< take over the pictures of the vehicles
    befehl Command11;           ///< training
    befehl Command12;           ///< track power off
    befehl Command13;           ///< take over the pictures of the drivers
    befehl command_fortsetzen;  ///< a race that was cut off goes on
    befehl command_zuletzt;     ///< the results that were written last
    befehl command_tasten;      ///< key assignment
    befehl command_cu;          ///< window of the Control Unit, while that is the timing hardware
    befehl command_sprache;     ///< the languages that there are, called as the one in force calls itself
    befehl command_aussehen;    ///< light or dark, likewise
    haken felder_merken;        ///< the next start shows the fields as they are at the end
    befehl command_wieder;      ///< the fields as they were at the last end, while that is offered

    /// The race is set up: a race of its own begins with it.
    std::function<void()> einzelrennen_beginnen;
    /// The same for all the races of a competition.
    std::function<void()> wettkampf_beginnen;
    /// The same for a training of the kind that is set.
    std::function<void()> training_beginnen;
    /// A race that was cut off is looked for and offered.
    std::function<void()> rennen_fortsetzen;
    /// Switch the track power; filled by the part that owns the outputs.
    std::function<void()> bahnstrom_ein;
    std::function<void()> bahnstrom_aus;
    /// Ends the program.
    std::function<void()> beenden;
    std::function<void()> einstellungen_speichern;
    std::function<void()> einstellungen_laden;
    /// Opens the options on the page that the operator asked for.
    std::function<void()> einstellungen_oeffnen;
    std::function<void()> fahrer_oeffnen;
    std::function<void()> fahrzeuge_oeffnen;
    std::function<void()> cu_oeffnen;
    std::function<void()> fahrerbilder_uebernehmen;
    std::function<void()> fahrzeugbilder_uebernehmen;
    /// A second after the window has appeared: opens timing hardware that is opened with it.
    std::function<void()> messgeraet_oeffnen;
    /// One of the results that were written last. `da`: its file can still be opened.
    struct letztes {
        std::string text;  ///< as `letzte_ergebnisse` has it; in `letzte_zeilen` in words
        bool da = true;
        bool automatisch = false;  ///< nobody has given its file a name
    };
    /// Asked for whenever they are shown, the newest first.
    std::function<std::vector<letztes>()> letzte_nennen;
    /// Opens the one with this place in them, from 0.
    std::function<void(std::size_t)> letztes_oeffnen;
    /// A picture file from anywhere on the machine becomes that of the driver of the name, or of the vehicle.
    std::function<void(const std::string& name, const std::filesystem::path& bild)> fahrerbild_ablegen;
    std::function<void(const std::string& name, const std::filesystem::path& bild)> fahrzeugbild_ablegen;
    /// How the program is to meet the eye from now on.
    std::function<void(const erscheinung&)> erscheinen;
    /// What a menu offers, and the place of what holds.
    struct auswahlmenue {
        std::vector<std::string> zeilen;
        std::size_t gewaehlt = 0;
    };
    auswahlmenue sprachen() const;
    auswahlmenue aussehensarten() const;
    void sprache_waehlen(std::size_t welche);
    void aussehen_waehlen(std::size_t welches);
    void erscheinung_zeigen();
    /// Offers the fields of the last end until a driver or a vehicle is typed, a race starts or a competition
    /// begins; not while its drivers stand on their lanes already.
    void letztes_mal_anbieten(const renneinrichtung& felder);
    /// Neither taken nor passed over yet: it must not be lost.
    bool letztes_mal_offen() const { return letztes_mal_.has_value(); }
    void letztes_mal_vergessen();
    /// Chooses the command file of the AT-2560.
    std::function<void()> befehlsdatei_waehlen;

    /// Load handler of the window.
    void laden() override;
    void sprache_gewechselt() override;
    void entladen() override { timer1_->aus(); }
    void schliessen() override {
        if (beenden) {
            beenden();
        }
    }
    bool escape_schliesst() const override { return false; }
    std::vector<sprachliste> sprachdateien() override { return {sprache_m2()}; }
    /// The texts of the window.
    sprachliste sprache_m2();
    /// Where sensors 3 and 4 serve lanes 1 and 2, nobody drives on lanes 3 and 4.
    void leihspuren_sperren();
    void farben_einstellen();
    /// Fills the choices of drivers and vehicles; what is chosen on the lanes stays.
    void listen_zeigen();
    /// Picture of the driver of this name on a lane.
    void fahrerbild_laden(const std::string& name, int nummer);
    /// Picture of the vehicle on a lane, if vehicle pictures are wanted.
    void autobild_anzeigen(int nummer);
    void bilder_anzeigen();
    /// The same where the file of a picture holds another one now.
    void bilder_neu_laden();
    /// What its menu shows: `letzte_nennen`, or a row that says that there is nothing yet.
    std::vector<letztes> letzte_zeilen() const;
    /// Somebody can drive on the lane: it is not lent to another one.
    bool spur_frei(int nummer) const { return spur[feld_index(nummer)].aktiviert(); }
    /// The lanes exchange driver, vehicle and whether they take part. A lane that is lent exchanges nothing.
    void spuren_tauschen(int eine, int andere);
    /// The same with the next lane above (-1) or below (1) on which somebody can drive; it is returned, 0 for none.
    int spur_schieben(int nummer, int richtung);
    /// The driver goes to the lane, which takes part then.
    void fahrer_auf_spur(const std::string& name, int nummer);
    /// The one chosen in the list beside the lanes; lane 0 is the first one that waits for a driver.
    void gewaehlten_auf_spur(int nummer);
    /// Best time of each lane, with its holder as tip.
    void beste_zeiten_anzeigen();
    /// The tank options beside the tick box that switches fuel on.
    void tankoptionen_zeigen();
    /// What is said in front of the number of pictures taken over.
    const std::string& bilder_text() const { return wort_bilder_; }
    const std::string& liste_voll_text() const { return wort_liste_voll_; }
    /// Said of a picture for a lane without a name to go with it.
    const std::string& ohne_namen_text() const { return wort_ohne_namen_; }
    void modus_anzeigen();
    /// The timing hardware in force has lost its connection, or has it again.
    void messgeraet_getrennt(bool getrennt);
    /// What a message says more of a port that this lock file holds; nothing without one.
    std::string anschluss_gesperrt(const std::string& sperrdatei) const;
    /// The races of a competition go on: nobody sets up another race meanwhile.
    void wettkampf_laeuft(bool laeuft) { inhalt.aktiviert(!laeuft); }
    /// The AT-2560 is set up: until it is, nobody works in the window.
    void wartehinweis(bool an);
    /// The key F1.
    void taste_F1();
    /// Whether there are outputs that the track power commands switch.
    void bahnstrom_schaltbar(bool schaltbar);
    /// The settings file in force, and the one that the program starts with.
    void einstellungsname_anzeigen(std::string_view name, std::string_view standard);

    void einrichtung_lesen() override;
    void einrichtung_zeigen() override;
    /// Locks the fields of all lanes that do not take part, as their ticks do. A settings file that is loaded leaves
    /// those of lanes 1 to 4 open.
    void felder_nach_spuren();
    /// Brings every field within its limits, silently.
    void werte_pruefen();
    /// The same, and the scale, which a settings file refuses beyond its limits.
    void vor_dem_speichern_pruefen();
    /// Corrections, checks with their messages and hand-over of a single race. False while it cannot begin.
    bool einzelrennen_einrichten(rennumfang umfang = rennumfang::einzelrennen);
    /// The same, and begins it.
    void Command1_Click();
    /// The same for a competition, whose drivers and lanes are told by its own windows.
    void Command3_Click();
    /// The same as a single race, but under training, which may do without an end.
    void Command11_Click();
    void rennart_geaendert();

private:
    renn_art gewaehlte_art() const;
    /// The record, with what the fields say.
    renneinrichtung& gelesen();
    /// Brings the numbers as they have been mended into their fields.
    void zahlen_zeigen();
    /// What follows from fields that a settings file has filled: lanes 5 and 6 close their fields if they are off.
    void spuren_nach_laden();
    /// False while a race cannot begin, or with a length that is none.
    bool uebergeben(rennumfang umfang);
    void ablehnen(const std::string& meldung, steuerelement& ort);
    void spur_geaendert(std::size_t index);

    /// Numbers that are none and letters that no file can hold are replaced, and the operator hears of it.
    void unlesbares_ersetzen(bool mit_dauer = true);
    /// The lane is ticked, and not lent to another one. Lanes count from 0.
    bool faehrt(std::size_t i) const { return spur[i].gesetzt() && spur[i].aktiviert(); }
    std::vector<feld*> felder_ohne_zahl(bool mit_dauer);
    /// Nobody drives on two lanes, or the operator wants it so.
    bool fahrer_einmalig();
    void befehle_verbinden();
    void fahrer_Change(int nummer);
    void spuren_zeigen();
    void letztes_mal_zeigen();
    /// The words of the language before that stood in it.
    void letztes_mal_uebersetzen(std::string_view niemand, std::string_view standardfahrzeug);
    void letztes_mal_nehmen();
    int wartende_spur() const;
    void reihe_zeigen();
    /// A result as people say it.
    std::string in_worten(const letztes& eines) const;
    void ansagen_setzen();
    void einstellungen_rufen(const std::function<void()>& wohin);
    void timer1_tick();
    void bildschirm_anpassen();
    bool kleiner_bildschirm() const;

    umgebung um_;
    std::unique_ptr<plattform::zeitgeber> timer1_;  ///< once, a second after the window has appeared
    std::string wort_spur_;
    std::string wort_minuten_;
    std::string wort_runden_;
    std::string wort_einstellungsdatei_;
    std::string wort_bilder_;
    std::string wort_bestzeit_;
    std::string wort_liter_;
    std::string wort_verbrauch_;
    std::string wort_standarddatei_;
    std::string wort_getrennt_;
    std::string wort_gesperrt_;
    std::string wort_keine_zahl_;
    std::string wort_ersetzt_;
    std::string wort_zwei_spuren_;
    std::string wort_nicht_mehr_da_;
    std::string wort_liste_voll_;
    std::string wort_ohne_namen_;
    std::string wort_kein_ergebnis_;
    std::string wort_zeitrennen_;
    std::string wort_rundenrennen_;
    std::string wort_sieger_;
    std::string wort_fuehrung_;
    std::string wort_runde_;
    std::string wort_automatisch_;
    std::string wort_letztes_mal_;
    std::optional<renneinrichtung> letztes_mal_;
    std::array<std::string, 3> wort_aussehen_;  ///< by its number
    std::string einstell_name_;
    std::string standard_name_;
    bool getrennt_ = false;
};

}  // namespace tarvel
