#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/einstellungen.h"
#include "core/fensterregister.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "hardware/ausgaben.h"
#include "hardware/geraetefenster.h"
#include "hardware/tk_leitung.h"
#include "hardware/tk_profil.h"
#include "hardware/tk_protokoll.h"
#include "platform/dienste.h"

namespace tarvel {

/// The window in which a Timekeeper is tried and set up. While it is open it has the box to itself.
class tk_einstellungen final : public geraetefenster {
public:
    struct umgebung {
        einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
    };

    tk_einstellungen(const umgebung& um, const plattform::dienste& dienste);

    struct kanal {
        form lampe;  ///< lit for a moment when the sensor was heard
        bezeichnung sensornum;
        auswahl sensorart;     ///< place in `tk_eingaenge`
        bezeichnung ergebnis;  ///< time since it was heard before
    };

    rahmen Frame_modus;
    std::array<haken, 4> Option;  ///< exactly one is set; index is the track mode
    rahmen Frame_sensoren;
    std::array<kanal, tk::sensoren_max> kanaele;  ///< index 0 is sensor 1
    rahmen Frame_ampel;
    std::array<haken, 8> ampel_check;  ///< red 1 to 5, green, yellow, end of the race
    befehl ampel_alle_an;
    befehl ampel_alle_aus;
    rahmen Frame_relais;
    spuren<haken> relais_check;
    befehl relais_alle_an;
    befehl relais_alle_aus;
    rahmen Frame_firmware;
    bezeichnung firmware;
    befehl firmware_lesen;
    spuren<befehl> debug_open;  ///< what the box sends goes to the file of that lane
    befehl debug_close;
    rahmen Frame_log;
    liste List1;
    bezeichnung Label_command;
    feld tk_command;
    befehl Send;
    befehl suchen;
    bezeichnung Label_datei;
    feld tk_datei;  ///< stem of the settings file
    befehl Laden;
    befehl Werkseinstellungen;
    befehl Speichern;
    befehl Abbrechen;

    /// The message that there is no box, and the keyboard counts instead.
    std::string nicht_da();
    /// The message that the box cannot be reached just now.
    std::string weg();

    void laden() override;
    void entladen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache_e_tk()}; }
    sprachliste sprache_e_tk();

private:
    static constexpr std::size_t gruen = 5;  ///< places of the lamps behind the red ones
    static constexpr std::size_t gelb = 6;
    static constexpr std::size_t rennende = 7;

    /// What a box has sent since a lane's file was opened.
    struct mitschrift {
        int spur = 0;  ///< 0 nothing is written down
        std::vector<std::string> zeilen;
    };

    void befehle_verbinden();
    void ausgaenge_verbinden();
    void ansagen();
    void alles_aus();
    void melden(std::string_view zeile);
    void senden(const std::string& text);
    void erledigt(const tk_befehl& befehl);
    void schalten(schaltung::ausgang was, int nummer, bool an);
    void verbinden();
    void modus_waehlen(std::size_t modus);
    void modus_senden();
    void profil_zeigen(const tk_profil& profil);
    tk_profil profil_lesen() const;
    bool digital() const;
    void Timer1_tick();
    void lesefehler_melden();
    void satz_zeigen(std::string_view inhalt);
    void sensor_zeigen(const tk::sensor& satz);
    void lampen_loeschen();
    void debug_beginnen(int spur);
    void debug_beenden();
    void speichern();

    umgebung um_;
    plattform::meldungen& meldungen_;
    const plattform::uhr& uhr_;
    tk_leitung leitung_;
    tk_empfang empfang_;
    std::unique_ptr<plattform::zeitgeber> Timer1_;  ///< reads
    std::unique_ptr<plattform::zeitgeber> lampen_;
    std::array<std::optional<zeit_ms>, tk::sensoren_max> letzte_{};  ///< stamp of each sensor
    std::array<zeit_ms, tk::sensoren_max> leuchtet_bis_{};           ///< machine's clock
    mitschrift mitschrift_;
    bool fehler_gemeldet_ = false;  ///< of the reading, since it last worked

    struct worte {
        std::string nicht_da;
        std::string weg;
        std::array<std::string, 4> modus;
        std::string nicht_geschrieben;
    };
    worte wort_;
};

}  // namespace tarvel
