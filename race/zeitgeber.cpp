#include "race/zeitgeber.h"

namespace tarvel {

using plattform::zeitgeber_art;

namespace {

/// A lock-out: it only switches itself off.
std::unique_ptr<plattform::zeitgeber> einmalig(plattform::zeitgeber_dienst& dienst, dauer_ms intervall) {
    auto zeitgeber = dienst.erzeugen(zeitgeber_art::abfragend, intervall);
    zeitgeber->bei_tick = [sperre = zeitgeber.get()] { sperre->aus(); };
    return zeitgeber;
}

}  // namespace

rennzeitgeber::rennzeitgeber(plattform::zeitgeber_dienst& dienst)
    : renntimer(dienst.erzeugen(zeitgeber_art::abfragend, 1ms)),
      renntimer2(dienst.erzeugen(zeitgeber_art::abfragend, 1ms)),
      renntimer3(dienst.erzeugen(zeitgeber_art::abfragend, 1ms)),
      blinktimer(dienst.erzeugen(zeitgeber_art::abfragend, 500ms)),
      nachlauftimer1(dienst.erzeugen(zeitgeber_art::zaehlend, 60000ms)),
      chaostimer(einmalig(dienst, pausensperre)),
      chaosende_timer(einmalig(dienst, 1500ms)),
      chaostimer2(dienst.erzeugen(zeitgeber_art::abfragend, 1ms)),
      ch_durch0(dienst.erzeugen(zeitgeber_art::zaehlend, 10ms)),
      chaos_runden(dienst.erzeugen(zeitgeber_art::zaehlend, 500ms)),
      tm_chausloeser_falsch_setzen(dienst.erzeugen(zeitgeber_art::zaehlend, 500ms)),
      chaos_schalter_at2560(dienst.erzeugen(zeitgeber_art::zaehlend, 200ms)),
      f_straftimer(dienst.erzeugen(zeitgeber_art::zaehlend, 10ms)),
      f_straftimer2(dienst.erzeugen(zeitgeber_art::zaehlend, 0ms)) {
    for (auto& sperre : soundtrigger) {
        sperre = einmalig(dienst, 3000ms);
    }
    for (auto& sperre : sekt_timer) {
        sperre = dienst.erzeugen(zeitgeber_art::abfragend, 1500ms);
    }
    for (const int spur : alle_spuren) {
        tanktimer[spur] = dienst.erzeugen(zeitgeber_art::zaehlend, 10ms);
        t_straftimer[spur] = dienst.erzeugen(zeitgeber_art::zaehlend, 10ms);
        straftimer_ch[spur] = dienst.erzeugen(zeitgeber_art::zaehlend, 12ms);
    }
}

void rennzeitgeber::rennen_an() const {
    renntimer->an();
    renntimer2->an();
    renntimer3->an();
}

void rennzeitgeber::rennen_aus() const {
    renntimer->aus();
    renntimer2->aus();
    renntimer3->aus();
}

void rennzeitgeber::pause_aus() const {
    for (const auto* zeitgeber : {&chaostimer, &chaosende_timer, &chaostimer2, &ch_durch0, &chaos_runden,
                                  &tm_chausloeser_falsch_setzen, &chaos_schalter_at2560}) {
        (*zeitgeber)->aus();
    }
    for (const auto& strafe : straftimer_ch) {
        strafe->aus();
    }
}

void rennzeitgeber::alle_aus() const {
    rennen_aus();
    pause_aus();
    blinktimer->aus();
    nachlauftimer1->aus();
    f_straftimer->aus();
    f_straftimer2->aus();
    for (const auto& sperre : soundtrigger) {
        sperre->aus();
    }
    for (const auto& sperre : sekt_timer) {
        sperre->aus();
    }
    for (const int spur : alle_spuren) {
        tanktimer[spur]->aus();
        t_straftimer[spur]->aus();
    }
}

}  // namespace tarvel
