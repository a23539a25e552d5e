#include "hardware/at_uhr.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <span>
#include <utility>

namespace tarvel {
namespace {

constexpr double uhr_abweichung = 0.02;      // of a small board's clock at most
constexpr double rauschen = 0.000002;        // of its rate, not worth a change
constexpr zeit_ms uhr_voraus_ms = 100;       // of what is known, by nothing but what the line takes
constexpr zeit_ms uhr_verspaetet_ms = 3000;  // nothing that tells of the clock comes so late
constexpr zeit_ms zweifel_ms = 1000;         // two messages so far apart are not one disturbance
constexpr zeit_ms fenster_max_ms = 64000;    // the longest stretches: half an hour together
constexpr zeit_ms einig_ms = 12;             // messages that nothing has held up
constexpr int einige_min = 5;                // so many that agree show the clock
constexpr zeit_ms einig_ueber_ms = 8000;     // over so long
constexpr zeit_ms genau_ueber_ms = 60000;    // or so long, where its rate is known well from before
constexpr zeit_ms totgang_ms = 20;           // by less than that, two clocks may be the same
constexpr zeit_ms genau_ms = 2;              // once they are not

zeit_ms anteil_von(zeit_ms dauer, double teil) {
    return std::llround(static_cast<double>(dauer) * teil);
}

}  // namespace

zeit_ms at_uhr::lesen(zeit_ms maschine) const {
    return linie_.geraet + anteil_von(maschine - linie_.maschine, gang_);
}

void at_uhr::neu_beginnen() {
    anzahl_ = 0;
    fenster_ms_ = erstes_fenster_ms;
    bekannt_ = false;
    zweifel_.reset();
    fest_.reset();
    ausgleich_.reset();
}

void at_uhr::festmachen(const moment& jetzt) {
    fest_ = jetzt;
    ausgleich_.reset();
    ausgleichen();
}

void at_uhr::ausgleichen() {
    if (fest_ && bekannt_ && !ausgleich_) {
        ausgleich_ = fest_->messzeit - lesen(fest_->maschine);
    }
}

std::optional<at_uhr::stellung> at_uhr::nachzustellen(const moment& jetzt, double gang) {
    if (!ausgleich_) {
        return std::nullopt;
    }
    const zeit_ms soll = lesen(jetzt.maschine) + *ausgleich_;
    const zeit_ms fehlt = std::abs(soll - jetzt.messzeit);
    folgt_ = folgt_ || fehlt > totgang_ms;
    if (!folgt_ || (fehlt <= genau_ms && std::abs(gang_ - gang) <= rauschen)) {
        return std::nullopt;
    }
    return stellung{soll, gang_};
}

void at_uhr::gehoert(const moment& jetzt, zeit_ms geraet) {
    const punkt neu{jetzt.maschine, geraet};
    if (anzahl_ > 0 && !glaubhaft(neu)) {
        if (!bestaetigt(neu)) {
            return;
        }
        const bool war_fest = fest_.has_value();
        neu_beginnen();  // it was switched off and on, or has run over
        fest_ = war_fest ? std::optional(jetzt) : std::nullopt;
    }
    zweifel_.reset();
    if (in_das_fenster(neu)) {
        linie_legen();
    }
}

bool at_uhr::glaubhaft(const punkt& neu) const {
    const punkt& zuletzt = punkte_.at(anzahl_ - 1);
    const zeit_ms spiel = anteil_von(std::abs(neu.maschine - zuletzt.maschine), uhr_abweichung);
    const zeit_ms erwartet =
        bekannt_ ? lesen(neu.maschine) : zuletzt.geraet + anteil_von(neu.maschine - zuletzt.maschine, gang_);
    const zeit_ms voraus = neu.geraet - erwartet;
    return voraus <= (bekannt_ ? uhr_voraus_ms : uhr_verspaetet_ms) + spiel && -voraus <= uhr_verspaetet_ms + spiel;
}

/// The clock really stands elsewhere, and that was no damaged message.
bool at_uhr::bestaetigt(const punkt& neu) {
    if (zweifel_ && neu.maschine - zweifel_->maschine < zweifel_ms) {
        return false;
    }
    const std::optional<punkt> vorher = std::exchange(zweifel_, neu);
    if (!vorher) {
        return false;
    }
    const zeit_ms seither = neu.maschine - vorher->maschine;
    return std::abs(neu.geraet - vorher->geraet - seither) <= uhr_voraus_ms + anteil_von(seither, uhr_abweichung);
}

/// True if it is the first of its stretch.
bool at_uhr::in_das_fenster(const punkt& neu) {
    if (anzahl_ > 0 && neu.maschine - fenster_seit_ < fenster_ms_) {
        punkt& bester = punkte_.at(anzahl_ - 1);
        if (neu.geraet - bester.geraet >= anteil_von(neu.maschine - bester.maschine, gang_)) {
            bester = neu;
        }
        return false;
    }
    if (anzahl_ == punkte_max) {
        platz_schaffen();
    }
    punkte_.at(anzahl_++) = neu;
    fenster_seit_ = neu.maschine;
    return true;
}

void at_uhr::platz_schaffen() {
    if (fenster_ms_ == fenster_max_ms) {
        std::shift_left(punkte_.begin(), punkte_.end(), 1);
        --anzahl_;
        return;
    }
    for (std::size_t i = 0; i < punkte_max; i += 2) {
        const punkt& a = punkte_.at(i);
        const punkt& b = punkte_.at(i + 1);
        punkte_.at(i / 2) = hoehe(a, gang_) > hoehe(b, gang_) ? a : b;
    }
    anzahl_ = punkte_max / 2;
    fenster_ms_ *= 2;
}

/// Of a line of this slope through the point, above the oldest.
double at_uhr::hoehe(const punkt& p, double gang) const {
    const punkt& bezug = punkte_.front();
    return static_cast<double>(p.geraet - bezug.geraet) - gang * static_cast<double>(p.maschine - bezug.maschine);
}

double at_uhr::hoechste(double gang) const {
    double oben = 0;
    for (const punkt& p : std::span(punkte_).first(anzahl_)) {
        oben = std::max(oben, hoehe(p, gang));
    }
    return oben;
}

/// What the points lie below a line of this slope that none is above, all together.
double at_uhr::rueckstand(double gang) const {
    double summe = hoechste(gang) * static_cast<double>(anzahl_);
    for (const punkt& p : std::span(punkte_).first(anzahl_)) {
        summe -= hoehe(p, gang);
    }
    return summe;
}

/// The line that lies nearest above the points.
void at_uhr::linie_legen() {
    constexpr int schritte = 60;
    double von = 1 - uhr_abweichung;
    double bis = 1 + uhr_abweichung;
    for (int i = 0; i < schritte; ++i) {  // the sum has one least value
        const double links = von + (bis - von) / 3;
        const double rechts = bis - (bis - von) / 3;
        if (rueckstand(links) > rueckstand(rechts)) {
            von = links;
        } else {
            bis = rechts;
        }
    }
    const double gang = (von + bis) / 2;
    const double oben = hoechste(gang);
    int einige = 0;
    zeit_ms erster = 0;
    zeit_ms letzter = 0;
    for (const punkt& p : std::span(punkte_).first(anzahl_)) {
        if (oben - hoehe(p, gang) <= einig_ms) {
            erster = einige++ == 0 ? p.maschine : erster;
            letzter = p.maschine;
        }
    }
    const zeit_ms ueber = letzter - erster;
    if (einige < einige_min || ueber < (gang_genau_ && !bekannt_ ? genau_ueber_ms : einig_ueber_ms)) {
        return;
    }
    gang_genau_ = gang_genau_ || ueber >= genau_ueber_ms;
    const punkt& bezug = punkte_.front();
    gang_ = gang;
    linie_ = {punkte_.at(anzahl_ - 1).maschine, 0};
    linie_.geraet = bezug.geraet + std::llround(oben + gang * static_cast<double>(linie_.maschine - bezug.maschine));
    bekannt_ = true;
    ausgleichen();
}

}  // namespace tarvel
