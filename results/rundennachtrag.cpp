#include "results/rundennachtrag.h"

#include <algorithm>
#include <utility>

#include "race/hergangsworte.h"

namespace tarvel {
namespace {

/// What of the time between two stamps was a pause.
zeit_ms pause_zwischen(const std::vector<rennpause>& pausen, zeit_ms von, zeit_ms bis) {
    zeit_ms summe = 0;
    for (const rennpause& p : pausen) {
        summe += std::max<zeit_ms>(std::min(p.bis, bis) - std::max(p.von, von), 0);
    }
    return summe;
}

/// Where the lane's lap began that it was in at the stamp: at its last crossing, or with the light behind that.
zeit_ms rundenbeginn(int spur, const std::vector<rennpause>& pausen, zeit_ms letzte, zeit_ms stempel) {
    zeit_ms beginn = letzte;
    for (const rennpause& p : pausen) {
        beginn = p.daheim[spur] && p.bis <= stempel ? std::max(beginn, p.bis) : beginn;
    }
    return beginn;
}

}  // namespace

std::optional<korrektur> ueberfahrt_nachtragen(const rennergebnis::spur& s, const abgelehnte_ueberfahrt& u,
                                               const std::vector<rennpause>& pausen, double laenge) {
    const auto dahinter = std::find_if(s.runden.begin(), s.runden.end(),
                                       [&](const rennergebnis::runde& r) { return r.stempel >= u.stempel; });
    if (dahinter == s.runden.begin() || (dahinter != s.runden.end() && dahinter->stempel == u.stempel)) {
        return std::nullopt;
    }
    const zeit_ms von = (dahinter - 1)->stempel;
    const bool am_ende = dahinter == s.runden.end();
    const zeit_ms beginn = rundenbeginn(s.nummer, pausen, von, u.stempel);
    zeit_ms pause = beginn - von + pause_zwischen(pausen, beginn, u.stempel);
    if (!am_ende) {
        pause = std::min(pause, dahinter->pause.value_or(0));
        if (u.stempel - von - pause >= dahinter->zeit) {
            pause = dahinter->pause.value_or(0);  // a break that no pause of the log explains
        }
    }
    const korrektur k{korrektur::art::ueberfahrt,
                      s.nummer,
                      static_cast<int>(dahinter - s.runden.begin()),
                      u.stempel - von - pause,
                      u.stempel,
                      pause,
                      laenge};
    return k.zeit > 0 && (am_ende || k.zeit < dahinter->zeit) ? std::optional(k) : std::nullopt;
}

korrektur runde_teilen(const rennergebnis::spur& s, int runde) {
    const auto ganze = s.runden.begin() + runde;
    const zeit_ms pause = ganze->pause.value_or(0) / 2;
    const zeit_ms von = (ganze - 1)->stempel;
    return {korrektur::art::geteilt,
            s.nummer,
            runde,
            ganze->zeit / 2,
            std::min(von + ganze->zeit / 2 + pause, ganze->stempel - 1),
            pause,
            0};
}

rundennachtrag::rundennachtrag() {
    Frame_nachtrag.sichtbar(false);
    cbo_nachtrag.bei_aenderung = [this] {
        const auto platz = static_cast<std::size_t>(std::max(cbo_nachtrag.platz(), 0));
        if (platz < ergebnis_.spuren.size() && ergebnis_.spuren[platz].nummer != spur_) {
            spur_ = ergebnis_.spuren[platz].nummer;
            spur_zeigen(0);
        }
    };
    Command_eintragen.bei_klick = [this] {
        if (const std::optional<korrektur> k = gewaehlt()) {
            eintragen(*k);
        } else {
            ohne_wahl();
        }
    };
    angebote.bei_doppelklick = [this] { Command_eintragen.klicken(); };
}

std::optional<korrektur> rundennachtrag::gewaehlt() const {
    const auto zeile = static_cast<std::size_t>(angebote.markiert());  // none is beyond all
    return zeile < moeglich_.size() ? std::optional(moeglich_[zeile]) : std::nullopt;
}

void rundennachtrag::sprache(sprachliste& texte) {
    texte.text("Runde nachtragen auf", Label_nachtrag_spur).text("Spur", wort_.spur);
    texte.text("Nicht gezählte Überfahrten mit ihrem Grund, darunter alle Runden, in denen eine Überfahrt fehlen kann",
               wort_.was);
    texte.text("Nachtragen", Command_eintragen).text("Abbrechen", Command_abbrechen).text("Runde", wort_.runde);
    texte.text("Überfahrt bei", wort_.ueberfahrt).text("teilen in", wort_.teilen);
}

void rundennachtrag::ansagen() {
    cbo_nachtrag.ansage(Label_nachtrag_spur.text());
    Label_nachtrag.text(wort_.was);
    angebote.ansage(wort_.was);
}

void rundennachtrag::fuellen(const rennergebnis& ergebnis, offene_runden offen, const spuren<double>& laengen,
                             const trennzeichen_tabelle& trennzeichen, int spur, int runde) {
    ergebnis_ = ergebnis;
    offen_ = std::move(offen);
    laengen_ = laengen;
    trennzeichen_ = trennzeichen;
    const rennergebnis::spur* erster = ergebnis_.fuehrende();
    spur_ = ergebnis_.auf(spur) != nullptr ? spur : erster == nullptr ? 0 : erster->nummer;
    std::vector<std::string> namen;
    int platz = -1;
    for (const rennergebnis::spur& s : ergebnis_.spuren) {
        platz = s.nummer == spur_ ? static_cast<int>(namen.size()) : platz;
        namen.push_back(wort_.spur + " " + std::to_string(s.nummer) + ": " + s.fahrer);
    }
    cbo_nachtrag.eintraege(namen);
    cbo_nachtrag.platz(platz);
    spur_zeigen(runde);
}

/// As the log tells it, and as the race's clock, which stands in a pause, would have: nobody has seen the other one.
std::string rundennachtrag::moment(const abgelehnte_ueberfahrt& u) const {
    const char komma = trennzeichen_[1].empty() ? ',' : trennzeichen_[1].front();
    const zeit_ms stand = uhr_stand(u);
    const std::string im_protokoll = hergang_zeit(u.seit_gruen, 3, komma);
    return stand == u.seit_gruen ? im_protokoll
                                 : im_protokoll + " (" + wort_.ohne_pausen + " " + hergang_zeit(stand, 3, komma) + ")";
}

zeit_ms rundennachtrag::uhr_stand(const abgelehnte_ueberfahrt& u) const {
    rennpause zuletzt{.bis = u.stempel - u.seit_gruen};
    for (const rennpause& p : offen_.pausen) {
        zuletzt = p.uhr_stand && p.bis <= u.stempel ? p : zuletzt;
    }
    return zuletzt.uhr_stand.value_or(0) + u.stempel - zuletzt.bis -
           pause_zwischen(offen_.pausen, zuletzt.bis, u.stempel);
}

void rundennachtrag::anbieten(const korrektur& k, const rennergebnis::spur& s, const std::string& was) {
    std::string zeile = wort_.runde + " " + std::to_string(k.runde) + ":  " + was + "  →  " + zeit(k.zeit);
    if (k.runde <= s.rundenzahl()) {
        zeile += " + " + zeit(s.runden[static_cast<std::size_t>(k.runde)].zeit - k.zeit);
    }
    moeglich_.push_back(k);
    angebote.hinzufuegen(zeile);
}

void rundennachtrag::spur_zeigen(int runde) {
    angebote.leeren();
    moeglich_.clear();
    const rennergebnis::spur* s = ergebnis_.auf(spur_);
    const bool war_im_ziel =
        s != nullptr && ergebnis_.ziel && !ergebnis_.ziel->ist_zeit() && s->rundenzahl() >= ergebnis_.ziel->runden();
    Label_nachtrag.text(war_im_ziel ? wort_.was + ". " + wort_.war_im_ziel : wort_.was);
    if (s == nullptr || s->disqualifiziert) {
        return;
    }
    for (const abgelehnte_ueberfahrt& u : offen_.ueberfahrten) {
        const auto k = u.spur == spur_ ? ueberfahrt_nachtragen(*s, u, offen_.pausen, laengen_[spur_]) : std::nullopt;
        rennergebnis probe;
        probe.ziel = ergebnis_.ziel;
        probe.zeit_um = ergebnis_.zeit_um;
        probe.spuren = {*s};
        if (k && korrigieren(probe, *k)) {
            anbieten(*k, *s, wort_.ueberfahrt + " " + moment(u) + ", " + u.grund);
        }
    }
    const std::size_t ueberfahrten = moeglich_.size();
    std::size_t laengste = ueberfahrten;
    for (int nummer = 1; nummer <= s->rundenzahl(); ++nummer) {
        const auto zeit_von = [&](std::size_t zeile) {
            return s->runden[static_cast<std::size_t>(moeglich_[zeile].runde)].zeit;
        };
        if (const korrektur k = runde_teilen(*s, nummer); k.zeit > 0) {
            anbieten(k, *s, zeit(s->runden[static_cast<std::size_t>(nummer)].zeit) + " " + wort_.teilen);
            laengste = zeit_von(moeglich_.size() - 1) > zeit_von(laengste) ? moeglich_.size() - 1 : laengste;
        }
    }
    const auto gemeint =
        std::find_if(moeglich_.begin(), moeglich_.end(), [&](const korrektur& k) { return k.runde == runde; });
    const auto zeile = gemeint != moeglich_.end() ? gemeint - moeglich_.begin()
                       : ueberfahrten > 0         ? std::ptrdiff_t{0}
                                                  : static_cast<std::ptrdiff_t>(laengste);
    if (!moeglich_.empty()) {
        angebote.markieren(static_cast<int>(zeile));
    }
}

}  // namespace tarvel
