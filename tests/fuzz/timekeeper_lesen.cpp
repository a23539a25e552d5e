#include "hardware/timekeeper.h"
#include "programm/timekeeper_verdrahtung.h"
#include "tests/fuzz/dateiarten.h"
#include "tests/plattform/test_ftdi.h"

namespace tarvel::test {

bool tk_datei_lesen(werkbank& bank, const std::string& bytes) {
    bank.legen("klub.tk", bytes);
    tk_profil profil;
    if (!tk_profil_laden(bank.eingang, "klub", profil)) {
        return false;
    }
    for (const ereignis_art art : profil.tk_sensor_art) {
        fordern(art >= 0 && art < 60, "a sensor without an event");
    }
    tk_profil zurueck;
    fordern(tk_profil_speichern(bank.ausgang, "klub", profil) && tk_profil_laden(bank.ausgang, "klub", zurueck) &&
                zurueck == profil,
            "the settings change on the way through their file");
    return true;
}

/// No file, but what a box says: in pieces, with its clock known from a good answer before.
bool timekeeper_hoeren(werkbank& bank, const std::string& bytes) {
    programm& p = bank.t.p;
    test_ftdi ftdi;
    ftdi.eintragen(bank.t.maschine.bibliotheken);
    const geraeteprobe probe(bank);  // closes it while the script lives
    p.einst.hardware.hw_timekeeper = true;
    p.geraete.hardware_starten(false);
    const timekeeper& geraet = p.geraete.von<timekeeper_verdrahtung>().tk;
    fordern(geraet.verbunden(), "the channel is closed");
    bank.t.maschine.laufen(1000);
    ftdi.wartet =
        "\x02\x17"
        "500\x03";
    bank.t.maschine.laufen(110);
    in_stuecken(bytes, [&](std::string_view stueck) {
        ftdi.wartet += stueck;
        bank.t.maschine.laufen(1);
        bank.t.maschine.uhr_stellen(30);
    });
    bank.t.maschine.laufen(110);
    const zeit_ms jetzt = p.rennen.zeit.messzeit_lesen();
    return ereignisse_abholen(p, [&](ereignis_art /*art*/, const ereignis_zeile& zeile) {
        fordern(zeile.ereignis_zeit <= jetzt + 1000, "an event from the future");
    });
}

}  // namespace tarvel::test
