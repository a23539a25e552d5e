#include "hardware/iow_40.h"

#include "hardware/iow_profil.h"

namespace tarvel {

iow_40::iow_40(const umgebung& um)
    : um_(um),
      bibliothek_(std::make_shared<iow_bibliothek>(um.bibliotheken)),
      leitung_(bibliothek_, um.abtaster),
      kontakte_({um.einst, um.ereignisse, um.rennen}, {.taster_sperrt_taste = true, .schalter_zu_ist_an = true}),
      lebenstakt_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, iow_leitung::nachsehen_alle)) {
    lebenstakt_->bei_tick = [this] { lebenstakt_tick(); };
}

void iow_40::iow_belegung_laden() {
    const auto profil = iow_profil_laden(um_.ablage, um_.einst.iow.iow_datei);
    if (!profil) {
        um_.meldungen.zeigen(um_.txt.meldung[11], um_.txt.titel[1]);
    }
    const iow_profil gilt = profil.value_or(iow_werkseinstellung());
    um_.ausgaben.bericht.belegung = belegung_von(gilt);
    kontakte_.zuordnen(linien_von(gilt));
}

bool iow_40::oeffnen() {
    schliessen();
    iow_belegung_laden();
    kontakte_.beginnen(0);
    gewuenscht_ = anfangen();
    if (!gewuenscht_) {
        um_.bedienung.nicht_zu_oeffnen(*this, um_.txt.meldung[1]);
        return false;
    }
    ausgaben_uebernehmen();
    return true;
}

void iow_40::nebenher_oeffnen() {
    schliessen();
    nebenher_ = leitung_.oeffnen(nullptr);
    if (nebenher_) {
        iow_belegung_laden();
        ausgaben_uebernehmen();
        um_.ausgaben.einschalten();  // by its own assignment
        um_.ausgaben.ruhezustand();
        lebenstakt_->an();
    }
}

void iow_40::ausgaben_uebernehmen() {
    um_.ausgaben.bericht.senden = [this](std::span<const std::uint8_t> bericht) { return leitung_.schreiben(bericht); };
}

bool iow_40::anfangen() {
    if (!leitung_.oeffnen(kontakte_.neuer_abtaster())) {
        return false;
    }
    lebenstakt_->an();
    return true;
}

void iow_40::anhalten() {
    lebenstakt_->aus();
    leitung_.schliessen();
    kontakte_.verstummt();
}

void iow_40::schliessen() {
    if (gewuenscht_ || nebenher_) {
        um_.ausgaben.bericht.senden = {};
    }
    gewuenscht_ = nebenher_ = false;
    anhalten();
}

void iow_40::wieder_aufnehmen() {
    if (gewuenscht_ && !leitung_.offen() && anfangen()) {
        um_.ausgaben.bericht.schreiben();
    }
}

void iow_40::lebenstakt_tick() {
    using befund = iow_leitung::befund;
    switch (leitung_.nachsehen()) {
        case befund::nichts:
            return;
        case befund::abgezogen:
            platine_verloren();
            return;
        case befund::haengt:
            if (!nebenher_) {
                um_.bedienung.verloren();
            }
            return;
        case befund::faellig:
        case befund::nimmt_wieder:
            if (leitung_.offen() || leitung_.oeffnen(nullptr)) {
                um_.ausgaben.bericht.schreiben();
            }
    }
}

void iow_40::platine_verloren() {
    if (nebenher_) {
        leitung_.schliessen();  // what measures goes on
    } else {
        anhalten();
        um_.bedienung.verloren();
    }
}

void iow_40::iow_auswerten() {
    if (leitung_.offen()) {
        kontakte_.auswerten();
    }
}

}  // namespace tarvel
