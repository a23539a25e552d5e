#include "programm/rennprotokoll.h"

#include <utility>

#include "core/zeit.h"

namespace tarvel {

void rennprotokoll::beginnen() {
    mitschrift& protokoll = um_.rennen.protokoll;
    if (senke == nullptr || protokoll.liest()) {
        return;
    }
    const zeit_ms jetzt = um_.uhr.jetzt();
    protokoll.schreiben(*senke, jetzt, [&uhr = um_.uhr] { return uhr.jetzt(); });
    for (const std::string& zeile :
         kopf_schreiben({uhrzeit_text(um_.kalender.jetzt()), jetzt, um_.datei.schreiben(), um_.param, um_.belegung})) {
        protokoll.kopfzeile(zeile);
    }
    um_.rennen.zeit.stand_mitschreiben();
    um_.ereignisse.stand_mitschreiben();
    um_.rennen.tanken.stand_mitschreiben();
}

void rennprotokoll::abschliessen() {
    if (um_.rennen.protokoll.schreibt()) {
        um_.rennen.protokoll.aufhoeren();
    }
}

rennprotokoll::ausgang rennprotokoll::nachspielen(std::string_view inhalt) {
    protokollleser leser(inhalt);
    std::vector<std::string_view> zeilen;
    while (const auto zeile = leser.zeile()) {
        zeilen.push_back(*zeile);
    }
    const std::optional<gelesener_kopf> gelesen = kopf_lesen(zeilen);
    if (!gelesen) {
        return ausgang::fremd;
    }
    um_.datei.einlesen(gelesen->kopf.einstellungen);
    um_.datei.einstellungsdatei_pruefen();
    if (um_.datei.fehler_laden()) {
        return ausgang::fremd;
    }
    um_.datei.einstellungen_uebernehmen({});
    um_.belegung = gelesen->kopf.belegung;
    um_.param = gelesen->kopf.param;
    mitschrift& protokoll = um_.rennen.protokoll;
    zeilen.erase(zeilen.begin(), zeilen.begin() + static_cast<std::ptrdiff_t>(gelesen->zeilen));
    protokoll.lesen(std::move(zeilen), static_cast<int>(gelesen->zeilen) + 1, gelesen->kopf.beginn);
    while (protokoll.weiter()) {
    }
    return protokoll.abweichung() ? ausgang::anders : leser.vollstaendig() ? ausgang::ganz : ausgang::beschaedigt;
}

}  // namespace tarvel
