#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/einstellungen.h"
#include "core/fensterregister.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "hardware/at2560_empfang.h"
#include "hardware/at2560_zuordnung.h"
#include "hardware/geraetefenster.h"
#include "platform/meldungen.h"
#include "platform/serienport.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// The wizard `UART_einstellungen`: finds the port of an AT-2560, lets its sensors and chaos buttons be triggered one
/// after the other, and writes what they do into the command file. It has a port of its own.
class uart_einstellungen final : public geraetefenster {
public:
    enum seitennummer { seite_port, seite_anzahl, seite_sensoren, seite_chaos, seite_fertig, seiten_anzahl };
    static constexpr int sensoren_max = 8;
    static constexpr int taster_max = 4;

    struct umgebung {
        einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
        plattform::meldungen& meldungen;
        plattform::zeitgeber_dienst& zeitgeber;
        plattform::serienport_dienst& serienports;
    };

    /// A sensor's row: its name once it has been triggered, and what it is to do.
    struct sensorzeile {
        rahmen zeile;
        bezeichnung nummer;
        bezeichnung ereignis;
        auswahl spur;
        auswahl funktion;
        auswahl tanken;
    };
    struct tasterzeile {
        rahmen zeile;
        bezeichnung nummer;
        bezeichnung ereignis;
        auswahl cbo_chaos;
    };

    explicit uart_einstellungen(const umgebung& um);

    rahmen auto_einrichtung;  ///< around the pages
    bezeichnung schritt;      ///< which page of how many
    bezeichnung anleitung;    ///< what to do on this page
    std::array<rahmen, seiten_anzahl> seiten;
    bezeichnung Label_protokoll;
    liste protokoll;
    befehl zurueck;
    befehl weiter;
    befehl abbrechen;

    befehl port_ermitteln;
    bezeichnung Label_port;
    auswahl port;  ///< COM1 on at place 0
    befehl port_schliessen;
    bezeichnung ergebnis;  ///< what came of the search, and of the opening

    bezeichnung Label_anzahl;
    feld sensoranzahl;
    bezeichnung Label_is;
    auswahl is_liste;  ///< pins that may be sensors, parted by points

    std::array<sensorzeile, sensoren_max> sensoren;
    befehl neu;  ///< forgets the sensors that were heard

    bezeichnung Label_taster;
    auswahl chaos_anzahl;
    bezeichnung Label_stecker;
    auswahl stecker;
    std::array<tasterzeile, taster_max> taster;
    bezeichnung Label_von_hand;

    liste zusammenfassung;

    void laden() override;
    void entladen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache()}; }
    /// The texts of the window.
    sprachliste sprache();

private:
    /// What the window says beside the captions of its controls.
    struct worte {
        std::string abziehen;
        std::string einstecken;
        std::string gescannt;
        std::string vergleichen;
        std::string com_port;
        std::string gefunden;
        std::string nicht_ermittelt;
        std::string kein_port;
        std::string zu_gross;
        std::string abfragen;
        std::string geoeffnet;
        std::string geschlossen;
        std::string verschwunden;
        std::string startet;
        std::string ansprechbar;
        std::string schon_offen;
        std::string anzahl_ungueltig;
        std::string datenverlust;
        std::string ohne_funktion;
        std::string doppelt;
        std::string sensor;
        std::string taster;
        std::string sensorbefehl;
        std::string befehlsdatei;
        std::string gesichert;
        std::string schritt;
        std::string von;
        std::string weiter;
        std::string fertig;
        std::array<std::string, seiten_anzahl> seite;
        std::array<std::string, seiten_anzahl> anleitung;
        std::string spur;
        std::array<std::string, 4> funktion;
        std::array<std::string, 3> tanken;
        std::array<std::string, taster_max + 2> chaos;  ///< none, 1 to 4, and the one of the whole track
        std::array<std::string, 2> stecker;
    };

    void texte_port(sprachliste& texte);
    void texte_sensoren(sprachliste& texte);
    void auswahlen_fuellen();
    void ansagen_setzen();

    void seite_zeigen(int nummer);
    void weiter_klick();
    void notieren(std::string_view zeile);

    void port_suchen();
    std::vector<int> ports_abfragen(int durchgang);
    void port_oeffnen();
    void port_zu();
    void port_verloren();
    void boot_vorbei();
    void senden(const std::string& text);
    void empfangen(std::string_view bytes);
    void ausgeloest(const std::string& ereignis);

    bool anzahl_pruefen();
    void sensoren_vergessen();
    void tasterzeilen_zeigen();
    std::size_t tasterzeilen() const;
    bool ein_stecker() const;
    bool zuordnung_pruefen();
    at_zuordnung zuordnung() const;
    void zusammenfassen();
    /// For a copy of the command file that is in force; a name that is free.
    std::string sicherungsname() const;
    void fertigstellen();

    umgebung um_;
    std::unique_ptr<plattform::serienport> port_;
    std::unique_ptr<plattform::zeitgeber> bootzeit_;
    at_profil profil_;
    at_empfang empfang_;
    worte wort_;
    int seite_ = seite_port;
    int offener_port_ = 0;
    std::size_t anzahl_ = 4;  ///< sensors
};

}  // namespace tarvel
