#include "competition/wettkampfabend.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr dauer_s ergebnis_steht{10};
constexpr dauer_s einfahren_zuschlag{1};  // of the wait after the warm-up

}  // namespace

void wettkampfabend::beginnen(wettkampf neu) {
    stand_ = std::move(neu);
    ungesichert_.clear();
    stand_.zwischenstand_an = um_.einst.w_speichern;
    aktiv_ = true;
    automatik_an_ = false;
    unterbrochen_ = false;
    ergebnis_da_ = false;
    start_ = 0;
    tabelle_offen_ = stand_.ende_pruefen();  // the program's end may have come before its table
    if (!tabelle_offen_) {
        stand_.naechstes_offenes_rennen();
    }
    gesichert(sichern());
    zeigen();
}

void wettkampfabend::beenden() {
    automat_.aus();
    automatik_an_ = false;
    aktiv_ = false;
    const bool fertig = stand_.ende_pruefen();
    if (fertig && tabelle_offen_) {
        gesichert(tabelle_sichern());
    }
    um_.ablage.laufenden_weglegen(fertig && !nicht_gesichert_);
    zeigen();
}

bool wettkampfabend::nachsichern() {
    if (nicht_gesichert_) {
        nicht_gesichert_ = !sichern();
        zeigen();
    }
    return !nicht_gesichert_;
}

bool wettkampfabend::rennen_starten() {
    automat_.aus();
    if (stand_.uebergabe().rennen == 0) {
        return false;
    }
    uebergeben();
    ab_teil_ = gefahren_ = uebergabe_.teil;
    const plattform::dreifache_antwort weiter = abgebrochenes_anbieten();
    if (weiter != plattform::dreifache_antwort::nein) {
        return weiter == plattform::dreifache_antwort::ja;
    }
    uebergeben();  // one that could not go on has left its own set-up
    ab_teil_ = gefahren_ = uebergabe_.teil;
    automatik_an_ = um_.einst.w_autom;
    von_selbst_ = false;
    unterbrochen_ = false;
    um_.teil_von.wechseln(*this);
    um_.strecke.bahnstrom_von_hand(true);
    um_.fenster.zeigen(fenstername::bahn1, anzeige_art::modal);
    zeigen();
    am_start_warten();
    return true;
}

bool wettkampfabend::rennen_wiederaufnehmen(int rennen, int ab_teil) {
    automat_.aus();
    if (stand_.uebergabe().rennen != rennen) {
        return false;
    }
    uebergeben();
    ab_teil_ = ab_teil;
    von_selbst_ = false;
    um_.teil_von.wechseln(*this);
    return true;
}

bool wettkampfabend::wiederaufgenommen(int fortsetzungen, bool umgesetzt, dauer_ms bisher) {
    const int gebucht = stand_.fortsetzung_nummer(uebergabe_.rennen);
    gefahren_ = ab_teil_ + fortsetzungen;
    uebergabe_ = stand_.uebergabe(gefahren_ + (umgesetzt ? 1 : 0));
    if (ab_teil_ > gebucht + 1 || gebucht > gefahren_ || uebergabe_.teil > stand_.plan.teile) {
        return false;
    }
    automatik_an_ = um_.einst.w_autom;  // somebody has said that it goes on, and ends its pause
    unterbrochen_ = false;
    start_ = um_.uhr.jetzt() - bisher.count();
    ergebnis_da_ = false;
    zeigen();
    return true;
}

void wettkampfabend::uebergeben() {
    uebergabe_ = stand_.uebergabe();
    renn_parameter& param = um_.param;
    param.spuren_anzahl_gemerkt = 0;
    for (const int spur : alle_spuren) {
        const bool besetzt = uebergabe_.spur_fahrer[spur] != 0;
        param.spur_aktiv_gemerkt[spur] = besetzt;
        param.spuren_anzahl_gemerkt += besetzt ? 1 : 0;
        param.fahrer_name[spur] = uebergabe_.fahrer[spur];
    }
    param.einrichtung_wiederherstellen();
}

