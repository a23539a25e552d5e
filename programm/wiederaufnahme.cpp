#include "programm/wiederaufnahme.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <utility>
#include <vector>

#include "core/protokollfortsetzung.h"
#include "core/protokollordner.h"
#include "core/protokollzeile.h"
#include "programm/messgeraete.h"
#include "programm/wertungsfolge.h"

namespace tarvel {
namespace {

constexpr std::size_t kopf_bytes = std::size_t{16} * 1024;  // of a log, with what its race is part of
constexpr std::chrono::hours ausfall_max{24};
constexpr std::string_view abend_kennung = "wettkampf";
constexpr std::string_view kopie_endung = ".beschaedigt";

/// What tells a race of an evening from all others.
struct abendrennen {
    std::string_view art;
    int rennen = 0;
    int ab_teil = 1;
    std::string_view abend;  ///< empty in older logs
};

abendrennen abendrennen_lesen(std::string_view kennung) {
    abendrennen gelesen;
    gelesen.art = naechstes_wort(kennung);
    gelesen.rennen = static_cast<int>(als_zahl(naechstes_wort(kennung)).value_or(0));
    gelesen.ab_teil = static_cast<int>(als_zahl(naechstes_wort(kennung)).value_or(1));
    gelesen.abend = kennung;
    return gelesen;
}

/// What the director may have switched since, and what no race depends on.
struct zwischendurch {
    bool w_autom;
    bool w_speichern;
    bool aut_speichern;
    bool aut_loeschen;

