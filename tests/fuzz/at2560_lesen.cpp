#include "hardware/at2560.h"

#include "tests/fuzz/dateiarten.h"
#include "tests/plattform/geraete_mithoerer.h"

namespace tarvel::test {

bool befehlsdatei_lesen(werkbank& bank, const std::string& bytes) {
    bank.legen("klub.uart", bytes);
    at_profil profil;
    fordern(at_profil_laden(bank.eingang, "klub.uart", profil), "a command file is refused");
    fordern(!profil.at_startzeichen.empty() && !profil.at_endzeichen.empty() && !profil.at_trennzeichen_zeit.empty(),
            "a frame without its characters");
    at_profil zurueck;
    fordern(at_profil_speichern(bank.ausgang, "klub.uart", profil), "a command file cannot be written");
    fordern(at_profil_laden(bank.ausgang, "klub.uart", zurueck) && zurueck == profil,
            "commands change on the way through their file");
    return profil != at_profil();
}

/// No file, but what a unit says: in pieces, and with the clock fetched in between.
bool at2560_hoeren(werkbank& bank, const std::string& bytes) {
    constexpr zeit_ms spaetestens = 3'000'000'000'000;  // its longest time, against a clock that is as far behind
    programm& p = bank.t.p;
    bank.t.maschine.anschluesse.da = {3};
    const plattform::dienste d = bank.t.maschine.dienste();
    geraete_mithoerer gesagt(p.geraete);
    gesagt.ereignisse_weitersagen = false;
    at2560 geraet({p.einst, p.txt, p.ablage, p.ereignisse, p.rennen.zeit, d.uhr, d.zeitgeber, d.serienports,
                   d.meldungen, gesagt, gesagt});
    fordern(geraet.oeffnen(), "the port is closed");
    in_stuecken(bytes, [&](std::string_view stueck) {
        bank.t.maschine.anschluesse.senden(3, stueck);
        geraet.abfragen();
        bank.t.maschine.uhr_stellen(1);
    });
    for (ereignis_art art = 1; art < ereignis_tabelle::zeilen_anzahl; ++art) {
        const zeit_ms zeit = std::exchange(p.ereignisse[art].ereignis_zeit, 0);
        fordern(zeit > -spaetestens && zeit < spaetestens, "a stamp beyond all limits");
    }
    return gesagt.gemeldet > 0;
}

}  // namespace tarvel::test
