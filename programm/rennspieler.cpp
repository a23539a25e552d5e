#include "programm/rennspieler.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

#include "core/mitschrift.h"
#include "core/protokollzeile.h"
#include "platform/stille_maschine.h"
#include "programm/programm.h"
#include "programm/rennprotokoll.h"
#include "race/protokollworte.h"

namespace tarvel {
namespace {

using sorte = rennspieler::marke::sorte;

constexpr zeit_ms nachspann_ms = 5000;  // behind the last decision the result window may stay open for an hour

const std::map<std::string_view, sorte> markenworte{
    {vermerk::gruen, sorte::sonst},      {vermerk::fruehstart, sorte::sonst}, {vermerk::runde, sorte::runde},
    {vermerk::abgelehnt, sorte::sonst},  {vermerk::pause, sorte::pause},      {vermerk::weiter, sorte::pause},
    {vermerk::strafe, sorte::sonst},     {vermerk::leer, sorte::sonst},       {vermerk::tankt, sorte::sonst},
    {vermerk::durchfahrt, sorte::sonst}, {vermerk::ende, sorte::sonst},
};

bool ohne_spur(std::string_view wort) {
    return wort == vermerk::gruen || wort == vermerk::pause || wort == vermerk::weiter || wort == vermerk::ende;
}

}  // namespace

struct rennspieler::spiel {
    explicit spiel(const std::filesystem::path& ordner) : maschine(ordner), p(maschine.dienste()) {
        p.ablage.nur_lesen();
        p.rennprotokoll.fuehren = false;
        p.starten();
    }

