#include "hardware/tx_modul.h"
#include "tests/fuzz/dateiarten.h"
#include "tests/plattform/geraete_mithoerer.h"

namespace tarvel::test {

/// What a module says, in pieces, from its greeting on.
bool modul4x4_hoeren(werkbank& bank, const std::string& bytes) {
    programm& p = bank.t.p;
    bank.t.maschine.anschluesse.da = {3};
    const geraeteprobe probe(bank);
    const plattform::dienste d = bank.t.maschine.dienste();
    geraete_mithoerer gesagt(p.geraete);
    gesagt.ereignisse_weitersagen = false;
    tx_modul modul({p.einst, p.txt, p.ablage, p.ereignisse, d.uhr, d.zeitgeber, d.serienports, gesagt, gesagt});
    fordern(modul.oeffnen(), "the port is closed");
    in_stuecken(bytes, [&](std::string_view stueck) {
        bank.t.maschine.anschluesse.senden(3, stueck);
        bank.t.maschine.uhr_stellen(1);
    });
    fordern(modul.modus() >= 0 && modul.modus() <= tx_modul::kontakt_modus, "a mode that there is not");
    for (ereignis_art art = 1; art < ereignis_tabelle::zeilen_anzahl; ++art) {
        fordern(p.ereignisse[art].ereignis_zeit <= d.uhr.jetzt(), "a stamp from the future");
        p.ereignisse[art] = {};
    }
    return gesagt.gemeldet > 0;
}

}  // namespace tarvel::test
