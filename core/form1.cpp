#include "core/form1.h"

#include <string>
#include <string_view>

#include "core/text.h"
#include "core/zahleneingabe.h"

namespace tarvel {
namespace {

constexpr int kleiner_bildschirm_px = 720;  // on a lower screen lanes 5 and 6 cannot be used

}  // namespace

form1::form1(umgebung um)
    : fensterlogik(um.fenster, um.ablage, fenstername::Form1),
      um_(um),
      timer1_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 1000ms)) {
    timer1_->bei_tick = [this] { timer1_tick(); };
    titel.text(programm_name);
    µwartehinweis.sichtbar(false);
    Frame_liste.sichtbar(false);
    command_wieder.sichtbar(false);
    befehle_verbinden();
    rennart.bei_aenderung = [this] {
        rennart_geaendert();
        renndauer.fokus_setzen();
    };
    t_aktiv.bei_aenderung = [this] { tankoptionen_zeigen(); };
    felder_merken.bei_aenderung = [this] {
        if (erscheinen) {
            erscheinung neu = um_.einst.anzeige;
            neu.hauptfenster_wie_zuletzt = felder_merken.gesetzt();
            erscheinen(neu);
        }
    };
    for (const int nummer : alle_spuren) {
        const std::size_t i = feld_index(nummer);
        spur[i].bei_aenderung = [this, i] { spur_geaendert(i); };
        fahrer[i].bei_aenderung = [this, nummer] {
            letztes_mal_vergessen();
            fahrer_Change(nummer);
        };
        auto_[i].bei_aenderung = [this, nummer] {
            letztes_mal_vergessen();
            autobild_anzeigen(nummer);
        };
        fahrer[i].frei(true);
        auto_[i].frei(true);
        fahrer[i].laenge_max(namensliste::name_laenge_max);
        fahrer[i].vorschlagen = [this](const std::string& getippt) {
            return namensvorschlaege(getippt, um_.zuletzt_gefahren.mit_liste(um_.fahrerliste));
        };
        auto_[i].vorschlagen = [this, i](const std::string& getippt) {
            return namensvorschlaege(getippt, auto_[i].eintraege());
        };
        auto_[i].laenge_max(namensliste::name_laenge_max);
        lspur[i].laenge_max(8);
    }
    for (feld* zahlenfeld : {&stddauer, &renndauer, &wertmin, &massstab}) {
        zahlenfeld->laenge_max(8);
    }
}

void form1::befehle_verbinden() {
    const auto weitergeben = [](befehl& knopf, const std::function<void()>& wohin) {
        knopf.bei_klick = [&wohin] {
            if (wohin) {
                wohin();
            }
        };
    };
    Command1.bei_klick = [this] { Command1_Click(); };
    Command3.bei_klick = [this] { Command3_Click(); };
    Command11.bei_klick = [this] { Command11_Click(); };
    command_wieder.bei_klick = [this] { letztes_mal_nehmen(); };
    weitergeben(Command2, beenden);
    weitergeben(Command5, einstellungen_speichern);
    weitergeben(Command6, bahnstrom_ein);
    weitergeben(Command7, einstellungen_laden);
    weitergeben(Command10, fahrzeugbilder_uebernehmen);
    weitergeben(Command12, bahnstrom_aus);
    weitergeben(Command13, fahrerbilder_uebernehmen);
    Command4.bei_klick = [this] { einstellungen_rufen(einstellungen_oeffnen); };
    Command8.bei_klick = [this] { einstellungen_rufen(fahrer_oeffnen); };
    Command9.bei_klick = [this] { einstellungen_rufen(fahrzeuge_oeffnen); };
    weitergeben(command_cu, cu_oeffnen);
    command17.bei_klick = [this] { um_.fenster.zeigen(fenstername::Tagesrennen, anzeige_art::modal); };
    command_fortsetzen.bei_klick = [this] {
        if (rennen_fortsetzen) {
            rennen_fortsetzen();
        }
    };
    Command18.bei_klick = [this] { um_.fenster.zeigen(fenstername::w_auswertung2, anzeige_art::modal); };
    command_liste.bei_klick = [this] {
        Frame_liste.sichtbar(!Frame_liste.sichtbar());
        reihe_zeigen();
        if (Frame_liste.sichtbar()) {
            fahrerreihe.fokus_setzen();
        } else {
            command_liste.fokus_setzen();  // the keys of a list that has gone would reach nobody
        }
    };
    fahrerreihe.bei_doppelklick = [this] { gewaehlten_auf_spur(0); };
    command_tasten.bei_klick = [this] { um_.fenster.zeigen(fenstername::Tastaturbelegung, anzeige_art::modal); };
}

