#include "core/mitschrift.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "core/mitschriftworte.h"

namespace tarvel {
namespace {

constexpr std::string_view vermerk = ">";
constexpr zeit_ms lebenszeichen_ms = 200;            // what is cut off is known to have lived until then
constexpr zeit_ms laeufe_ms = 2 * lebenszeichen_ms;  // a look comes sooner, if there is one

}  // namespace

double protokoll_bruch(std::int64_t bits, double sonst) {
    constexpr double grenze = 1e9;
    const auto wert = std::bit_cast<double>(bits);
    return std::abs(wert) <= grenze ? wert : sonst;
}

int mitschrift::eingang(std::string name, std::size_t anzahl, tat was, sorte art) {
    const int nummer = static_cast<int>(eingaenge_.size());
    nummer_.emplace(name, nummer);
    eingaenge_.push_back({.name = std::move(name), .anzahl = anzahl, .was = std::move(was), .art = art});
    return nummer;
}

std::function<void()> mitschrift::befehl(std::string name, std::function<void()> was) {
    const int nummer = eingang(std::move(name), 0, [was = std::move(was)](const werte& /*keine*/) { was(); });
    return [this, nummer] { geschieht(nummer); };
}

void mitschrift::geschieht(int eingang, const werte& w) {
    if (betrieb_ != betrieb::schreiben || !von_aussen()) {
        ausfuehren(eingang, w);
        return;
    }
    eintrag& e = eingaenge_[static_cast<std::size_t>(eingang)];
    const bool geweckt = std::exchange(e.geweckt, false);
    const zeit_ms jetzt = uhr_();
    zuege_.push_back({.eingang = eingang, .w = w, .beginn = jetzt, .nebenbei = nebenbei_lesen_(), .zeit = jetzt});
    const bool zaehlt = e.art == sorte::zaehlung && e.anzahl == 0;
    if (zaehlt ? laeufe_.offen && jetzt - lebenszeichen_ >= laeufe_ms
               : e.art != sorte::blick || geweckt || jetzt - lebenszeichen_ >= lebenszeichen_ms) {
        zuege_schreiben();
    }
    if (e.art == sorte::handlung) {
        wecken();
    }
    ausfuehren(eingang, w);
    if (zaehlt && !zuege_.empty()) {
        zaehlung_beenden();
    }
    if (!zuege_.empty()) {  // the log may have been closed within
        nebenbei_ = zuege_.back().steht_da ? nebenbei_lesen_() : nebenbei_;
        zuege_.pop_back();
    }
    if (zuege_.empty() && !ausstehend_.empty()) {
        ausstehende_schreiben();
    }
}

void mitschrift::wecken() {
    for (eintrag& e : eingaenge_) {
        e.geweckt = e.art == sorte::blick;
    }
}

void mitschrift::schreiben(protokollsenke& senke, zeit_ms beginn, std::function<zeit_ms()> uhr) {
    betrieb_ = betrieb::schreiben;
    ++lauf_;
    senke_ = &senke;
    schreiber_.fortsetzen(protokoll_kette_anfang);
    beginn_ = beginn;
    uhr_ = std::move(uhr);
    zuege_.clear();
    nebenbei_ = {unbekannt};
    laeufe_.offen = false;
    for (eintrag& e : eingaenge_) {
        e.laeufe = 0;
    }
    wecken();
}

void mitschrift::weiterschreiben(protokollsenke& senke, std::uint16_t kette, zeit_ms beginn,
                                 std::function<zeit_ms()> uhr) {
    schreiben(senke, beginn, std::move(uhr));
    schreiber_.fortsetzen(kette);
    for (const std::string& zeile : nachtrag_) {
        schreiber_.beginnen(0).wort(zeile);
        anhaengen();
    }
    nachtrag_.clear();
    kopfzeile(std::string(mitschriftwort::andere_uhr) + " " + std::to_string(beginn));
}

void mitschrift::aufhoeren() {
    ausstehende_schreiben();
    betrieb_ = betrieb::aus;
    senke_ = nullptr;
    zuege_.clear();
    zeilen_.clear();
}

void mitschrift::kopfzeile(std::string_view text) {
    if (schreibt() && !zuege_.empty()) {
        ausstehend_.emplace_back(text);
    } else if (schreibt()) {
        laeufe_schreiben();
        schreiber_.beginnen(0).wort(mitschriftwort::kopf).wort(text);
        anhaengen();
    }
}

void mitschrift::ausstehende_schreiben() {
    zuege_.clear();
    for (const std::string& zeile : std::exchange(ausstehend_, {})) {
        kopfzeile(zeile);
    }
}

void mitschrift::zuege_schreiben() {
    for (std::size_t i = 0; i < zuege_.size(); ++i) {
        if (!std::exchange(zuege_[i].steht_da, true)) {
            if (laeufe_.tiefe == i) {
                laeufe_schreiben();
            }
            zug_schreiben(i);
        }
    }
}

void mitschrift::zaehlung_beenden() {
    const zug& z = zuege_.back();
    eintrag& e = eingaenge_[static_cast<std::size_t>(z.eingang)];
    const std::size_t tiefe = zuege_.size() - 1;
    if (z.steht_da) {
        return;
    }
    if (z.schritt > 0 || z.merklich || z.nebenbei != nebenbei_lesen_() || e.laeufe == mitschriftwort::laeufe_max ||
        (laeufe_.offen && laeufe_.tiefe != tiefe)) {
        zuege_schreiben();
        if (zuege_.back().merklich) {
            wecken();  // a penalty that is over gives a lap back, say, which the next look finds
        }
    } else {
        laeufe_ = {true, tiefe, z.beginn};
        ++e.laeufe;
    }
}

void mitschrift::laeufe_schreiben() {
    if (!std::exchange(laeufe_.offen, false) || laeufe_.tiefe > zuege_.size()) {
        return;
    }
    schreiber_.beginnen(static_cast<int>(laeufe_.tiefe));
    if (laeufe_.tiefe > 0) {
        schreiber_.zahl(zuege_[laeufe_.tiefe - 1].tor);
    }
    schreiber_.wort(mitschriftwort::gezaehlt).zahl(laeufe_.zeit - beginn_);
    for (eintrag& e : eingaenge_) {
        if (e.laeufe > 0) {
            schreiber_.wort(e.name).zahl(std::exchange(e.laeufe, 0));
        }
    }
    anhaengen();
}

void mitschrift::zug_schreiben(std::size_t nummer) {
    const zug& z = zuege_[nummer];
    lebenszeichen_ = z.beginn;
    const eintrag& e = eingaenge_[static_cast<std::size_t>(z.eingang)];
    schreiber_.beginnen(static_cast<int>(nummer));
    if (nummer > 0) {
        schreiber_.zahl(zuege_[nummer - 1].tor);
    }
    schreiber_.wort(e.name).zahl(z.beginn - beginn_);
    for (std::size_t i = 0; i < e.anzahl; ++i) {
        schreiber_.zahl(z.w[i]);
    }
    if (z.nebenbei != nebenbei_) {
        schreiber_.zahl(z.nebenbei[0]);
        if (z.nebenbei[1] != 0) {
            schreiber_.zahl(z.nebenbei[1]);
        }
    }
    anhaengen();
    for (std::size_t i = 0; i < z.spruenge_anzahl; ++i) {
        schreiber_.beginnen(static_cast<int>(nummer) + 1);
        schreiber_.zahl(z.spruenge[i].schritt).wort(mitschriftwort::uhrsprung).zahl(z.spruenge[i].zeit - beginn_);
        anhaengen();
    }
}

protokollschreiber& mitschrift::inhalt_beginnen() {
    zuege_schreiben();
    laeufe_schreiben();
    wecken();  // what one look has found, the others may find, too
    return schreiber_.beginnen(tiefe());
}

zeit_ms mitschrift::zeit_merken(zeit_ms echte) {
    if (zuege_.empty() || zuege_.back().tor != 0 || betrieb_ == betrieb::aus) {
        return echte;
    }
    zug& z = zuege_.back();
    ++z.schritt;
    if (z.zeit == echte) {
        return echte;
    }
    z.zeit = echte;
    if (z.steht_da || z.spruenge_anzahl == z.spruenge.size()) {
        zuege_schreiben();
        schreiber_.beginnen(tiefe()).zahl(z.schritt).wort(mitschriftwort::uhrsprung).zahl(echte - beginn_);
        anhaengen();
    } else {
        z.spruenge[z.spruenge_anzahl++] = {z.schritt, echte};
    }
    return echte;
}

std::int64_t mitschrift::antwort_merken(std::string_view name, std::int64_t wert) {
    schritt();
    if (schreibt() && !zuege_.empty() && zuege_.back().tor == 0) {
        inhalt_beginnen().zahl(zuege_.back().schritt).wort(name).zahl(wert);
        anhaengen();
    }
    return wert;
}

int mitschrift::tor_oeffnen() {
    if (zuege_.empty()) {
        return 0;
    }
    zug& z = zuege_.back();
    if (z.tor != 0) {
        return z.tor;
    }
    z.tor = ++z.schritt;
    return 0;
}

void mitschrift::tor_schliessen(int vorher) {
    if (laeufe_.offen && laeufe_.tiefe == zuege_.size()) {  // what comes next is not within that step any more
        zuege_schreiben();
        laeufe_schreiben();
    }
    if (!zuege_.empty()) {
        zuege_.back().tor = vorher;
    }
}

void mitschrift::vermerken(std::string_view wort, std::initializer_list<std::int64_t> zahlen) {
    if (betrieb_ == betrieb::aus || zuege_.empty()) {
        return;
    }
    if (schreibt()) {
        inhalt_beginnen().wort(vermerk).wort(wort);
        for (const std::int64_t zahl : zahlen) {
            schreiber_.zahl(zahl);
        }
        anhaengen();
        return;
    }
    std::string jetzt(static_cast<std::size_t>(tiefe()), '.');
    jetzt.append(vermerk).append(" ").append(wort);
    for (const std::int64_t zahl : zahlen) {
        jetzt.append(" ").append(std::to_string(zahl));
    }
    if (ort_ == zeilen_.size()) {  // the log was cut off in the middle of a doing
        nachtrag_.push_back(std::move(jetzt));
        return;
    }
    if (zeilen_[ort_] == jetzt) {
        ++ort_;
    } else {
        abweichen(std::move(jetzt));
    }
}

}  // namespace tarvel
