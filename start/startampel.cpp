#include "start/startampel.h"

#include <string>
#include <utility>

#include "start/fruehstartansage.h"

namespace tarvel {
namespace {

constexpr dauer_ms vorlauf{2000};
constexpr dauer_ms schrittdauer{1500};
constexpr dauer_ms drag_vor{2000};  // steps of the tree's white lights
constexpr dauer_ms drag_gelb{500};
constexpr dauer_ms freigabe_nach{2000};
constexpr dauer_ms startkommando_nach{2000};

constexpr farbe weiss = 16777215;
constexpr farbe gelb = 65535;
constexpr farbe gruen = 0x00E040;
constexpr farbe dunkel = 0x303030;

constexpr int taste_nacht = 110;  // "n"

constexpr const char* rt_an = "rt_an";
constexpr const char* rt_aus = "rt_aus";
constexpr const char* gr_an = "gr_an";
constexpr const char* gr_aus = "gr_aus";

using plattform::zeitgeber_art;
using reihe2 = ampelmodus::zweite_reihe;

}  // namespace

startampel::startampel(rennen& r, einstellungen& einst, plattform::zeitgeber_dienst& zeitgeber)
    : fensterlogik(r.umgebung.fenster, r.umgebung.ablage, fenstername::Form2),
      r_(r),
      um_(r.umgebung),
      einst_(einst),
      fruehstart_(r.umgebung, r.strafen, *this) {
    const auto kette = [&](dauer_ms dauer, auto tick) {
        auto neu = zeitgeber.erzeugen(zeitgeber_art::zaehlend, dauer);
        neu->bei_tick = std::move(tick);
        return neu;
    };
    Timer1_ = kette(vorlauf, [this] {
        Timer1_->aus();
        rot_.front()->an();
    });
    for (std::size_t i = 0; i < rot_max; ++i) {
        rot_.at(i) = kette(schrittdauer, [this, i] { rot_tick(i + 1); });
    }
    Timer7_ = kette(schrittdauer, [this] { gruen_tick(); });
    Timer8_ = kette(freigabe_nach, [this] { freigabe_tick(); });
    fruehstarttimer_ = zeitgeber.erzeugen(zeitgeber_art::abfragend, 1ms);
    fruehstarttimer_->bei_tick = [this] { fruehstart_tick(); };
    Timer9_ = kette(startkommando_nach, [this] {
        Timer9_->aus();
        if (geraeteampel* licht = um_.quellen.ampel(); licht != nullptr && !um_.zustand.chaos_aktiv) {
            licht->startkommando();
            geraet_gestartet_ = true;
        }
    });
    cu_ampel_auswertetimer_ = zeitgeber.erzeugen(zeitgeber_art::abfragend, 1ms);
    cu_ampel_auswertetimer_->bei_tick = [this] { cu_ampel_auswerten(); };
    ampelaus_timer_ = kette(1ms, [this] {
        ampelaus_timer_->aus();
        um_.fenster.verbergen(fenstername::Form2);
    });
    for (const int spur : alle_spuren) {
        stw_[spur] = kette(1ms, [this, spur] { strom_tick(spur); });
    }
    fenster.Label_fruehstart.sichtbar(false);
    fenster.abbrampel.sichtbar(false);
    fenster.abbrampel.bei_klick = um_.protokoll.befehl("ampel_abbrechen", [this] { abbrampel_klick(); });
    taste_ = um_.protokoll.eingang("ampeltaste", 2, [this](const mitschrift::werte& w) {
        taste_auswerten(static_cast<int>(w[0]), w[1] < 0 ? std::nullopt : std::optional(w[1]));
    });
}

void startampel::laden() {
    lampen_aufstellen();
    ampel_laeuft_ = true;
    gruen_erreicht_ = false;
    abgebrochen_ = false;
    texte_setzen();
    fenster.Nachtabschaltung.sichtbar(um_.einst.nachtrennen_modus == nachtrennen::rennen_und_ampel);
    Timer7_->intervall(um_.zustand.ampel_takt);
    const bool drag = um_.einst.start_ampel_modus == ampelwahl::dragrace;
    for (std::size_t i = 0; i < rot_max; ++i) {
        const dauer_ms im_baum = i < 3 ? drag_vor : drag_gelb;
        rot_.at(i)->intervall(drag ? im_baum : schrittdauer);
    }
    fruehstart_.zuruecksetzen();
    um_.ausgaben.ampelnRoff(0);  // a start that was stopped has left some of them lit
    um_.ausgaben.ampelnGRoff();  // the rest state's green must not burn beside the reds
    geraet_rot_ = false;
    geraet_gestartet_ = false;
    if (um_.quellen.ampel() != nullptr) {
        Timer9_->an();
        cu_ampel_auswertetimer_->an();
        um_.bahn.cu_startlabel.text(um_.bahn.wort.cu_start);
        um_.bahn.cu_startframe.sichtbar(um_.quellen.kann().start_am_geraet);
    } else {
        eigene_kette_beginnen();
        if (ampelmodus_von(um_.einst.start_ampel_modus).verborgen) {
            ampelaus_timer_->an();
        }
    }
    titel.fokus_setzen();  // a second press of the key that started must not stop the start
}

void startampel::texte_setzen() {
    titel.text(um_.bahn.wort.startampel);
    fenster.Label_prestage.text(um_.bahn.wort.prestage);
    fenster.Label_stage.text(um_.bahn.wort.stage);
    fenster.Label1.text(um_.txt.meldung[17]);
    fenster.Label1.sichtbar(false);
    fenster.Label_fruehstart.sichtbar(false);
    fenster.abbrampel.sichtbar(true);
    fenster.abbrampel.text(um_.txt.meldung[18]);
    fenster.abbrampel.aktiviert(true);
}

void startampel::ampel_bild(std::size_t nummer, const char* name) {
    fenster.ampelbild.at(nummer - 1).datei(std::string("ampel/") + name + ".gif");
}

void startampel::alle_lampen(const char* reihe1, const char* reihe2) {
    for (std::size_t n = 1; n <= rot_max; ++n) {
        ampel_bild(n, reihe1);
        ampel_bild(n + rot_max, reihe2);
    }
}

void startampel::lampen_aufstellen() {
    const ampelmodus& modus = ampelmodus_von(um_.einst.start_ampel_modus);
    alle_lampen(rt_aus, modus.reihe2 == reihe2::rot ? rt_aus : gr_aus);
    for (std::size_t i = 0; i < rot_max; ++i) {
        const bool da = modus.lampenbild && static_cast<int>(i) < modus.rote_schritte;
        fenster.ampelbild.at(i).sichtbar(da);
        fenster.ampelbild.at(i + rot_max).sichtbar(da);
    }
    fenster.dragbaum.sichtbar(um_.einst.start_ampel_modus == ampelwahl::dragrace);
    for (form& licht : fenster.Shape11) {
        licht.hintergrund(dunkel);
    }
    for (form& licht : fenster.Shape12) {
        licht.hintergrund(dunkel);
    }
}

void startampel::dragbaum_schalten(std::size_t schritt) {
    if (schritt == 1) {
        for (form& licht : fenster.Shape11) {
            licht.hintergrund(weiss);
        }
    } else if (schritt >= 3) {
        const std::size_t paar = 2 * (schritt - 3);
        fenster.Shape12.at(paar).hintergrund(gelb);
        fenster.Shape12.at(paar + 1).hintergrund(gelb);
    }
}

void startampel::rot_tick(std::size_t schritt) {
    rot_.at(schritt - 1)->aus();
    const ampelmodus& modus = ampelmodus_von(um_.einst.start_ampel_modus);
    if (um_.einst.start_ampel_modus == ampelwahl::dragrace) {
        dragbaum_schalten(schritt);
    } else {
        ampel_bild(schritt, rt_an);
        if (modus.reihe2 == reihe2::rot) {
            ampel_bild(schritt + rot_max, rt_an);
        }
    }
    um_.ausgaben.ampelnRon(static_cast<int>(schritt));
    um_.sounds.spielen(sound::ampelschritt);
    if (static_cast<int>(schritt) == modus.rote_schritte) {
        Timer7_->an();
    } else {
        rot_.at(schritt)->an();
    }
}

void startampel::gruen_zeigen() {
    const bool mit_gruen = ampelmodus_von(um_.einst.start_ampel_modus).reihe2 == reihe2::gruen;
    alle_lampen(rt_aus, mit_gruen ? gr_an : rt_aus);
    constexpr std::size_t gruenes_paar = 6;
    fenster.Shape12.at(gruenes_paar).hintergrund(gruen);
    fenster.Shape12.at(gruenes_paar + 1).hintergrund(gruen);
}

void startampel::gruen_tick() {
    Timer7_->aus();
    if (gruen_erreicht_) {
        return;
    }
    Timer8_->an();
    fruehstart_tick();  // an edge of this very moment is still a false start
    if (!abgebrochen_) {
        gruen_geben();
    }
}

void startampel::eigene_kette_beginnen() {
    Timer1_->an();
    fruehstarttimer_->an();
}

void startampel::cu_ampel_auswerten() {
    const geraeteampel* licht = um_.quellen.ampel();
    um_.quellen.melden(&messquelle::abfragen);
    if (licht == nullptr) {  // unplugged: the race starts without it
        cu_ampel_auswertetimer_->aus();
        um_.bahn.cu_startframe.sichtbar(false);
        eigene_kette_beginnen();
    } else if (!geraet_rot_ && !licht->rot()) {
        um_.ereignisse.rundenzaehlung_leeren();  // the cars may still roll to the start
    } else if (licht->rot()) {
        if (!std::exchange(geraet_rot_, true)) {
            const bool reihe2_rot = ampelmodus_von(um_.einst.start_ampel_modus).reihe2 == reihe2::rot;
            alle_lampen(rt_an, reihe2_rot ? rt_an : gr_aus);
            for (std::size_t schritt = 1; schritt <= rot_max; ++schritt) {
                dragbaum_schalten(schritt);
            }
            um_.ausgaben.ampelnRon(0);
            um_.sounds.spielen(sound::ampelschritt);
        }
        if (fruehstart_.pruefen()) {
            fruehstart_zeigen();
        }
    } else {
        cu_ampel_auswertetimer_->aus();
        Timer8_->an();
        gruen_geben();
    }
}

void startampel::gruen_geben() {
    gruen_zeigen();
    gruen_erreicht_ = true;
    fenster.abbrampel.aktiviert(false);
    um_.ausgaben.ampelnRoff(0);
    um_.ausgaben.ampelnGRon();
    r_.ablauf.rennen_starten(um_.moment_lesen());
    fruehstarttimer_->aus();
    um_.bahn.cu_startframe.sichtbar(false);
    r_.fruehstartstrafe.beginnen();
}

void startampel::freigabe_tick() {
    Timer8_->aus();
    r_.ablauf.befehle_freigeben();
    um_.bahn.Command3.fokus_setzen();
    if (!um_.zustand.chaos_aktiv) {
        um_.bahn.ch_strafframe.sichtbar(false);
    }
    for (const int spur : alle_spuren) {
        um_.ereignisse[art::tanken_ein[spur]].aktiv = false;
        um_.ereignisse[art::tanken_aus[spur]].aktiv = false;
    }
    um_.fenster.entladen(fenstername::Form2);
}

void startampel::fruehstart_tick() {
    r_.ablauf.quellen_abfragen();
    if (fruehstart_.pruefen()) {
        fruehstart_zeigen();
    }
}

void startampel::fruehstart_zeigen() {
    spuren<bool> zu_frueh;
    for (const int spur : alle_spuren) {
        zu_frueh[spur] = fruehstart_.erkannt(spur);
    }
    fenster.Label_fruehstart.text(fruehstart_gesagt(um_, zu_frueh));
    fenster.Label_fruehstart.sichtbar(true);
}

void startampel::strom_tick(int spur) {
    stw_[spur]->aus();
    r_.strafen.spur_strom_aus(spur);
}

void startampel::zeitgeber_aus() {
    Timer1_->aus();
    for (const auto& schritt : rot_) {
        schritt->aus();
    }
    Timer7_->aus();
    Timer8_->aus();
    Timer9_->aus();
    fruehstarttimer_->aus();
    cu_ampel_auswertetimer_->aus();
}

void startampel::geraet_anhalten() {
    geraeteampel* licht = um_.quellen.ampel();
    if (std::exchange(geraet_gestartet_, false) && licht != nullptr && licht->rot()) {
        licht->abbrechen();  // else its light goes green all the same
    }
}

void startampel::start_abbrechen() {
    abgebrochen_ = true;
    zeitgeber_aus();
    geraet_anhalten();
    fenster.Label1.sichtbar(true);
    fenster.abbrampel.text("OK");
    fenster.abbrampel.fokus_setzen();
    ampelaus_timer_->aus();
    um_.fenster.zeigen(fenstername::Form2);  // a hidden light comes out: somebody must see why, and press the button
}

void startampel::abbrampel_klick() {
    um_.ausgaben.ampelnRon(1);
    um_.ausgaben.ampelnGRoff();
    um_.sounds.spielen(sound::rennen_abgebrochen);
    for (const int spur : alle_spuren) {
        stw_[spur]->aus();
    }
    r_.strafen.alle_strom_an();
    zeitgeber_aus();
    geraet_anhalten();
    r_.ablauf.start_abgebrochen();
    fenster.Nachtabschaltung.sichtbar(false);
    um_.fenster.entladen(fenstername::Form2);
}

bool startampel::zu_sehen() const {
    return abgebrochen_ || !ampelmodus_von(um_.einst.start_ampel_modus).verborgen;
}

void startampel::schliessen() {
    fenster.abbrampel.klicken();  // does nothing after green
}

void startampel::entladen() {
    ampel_laeuft_ = false;
    if (!gruen_erreicht_) {
        geraet_anhalten();  // the race window was closed over it
        um_.quellen.melden(&messquelle::start_abgebrochen);
    }
    zeitgeber_aus();
    ampelaus_timer_->aus();
    if (!um_.zustand.chaos_aktiv) {  // else it says who has asked for that pause, or what is to do at the device
        um_.bahn.cu_startframe.sichtbar(false);
    }
    fenster.Label_fruehstart.sichtbar(false);  // another window may show both
    fenster.abbrampel.sichtbar(false);
    for (const auto& unterbrechung : stw_) {
        unterbrechung->aus();
    }
    einst_.fruehstart_strafzeit = fruehstart_sperrdauer(einst_);  // from here on what is saved, too
}

bool startampel::ist_belegt(int code) const {
    return code == taste_nacht || r_.befehle.ist_belegt(code);
}

void startampel::nacht_umschalten() {
    // usually the same key has just turned the race window's cover: both are dark or both are not
    const bool auch_bahn = r_.befehle.ist_nachttaste(taste_nacht);
    fenster.Nachtabschaltung.sichtbar(auch_bahn ? um_.bahn.Nachtabschaltung.sichtbar()
                                                : !fenster.Nachtabschaltung.sichtbar());
}

void startampel::taste(int code, std::optional<zeit_ms> alter) {
    um_.protokoll.geschieht(taste_, {code, alter.value_or(-1)});
}

void startampel::taste_auswerten(int code, std::optional<zeit_ms> alter) {
    r_.befehle.taste_auswerten(code, alter);
    if (code == taste_nacht) {
        nacht_umschalten();
    }
    if (!gruen_erreicht_) {
        fruehstart_.tanksensor_als_rundensensor();
    }
}

}  // namespace tarvel
