#include "core/form1.h"

#include <cmath>
#include <string>
#include <string_view>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr int kleiner_bildschirm_px = 720;  // on a lower screen lanes 5 and 6 cannot be used
constexpr zeit_ms sperrzuschlag_ms = 100;   // a single race accepts laps only this much above the entered minimum

void begrenzen(feld& wert, double min, double max, std::string_view ersatz) {
    const double zahl = zahl_lesen(wert.text());
    if (zahl < min || zahl > max) {
        wert.text(ersatz);
    }
}

}  // namespace

form1::form1(umgebung um) : um_(um), timer1_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 1000ms)) {
    timer1_->bei_tick = [this] { timer1_tick(); };
    µwartehinweis.sichtbar(false);
    befehle_verbinden();
    rennart.bei_aenderung = [this] {
        rennart_geaendert();
        renndauer.fokus_setzen();
    };
    t_aktiv.bei_aenderung = [this] { tankoptionen_zeigen(); };
    for (const int nummer : alle_spuren) {
        const std::size_t i = feld_index(nummer);
        spur[i].bei_aenderung = [this, i] { spur_geaendert(i); };
        fahrer[i].bei_aenderung = [this, nummer] { fahrer_Change(nummer); };
        auto_[i].bei_aenderung = [this, nummer] { autobild_anzeigen(nummer); };
        fahrer[i].frei(true);
        auto_[i].frei(true);
        fahrer[i].laenge_max(namensliste::name_laenge_max);
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
    command_tasten.bei_klick = [this] { um_.fenster.zeigen("Tastaturbelegung", anzeige_art::modal); };
}

void form1::einstellungen_rufen(const std::function<void()>& wohin) {
    spuren_zaehlen();
    vor_dem_speichern_pruefen();  // the options window writes these fields too
    if (wohin) {
        wohin();
    }
}

void form1::timer1_tick() {
    if (!um_.fenster.ist_offen("Form1")) {  // a message of the start still waits for its answer
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
    const bool zeitrennen = rennart.text() == um_.txt.text_zeit;
    Label19.text(zeitrennen ? wort_minuten_ : wort_runden_);
    stddauer.aktiviert(zeitrennen);
    Label8.sichtbar(zeitrennen);
    um_.param.renn_art_text = rennart.text();
}

void form1::spur_geaendert(std::size_t index) {
    const bool an = spur[index].gesetzt();
    lspur[index].aktiviert(an);
    fahrer[index].aktiviert(an);
    auto_[index].aktiviert(an);
}

void form1::werte_pruefen() {
    const auto punkt_statt_komma = [](feld& zahlenfeld) {
        std::string text = zahlenfeld.text();
        werte_pruefen2(text);
        zahlenfeld.text(text);
    };
    for (feld& laenge : lspur) {
        punkt_statt_komma(laenge);
        begrenzen(laenge, 1, 10000, "25");
    }
    punkt_statt_komma(wertmin);
    begrenzen(wertmin, 0.1, 59, "5");

    const double stunden = zahl_lesen(stddauer.text());
    if (stunden > 24) {
        stddauer.text("24");
    } else if (stunden <= 0) {
        stddauer.text("0");
    }

    const bool rundenrennen = rennart.text() == um_.txt.text_runden;
    const double dauer = zahl_lesen(renndauer.text());
    if (dauer < 0) {
        renndauer.text(rundenrennen ? "1" : "0");
    } else if (rundenrennen && dauer > 9999) {
        renndauer.text("9999");
    } else if (!rundenrennen && dauer > 59) {
        renndauer.text("59");
    }
}

void form1::vor_dem_speichern_pruefen() {
    werte_pruefen();
    begrenzen(massstab, 1, 500, "43");
}

void form1::renndauer_normalisieren() {
    dauer_ = tarvel::renndauer_lesen(renndauer.text());
    renndauer.text(dauer_.text());
}

zeit_ms form1::renndauer_lesen() const {
    return std::llround(zahl_lesen(stddauer.text()) * 3600000) + dauer_.in_ms();
}

void form1::spuren_zaehlen() {
    um_.param.spuren_anzahl = 0;
    for (const int nummer : alle_spuren) {
        um_.param.spur_aktiv[nummer] = spur[feld_index(nummer)].gesetzt();
        um_.param.spuren_anzahl += um_.param.spur_aktiv[nummer] ? 1 : 0;
    }
}

bool form1::renndauer_zulaessig() const {
    const double dauer = zahl_lesen(renndauer.text());
    if (um_.param.renn_art_text == um_.txt.text_runden) {
        return dauer >= 1 && dauer <= 9999 && um_.param.renndauer_ms != 0;
    }
    return dauer <= 59 && um_.param.renndauer_ms != 0;
}

void form1::rennen_uebergeben() {
    renn_parameter& param = um_.param;
    for (const int nummer : alle_spuren) {
        param.fahrer_name[nummer] = fahrer[feld_index(nummer)].text();
        param.fahrzeug_name[nummer] = auto_[feld_index(nummer)].text();
        param.spurlaenge[nummer] = zahl_lesen(lspur[feld_index(nummer)].text());
    }
    const bool rundenrennen = param.renn_art_text == um_.txt.text_runden;
    param.renn_ziel = rundenrennen ? ganzzahl_lesen(renndauer.text(), 1, 9999) : param.renndauer_ms;
    param.renn_laenge = param.renn_ziel;
    param.spur_aktiv_gemerkt = param.spur_aktiv;
    param.spuren_anzahl_gemerkt = param.spuren_anzahl;
}

void form1::Command1_Click() {
    if (timer1_->laeuft()) {
        timer1_tick();  // a race waits for its timing hardware
    }
    if (µwartehinweis.sichtbar()) {
        return;
    }
    renn_parameter& param = um_.param;
    param.auswertung_nach_rennen = um_.einst.auswertung_nach;
    param.wettkampf_kein = true;
    param.training_autostart = false;
    if (kleiner_bildschirm()) {
        for (const std::size_t index : {std::size_t{4}, std::size_t{5}}) {
            spur[index].gesetzt(false);
            spur_geaendert(index);
        }
    }
    param.renn_art_text = rennart.text();
    param.tank_aktiv = t_aktiv.gesetzt();
    if (bahnstrom_ein) {
        bahnstrom_ein();
    }
    werte_pruefen();
    param.min_rundenzeit_ms = std::llround(zahl_lesen(wertmin.text()) * 1000) + sperrzuschlag_ms;
    renndauer_normalisieren();
    param.renndauer_ms = renndauer_lesen();
    param.renndauer_rest_ms = param.renndauer_ms;
    if (!renndauer_zulaessig()) {
        um_.meldungen.zeigen(um_.txt.meldung[13], um_.txt.titel[1]);
        param.training_laeuft = false;
        renndauer.fokus_setzen();
        return;
    }
    spuren_zaehlen();
    rennen_uebergeben();
    if (param.spuren_anzahl == 0) {
        um_.meldungen.zeigen(um_.txt.meldung[12], um_.txt.titel[1]);
        param.training_laeuft = false;
        spur[0].fokus_setzen();
        return;
    }
    um_.fenster.zeigen("bahn1", anzeige_art::modal);
}

}  // namespace tarvel
