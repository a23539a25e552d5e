#include "hardware/iow_40.h"

#include "hardware/iow_profil.h"

namespace tarvel {

iow_40::iow_40(const umgebung& um)
    : um_(um),
      platine_(um.bibliotheken),
      kontakte_({um.einst, um.ereignisse, um.rennen}, {.taster_sperrt_taste = true}),
      lebenstakt_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 1000ms)) {
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
    linien_ = 0;
    kontakte_.beginnen(linien_);
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
    nebenher_ = platine_.iow_oeffnen();
    if (nebenher_) {
        iow_belegung_laden();
        ausgaben_uebernehmen();
        um_.ausgaben.einschalten();  // by its own assignment
        um_.ausgaben.ruhezustand();
        lebenstakt_->an();
    }
}

void iow_40::ausgaben_uebernehmen() {
    um_.ausgaben.bericht.senden = [this](std::span<const std::uint8_t> bericht) { return senden(bericht); };
}

bool iow_40::anfangen() {
    if (!platine_.iow_oeffnen()) {
        return false;
    }
    abtastung_ = um_.abtaster.starten(1ms, [this](zeit_ms jetzt) { blick(jetzt); });
    lebenstakt_->an();
    return true;
}

void iow_40::anhalten() {
    lebenstakt_->aus();
    abtastung_.reset();  // before the board that it reads
    platine_.schliessen();
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
    if (gewuenscht_ && !platine_.offen() && anfangen()) {
        um_.ausgaben.bericht.schreiben();
    }
}

void iow_40::lebenstakt_tick() {
    if (nebenher_ && !platine_.offen() && !platine_.iow_oeffnen()) {
        return;
    }
    um_.ausgaben.bericht.schreiben();
    if (!um_.ausgaben.bericht.iow_schreibfehler()) {
        return;
    }
    if (nebenher_) {
        platine_.schliessen();  // what measures goes on
    } else {
        anhalten();
        um_.bedienung.verloren();
    }
}

void iow_40::blick(zeit_ms jetzt) {
    constexpr int berichte_max = 8;  // one after the other: each change is one that the race has to see
    for (int n = 0; n < berichte_max && platine_.lesen(linien_); ++n) {
        kontakte_.gesehen(jetzt, linien_);
    }
    kontakte_.gesehen(jetzt, linien_);
}

void iow_40::iow_auswerten() {
    if (platine_.offen()) {
        kontakte_.auswerten();
    }
}

}  // namespace tarvel
