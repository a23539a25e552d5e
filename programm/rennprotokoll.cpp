#include "programm/rennprotokoll.h"

#include <utility>

#include "core/protokollfortsetzung.h"
#include "core/protokollordner.h"
#include "core/protokollzeile.h"
#include "core/zeit.h"

namespace tarvel {

void rennprotokoll::beginnen() {
    mitschrift& protokoll = um_.rennen.protokoll;
    if (bei_beginn) {
        bei_beginn();
    }
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
    um_.rennen.zeit.stand_setzen(um_.rennen.zeit.stand());
    um_.ereignisse.stand_mitschreiben();
    um_.rennen.tanken.stand_mitschreiben();
}

void rennprotokoll::kopf_anhaengen(zeit_ms beginn) {
    const std::string zeitpunkt = uhrzeit_text(um_.dienste.kalender.jetzt());
    for (const std::string& zeile : kopf_schreiben(
             {zeitpunkt, beginn, um_.datei.festhalten(), um_.param, um_.belegung, um_.rennen.teil_von->kennung()})) {
        um_.rennen.protokoll.kopfzeile(zeile);
    }
}

void rennprotokoll::anhaengen(std::string_view zeile) {
    datei_->anhaengen(zeile);
    for (protokollsenke* mitleser : mitleser_) {
        mitleser->anhaengen(zeile);
    }
}

void rennprotokoll::abschliessen() {
    if (!fuehren || um_.rennen.protokoll.liest()) {
        return;
    }
    um_.rennen.protokoll.kopfzeile(protokoll_geschlossen);
    um_.rennen.protokoll.aufhoeren();
    const bool ganz = datei_ != nullptr && !datei_->gescheitert();
    datei_.reset();
    const bool hier = !um_.rennen.teil_von->ohne_bediener();  // else the next race would begin behind the box
    if (!ganz && hier && !std::exchange(gewarnt_, true)) {
        um_.dienste.meldungen.zeigen(um_.rennen.bahn1.wort.ohne_protokoll, um_.txt.titel[1]);
    }
}

void rennprotokoll::ergebnis_geschrieben(const std::string& pfad) {
    um_.rennen.protokoll.kopfzeile(std::string(ergebnis_vermerk) + pfad);
}

void rennprotokoll::sichern() {
    if (datei_ != nullptr) {
        datei_->sichern();
    }
}

std::string rennprotokoll::bisher() {
    if (datei_ == nullptr || !datei_->sichern()) {
        return {};
    }
    const auto stand = protokollfortsetzung::lesen(um_.ablage.pfad(dateiname_));
    return stand ? stand->inhalt() : std::string();
}

void rennprotokoll::aufraeumen() const {
    protokolle_aufraeumen(um_.ablage, um_.dienste.kalender.jetzt(), "");
}

std::optional<bool> rennprotokoll::bereitlegen(std::string_view inhalt) {
    protokollleser leser(inhalt);
    protokollstand stand;
    while (const auto zeile = leser.zeile()) {
        stand.zeilen.push_back(*zeile);
    }
    std::optional<gelesener_kopf> gelesen = kopf_lesen(stand.zeilen);
    if (!gelesen) {
        return std::nullopt;
    }
    stand.kopf = std::move(gelesen->kopf);
    um_.datei.einlesen(stand.kopf.einstellungen);
    um_.datei.einstellungsdatei_pruefen(pruefweise::festgehaltenes);
    if (um_.datei.fehler_laden()) {
        return std::nullopt;
    }
    um_.datei.einstellungen_uebernehmen({});
    stand.zeilen.erase(stand.zeilen.begin(), stand.zeilen.begin() + static_cast<std::ptrdiff_t>(gelesen->zeilen));
    stand.erste_zeile = static_cast<int>(gelesen->zeilen) + 1;
    bereitlegen(stand);
    return leser.vollstaendig();
}

void rennprotokoll::bereitlegen(const protokollstand& stand) {
    um_.belegung = stand.kopf.belegung;
    um_.param = stand.kopf.param;
    um_.ereignisse.vergessen();
    um_.rennen.protokoll.lesen(stand.zeilen, stand.erste_zeile, stand.kopf.beginn);
}

rennprotokoll::ausgang rennprotokoll::nachspielen(std::string_view inhalt) {
    const std::optional<bool> ganz = bereitlegen(inhalt);
    if (!ganz) {
        return ausgang::fremd;
    }
    const ausgang wie = zu_ende();
    return wie == ausgang::ganz && !*ganz ? ausgang::beschaedigt : wie;
}

rennprotokoll::ausgang rennprotokoll::zu_ende() {
    while (um_.rennen.protokoll.weiter()) {
    }
    return abweichung() ? ausgang::anders : ausgang::ganz;
}

bool rennprotokoll::weiterfuehren(const std::string& datei, const protokollstand& stand, dauer_ms seither) {
    dateiname_ = datei;
    datei_ = um_.dienste.anhaenge.oeffnen(um_.ablage.pfad(dateiname_), stand.bytes);
    mitschrift& protokoll = um_.rennen.protokoll;
    const zeit_ms vergangen = protokoll.gelesen_bis() - protokoll.beginn() + seither.count();
    const zeit_ms beginn = um_.dienste.uhr.jetzt() - vergangen;
    if (datei_ == nullptr) {
        protokoll.aufhoeren();
    } else {
        protokoll.weiterschreiben(*this, stand.kette, beginn, [&uhr = um_.dienste.uhr] { return uhr.jetzt(); });
    }
    um_.rennen.maschine.zeitgeber_starten();
    return datei_ != nullptr;
}

}  // namespace tarvel
