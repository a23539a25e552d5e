#include "hardware/iow_40.h"

#include "hardware/iow_profil.h"

namespace tarvel {
namespace {

constexpr dauer_ms lebenstakt{50};
constexpr int takte_je_bericht = 20;  // each second a report shows whether the board is still there

}  // namespace

iow_40::iow_40(const umgebung& um)
    : um_(um),
      platine_(um.bibliotheken),
      schreiber_(platine_, um.abtaster),
      kontakte_({um.einst, um.ereignisse, um.rennen}, {.taster_sperrt_taste = true}),
      lebenstakt_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, lebenstakt)) {
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
    nebenher_ = platine_oeffnen();
    if (nebenher_) {
        iow_belegung_laden();
        ausgaben_uebernehmen();
        um_.ausgaben.einschalten();  // by its own assignment
        um_.ausgaben.ruhezustand();
        lebenstakt_->an();
    }
}

void iow_40::ausgaben_uebernehmen() {
    um_.ausgaben.bericht.senden = [this](std::span<const std::uint8_t> bericht) { return schreiber_.geben(bericht); };
}

bool iow_40::platine_oeffnen() {
    const bool offen = platine_.iow_oeffnen();
    if (offen) {
        schreiber_.anfangen();
        takte_ = 0;
        erledigt_davor_ = 0;
    }
    return offen;
}

bool iow_40::anfangen() {
    if (!platine_oeffnen()) {
        return false;
    }
    abtastung_ = um_.abtaster.starten(1ms, [this](zeit_ms jetzt) { blick(jetzt); });
    lebenstakt_->an();
    return true;
}

void iow_40::anhalten() {
    lebenstakt_->aus();
    abtastung_.reset();  // before the board that it reads
    schreiber_.anhalten();
    platine_.schliessen();
    haengt_ = false;
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
    if (schreiber_.verweigert()) {
        platine_verloren();
        return;
    }
    if (haengt_ && schreiber_.fertig()) {
        haengen(false);
    }
    if (++takte_ < takte_je_bericht) {
        return;
    }
    takte_ = 0;
    if (nebenher_ && !platine_.offen() && !platine_oeffnen()) {
        return;
    }
    if (schreiber_.fertig()) {
        um_.ausgaben.bericht.schreiben();
    } else if (schreiber_.erledigt() == erledigt_davor_) {
        haengen(true);
    }
    erledigt_davor_ = schreiber_.erledigt();
}

void iow_40::haengen(bool nun) {
    if (haengt_ == nun) {
        return;
    }
    haengt_ = nun;
    if (!nun) {
        um_.ausgaben.bericht.schreiben();  // there may have been no room for the last one
    } else if (!nebenher_) {
        um_.bedienung.verloren();
    }
}

void iow_40::platine_verloren() {
    if (nebenher_) {
        schreiber_.anhalten();
        platine_.schliessen();  // what measures goes on
        haengt_ = false;
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
