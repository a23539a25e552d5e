#include <algorithm>
#include <string>
#include <utility>

#include "core/mitschrift.h"
#include "core/mitschriftworte.h"

// What was written is done again.

namespace tarvel {

void mitschrift::lesen(std::vector<std::string_view> zeilen, int erste_zeile, zeit_ms beginn) {
    betrieb_ = betrieb::lesen;
    zeilen_ = std::move(zeilen);
    ort_ = 0;
    erste_zeile_ = erste_zeile;
    beginn_ = protokoll_stempel(beginn);
    zuletzt_ = beginn_;
    abweichung_.reset();
    nachtrag_.clear();
    zuege_.clear();
}

void mitschrift::kopfzeile_lesen(std::string_view rest) {
    if (naechstes_wort(rest) == mitschriftwort::andere_uhr) {
        beginn_ = protokoll_stempel(als_zahl(rest).value_or(beginn_));
    }
}

std::optional<protokollsatz> mitschrift::naechster() const {
    if (ort_ == zeilen_.size() || abweichung_) {
        return std::nullopt;
    }
    return zerlegen(zeilen_[ort_]);
}

void mitschrift::abweichen(std::string stattdessen) {
    if (!abweichung_) {
        abweichung_ = {erste_zeile_ + static_cast<int>(ort_), ort_ < zeilen_.size() ? std::string(zeilen_[ort_]) : "",
                       std::move(stattdessen)};
    }
}

std::optional<protokollsatz> mitschrift::naechste_tat() {
    std::optional<protokollsatz> s = naechster();
    while (s && s->ist_kopfzeile()) {
        kopfzeile_lesen(s->rest);
        ++ort_;
        if (bei_kopfzeile) {
            bei_kopfzeile(s->rest);
        }
        s = naechster();
    }
    return s;
}

std::optional<zeit_ms> mitschrift::naechste_zeit() {
    std::optional<protokollsatz> s = naechste_tat();
    if (!s) {
        return std::nullopt;
    }
    return protokoll_stempel(als_zahl(naechstes_wort(s->rest)).value_or(0));
}

bool mitschrift::weiter() {
    const std::optional<protokollsatz> s = naechste_tat();
    if (!s) {
        return false;
    }
    if (s->tiefe != 0) {
        abweichen("");  // nobody has asked for it
        return false;
    }
    satz_ausfuehren(*s);
    return !abweichung_;
}

bool mitschrift::ist_tat(std::string_view wort) const {
    return wort == mitschriftwort::gezaehlt || nummer_.contains(std::string(wort));
}

void mitschrift::laeufe_ausfuehren(const protokollsatz& s) {
    std::string_view rest = s.rest;
    const std::optional<std::int64_t> zeit = als_zahl(naechstes_wort(rest));
    std::vector<std::pair<int, std::int64_t>> laeufe;
    bool ganz = zeit.has_value() && zuege_.size() < tiefe_max;
    while (ganz && !rest.empty()) {
        const auto gefunden = nummer_.find(std::string(naechstes_wort(rest)));
        const std::int64_t anzahl = als_zahl(naechstes_wort(rest)).value_or(0);
        ganz = gefunden != nummer_.end() && anzahl > 0 && anzahl <= mitschriftwort::laeufe_max &&
               eingaenge_[static_cast<std::size_t>(gefunden->second)].art == sorte::zaehlung;
        laeufe.emplace_back(ganz ? gefunden->second : 0, anzahl);
    }
    if (!ganz) {
        abweichen("");
        return;
    }
    ++ort_;
    zuletzt_ = beginn_ + protokoll_stempel(*zeit);
    const std::size_t tiefe = zuege_.size();
    for (auto [eingang, anzahl] : laeufe) {
        for (; anzahl > 0 && liest() && !abweichung_; --anzahl) {
            zuege_.push_back({.eingang = eingang, .zeit = zuletzt_, .steht_da = true});
            ausfuehren(eingang, {});
            zuege_.resize(std::min(zuege_.size(), tiefe));
        }
    }
}

void mitschrift::satz_ausfuehren(const protokollsatz& s) {
    if (s.wort == mitschriftwort::gezaehlt) {
        laeufe_ausfuehren(s);
        return;
    }
    const auto gefunden = nummer_.find(std::string(s.wort));
    if (gefunden == nummer_.end() || zuege_.size() == tiefe_max) {
        abweichen("");
        return;
    }
    const eintrag& e = eingaenge_[static_cast<std::size_t>(gefunden->second)];
    zug z{.eingang = gefunden->second, .steht_da = true};
    std::string_view rest = s.rest;
    const std::optional<std::int64_t> zeit = als_zahl(naechstes_wort(rest));
    bool ganz = zeit.has_value();
    z.zeit = beginn_ + protokoll_stempel(zeit.value_or(0));
    for (std::size_t i = 0; i < e.anzahl; ++i) {
        const std::optional<std::int64_t> wert = als_zahl(naechstes_wort(rest));
        ganz = ganz && wert;
        z.w[i] = wert.value_or(0);
    }
    if (!rest.empty()) {
        const std::optional<std::int64_t> erstes = als_zahl(naechstes_wort(rest));
        const std::optional<std::int64_t> zweites = rest.empty() ? 0 : als_zahl(rest);
        ganz = ganz && erstes && zweites;
        if (ganz) {
            nebenbei_setzen_({protokoll_stempel(*erstes), protokoll_stempel(*zweites)});
        }
    }
    if (!ganz) {
        abweichen("");
        return;
    }
    ++ort_;
    zuletzt_ = z.zeit;
    const std::size_t tiefe = zuege_.size();
    zuege_.push_back(z);
    ausfuehren(z.eingang, z.w);
    if (zuege_.size() > tiefe) {
        zuletzt_ = std::max(zuletzt_, zuege_.back().zeit);  // another one may have come later within
        zuege_.resize(tiefe);
    }
}

zeit_ms mitschrift::zeit_nachlesen() {
    if (zuege_.empty()) {
        return zuletzt_;
    }
    zug& z = zuege_.back();
    if (z.tor == 0) {
        ++z.schritt;
        const std::optional<protokollsatz> s = naechster();
        if (s && s->tiefe == tiefe() && s->schritt == z.schritt && s->wort == mitschriftwort::uhrsprung) {
            z.zeit = beginn_ + protokoll_stempel(als_zahl(s->rest).value_or(0));
            ++ort_;
        }
    }
    return z.zeit;
}

std::optional<std::int64_t> mitschrift::antwort_nachlesen(std::string_view name) {
    if (zuege_.empty()) {
        return std::nullopt;
    }
    zug& z = zuege_.back();
    ++z.schritt;
    const std::optional<protokollsatz> s = naechster();
    if (!s || s->tiefe != tiefe() || s->schritt != z.schritt || s->wort != name) {
        return std::nullopt;
    }
    ++ort_;
    return als_zahl(s->rest);
}

void mitschrift::tor_nachlesen() {
    if (zuege_.empty()) {
        return;
    }
    const std::size_t nummer = zuege_.size() - 1;
    if (zuege_[nummer].tor != 0) {
        return;
    }
    const int schritt = ++zuege_[nummer].schritt;
    for (std::optional<protokollsatz> s = naechster(); s; s = naechster()) {
        if (s->tiefe != tiefe() || s->schritt != schritt || !ist_tat(s->wort)) {
            return;
        }
        zuege_[nummer].tor = schritt;
        satz_ausfuehren(*s);
        if (zuege_.size() <= nummer) {
            return;
        }
        zuege_[nummer].tor = 0;
    }
}
}  // namespace tarvel