    stille_maschine maschine;
    programm p;
};

rennspieler::rennspieler(std::filesystem::path programmordner, std::string inhalt,
                         std::function<void(programm&)> ausstatten)
    : ordner_(std::move(programmordner)), inhalt_(std::move(inhalt)), ausstatten_(std::move(ausstatten)) {
    abtasten();
    von_vorn();
}

rennspieler::~rennspieler() = default;

void rennspieler::abtasten() {
    protokollleser leser(inhalt_);
    zeit_ms zeit = 0;
    int taten = 0;
    std::optional<zeit_ms> weg_seit;
    std::optional<zeit_ms> entschieden;  // when the race last decided anything
    bool im_rennen = true;
    const auto bis_hierher = [&] {
        ende_ = std::max(ende_, zeit);
        taten_ = taten;
    };
    while (const auto gelesen = leser.zeile()) {
        protokollsatz satz = zerlegen(*gelesen);
        if (satz.tiefe == 0 && !satz.ist_kopfzeile()) {
            zeit = protokoll_stempel(als_zahl(naechstes_wort(satz.rest)).value_or(zeit));
            ++taten;
            if (weg_seit) {
                abwesenheiten_.push_back({*weg_seit, zeit});
                weg_seit.reset();
            }
            if (satz.wort == "oeffnen") {
                anfang_ = zeit;
                ereignet_ = zeit;
            }
            im_rennen = satz.wort != "zumachen" && satz.wort != "korrektur";
            if (im_rennen && (!entschieden || zeit <= *entschieden + nachspann_ms)) {
                bis_hierher();
            }
        } else if (satz.ist_kopfzeile() && naechstes_wort(satz.rest) == "Uhr") {
            weg_seit = zeit;
        } else if (satz.tiefe > 0 && satz.ist_entscheidung()) {
            merken(zeit, satz.rest);
            if (im_rennen) {
                entschieden = zeit;
                bis_hierher();
            }
        } else if (satz.tiefe > 0 && !urteile_.empty() && satz.wort == "schuldige") {
            urteile_.back().schuldige = als_zahl(naechstes_wort(satz.rest)).value_or(0);
        } else if (satz.tiefe > 0 && !urteile_.empty() && satz.wort == "strafzeit") {
            urteile_.back().sekunden = protokoll_bruch(als_zahl(naechstes_wort(satz.rest)).value_or(0), 0);
        }
    }
    std::stable_sort(marken_.begin(), marken_.end(), [](const marke& a, const marke& b) { return a.bei < b.bei; });
}

/// What was decided then, if it is something to jump to.
void rennspieler::merken(zeit_ms zeit, std::string_view entscheidung) {
    const auto art = markenworte.find(naechstes_wort(entscheidung));
    if (art == markenworte.end()) {
        return;
    }
    const std::int64_t spur = ohne_spur(art->first) ? 0 : als_zahl(naechstes_wort(entscheidung)).value_or(0);
    // behind an outage the race has stood since that began
    const bool vom_ausfall =
        art->first == vermerk::pause && !abwesenheiten_.empty() && abwesenheiten_.back().wieder_da == zeit;
    stillstand_merken(zeit, art->first);
    if (art->first == vermerk::pause) {
        urteile_.push_back({zeit});
    }
    marken_.push_back({vom_ausfall ? abwesenheiten_.back().weg : zeit, art->second,
                       static_cast<int>(std::clamp<std::int64_t>(spur, 0, spuren_max))});
}

/// It is shown how the standstill begins, and the light that ends it.
void rennspieler::stillstand_merken(zeit_ms bis, std::string_view ende) {
    constexpr zeit_ms beginn_ms = 3000;
    constexpr zeit_ms mindestens_ms = 10000;
    constexpr zeit_ms startampel_ms = 15000;
    constexpr zeit_ms kleine_ampel_ms = 9000;
    const zeit_ms licht = ende == vermerk::gruen    ? startampel_ms
                          : ende == vermerk::weiter ? kleine_ampel_ms
                                                    : beginn_ms;
    const stillstand s{ereignet_ + beginn_ms, bis - licht};
    if (steht_ && s.bis - s.von >= mindestens_ms) {
        stillstaende_.push_back(s);
    }
    ereignet_ = bis;
    if (ende == vermerk::gruen || ende == vermerk::weiter) {
        steht_ = false;
    } else if (ende == vermerk::pause || ende == vermerk::ende) {
        steht_ = true;
    }
}

zeit_ms rennspieler::nach_stillstand(zeit_ms stelle) const {
    const auto darin = std::find_if(stillstaende_.begin(), stillstaende_.end(),
                                    [&](const stillstand& s) { return stelle >= s.von && stelle < s.bis; });
    return darin == stillstaende_.end() ? stelle : darin->bis;
}

void rennspieler::von_vorn() {
    if (alt_ == nullptr) {  // else that one is still looked at, and the other never was
        alt_ = std::move(spiel_);
    }
    spiel_ = std::make_unique<spiel>(ordner_);
    if (ausstatten_) {
        ausstatten_(spiel_->p);
    }
    const std::optional<bool> ganz = spiel_->p.rennprotokoll.bereitlegen(inhalt_);
    wie_ = !ganz ? gueltigkeit::fremd : *ganz ? gueltigkeit::ganz : gueltigkeit::beschaedigt;
    abgewichen_ = false;
    getan_ = 0;
    stelle_ = anfang_;
    vor(anfang_, taten_);
}

void rennspieler::alten_vergessen() {
    alt_.reset();
}

rennen& rennspieler::rennen() {
    return spiel_->p.rennen;
}

programm& rennspieler::im_programm() {
    return spiel_->p;
}

bool rennspieler::vor(zeit_ms bis, int hoechstens) {
    if (wie_ == gueltigkeit::fremd) {
        return true;
    }
    mitschrift& protokoll = rennen().protokoll;
    for (const abwesenheit& a : abwesenheiten_) {
        bis = bis > a.weg && bis < a.wieder_da ? a.wieder_da : bis;
    }
    bis = std::clamp(bis, stelle_, ende_);
    for (int getan = 0; getan_ < taten_ && !abgewichen_; ++getan) {
        const std::optional<zeit_ms> zeit = protokoll.naechste_zeit();
        if (!zeit || *zeit > bis) {
            break;
        }
        stelle_ = std::clamp(*zeit, stelle_, bis);
        if (getan == hoechstens) {
            return false;
        }
        ++getan_;
        abgewichen_ = !protokoll.weiter() && protokoll.abweichung();
    }
    if (abgewichen_) {
        ende_ = stelle_;
    } else {
        stelle_ = bis;
        uhr_zeigen();
    }
    schuldige_zeigen();
    return true;
}

/// Throughout the pause: when the director has ticked a box no log holds.
void rennspieler::schuldige_zeigen() {
    const auto jetzt =
        std::find_if(urteile_.rbegin(), urteile_.rend(), [this](const urteil& u) { return u.pause_seit <= stelle_; });
    bahn1& bahn = rennen().bahn1;
    if (jetzt == urteile_.rend() || !rennen().zustand.chaos_aktiv || !bahn.ch_strafframe.sichtbar()) {
        return;
    }
    for (const int spur : alle_spuren) {
        bahn.ch_strafzeit_hacken[spur].gesetzt((jetzt->schuldige >> spur & 1) != 0);
    }
    if (jetzt->sekunden) {
        bahn.ch_Text1.text(std::to_string(std::llround(*jetzt->sekunden)));
    }
}

void rennspieler::uhr_zeigen() {
    rennen().protokoll.uhr_vor(stelle_);
    rennen().uhr.zeigen_bei(rennen().zeit.messzeit_lesen());
}

zeit_ms rennspieler::naechste_marke(zeit_ms stelle) const {
    const auto ort = std::upper_bound(marken_.begin(), marken_.end(), stelle,
                                      [](zeit_ms zeit, const marke& m) { return zeit < m.bei; });
    return ort == marken_.end() ? ende_ : std::min(ort->bei, ende_);
}

zeit_ms rennspieler::vorige_marke(zeit_ms stelle) const {
    const auto ort = std::lower_bound(marken_.begin(), marken_.end(), stelle,
                                      [](const marke& m, zeit_ms zeit) { return m.bei < zeit; });
    return ort == marken_.begin() ? anfang_ : std::max(std::prev(ort)->bei, anfang_);
}

}  // namespace tarvel
