#include "competition/einfahren.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace tarvel {
namespace {

constexpr dauer_hs uhrtakt{1};
constexpr dauer_s wartetakt{1};

using plattform::zeitgeber_art;

}  // namespace

einfahren::einfahren(rennen& r, const tastenbelegung& belegung, plattform::zeitgeber_dienst& zeitgeber)
    : fensterlogik(r.umgebung.fenster, r.umgebung.ablage, fenstername::einfahren),
      r_(r),
      um_(r.umgebung),
      tastatur_(r.umgebung.ereignisse, belegung, *this),
      Timer1_(zeitgeber.erzeugen(zeitgeber_art::abfragend, 1ms)),
      einfahruhr_(zeitgeber.erzeugen(zeitgeber_art::zaehlend, uhrtakt)),
      w_auto4_(zeitgeber.erzeugen(zeitgeber_art::zaehlend, wartetakt)) {
    Timer1_->bei_tick = [this] { Timer1_tick(); };
    einfahruhr_->bei_tick = [this] { einfahruhr_tick(); };
    w_auto4_->bei_tick = [this] { w_auto4_tick(); };
    Command5.bei_klick = [this] { Command5_klick(); };
}

sprachliste einfahren::sprache_re() {
    sprachliste texte("language\\language_re.txt");
    texte.ueberschrift("Einfahren").text("Einfahrzeit", [this](const std::string& wort) {
        titel.text(wort);
        Label12.text(wort);
    });
    texte.text("Einfahrzeit ENDE", labelende).text("Beenden", Command5);
    texte.text("noch zu fahrende Runden", wort_runden_).text("Sekunden", wort_sekunden_);
    return texte.text("Weiter in:", wort_weiter_in_);
}

void einfahren::laden() {
    texte_lesen();
    const int laenge = std::max(um_.einst.w_edauer, 0);
    nach_runden_ = um_.einst.w_edauer_runden;
    zu_ende_ = false;
    einfahr_dauer_ = dauer_s(nach_runden_ ? 0 : laenge);
    einfahr_zeit_ = einfahr_dauer_;
    gezaehlt_.fuellen({});
    for (const int nummer : alle_spuren) {
        einfahr_rest_[nummer] = nach_runden_ && um_.param.spur_aktiv[nummer] ? laenge : 0;
    }
    anzeigen_aufstellen();
    um_.ausgaben.ruhezustand();  // with the power on
    um_.uhr_stellen();
    um_.ereignisse.messzeit = um_.zeit.messzeit_lesen();
    um_.quellen.melden(&messquelle::einfahren_beginnt);
    Timer1_->an();
    if (!nach_runden_) {
        einfahruhr_->an();
    }
    titel.fokus_setzen();  // a second press of the key that began it must not end it
}

void einfahren::anzeigen_aufstellen() {
    for (const int nummer : alle_spuren) {
        const std::size_t i = feld_index(nummer);
        Frame[i].sichtbar(um_.param.spur_aktiv[nummer]);
        spur[i].text(std::to_string(nummer));
        fahrer[i].text(um_.param.fahrer_name[nummer]);
        runden[i].sichtbar(nach_runden_);
        runden[i].schriftfarbe(um_.einst.farben_spur[nummer]);
        runden[i].ansage(um_.bahn.wort.spur + " " + std::to_string(nummer) + ": " + wort_runden_);
    }
    Label_einheit.text(nach_runden_ ? wort_runden_ : wort_sekunden_);
    zeitanzeige.ansage(wort_sekunden_);
    zeitanzeige.sichtbar(!nach_runden_);
    zeitbalken.sichtbar(!nach_runden_);
    Label_einheit.sichtbar(true);
    labelende.sichtbar(false);
    weiterlabel.sichtbar(false);
    alarm_zeigen();
    rest_zeigen();
}

void einfahren::entladen() {
    for (const auto* zeitgeber : {&Timer1_, &einfahruhr_, &w_auto4_}) {
        (*zeitgeber)->aus();
    }
}

void einfahren::taste(int code, std::optional<zeit_ms> alter) {
    if (alter) {
        tastatur_.taste_auswerten(code, um_.zeit.messzeit_lesen() - *alter);
    } else {
        tastatur_.taste_auswerten(code);
    }
}

