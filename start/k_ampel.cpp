#include "start/k_ampel.h"

#include <string>

#include "start/ampelmodus.h"

namespace tarvel {
namespace {

constexpr dauer_ms schrittdauer{1500};
constexpr dauer_ms gruen_nach{2500};
constexpr dauer_ms automatik_nach{500};
constexpr farbe rot = 255;

using plattform::zeitgeber_art;
using reihe2 = ampelmodus::zweite_reihe;

/// Two of the red lamps of a light with five burn before the first step, one of a light with four.
int lampe_vor_dem_ersten(ampelwahl wahl) {
    return ampelmodus_von(wahl).rote_schritte == 4 ? 1 : 2;
}

}  // namespace

k_ampel::k_ampel(rennen& r, plattform::zeitgeber_dienst& zeitgeber)
    : fensterlogik(r.umgebung.fenster, r.umgebung.ablage, fenstername::k_ampel), r_(r), um_(r.umgebung) {
    for (std::size_t i = 0; i < schritte; ++i) {
        rot_.at(i) = zeitgeber.erzeugen(zeitgeber_art::zaehlend, schrittdauer);
        rot_.at(i)->bei_tick = [this, i] { rot_tick(i); };
    }
    Timer2_ = zeitgeber.erzeugen(zeitgeber_art::zaehlend, gruen_nach);
    Timer2_->bei_tick = [this] { gruen_tick(); };
    cu_ampel_auswertetimer_ = zeitgeber.erzeugen(zeitgeber_art::abfragend, 1ms);
    cu_ampel_auswertetimer_->bei_tick = [this] { geraet_tick(); };
    geraet_frist_ = zeitgeber.erzeugen(zeitgeber_art::abfragend, dauer_ms(geraeteampel::laengste_ms));
    geraet_frist_->bei_tick = [this] { geraet_frist_tick(); };
    training_autotimer_ = zeitgeber.erzeugen(zeitgeber_art::zaehlend, automatik_nach);
    training_autotimer_->bei_tick = [this] {
        training_autotimer_->aus();
        um_.protokoll.tor([this] { um_.teil_von->von_selbst_starten(false); });
        beginnen();
    };
    Command1.bei_klick = um_.protokoll.befehl("weiter", [this] { Command1_klick(); });
}

void k_ampel::laden() {
    const ampelmodus& modus = ampelmodus_von(um_.einst.start_ampel_modus);
    k_reihe2_ = modus.reihe2 == reihe2::rot;
    for (std::size_t i = 0; i < schritte; ++i) {
        k_ampel_bild(i, "rt_aus");
        k_ampel_bild(i + schritte, k_reihe2_ ? "rt_aus" : "gr_aus");
        k_ampelbild.at(i + schritte).sichtbar(modus.reihe2 != reihe2::keine);
        Shape1.at(i).hintergrund(um_.einst.farbe_ampel_rot_aus);
        Shape1.at(i + schritte)
            .hintergrund(k_reihe2_ ? um_.einst.farbe_ampel_rot_aus : um_.einst.farbe_ampel_gruen_aus);
    }
    titel.text(um_.bahn.wort.fortsetzen);
    Command1.text(um_.bahn.wort.fortsetzen);
    Command1.aktiviert(true);
    geraet_taub_ = false;
    k_nachtabschaltung.sichtbar(false);
    if (um_.zustand.chaos_aktiv) {
        titel.fokus_setzen();  // a second press of the chaos key's neighbour must not end the pause
    } else {
        Command1.fokus_setzen();
    }
    if (um_.teil_von.wer_startet() == starter::ablauf && !um_.zustand.chaos_aktiv) {
        training_autotimer_->an();
    }
}

void k_ampel::pause_beenden() {
    if (!um_.fenster.ist_offen(kennung())) {
        um_.fenster.zeigen(kennung());
    }
    beginnen();
}

bool k_ampel::laeuft() const {
    return um_.fenster.ist_offen(kennung()) && !Command1.aktiviert();
}

void k_ampel::entladen() {
    um_.protokoll.tor([this] { um_.teil_von->von_selbst_starten(false); });
    zeitgeber_aus();
}

void k_ampel::zeitgeber_aus() {
    for (const auto& schritt : rot_) {
        schritt->aus();
    }
    Timer2_->aus();
    cu_ampel_auswertetimer_->aus();
    geraet_frist_->aus();
    training_autotimer_->aus();
}

void k_ampel::k_ampel_bild(std::size_t nummer, const char* name) {
    k_ampelbild.at(nummer).datei(std::string("ampel/") + name + ".gif");
}

void k_ampel::strom_aus() {
    um_.ausgaben.relais_on(0);
}

void k_ampel::Command1_klick() {
    if (!um_.protokoll.liest()) {
        um_.ausgaben.aufleben();  // they may have slept since an outage
    }
    um_.ausgaben.ampelnGRoff();  // the rest state's green must not burn beside the reds
    const int vorab = lampe_vor_dem_ersten(um_.einst.start_ampel_modus);
    for (int lampe = 1; lampe <= vorab; ++lampe) {
        um_.ausgaben.ampelnRon(lampe);
    }
    if (!um_.zustand.chaos_aktiv) {
        um_.fenster.entladen(fenstername::auswertung);
        k_nachtabschaltung.sichtbar(um_.einst.nachtrennen_modus != nachtrennen::aus);
        um_.ereignisse.rundenzaehlung_leeren();
    }
    strom_aus();
    Command1.aktiviert(false);
    if (!geraet_uebernimmt()) {
        rot_.front()->an();
    }
}

bool k_ampel::geraet_uebernimmt() {
    geraeteampel* licht = um_.quellen.ampel();
    if (licht == nullptr || !licht->rot() || geraet_taub_) {
        return false;
    }
    licht->neustart();
    geraet_frist_->an();
    geraet_nochmals_ = true;
    for (std::size_t i = 0; i < schritte; ++i) {
        lampe_an(i);
    }
    cu_ampel_auswertetimer_->an();
    return true;
}

void k_ampel::geraet_frist_tick() {
    geraeteampel* licht = um_.quellen.ampel();
    if (geraet_nochmals_ && licht != nullptr && licht->rot()) {
        geraet_nochmals_ = false;
        licht->neustart();  // its light may have run already, since before an outage: then the first press stopped it
        return;
    }
    geraet_frist_->aus();  // deaf to its start key: the next click goes without it
    cu_ampel_auswertetimer_->aus();
    geraet_taub_ = true;
    Command1.aktiviert(true);
}

void k_ampel::geraet_tick() {
    um_.quellen.melden(&messquelle::abfragen);
    const geraeteampel* licht = um_.quellen.ampel();
    if (licht != nullptr && licht->rot()) {
        return;
    }
    cu_ampel_auswertetimer_->aus();
    geraet_frist_->aus();
    if (licht != nullptr) {
        gruen_tick();
    } else {  // unplugged: this light does it
        rot_.front()->an();
    }
}

void k_ampel::lampe_an(std::size_t schritt) {
    Shape1.at(schritt).hintergrund(rot);
    k_ampel_bild(schritt, "rt_an");
    if (k_reihe2_) {
        Shape1.at(schritt + schritte).hintergrund(rot);
        k_ampel_bild(schritt + schritte, "rt_an");
    }
}

void k_ampel::rot_tick(std::size_t schritt) {
    if (!um_.zustand.chaos_aktiv) {
        strom_aus();
    }
    rot_.at(schritt)->aus();
    if (schritt == 0 && geraet_uebernimmt()) {
        return;  // its cars have only just been stopped: they drove while the program was away
    }
    lampe_an(schritt);
    um_.ausgaben.ampelnRon(lampe_vor_dem_ersten(um_.einst.start_ampel_modus) + static_cast<int>(schritt) + 1);
    um_.sounds.spielen(sound::ampelschritt);
    if (schritt + 1 < schritte) {
        rot_.at(schritt + 1)->an();
    } else {
        Timer2_->an();
    }
}

void k_ampel::gruen_tick() {
    Timer2_->aus();
    const bool mit_gruen = ampelmodus_von(um_.einst.start_ampel_modus).reihe2 == reihe2::gruen;
    for (std::size_t i = 0; i < schritte; ++i) {
        k_ampel_bild(i, "rt_aus");
        k_ampel_bild(i + schritte, mit_gruen ? "gr_an" : "rt_aus");
    }
    for (form& licht : Shape1) {
        licht.hintergrund(um_.einst.farbe_ampel_rot_aus);
    }
    if (um_.zustand.chaos_aktiv) {
        r_.chaos.chaosende_routine();
    } else {
        r_.fortsetzung.weiterfahren();
    }
    um_.ausgaben.ampelnRoff(0);
    um_.ausgaben.ampelnGRon();
    r_.strafen.strom_wiederherstellen();
    um_.fenster.entladen(fenstername::k_ampel);
}

}  // namespace tarvel
