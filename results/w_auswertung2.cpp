#include "results/w_auswertung2.h"

#include <algorithm>
#include <utility>

#include "core/ordner.h"
#include "core/ordnerblick.h"
#include "core/protokollordner.h"
#include "core/text.h"
#include "core/weitergeben.h"
#include "results/ergebnisdatei.h"
#include "results/papiername.h"
#include "results/protokollrunden.h"

namespace tarvel {
namespace {

constexpr std::string_view wurzel = "Ergebnisse";
constexpr std::string_view darueber = "..";
constexpr std::array<std::string_view, 3> sprungziele{ergebnis_ordner::einzelrennen, ergebnis_ordner::tagesrennen,
                                                      ergebnis_ordner::wettkampf};

std::string ordner_von(std::string_view pfad) {
    const std::size_t ende = pfad.find_last_of("\\/");
    return std::string(ende == std::string_view::npos ? wurzel : pfad.substr(0, ende));
}

std::string name_von(std::string_view pfad) {
    return std::string(pfad.substr(pfad.find_last_of("\\/") + 1));
}

std::size_t abdruck_von(const std::vector<std::string>& zeilen) {
    std::size_t abdruck = zeilen.size();
    for (const std::string& zeile : zeilen) {
        abdruck = abdruck * 31 + std::hash<std::string>{}(zeile);
    }
    return abdruck;
}

void fuellen(liste& ziel, const std::vector<std::string>& zeilen) {
    ziel.leeren();
    for (const std::string& zeile : zeilen) {
        ziel.hinzufuegen(zeile);
    }
}

}  // namespace

w_auswertung2::w_auswertung2(const umfeld& um)
    : fensterlogik(um.welt.fenster, um.welt.ablage, fenstername::w_auswertung2),
      korrektur(um.einrichtung),
      um_(um),
      debug_(um.welt.fenster, um.welt.ablage) {
    befehle_verbinden();
    sortierbefehle_verbinden();
    speicherbefehle_verbinden();
}

void w_auswertung2::befehle_verbinden() {
    for (std::size_t i = 0; i < Command19.size(); ++i) {
        Command19.at(i).bei_klick = [this, i] { ordner_zeigen(std::string(sprungziele.at(i))); };
    }
    Dir1.bei_doppelklick = [this] { ordner_betreten(); };
    const auto mit_datei = [this](void (w_auswertung2::*tun)(const std::string&)) {
        if (const std::string pfad = gewaehlte_datei(); !pfad.empty()) {
            (this->*tun)(pfad);
        }
    };
    File1.bei_doppelklick = [mit_datei] { mit_datei(&w_auswertung2::oeffnen); };
    Command4.bei_klick = [mit_datei] { mit_datei(&w_auswertung2::oeffnen); };
    Command2.bei_klick = [mit_datei] { mit_datei(&w_auswertung2::dazu); };
    for (std::size_t i = 0; i < Command_blick.size(); ++i) {
        Command_blick.at(i).bei_klick = [this, i] {
            blicken(static_cast<blick>(i));
            const bool tabelle = blick_ == blick::tabelle;  // never on to the printer
            (tabelle ? static_cast<steuerelement&>(auswertung_schoen) : Command_blick[0]).fokus_setzen();
        };
    }
    cbo_rennen.bei_aenderung = [this] { rennen_zeigen(); };
    Command10.bei_klick = [this] { details_umschalten(0); };
    command9.bei_klick = [this] { details_umschalten(1); };
    Command11.bei_klick = [this] { details_umschalten(2); };
    Command13.bei_klick = [this] { debug_umschalten(); };
    Command5.bei_klick = [this] { schliessen(); };
    debug_.bei_ende = [this] { Command13.text(wort_.debug_auf); };
    weitergeben(Command_drucken, drucken);
    weitergeben(Command_pdf, als_pdf);
    Command_urkunden.bei_klick = [this] { urkunden_zeigen(); };
}

void w_auswertung2::laden() {
    texte_lesen();
    titel.text(wort_.titel);
    Command13.text(wort_.debug_auf);
    tabelle_.reset();
    dateien_.clear();
    abdruecke_.clear();
    details_ = {};
    korrekturen_ = {};
    Frame_sortieren.sichtbar(false);
    for (std::size_t i = 0; i < opt_sortieren_nach.size(); ++i) {
        opt_sortieren_nach.at(i).gesetzt(static_cast<int>(um_.einst.auswertung_nach) == static_cast<int>(i) + 1);
    }
    const auto etwas_da = [this](std::string_view ordner) {
        const ordnerblick da = ordner_ansehen(um_.welt.ablage.pfad(std::string(ordner)), {".csv"});
        return !da.dateien.empty() || !da.ordner.empty();
    };
    constexpr std::array der_reihe_nach{ergebnis_ordner::einzelrennen, ergebnis_ordner::auto_einzelrennen, papierkorb};
    const auto* const erster = std::find_if(der_reihe_nach.begin(), der_reihe_nach.end(), etwas_da);
    ordner_zeigen(std::string(erster == der_reihe_nach.end() ? der_reihe_nach.front() : *erster));
    tabelle_neu();
    File1.fokus_setzen();
}

void w_auswertung2::entladen() {
    um_.welt.fenster.entladen(fenstername::w_ausw_debug);
    um_.welt.fenster.entladen(fenstername::urkunden);
    tabelle_.reset();
    korrekturen_ = {};
    rennen_.reset();
    ansicht_ = {};
    auswertung_schoen.leeren();
}

/// First what lies over the table, then the window.
void w_auswertung2::schliessen() {
    if (korrektur.offen()) {
        korrektur_beenden();
    } else if (Frame7.sichtbar()) {
        Command12.klicken();
    } else if (darf_verwerfen()) {
        fensterlogik::schliessen();
    }
}

bool w_auswertung2::darf_verwerfen() {
    return !korrekturen_.ungesichert() || um_.welt.meldungen.fragen(wort_.verwerfen, um_.welt.txt.titel[0]);
}

void w_auswertung2::datei_zeigen(const std::string& pfad) {
    um_.welt.fenster.zeigen(fenstername::w_auswertung2, anzeige_art::modal);
    if (pfad.empty()) {
        return;
    }
    ordner_zeigen(ordner_von(pfad));
    const auto& namen = File1.zeilen();
    File1.markieren(static_cast<int>(std::find(namen.begin(), namen.end(), name_von(pfad)) - namen.begin()));
    oeffnen(pfad);
}

void w_auswertung2::ordner_zeigen(const std::string& ordner) {
    ordner_ = ordner;
    ordner_nennen();
    const ordnerblick darin = ordner_ansehen(um_.welt.ablage.pfad(ordner_), {".csv"});
    std::vector<std::string> ziele = darin.ordner;
    if (ordner_ != wurzel) {
        ziele.insert(ziele.begin(), std::string(darueber));
    }
    fuellen(Dir1, ziele);
    fuellen(File1, darin.dateien);
}

void w_auswertung2::ordner_betreten() {
    if (const int zeile = Dir1.markiert(); zeile >= 0) {
        const std::string ziel = Dir1.zeilen().at(static_cast<std::size_t>(zeile));
        ordner_zeigen(ziel == darueber ? ordner_von(ordner_) : ordner_ + "\\" + ziel);
    }
}

std::string w_auswertung2::gewaehlte_datei() {
    const int zeile = File1.markiert();
    if (zeile < 0) {
        hinweisen(wort_.keine_datei);
        return {};
    }
    return ordner_ + "\\" + File1.zeilen().at(static_cast<std::size_t>(zeile));
}

std::optional<w_auswertung2::datei> w_auswertung2::datei_lesen(const std::string& pfad) const {
    constexpr std::size_t zeilen_hoechstens = 1000000;  // to the end, which tells the kind
    constexpr std::size_t zeile_bytes_max = 200000;
    auto zeilen = um_.welt.ablage.zeilen_lesen(pfad, zeilen_hoechstens, zeile_bytes_max);
    if (!zeilen) {
        return std::nullopt;
    }
    const bool zu_lang = zeilen->size() > ergebnistabelle::zeilen_max ||
                         std::any_of(zeilen->begin(), zeilen->end(), [](const std::string& zeile) {
                             return zeile.size() >= zeile_bytes_max && laenge(zeile) >= zeile_bytes_max;
                         });
    const std::size_t abdruck = abdruck_von(*zeilen);
    return datei{std::move(*zeilen), zu_lang, abdruck};
}

std::optional<ergebnistabelle> w_auswertung2::tabelle_von(const std::string& pfad, std::size_t& abdruck) {
    auto gelesen = datei_lesen(pfad);
    auto tabelle = gelesen ? ergebnistabelle_lesen(std::move(gelesen->zeilen), um_.einst.trennzeichen) : std::nullopt;
    if (!tabelle) {
        fehler_melden(wort_.dateifehler);
        return tabelle;
    }
    if (gelesen->zu_lang || tabelle->gekuerzt) {
        hinweisen(wort_.zu_lang);
    }
    abdruck = gelesen->abdruck;
    return tabelle;
}

void w_auswertung2::oeffnen(const std::string& pfad) {
    if (!darf_verwerfen()) {
        return;
    }
    std::size_t abdruck = 0;
    if (auto neue = tabelle_von(pfad, abdruck)) {
        tabelle_ = std::move(neue);
        korrekturen_ = {};
        klassen_vereint_ = false;
        sortiert_ = false;
        for (haken& kasten : Check1) {
            kasten.gesetzt(true);  // what was left out was so in the file before
        }
        dateien_ = {pfad};
        abdruecke_ = {{pfad, abdruck}};
        protokoll_gelesen_ = false;
        tabelle_neu();
    }
}

void w_auswertung2::dazu(const std::string& pfad) {
    if (!tabelle_) {
        oeffnen(pfad);
        return;
    }
    std::size_t abdruck = 0;
    const auto neue = tabelle_von(pfad, abdruck);
    if (!neue) {
        return;
    }
    switch (hinzufuegen(*tabelle_, *neue)) {
        case hinzufuegen_ergebnis::anderer_typ:
            hinweisen(wort_.anderer_typ);
            break;
        case hinzufuegen_ergebnis::zu_viele_zeilen:
            hinweisen(wort_.zu_viele);
            break;
        case hinzufuegen_ergebnis::hinzugefuegt:
            dateien_.push_back(pfad);
            abdruecke_[pfad] = abdruck;
            sortiert_ = false;
            korrekturen_.abschliessen();
            tabelle_neu();
    }
}

/// After other lines have come into memory.
void w_auswertung2::tabelle_neu() {
    korrektur.schliessen();
    Frame7.sichtbar(false);
    std::vector<std::string> namen;
    const std::size_t anzahl = tabelle_ ? tabelle_->rennen.size() : 0;
    for (std::size_t i = 0; i < anzahl; ++i) {
        const ergebnistabelle::lauf& lauf = tabelle_->rennen[i];
        namen.push_back(std::to_string(i + 1) + ":  " + lauf.datum + "  " + lauf.uhrzeit);
    }
    const int gewaehlt = cbo_rennen.platz();
    cbo_rennen.eintraege(namen);
    cbo_rennen.platz(gewaehlt >= 0 && gewaehlt < static_cast<int>(namen.size()) ? gewaehlt : 0);
    klassen_zeigen();
    tabelle_anzeigen();
    const bool mit_rennen = tabelle_ && tabelle_->typ == ergebnis_typ::einzelrennen && !tabelle_->addiert;
    const bool bleibt = blick_ == blick::vergleich || mit_rennen;
    blicken(tabelle_ && bleibt ? blick_ : blick::tabelle);
}

void w_auswertung2::tabelle_anzeigen() {
    details_.ohne_klassen = ausgelassene_klassen();
    rennplaetze_eintragen();
    ansicht_ = tabelle_ ? ergebnisansicht_bilden(*tabelle_, ansicht_wort_, details_) : ergebnisansicht{};
    Label_kopf.text(ansicht_.kopf.text);
    std::vector<std::string> zeilen;
    for (const ergebnisansicht::zeile& zeile : ansicht_.zeilen) {
        zeilen.push_back(zeile.text);
    }
    fuellen(auswertung_schoen, zeilen);
    datei_nennen();
    fuehrung_nennen();
    if (um_.welt.fenster.ist_offen(fenstername::w_ausw_debug)) {
        debug_.zeilen_zeigen(tabelle_ ? tabelle_->alle_zeilen() : std::vector<std::string>{});
    }
    details_zeigen();
    bedienung_einrichten();
}

void w_auswertung2::details_umschalten(std::size_t welche) {
    const std::array<bool*, 3> an{&details_.runden, &details_.meter, &details_.beste};
    *an.at(welche) = !*an.at(welche);
    tabelle_anzeigen();
}

void w_auswertung2::details_zeigen() {
    const detailwahl moeglich = tabelle_ ? moegliche_details(*tabelle_) : detailwahl{};
    const std::array<befehl*, 3> knoepfe{&Command10, &command9, &Command11};
    const std::array<bool, 3> an{details_.runden, details_.meter, details_.beste};
    const std::array<bool, 3> geht{moeglich.runden, moeglich.meter, moeglich.beste};
    for (std::size_t i = 0; i < knoepfe.size(); ++i) {
        knoepfe.at(i)->text(wort_.details.at(i).at(an.at(i) ? 1 : 0));
        knoepfe.at(i)->aktiviert(geht.at(i) && !korrektur.offen());
    }
}

void w_auswertung2::blicken(blick neu) {
    blick_ = neu;
    for (std::size_t i = 0; i < Frame_blick.size(); ++i) {
        Frame_blick.at(i).sichtbar(static_cast<blick>(i) == blick_);
    }
    rennen_zeigen();
    bedienung_einrichten();
}

void w_auswertung2::rennen_zeigen() {
    rennen_.reset();
    if (blick_ == blick::blatt || blick_ == blick::verlauf) {
        rennen_ = gewaehltes_rennen();
        if (!rennen_) {
            hinweisen(wort_.kein_blatt);
            blicken(blick::tabelle);
            return;
        }
        marken_aus_dem_protokoll(*rennen_);
    }
    if (zeichnen) {
        zeichnen();
    }
}

/// A folder may hold many logs: they are looked through once for a file, and only if its race is drawn.
void w_auswertung2::marken_aus_dem_protokoll(rennergebnis& rennen) {
    if (!gezeigtes_rennen() || tabelle_->rennen.size() != 1) {
        return;
    }
    if (!std::exchange(protokoll_gelesen_, true)) {
        const auto name = gezeigtes_protokoll();
        const auto inhalt = name ? protokoll_lesen(um_.welt.ablage, name_von(*name)) : std::nullopt;
        protokolliertes_ = inhalt ? protokollrunden(hergang_lesen(*inhalt)) : std::nullopt;
    }
    if (protokolliertes_) {
        marken_eintragen(rennen, *protokolliertes_);
    }
}

std::vector<fahrerstreuung> w_auswertung2::vergleich() const {
    return tabelle_ ? fahrervergleich(*tabelle_) : std::vector<fahrerstreuung>{};
}

std::string w_auswertung2::kopf() const {
    if (!tabelle_ || !rennen_) {
        return Label_datei.text();
    }
    const auto wertung = static_cast<std::size_t>(rennen_->wertung.value_or(sortier_modus::runden)) - 1;
    return wort_.rennen + " " + rennen_->datum + ", " + wort_.ende + " " + rennen_->uhrzeit + "  ·  " +
           wort_.wertung.at(wertung);
}

std::optional<std::string> w_auswertung2::gezeigtes_rennen() const {
    const bool eines = tabelle_ && tabelle_->typ == ergebnis_typ::einzelrennen && dateien_.size() == 1;
    return eines ? std::optional(dateien_.front()) : std::nullopt;
}

std::optional<std::string> w_auswertung2::gezeigtes_protokoll() const {
    const auto pfad = gezeigtes_rennen();
    if (!pfad) {
        return std::nullopt;
    }
    const bool allein = tabelle_->rennen.size() == 1;
    const ergebnistabelle::lauf wann = allein ? tabelle_->rennen.front() : ergebnistabelle::lauf{};
    return protokoll_zu_ergebnis(um_.welt.ablage, *pfad, {wann.datum, wann.uhrzeit});
}

std::string w_auswertung2::blatt_datei() const {
    if (dateien_.empty()) {
        return std::string(wurzel) + "\\" + wort_.titel;
    }
    const std::string& erste = dateien_.front();
    const std::size_t name_ab = erste.find_last_of("\\/") + 1;
    const blick gedruckt = blick_ == blick::verlauf ? blick::blatt : blick_;
    std::string was = Command_blick.at(static_cast<std::size_t>(gedruckt)).text();
    if (gedruckt == blick::blatt && cbo_rennen.platz() > 0) {
        was += " " + std::to_string(cbo_rennen.platz() + 1);
    }
    if (const std::string wann = anzeigename(erste); !erste.ends_with(wann)) {  // nobody has given it a name
        const std::size_t luecke = wann.find(' ');
        return papiername(ergebnis_ordner::einzelrennen, {wann.substr(0, luecke), wann.substr(luecke + 1)}, was);
    }
    const std::string name = erste.substr(name_ab);
    return papiername(erste.substr(0, name_ab - 1), {},
                      (endet_auf(name, ".csv") ? name.substr(0, name.size() - 4) : name) + " " + was);
}

}  // namespace tarvel