void einfahren::Timer1_tick() {
    um_.quellen.melden(&messquelle::abfragen);
    um_.quellen.melden(&messquelle::abtasten);
    um_.ereignisse.messzeit = um_.zeit.messzeit_lesen();
    r_.tanken.kontakte_nur_als_runden();
    um_.zielsensoren_falten();
    for (const int nummer : alle_spuren) {
        while (um_.ereignisse.vorlassen(nummer)) {
            ereignis_zeile& ereignis = um_.ereignisse[art::rundenzaehlung[nummer]];
            ereignis.aktiv = false;
            ueberfahrt(nummer, ereignis.ereignis_zeit);
        }
    }
    alarm_zeigen();
    if (nach_runden_ && !zu_ende_ && alle_fertig()) {
        einfahren_ende();
    }
}

void einfahren::ueberfahrt(int nummer, zeit_ms stempel) {
    std::optional<zeit_ms>& vorige = gezaehlt_[nummer];
    const bool gesperrt = vorige && std::abs(stempel - *vorige) < um_.param.min_rundenzeit_ms;
    if (einfahr_rest_[nummer] == 0 || gesperrt) {
        return;
    }
    vorige = stempel;
    if (--einfahr_rest_[nummer] == 0) {
        um_.ausgaben.relais_on(nummer);
    }
    rest_zeigen();
}

void einfahren::alarm_zeigen() {
    geraetealarm.text(um_.bahn.geraetealarm.text());
    geraetealarm.sichtbar(um_.bahn.geraetealarm.sichtbar());
}

bool einfahren::alle_fertig() const {
    return std::all_of(einfahr_rest_.begin(), einfahr_rest_.end(), [](int rest) { return rest == 0; });
}

void einfahren::einfahruhr_tick() {
    einfahr_zeit_ = std::max(einfahr_zeit_ - uhrtakt, dauer_hs{});
    rest_zeigen();
    if (einfahr_zeit_ == dauer_hs{}) {
        einfahren_ende();
    }
}

void einfahren::rest_zeigen() {
    for (const int nummer : alle_spuren) {
        runden[feld_index(nummer)].text(std::to_string(einfahr_rest_[nummer]));
    }
    zeitanzeige.text(std::to_string(std::chrono::ceil<dauer_s>(einfahr_zeit_).count()));
    zeitbalken.hoehe(static_cast<double>(einfahr_zeit_.count()) /
                     static_cast<double>(std::max<std::int64_t>(einfahr_dauer_.count(), 1)));
}

void einfahren::anhalten() {
    zu_ende_ = true;
    einfahruhr_->aus();
    um_.ausgaben.stillstand();
    um_.quellen.melden(&messquelle::einfahren_vorbei);
}

void einfahren::einfahren_ende() {
    anhalten();                     // the devices are read on: what still rolls must not wait for the race
    Label_einheit.sichtbar(false);  // gives its place to the end
    labelende.sichtbar(true);
    Command5.fokus_setzen();
    if (const std::optional<dauer_ms> nach = um_.teil_von->nach_einfahren()) {
        wartezeit_ = std::chrono::ceil<dauer_s>(*nach);
        wartezeit_zeigen();
        w_auto4_->an();
    }
}

void einfahren::w_auto4_tick() {
    if (!um_.teil_von->nach_einfahren()) {  // switched off meanwhile
        w_auto4_->aus();
        weiterlabel.sichtbar(false);
        return;
    }
    wartezeit_ -= wartetakt;
    wartezeit_zeigen();
    if (wartezeit_ <= 0s) {
        w_auto4_->aus();
        Command5.klicken();
    }
}

void einfahren::wartezeit_zeigen() {
    weiterlabel.sichtbar(true);
    weiterlabel.text(wort_weiter_in_ + " " + std::to_string(wartezeit_.count()));
}

void einfahren::Command5_klick() {
    if (!zu_ende_) {
        anhalten();
    }
    um_.fenster.entladen(kennung());
    r_.ablauf.einfahrzeit_beendet();
    um_.teil_von->einfahren_beendet();
}

}  // namespace tarvel
