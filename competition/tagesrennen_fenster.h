#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "competition/tagesdatei.h"
#include "competition/tagesrennen_folgen.h"
#include "core/einstellungen.h"
#include "core/fensterumgebung.h"
#include "core/letzte_fahrer.h"
#include "core/namensliste.h"
#include "core/namensspalten.h"
#include "core/renneinrichtung.h"
#include "core/steuerelemente.h"
#include "platform/zeitgeber.h"
#include "results/tagesfuehrung.h"

namespace tarvel {

/// The window `Tagesrennen`: the file of the day, and who drives in its next race. Its arrays count the lanes from 0.
class tagesrennen_fenster final : public fensterlogik {
public:
    struct umgebung {
        fenster_umgebung welt;
        const einstellungen& einst;
        renneinrichtung& einrichtung;
        einrichtungsansicht& hauptfenster;
        const namensliste& fahrerliste;
        const letzte_fahrer& zuletzt_gefahren;
        plattform::zeitgeber_dienst& zeitgeber;
        tagesrennen_folgen& folgen;
    };

    explicit tagesrennen_fenster(const umgebung& um);

    rahmen Frame_datei;
    bezeichnung Label17;
    feld text_lf_datei;  ///< name of the day's file
    bezeichnung Label18;
    bezeichnung Label_lf_hinweis;  ///< its state

    rahmen Frame_fahrer;
    haken Check1;  ///< with classes
    bezeichnung Label_fahrer;
    bezeichnung Label_klasse;
    std::array<form, spuren_max> spurfarbe;
    std::array<bezeichnung, spuren_max> Label_spur;
    std::array<auswahl, spuren_max> Text_fahrer;
    std::array<auswahl, spuren_max> lstb_klasse;
    std::array<bezeichnung, spuren_max> Label_bisher;  ///< what the driver has driven in the day's file

    rahmen Frame_klassen;
    std::array<feld, klassenzeilen> klassen_text;

    rahmen Frame_liste;
    bezeichnung Label_kopf;      ///< heads of the columns, each above its place in the lines
    liste ergebnisse;            ///< of the day, the last race at the bottom
    namensspalten spalten;       ///< of its lines and their heads
    bezeichnung Label_fuehrung;  ///< who leads the day

    befehl Command18;  ///< begins the race
    befehl Command1;   ///< looks at the day's file
    befehl Command20;  ///< closes the window

    std::vector<sprachliste> sprachdateien() override { return {sprache_lf()}; }
    sprachliste sprache_lf();
    void laden() override;
    void entladen() override;
    /// Shows the lanes and drivers that are set up on the main window.
    void spuren_zeigen();
    /// Reads the file of the day: it may have changed meanwhile.
    void datei_pruefen();
    /// The line on what the classes stand for still says how it is used.
    bool vorbelegt(std::size_t i) const { return klassen_text.at(i).text() == wort_.klassen_text.at(i); }

private:
    struct worte {
        std::string pruefe, neu, angelegt, bereit, unbrauchbar, zeichen, name_fehlt, klasse_fehlt, nicht_gesichert;
        std::string klasse, name, runden, meter, beste, gesamtzeit, spur, bisher, rennen, ein_rennen;
        std::array<std::string, klassenzeilen> klassen_text;
    };

    std::string dateiname() const { return text_lf_datei.text(); }
    bool faehrt(std::size_t i) const;
    tagesparameter parameter() const;
    void parameter_zeigen();
    void parameter_sichern(const tagesparameter& werte);
    void datei_geaendert();
    /// Why the file cannot be used: its name, or what is in it.
    std::string warum_unbrauchbar() const;
    std::string zeile(const tageszeile& z) const;
    void zeilen_zeigen();
    void fuehrung_zeigen(bool bereit);
    /// What the day's file knows of the driver; his class is the one he had last.
    void bisher_zeigen(std::size_t i);
    void fahrer_geaendert(std::size_t i);
    void klasse_leeren(std::size_t i);
    void klassen_geaendert();
    void starten();
    bool klassen_vollstaendig();
    /// Makes the file if there is none yet.
    bool datei_bereitstellen();
    void ablehnen(const std::string& meldung, steuerelement& ort);

    umgebung um_;
    std::unique_ptr<plattform::zeitgeber> Timer1_;  ///< looks at the file once its name stands
    std::vector<tageszeile> zeilen_;                ///< of the file that stands in the field
    std::array<bool, spuren_max> vorgeschlagen_{};  ///< the class comes from the file, nobody has chosen it
    tagesparameter gesichert_;
    bool ungeschrieben_ = false;  ///< no file has them, but until the end of the program they hold
    worte wort_;
    fuehrungsworte fuehrung_;
};

}  // namespace tarvel
