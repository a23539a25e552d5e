#include "programm/rennprotokoll.h"

#include <utility>

#include "core/protokollordner.h"
#include "core/zeit.h"

namespace tarvel {

void rennprotokoll::beginnen() {
    mitschrift& protokoll = um_.rennen.protokoll;
    if (!fuehren || protokoll.liest()) {
        return;
    }
    dateiname_ = std::string(protokoll_ordner) + "\\" + neuer_protokollname(um_.ablage, um_.dienste.kalender.jetzt());
    datei_ = um_.dienste.anhaenge.oeffnen(um_.ablage.pfad(dateiname_));
    if (datei_ == nullptr) {
        return;
    }
    const zeit_ms jetzt = um_.dienste.uhr.jetzt();
    protokoll.schreiben(*this, jetzt, [&uhr = um_.dienste.uhr] { return uhr.jetzt(); });
    kopf_anhaengen(jetzt);
    um_.rennen.zeit.stand_mitschreiben();
    um_.ereignisse.stand_mitschreiben();
    um_.rennen.tanken.stand_mitschreiben();
}

void rennprotokoll::kopf_anhaengen(zeit_ms beginn) {
    const std::string zeitpunkt = uhrzeit_text(um_.dienste.kalender.jetzt());
    for (const std::string& zeile :
         kopf_schreiben({zeitpunkt, beginn, um_.datei.festhalten(), um_.param, um_.belegung})) {
        um_.rennen.protokoll.kopfzeile(zeile);
    }
}

void rennprotokoll::anhaengen(std::string_view zeile) {
    datei_->anhaengen(zeile);
}

void rennprotokoll::abschliessen() {
    if (!fuehren || um_.rennen.protokoll.liest()) {
        return;
    }
    um_.rennen.protokoll.aufhoeren();
    const bool ganz = datei_ != nullptr && !datei_->gescheitert();
    datei_.reset();
    if (!ganz && !std::exchange(gewarnt_, true)) {
        um_.dienste.meldungen.zeigen(um_.rennen.bahn1.wort.ohne_protokoll, um_.txt.titel[1]);
    }
}

void rennprotokoll::aufraeumen() const {
    protokolle_aufraeumen(um_.ablage, um_.dienste.kalender.jetzt(), "");
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