void form1::einstellungen_rufen(const std::function<void()>& wohin) {
    vor_dem_speichern_pruefen();  // the options window writes these fields too
    if (wohin) {
        wohin();
    }
}

void form1::timer1_tick() {
    if (!um_.fenster.ist_offen(fenstername::Form1)) {  // a message of the start still waits for its answer
        return;
    }
    timer1_->aus();
    bildschirm_anpassen();
    if (messgeraet_oeffnen) {
        messgeraet_oeffnen();
    }
}

bool form1::kleiner_bildschirm() const {
    return um_.bildschirm.groesse().hoehe < kleiner_bildschirm_px;
}

void form1::bildschirm_anpassen() {
    startbild.sichtbar(!kleiner_bildschirm());  // the fields need the room
}

void form1::rennart_geaendert() {
    if (rennart.text() != um_.txt.text_zeit && rennart.text() != um_.txt.text_runden) {
        rennart.text(um_.txt.text_zeit);
    }
    const bool zeitrennen = gewaehlte_art() == renn_art::zeit;
    Label19.text(zeitrennen ? wort_minuten_ : wort_runden_);
    stddauer.aktiviert(zeitrennen);
    stddauer.sichtbar(zeitrennen);
    Label8.sichtbar(zeitrennen);
}

void form1::spur_geaendert(std::size_t index) {
    const bool an = faehrt(index);
    lspur[index].aktiviert(an);
    fahrer[index].aktiviert(an);
    auto_[index].aktiviert(an);
}

void form1::felder_nach_spuren() {
    for (std::size_t i = 0; i < spur.size(); ++i) {
        spur_geaendert(i);
    }
}

renn_art form1::gewaehlte_art() const {
    return rennart.text() == um_.txt.text_runden ? renn_art::runden : renn_art::zeit;
}

void form1::einrichtung_lesen() {
    renneinrichtung& e = um_.einrichtung;
    e.art = gewaehlte_art();
    e.tanken = t_aktiv.gesetzt();
    e.stunden = stddauer.text();
    e.dauer = renndauer.text();
    e.mindestrunde = wertmin.text();
    e.massstab = massstab.text();
    for (const int nummer : alle_spuren) {
        const std::size_t i = feld_index(nummer);
        e.bahn[nummer] = {spur[i].gesetzt(), lspur[i].text(), fahrer[i].text(), auto_[i].text()};
    }
}

renneinrichtung& form1::gelesen() {
    einrichtung_lesen();
    return um_.einrichtung;
}

void form1::zahlen_zeigen() {
    const renneinrichtung& e = um_.einrichtung;
    stddauer.text(e.stunden);
    renndauer.text(e.dauer);
    wertmin.text(e.mindestrunde);
    massstab.text(e.massstab);
    for (const int nummer : alle_spuren) {
        lspur[feld_index(nummer)].text(e.bahn[nummer].laenge);
    }
}

void form1::einrichtung_zeigen() {
    const renneinrichtung& e = um_.einrichtung;
    rennart.text(e.art == renn_art::runden ? um_.txt.text_runden : um_.txt.text_zeit);
    t_aktiv.gesetzt(e.tanken);
    zahlen_zeigen();
    for (const int nummer : alle_spuren) {
        const std::size_t i = feld_index(nummer);
        spur[i].gesetzt(e.bahn[nummer].dabei);
        fahrer[i].text(e.bahn[nummer].fahrer);
        auto_[i].text(e.bahn[nummer].fahrzeug);
    }
    rennart_geaendert();
    spuren_nach_laden();
    letztes_mal_zeigen();
}

void form1::werte_pruefen() {
    gelesen().werte_pruefen();
    zahlen_zeigen();
}

std::vector<feld*> form1::felder_ohne_zahl(bool mit_dauer) {
    std::vector<feld*> alle{&wertmin, &massstab};
    if (mit_dauer && gewaehlte_art() == renn_art::zeit && !stddauer.text().empty()) {
        alle.push_back(&stddauer);
    }
    for (std::size_t i = 0; i < lspur.size(); ++i) {
        if (faehrt(i)) {
            alle.push_back(&lspur[i]);
        }
    }
    std::erase_if(alle, [](const feld* f) { return ist_zahl(f->text()); });
    if (mit_dauer && !gelesen().dauer_lesbar()) {
        alle.push_back(&renndauer);
    }
    return alle;
}