    explicit zwischendurch(const einstellungen& e)
        : w_autom(e.w_autom),
          w_speichern(e.w_speichern),
          aut_speichern(e.aut_speichern),
          aut_loeschen(e.aut_loeschen) {}
    void behalten(einstellungen& e) const {
        e.w_autom = w_autom;
        e.w_speichern = w_speichern;
        e.aut_speichern = aut_speichern;
        e.aut_loeschen = aut_loeschen;
    }
};

using sekunden = std::chrono::sys_seconds;

sekunden als_zeitpunkt(const plattform::datum_uhrzeit& d) {
    using namespace std::chrono;
    const year_month_day tag = year(d.jahr) / d.monat / d.tag;
    return tag.ok() ? sys_days(tag) + hours(d.stunde) + minutes(d.minute) + seconds(d.sekunde) : sekunden{};
}

/// Day.month.year-hours:minutes:seconds, as the head of a log has it.
plattform::datum_uhrzeit datum_lesen(std::string_view text) {
    plattform::datum_uhrzeit d{};
    for (int* teil : {&d.tag, &d.monat, &d.jahr, &d.stunde, &d.minute, &d.sekunde}) {
        const std::size_t ende = std::min(text.find_first_of(".-:"), text.size());
        *teil = static_cast<int>(als_zahl(text.substr(0, ende)).value_or(0));
        text.remove_prefix(std::min(ende + 1, text.size()));
    }
    return d;
}

}  // namespace

std::optional<wiederaufnahme::kandidat> wiederaufnahme::lesen(const std::string& name) const {
    kandidat k;
    k.name = name;
    k.datei = std::string(protokoll_ordner) + "\\" + name;
    auto gelesen = protokollfortsetzung::lesen(um_.ablage.pfad(k.datei));
    if (!gelesen) {
        return std::nullopt;
    }
    k.beschaedigt = gelesen->beschaedigt();
    k.inhalt = std::make_unique<const std::string>(gelesen->inhalt());
    auto stand = protokollstand_lesen(*k.inhalt);
    if (!stand) {
        return std::nullopt;
    }
    k.stand = std::move(*stand);
    return k;
}

std::string wiederaufnahme::teil_von(const std::string& name) const {
    return std::string(teil_von_lesen(protokoll_lesen(um_.ablage, name, kopf_bytes).value_or("")));
}

std::optional<wiederaufnahme::kandidat> wiederaufnahme::letztes_abendrennen() const {
    for (const std::string& name : protokolle_auflisten(um_.ablage)) {
        const std::string kennung = teil_von(name);
        const abendrennen dort = abendrennen_lesen(kennung);
        const bool von_hier = dort.abend.empty() || dort.abend == um_.wettkampf.wettkampfabend.abendname();
        if (dort.art != abend_kennung || !von_hier) {
            continue;  // what other evenings have driven since takes nothing from this one
        }
        std::optional<kandidat> k = lesen(name);
        if (k && k->stand.gestartet) {
            return k;
        }
    }
    return std::nullopt;
}

std::string wiederaufnahme::frage(const protokollstand& stand) const {
    const auto& wort = um_.txt.wettkampf;
    const std::string& zeitpunkt = stand.kopf.zeitpunkt;
    const std::string heute = datum_text(um_.dienste.kalender.jetzt());
    const std::size_t strich = zeitpunkt.find('-');
    const std::string uhrzeit = strich == std::string::npos ? zeitpunkt : zeitpunkt.substr(strich + 1, 5);
    std::string text = wort.das_rennen + " ";
    text += zeitpunkt.starts_with(heute) ? uhrzeit : zeitpunkt.substr(0, strich) + ", " + uhrzeit;
    text += stand.beendet
                ? " " + wort.gefahren
                : " " + wort.in_runde + " " + std::to_string(stand.fuehrungsrunden() + 1) + " " + wort.unterbrochen;
    std::vector<int> dabei;
    for (const int spur : alle_spuren) {
        if (stand.kopf.param.spur_aktiv_gemerkt[spur]) {
            dabei.push_back(spur);
        }
    }
    std::stable_sort(dabei.begin(), dabei.end(), [&](int a, int b) { return stand.runden[a] > stand.runden[b]; });
    text += "\n";
    for (const int spur : dabei) {
        text += "\n" + stand.fahrer[spur] + ": " + um_.txt.runden(std::max(stand.runden[spur], 0));
    }
    return text;
}

plattform::antwortworte wiederaufnahme::antworten(const protokollstand& stand, std::string_view nein) const {
    return {stand.beendet ? um_.txt.papierdatei.oeffnen : um_.txt.wettkampf.weiterfahren, nein};
}

void wiederaufnahme::nach_dem_start_anbieten() {
    nach_dem_start_ = true;
    const std::vector<std::string> namen = protokolle_auflisten(um_.ablage, 1);
    std::optional<kandidat> k = namen.empty() ? std::nullopt : lesen(namen.front());
    if (k && (!k->stand.fortsetzbar() || k->stand.geschlossen || k->stand.abgebrochen ||
              protokoll_weggelegt(um_.ablage, k->name))) {
        k.reset();  // nobody has lost it
    }
    if (k && k->stand.kopf.teil_von.starts_with(abend_kennung)) {
        const bool will = um_.wettkampf.wettkampfablauf.unterbrochenen_anbieten("\n\n" + frage(k->stand));
        if (!will || !fortsetzen(*k)) {
            weglegen(*k);
        }
        return;
    }
    const auto& wort = um_.txt.wettkampf;
    if (k && um_.dienste.meldungen.anbieten(frage(k->stand), um_.txt.titel[0], antworten(k->stand, wort.spaeter))) {
        if (!fortsetzen(*k)) {
            weglegen(*k);
        }
        return;
    }
    if (k) {
        weglegen(*k);
    }
    um_.wettkampf.wettkampfablauf.unterbrochenen_anbieten();
}

void wiederaufnahme::anbieten() {
    nach_dem_start_ = false;
    using antwort = plattform::dreifache_antwort;
    const std::vector<std::string> namen = protokolle_auflisten(um_.ablage);
    auto stelle = namen.begin();
    std::optional<kandidat> k = naechstes_von(stelle, namen.end());
    const std::optional<antwort> abend = um_.wettkampf.wettkampfablauf.letzten_anbieten(k.has_value());
    if (abend && *abend != antwort::nein) {
        return;
    }
    if (!k) {
        um_.dienste.meldungen.zeigen(um_.txt.wettkampf.keines, um_.txt.titel[0]);
    }
    while (k) {
        std::optional<kandidat> danach = naechstes_von(stelle, namen.end());
        const antwort will = einzeln_anbieten(*k, danach.has_value());
        if (will == antwort::ja) {
            fortsetzen(*k);
        }
        if (will != antwort::nein) {
            return;
        }
        k = std::move(danach);
    }
}

std::optional<wiederaufnahme::kandidat> wiederaufnahme::naechstes_von(namensstelle& stelle, namensstelle ende) const {
    while (stelle != ende) {
        const std::string& name = *stelle++;
        if (teil_von(name).starts_with(abend_kennung)) {
            continue;  // those of an evening wait there
        }
        std::optional<kandidat> k = lesen(name);
        if (k && k->stand.fortsetzbar()) {
            return k;
        }
    }
    return std::nullopt;
}

plattform::dreifache_antwort wiederaufnahme::einzeln_anbieten(const kandidat& k, bool noch_eines) const {
    const auto& wort = um_.txt.wettkampf;
    plattform::meldungen& meldungen = um_.dienste.meldungen;
    if (noch_eines) {
        return meldungen.anbieten_mit_ausweg(frage(k.stand), um_.txt.titel[0], antworten(k.stand, wort.naechstes));
    }
    const bool will = meldungen.anbieten(frage(k.stand), um_.txt.titel[0], antworten(k.stand, wort.spaeter));
    return will ? plattform::dreifache_antwort::ja : plattform::dreifache_antwort::abbrechen;
}

plattform::dreifache_antwort wiederaufnahme::abgebrochenes_anbieten() {
    using antwort = plattform::dreifache_antwort;
    nach_dem_start_ = false;
    const std::optional<kandidat> k = letztes_abendrennen();
    if (!k || !k->stand.fortsetzbar()) {
        return antwort::nein;
    }
    const std::string kennung = um_.wettkampf.wettkampfabend.kennung();
    const abendrennen dran = abendrennen_lesen(kennung);
    const abendrennen damals = abendrennen_lesen(k->stand.kopf.teil_von);
    const renn_parameter& param = um_.rennen.umgebung.param;
    bool dieselben =
        damals.art == dran.art && damals.rennen == dran.rennen && (damals.abend.empty() || damals.abend == dran.abend);
    for (const int spur : alle_spuren) {
        dieselben = dieselben && (!param.spur_aktiv[spur] || param.fahrer_name[spur] == k->stand.fahrer[spur]);
    }
    if (!dieselben) {
        return antwort::nein;
    }
    const antwort will = um_.dienste.meldungen.anbieten_mit_ausweg(frage(k->stand), um_.txt.titel[0],
                                                                   antworten(k->stand, um_.txt.wettkampf.von_vorn));
    return will == antwort::ja && !fortsetzen(*k) ? antwort::nein : will;
}

bool wiederaufnahme::einrichten(const protokollkopf& kopf) {
    if (um_.datei.festhalten() == kopf.einstellungen) {
        return true;
    }
    um_.datei.einlesen(kopf.einstellungen);
    um_.datei.einstellungsdatei_pruefen(pruefweise::festgehaltenes);
    if (um_.datei.fehler_laden()) {
        return false;
    }
    const einstellungen vorher = um_.einst;
    um_.datei.einstellungen_uebernehmen({});
    zwischendurch(vorher).behalten(um_.einst);
    um_.folgen.einstellungen_gewechselt(vorher);
    um_.haupt.felder_nach_spuren();
    return true;
}

bool wiederaufnahme::eingliedern(const protokollstand& stand) {
    const std::string_view kennung = stand.kopf.teil_von;
    std::string_view rest = kennung;
    const std::string_view art = naechstes_wort(rest);
    if (art == abend_kennung) {
        wettkampfabend& abend = um_.wettkampf.wettkampfabend;
        const abendrennen dort = abendrennen_lesen(kennung);
        return abend.wettkampf_aktiv() && (dort.abend.empty() || dort.abend == abend.abendname()) &&
               abend.rennen_wiederaufnehmen(dort.rennen, dort.ab_teil);
    }
    ergebnisfluegel& e = um_.ergebnisse;
    if (art == "tagesrennen") {
        e.tagesrennen.datei = rest;
    }
    const std::array<std::pair<std::string_view, veranstaltung*>, 4> alle{{{"tagesrennen", &e.tagesrennen},
                                                                           {"training", &e.training},
                                                                           {"intervalltraining", &e.intervalltraining},
                                                                           {"einzelrennen", &e.einzelrennen}}};
    const auto gefunden = std::find_if(alle.begin(), alle.end(), [&](const auto& eine) { return eine.first == art; });
    um_.rennen.teil_von.wechseln(gefunden == alle.end() ? e.einzelrennen : *gefunden->second);
    return true;
}

bool wiederaufnahme::im_abend_richtig(const protokollstand& stand) {
    const renn_zustand& zustand = um_.rennen.zustand;
    return !stand.kopf.teil_von.starts_with(abend_kennung) ||
           um_.wettkampf.wettkampfabend.wiederaufgenommen(zustand.konto.teil(), zustand.umgesetzt,
                                                          dauer_ms(stand.dauer));
}

dauer_ms wiederaufnahme::vergangen(const protokollstand& stand) const {
    const sekunden beginn = als_zeitpunkt(datum_lesen(stand.kopf.zeitpunkt));
    const dauer_ms seit_beginn = als_zeitpunkt(um_.dienste.kalender.jetzt()) - beginn;
    return std::clamp<dauer_ms>(seit_beginn - dauer_ms(stand.dauer), 0ms, ausfall_max);
}

bool wiederaufnahme::fortsetzen(const kandidat& k) {
    um_.haupt.einrichtung_lesen();
    const protokollkopf& kopf = k.stand.kopf;
    if (um_.datei.festhalten() == kopf.einstellungen && um_.belegung == kopf.belegung) {
        return aufnehmen(k);
    }
    const bool alleine = nach_dem_start_ && !kopf.teil_von.starts_with(abend_kennung);
    using felder = einstellungsruecklage::felder;
    const bool stehen_da = um_.einst.anzeige.hauptfenster_wie_zuletzt;  // those of the director
    const bool bleiben = alleine && !stehen_da;
    return um_.ruecklage.solange({fenstername::bahn1, fenstername::auswertung},
                                 bleiben ? felder::bleiben : felder::zurueck, [&] { return aufnehmen(k); });
}

bool wiederaufnahme::aufnehmen(const kandidat& k) {
    if (!einrichten(k.stand.kopf) || !eingliedern(k.stand)) {
        melden(um_.txt.wettkampf.nicht_fortsetzbar);
        return false;
    }
    um_.hardware.nachholen();  // right behind the start they may wait yet, and the race window asks for them
    const mitschrift::werte uhrstand = um_.rennen.zeit.stand();
    um_.fenster.stillhalten({fenstername::bahn1, fenstername::Form2, fenstername::k_ampel});
    um_.ausgang.stillhalten();
    const bool fuehren = std::exchange(um_.protokoll.fuehren, false);
    um_.fenster.zeigen(fenstername::bahn1, anzeige_art::modal);
    um_.protokoll.fuehren = fuehren;
    um_.protokoll.bereitlegen(k.stand);
    if (!wertungsfolge(um_.rennen, um_.ergebnisse.wertung).bis_zum_ende() || !im_abend_richtig(k.stand)) {
        um_.fenster.entladen(fenstername::k_ampel);
        um_.fenster.entladen(fenstername::bahn1);
        um_.rennen.protokoll.aufhoeren();
        um_.rennen.zeit.stand_setzen(uhrstand);  // the devices are open, and set it only as they open
        um_.fenster.aufleben();
        um_.ausgang.ruhezustand();
        um_.ausgang.aufleben();
        melden(um_.txt.wettkampf.nicht_fortsetzbar);
        return false;
    }
    aufwachen(k, uhrstand);
    return true;
}

void wiederaufnahme::aufwachen(const kandidat& k, const mitschrift::werte& uhrstand) {
    const bool mit_ergebnis = um_.fenster.ist_offen(fenstername::auswertung) && um_.rennen.zustand.rennen_beendet;
    const dauer_ms seither = vergangen(k.stand);
    if (k.beschaedigt) {  // the log goes on in front of what is behind the damage
        um_.ablage.kopieren(k.datei, k.datei + std::string(kopie_endung));
        protokoll_hervorholen(um_.ablage, k.name);
    }
    const zeit_ms letzte = um_.rennen.zeit.messzeit_lesen();
    const bool mit_protokoll = um_.protokoll.weiterfuehren(k.datei, k.stand, seither);
    um_.rennen.zeit.stand_setzen(uhrstand);
    const zeit_ms seit = um_.rennen.zeit.messzeit_lesen() - seither.count();
    um_.geraete.stempel_verschieben(seit - letzte);
    um_.rennen.ausfall.ueberstehen(seit);
    um_.fenster.aufleben();
    if (mit_ergebnis) {
        um_.ausgang.aufleben();
        um_.ergebnisse.auswertung.wieder_oeffnen();
    } else {
        um_.quellen.melden(&messquelle::nach_ausfall,
                           ausfall_stand{letzte, letzte - seit, um_.dienste.uhr.jetzt() - seither.count()});
        um_.rennen.bahn1.Command3.fokus_setzen();
    }
    if (!mit_protokoll) {
        melden(um_.txt.wettkampf.ohne_protokoll);
    }
}

void wiederaufnahme::weglegen(const kandidat& k) const {
    const auto ende = protokollfortsetzung::lesen(um_.ablage.pfad(k.datei));
    if (!ende || ende->beschaedigt()) {
        protokoll_weglegen(um_.ablage, k.name);
        return;
    }
    if (const auto datei = ende->oeffnen(um_.dienste.anhaenge)) {
        protokollschreiber zeile;
        zeile.fortsetzen(ende->kette());
        datei->anhaengen(zeile.beginnen(0).wort("#").wort(protokoll_geschlossen).fertig());
    }
}

}  // namespace tarvel