bool wettkampfabend::aendern(const std::function<bool(wettkampf&)>& was) {
    if (!was(stand_)) {
        return false;
    }
    tabelle_offen_ = tabelle_offen_ || stand_.ende_pruefen();
    gesichert(sichern());
    zeigen();
    return true;
}

std::string wettkampfabend::abendname() const {
    return von_1252(nach_1252(stand_.beginn + " " + stand_.wettkampf_name));
}

starter wettkampfabend::wer_startet() const {
    if (von_selbst_ && um_.strecke.messgeraet_da()) {
        return starter::ablauf;
    }
    return mit_einfahrzeit() ? starter::einfahrzeit : starter::bediener;
}

std::string wettkampfabend::anlass(const anlassworte& wort) const {
    const std::string name = stand_.wettkampf_name.empty() ? std::string() : " " + stand_.wettkampf_name;
    return wort.wettkampf + name + ", " + wort.rennen + " " + std::to_string(uebergabe_.rennen);
}

std::string wettkampfabend::naechste_fahrer() const {
    const int rennen = stand_.folgendes_rennen();
    if (rennen == 0) {
        return {};
    }
    std::string namen;
    const startfeld feld = stand_.plan.feld(rennen, stand_.fortsetzung_nummer(rennen) + 1);
    for (const int spur : alle_spuren) {
        if (const int platz = feld[spur]; platz != 0 && !stand_.ist_fueller(platz)) {
            namen += (namen.empty() ? "" : ", ") + stand_.name(platz);
        }
    }
    return namen;
}

void wettkampfabend::begonnen() {
    automat_.aus();
    gefahren_ = uebergabe_.teil;
    if (ergebnis_da_) {
        stand_.renndauern.back() = um_.uhr.jetzt() - start_;
    }
    if (ergebnis_da_ || start_ == 0) {  // else the same race once more, which is part of its time
        start_ = um_.uhr.jetzt();
        ergebnis_da_ = false;
    }
}

void wettkampfabend::abgebrochen() {
    automat_.aus();
    automatik_an_ = false;
    unterbrochen_ = true;
    gesichert(sichern());
    zeigen();
}

selbstlauf wettkampfabend::danach() const {
    using schritt = selbstlauf::schritt;
    if (!automatik_an_) {
        return {};
    }
    // between two parts the cars are moved
    return {schritt::ausweg, weiterer_teil() ? um_.einst.w_zeit1 : dauer_ms(ergebnis_steht)};
}

void wettkampfabend::buchen(const rennergebnis& ergebnis) {
    if (stand_.aktuelles_rennen == uebergabe_.rennen) {
        stand_.ergebnis_eintragen(ergebnis, {ab_teil_, gefahren_, uebergabe_.teil});
    }
}

void wettkampfabend::ergebnis_vormerken(const rennergebnis& ergebnis) {
    ungesichert_.push_back({uebergabe_.rennen, gefahren_, ergebnis});
}

bool wettkampfabend::darf_wiederholen() const {
    return stand_.fortsetzung_nummer(uebergabe_.rennen) == 0 || wiederholen_fragen();
}

bool wettkampfabend::uebernehmen(const rennergebnis& ergebnis, weitergang wie) {
    switch (wie) {
        case weitergang::wiederholen:
        case weitergang::neu_starten:
            neu_beginnen(ergebnis);
            break;
        case weitergang::fortsetzen:
            teil_abschliessen(ergebnis);
            break;
        case weitergang::verlassen:
            nächstes_rennen(ergebnis);
            break;
    }
    zeigen();
    return true;
}

void wettkampfabend::neu_beginnen(const rennergebnis& ergebnis) {
    if (!teil_gebucht()) {
        ergebnis_vormerken(ergebnis);
    }
    stand_.wiederholen(uebergabe_.rennen);
    uebergeben();
    ab_teil_ = gefahren_ = uebergabe_.teil;
    gesichert(sichern());
}