void form1::unlesbares_ersetzen(bool mit_dauer) {
    std::string meldung;
    if (const std::vector<feld*> ohne_zahl = felder_ohne_zahl(mit_dauer); !ohne_zahl.empty()) {
        renneinrichtung& e = gelesen();
        const std::string dauer = e.dauer;
        e.vor_dem_speichern_pruefen();
        e.dauer = mit_dauer ? e.dauer : dauer;
        zahlen_zeigen();
        meldung = wort_keine_zahl_;
        for (const feld* f : ohne_zahl) {
            meldung += "\n" + f->ansage() + ": " + f->text();
        }
    }
    std::string namen;
    for (auto* wahl : {&fahrer, &auto_}) {
        for (auswahl& name : *wahl) {
            if (const std::string gilt = von_1252(nach_1252(name.text())); gilt != name.text()) {
                namen += "\n" + name.text() + " – " + gilt;
                name.text(gilt);
            }
        }
    }
    if (!namen.empty()) {
        meldung += (meldung.empty() ? "" : "\n\n") + wort_ersetzt_ + namen;
    }
    if (!meldung.empty()) {
        um_.meldungen.zeigen(meldung, um_.txt.titel[0]);
    }
}

bool form1::fahrer_einmalig() {
    for (std::size_t i = 0; i < fahrer.size(); ++i) {
        const std::string& name = fahrer[i].text();
        if (!faehrt(i) || name.empty() || name == um_.txt.kein_fahrer || um_.txt.ist_freier_platz(name)) {
            continue;
        }
        for (std::size_t j = i + 1; j < fahrer.size(); ++j) {
            if (faehrt(j) && fahrer[j].text() == name) {
                const bool gewollt = um_.meldungen.fragen(name + " " + wort_zwei_spuren_, um_.txt.titel[0]);
                if (!gewollt) {
                    fahrer[j].fokus_setzen();
                }
                return gewollt;
            }
        }
    }
    return true;
}

void form1::vor_dem_speichern_pruefen() {
    unlesbares_ersetzen();
    gelesen().vor_dem_speichern_pruefen();
    zahlen_zeigen();
}

void form1::ablehnen(const std::string& meldung, steuerelement& ort) {
    um_.meldungen.zeigen(meldung, um_.txt.titel[1]);
    ort.fokus_setzen();
}

bool form1::uebergeben(rennumfang umfang) {
    if (timer1_->laeuft()) {
        timer1_tick();  // a race waits for its timing hardware
    }
    if (µwartehinweis.sichtbar()) {
        return false;
    }
    if (kleiner_bildschirm()) {
        for (const std::size_t index : {std::size_t{4}, std::size_t{5}}) {
            spur[index].gesetzt(false);
            spur_geaendert(index);
        }
    }
    if (bahnstrom_ein) {
        bahnstrom_ein();
    }
    const bool mit_dauer = umfang != rennumfang::dauertraining;  // else nobody drives by it, and it stays as typed
    if (mit_dauer && !gelesen().dauer_lesbar()) {
        ablehnen(um_.txt.meldung[13], renndauer);  // what was typed stays to be mended
        return false;
    }
    unlesbares_ersetzen(mit_dauer);
    renneinrichtung& e = gelesen();
    if (umfang == rennumfang::wettkampf) {
        e.vor_dem_speichern_pruefen();  // its files hold the set-up too
    } else {
        e.werte_pruefen();
    }
    const einrichtungsfehler fehler = rennen_uebergeben(e, um_.einst, umfang, um_.param);
    zahlen_zeigen();
    if (fehler == einrichtungsfehler::dauer) {
        ablehnen(um_.txt.meldung[13], renndauer);
    } else if (fehler == einrichtungsfehler::keine_spur) {
        ablehnen(um_.txt.meldung[12], spur[0]);
    }
    return fehler == einrichtungsfehler::keiner;
}

bool form1::einzelrennen_einrichten(rennumfang umfang) {
    return uebergeben(umfang) && fahrer_einmalig();
}

void form1::Command1_Click() {
    if (einzelrennen_einrichten() && einzelrennen_beginnen) {
        einzelrennen_beginnen();
    }
}

void form1::Command11_Click() {
    const bool ohne_ende = um_.einst.training_art == trainingsart::dauer;
    if (einzelrennen_einrichten(ohne_ende ? rennumfang::dauertraining : rennumfang::einzelrennen) &&
        training_beginnen) {
        training_beginnen();
    }
}

void form1::Command3_Click() {
    if (uebergeben(rennumfang::wettkampf) && wettkampf_beginnen) {
        wettkampf_beginnen();
    }
}

}  // namespace tarvel
