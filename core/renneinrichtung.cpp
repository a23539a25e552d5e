#include "core/renneinrichtung.h"

#include <cmath>
#include <string_view>

#include "core/einstellungen.h"
#include "core/renndauer.h"
#include "core/text.h"
#include "core/zahleneingabe.h"

namespace tarvel {
namespace {

constexpr double ms_je_stunde = 3600000;
constexpr double ms_je_minute = 60000;
constexpr double ms_je_sekunde = 1000;

void begrenzen(std::string& text, double min, double max, std::string_view ersatz) {
    const double zahl = zahl_lesen(text);
    if (zahl < min || zahl > max) {
        text = ersatz;
    }
}

zeit_ms in_ms(const std::string& text, double ms_je_einheit) {
    return std::llround(zahl_lesen(text) * ms_je_einheit);
}

bool dauer_zulaessig(const renneinrichtung& einrichtung, zeit_ms dauer_ms) {
    const double dauer = zahl_lesen(einrichtung.dauer);
    if (einrichtung.art == renn_art::runden) {
        return dauer >= 1 && dauer <= 9999 && dauer_ms != 0;
    }
    return dauer <= 59 && dauer_ms != 0;
}

void spuren_uebergeben(const renneinrichtung& einrichtung, const einstellungen& einst, renn_parameter& param) {
    param.spuren_anzahl = 0;
    for (const int nummer : alle_spuren) {
        const renneinrichtung::spur& spur = einrichtung.bahn[nummer];
        param.spur_aktiv[nummer] = spur.dabei && !einst.spur_verliehen(nummer);
        param.spuren_anzahl += param.spur_aktiv[nummer] ? 1 : 0;
        param.fahrer_name[nummer] = spur.fahrer;
        param.klasse[nummer].clear();
        param.fahrzeug_name[nummer] = spur.fahrzeug;
        param.spurlaenge[nummer] = zahl_lesen(spur.laenge);
        param.spurlaenge_text[nummer] = spur.laenge;
    }
    param.spur_aktiv_gemerkt = param.spur_aktiv;
    param.spuren_anzahl_gemerkt = param.spuren_anzahl;
}

}  // namespace

void renneinrichtung::werte_pruefen() {
    for (spur& eine : bahn) {
        werte_pruefen2(eine.laenge);
        begrenzen(eine.laenge, 1, 10000, "25");
    }
    werte_pruefen2(mindestrunde);
    begrenzen(mindestrunde, 0.1, 59, "5");

    const double h = zahl_lesen(stunden);
    if (h > 24) {
        stunden = "24";
    } else if (h <= 0) {
        stunden = "0";
    }

    dauer_pruefen();
}

void renneinrichtung::dauer_pruefen() {
    std::string mit_punkt = dauer;
    werte_pruefen2(mit_punkt);  // as a settings file has it
    const double zahl = zahl_lesen(mit_punkt);
    if (zahl < 0) {
        dauer = art == renn_art::runden ? "1" : "0";
    } else if (art == renn_art::runden && zahl > 9999) {
        dauer = "9999";
    } else if (art == renn_art::zeit && std::trunc(zahl) > 59) {  // the seconds behind it do not count here
        dauer = "59";
    }
}

bool renneinrichtung::dauer_lesbar() const {
    return ist_zahl(dauer) || (dauer.empty() && art == renn_art::zeit);  // the hours may be all
}

void renneinrichtung::vor_dem_speichern_pruefen() {
    if (!dauer_lesbar()) {
        dauer = "5";
    }
    werte_pruefen();
    begrenzen(massstab, 1, 500, "43");
}

einrichtungsfehler rennen_uebergeben(renneinrichtung& einrichtung, const einstellungen& einst, rennumfang umfang,
                                     renn_parameter& param) {
    const bool eines = umfang != rennumfang::wettkampf;
    const bool ohne_ende = umfang == rennumfang::dauertraining;
    const renndauer_angabe angabe = renndauer_lesen(einrichtung.dauer);
    if (!ohne_ende || einrichtung.dauer_lesbar()) {
        einrichtung.dauer = angabe.text();
    }
    param.renndauer_ms = in_ms(einrichtung.stunden, ms_je_stunde) + angabe.in_ms();
    if (!ohne_ende && !dauer_zulaessig(einrichtung, param.renndauer_ms)) {
        return einrichtungsfehler::dauer;
    }
    param.auswertung_nach_rennen = einst.auswertung_nach;
    param.tank_aktiv = einrichtung.tanken;
    param.min_rundenzeit_ms =
        in_ms(einrichtung.mindestrunde, ms_je_sekunde) + (eines ? sperrzuschlag_einzelrennen_ms : 0);
    param.massstab = zahl_lesen(einrichtung.massstab);
    param.renndauer_rest_ms = param.renndauer_ms;
    param.renn_ziel = ohne_ende ? ziel_ohne_ende
                      : einrichtung.art == renn_art::zeit
                          ? rennziel::zeit(param.renndauer_ms)
                          : rennziel::runden(static_cast<int>(ganzzahl_lesen(einrichtung.dauer, 1, 9999)));
    param.renn_laenge = param.renn_ziel;
    spuren_uebergeben(einrichtung, einst, param);
    return eines && param.spuren_anzahl == 0 ? einrichtungsfehler::keine_spur : einrichtungsfehler::keiner;
}

void wettkampfdatei_uebergeben(const renneinrichtung& einrichtung, renn_parameter& param) {
    param.tank_aktiv = einrichtung.tanken;
    param.min_rundenzeit_ms = in_ms(einrichtung.mindestrunde, ms_je_sekunde);
    param.renndauer_ms =
        std::llround(zahl_lesen(einrichtung.stunden) * ms_je_stunde + zahl_lesen(einrichtung.dauer) * ms_je_minute);
    param.renndauer_rest_ms = param.renndauer_ms;
}

}  // namespace tarvel