void wettkampfabend::teil_abschliessen(const rennergebnis& ergebnis) {
    if (!teil_gebucht()) {
        ergebnis_vormerken(ergebnis);  // the rest of the race may be driven another day
    }
    buchen(ergebnis);
    const int stehen_auf = uebergabe_.teil;
    uebergabe_ = stand_.uebergabe();
    // who has come back from the light without going on stands on his next lane already
    wechsel_ = uebergabe_.teil == stehen_auf ? spuren<int>{} : stand_.plan.herkunft;
    gesichert(sichern());
}

void wettkampfabend::nächstes_rennen(const rennergebnis& ergebnis) {
    ergebnis_vormerken(ergebnis);
    buchen(ergebnis);
    stand_.renndauern.push_back(um_.uhr.jetzt() - start_);
    ergebnis_da_ = true;
    stand_.naechstes_offenes_rennen();
    bool alles = sichern();
    alles = um_.ablage.zwischenstand_sichern(stand_) && alles;
    if (stand_.ende_pruefen()) {
        alles = tabelle_sichern() && alles;
        automatik_an_ = false;
    } else if (automatik_an_) {
        automat_.auf_naechstes_rennen(um_.einst.w_zeit1);
    }
    gesichert(alles);
}

bool wettkampfabend::sichern() {
    const bool stand = um_.ablage.laufenden_sichern(stand_);
    std::erase_if(ungesichert_,
                  [this](const abendergebnis& eines) { return um_.ablage.rennen_sichern(stand_, eines); });
    for (abendergebnis& eines : ungesichert_) {
        eines.sein_protokoll = false;  // by the next try there may be another one
    }
    return stand && ungesichert_.empty();
}

bool wettkampfabend::tabelle_sichern() {
    tabelle_offen_ = !um_.ablage.tabelle_sichern(stand_);
    return !tabelle_offen_;
}

void wettkampfabend::am_start_warten() {
    if (!automatik_an_) {
        return;
    }
    if (mit_einfahrzeit()) {
        automat_.auf_einfahren();
    } else {
        automat_.auf_rennstart();
    }
}

std::optional<dauer_ms> wettkampfabend::nach_einfahren() const {
    return automatik_an_ ? std::optional(um_.einst.w_zeit2 + einfahren_zuschlag) : std::nullopt;
}

void wettkampfabend::einfahren_beendet() {
    if (automatik_an_) {
        automat_.auf_rennstart();
    }
}

bool wettkampfabend::darf_warten() const {
    // a race window without its device asks, and nobody may be there
    return um_.strecke.messgeraet_da() && !um_.fenster.beschaeftigt({fenstername::Form5}) &&
           std::none_of(ansichten_.begin(), ansichten_.end(),
                        [](const abendansicht* ansicht) { return ansicht->beschaeftigt(); });
}

bool wettkampfabend::w_auto2_vorbei() {
    if (!um_.strecke.messgeraet_da() || !um_.bahn.Command6.bedienbar()) {  // nobody's laps would be counted
        return false;
    }
    um_.bahn.Command6.klicken();
    return true;
}

bool wettkampfabend::w_auto3_vorbei() {
    if (!um_.strecke.messgeraet_da() || !um_.bahn.Command1.bedienbar()) {
        return false;  // nobody is there to answer the question whether to start all the same
    }
    um_.bahn.Command1.klicken();
    return true;
}

void wettkampfabend::automatik_umschalten() {
    um_.einst.w_autom = !um_.einst.w_autom;
    einstellungen_geaendert();
}

void wettkampfabend::einstellungen_geaendert() {
    if (!um_.einst.w_autom) {
        automat_.aus();
        automatik_an_ = false;
    }
    zeigen();
}

void wettkampfabend::wartezeit_zeigen() {
    for (abendansicht* ansicht : ansichten_) {
        ansicht->wartezeit_zeigen();
    }
}

void wettkampfabend::gesichert(bool alles) {
    nicht_gesichert_ = !alles;
    if (!alles && !automatik_an_) {
        um_.ablage.fehler_melden();
    }
}

void wettkampfabend::zeigen() {
    for (abendansicht* ansicht : ansichten_) {
        ansicht->stand_zeigen();
    }
}

}  // namespace tarvel
