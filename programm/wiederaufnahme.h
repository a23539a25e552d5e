#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/form1.h"
#include "hardware/rennverbindung.h"
#include "programm/einstellungsruecklage.h"
#include "programm/fluegel.h"
#include "programm/rennprotokoll.h"

namespace tarvel {

class messgeraete;

/// Races that were cut off: by an outage, or by the director himself, who wants it back.
class wiederaufnahme {
public:
    struct umgebung {
        einstellungsdatei& datei;
        einstellungen& einst;
        const tastenbelegung& belegung;
        einstellungsruecklage& ruecklage;
        einstellungsfolgen& folgen;
        form1& haupt;
        fensterregister& fenster;
        ausgaben& ausgang;
        const messquellen& quellen;
        const dateien& ablage;
        const texte& txt;
        tarvel::rennen& rennen;
        ergebnisfluegel& ergebnisse;
        wettkampffluegel& wettkampf;
        rennprotokoll& protokoll;
        rennverbindung& geraete;
        messgeraete& hardware;
        plattform::dienste dienste;
    };

    explicit wiederaufnahme(const umgebung& um) : um_(um) {}

    /// The last race, if the program before has not come to its end, and the evening that it is part of.
    void nach_dem_start_anbieten();
    /// The last evening that was not ended, then race after race, the newest first.
    void anbieten();
    /// The race that the evening is about to start, if it was broken off, or put away as the program started, and the
    /// evening has driven nothing since. A no is for a start from the beginning.
    plattform::dreifache_antwort abgebrochenes_anbieten();

private:
    struct kandidat {
        std::string name;
        std::string datei;  ///< below the program folder
        bool beschaedigt = false;
        std::unique_ptr<const std::string> inhalt;
        protokollstand stand;  ///< its lines lie in `inhalt`
    };

    using namensstelle = std::vector<std::string>::const_iterator;

    std::optional<kandidat> lesen(const std::string& name) const;
    /// What the race of the log is part of, from its head alone: there may be hundreds of logs.
    std::string teil_von(const std::string& name) const;
    /// The first of these logs whose race can go on by itself; `stelle` is behind it then.
    std::optional<kandidat> naechstes_von(namensstelle& stelle, namensstelle ende) const;
    /// Says no only if another one is to be shown.
    plattform::dreifache_antwort einzeln_anbieten(const kandidat& k, bool noch_eines) const;
    /// The race of the evening that goes on which has seen its green light last.
    std::optional<kandidat> letztes_abendrennen() const;
    std::string frage(const protokollstand& stand) const;
    /// What stands on its buttons; `nein` is what follows if it is not taken.
    plattform::antwortworte antworten(const protokollstand& stand, std::string_view nein) const;
    bool fortsetzen(const kandidat& k);
    bool aufnehmen(const kandidat& k);
    bool einrichten(const protokollkopf& kopf);
    /// Makes the race part of what it was part of. False if that is no more.
    bool eingliedern(const protokollstand& stand);
    /// The books of the evening, if it is part of one, are those of a race that has come so far.
    bool im_abend_richtig(const protokollstand& stand);
    /// Since the last line of the log, by the calendar.
    dauer_ms vergangen(const protokollstand& stand) const;
    void aufwachen(const kandidat& k, const mitschrift::werte& uhrstand);
    /// Nobody wants it now: it is not asked for at the next start.
    void weglegen(const kandidat& k) const;
    void melden(const std::string& text) const { um_.dienste.meldungen.zeigen(text, um_.txt.titel[1]); }

    umgebung um_;
    bool nach_dem_start_ = false;
};

}  // namespace tarvel
