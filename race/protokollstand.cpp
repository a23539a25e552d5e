#include "race/protokollstand.h"

#include <algorithm>
#include <array>

#include "core/protokollzeile.h"
#include "race/protokollworte.h"

namespace tarvel {
namespace {

/// What the race asked: behind these words stands the answer, behind those of doings the time.
bool ist_antwort(std::string_view wort) {
    constexpr std::array<std::string_view, 15> worte{"u",       "datum",   "zufall", "antwort",    "darf",
                                                     "kann",    "ampel",   "rot",    "geraeteuhr", "stand",
                                                     "starter", "fueller", "faehrt", "strafzeit",  "schuldige"};
    return std::find(worte.begin(), worte.end(), wort) != worte.end();
}

/// Where a log can be cut.
struct ort {
    std::size_t zeilen = 0;
    std::size_t bytes = 0;
    std::uint16_t kette = 0;
};

/// Goes through the lines behind the head.
class standleser {
public:
    explicit standleser(protokollstand& stand) : s_(stand) { s_.fahrer = s_.kopf.param.fahrer_name; }

    void zeile(std::string_view text, const ort& davor) {
        protokollsatz satz = zerlegen(text);
        if (satz.ist_kopfzeile()) {
            kopfzeile(satz.rest);
        } else if (satz.ist_entscheidung()) {
            const std::string_view wort = naechstes_wort(satz.rest);
            vermerk(wort, satz.rest);
        } else {
            tun(satz.wort, satz.rest, davor);
        }
    }
    /// The race ends behind that.
    const std::optional<ort>& schnitt() const { return schnitt_; }

private:
    void kopfzeile(std::string_view rest) {
        const std::string_view wort = naechstes_wort(rest);
        if (wort == "Uhr") {  // it has gone on
            s_.geschlossen = s_.verlassen = s_.abgebrochen = false;
            schnitt_.reset();
        } else if (wort == protokoll_geschlossen) {
            s_.geschlossen = true;
        }
    }

    void tun(std::string_view wort, std::string_view rest, const ort& davor) {
        if (wort == "antwort") {
            letzte_frage_ = davor;
            return;
        }
        if (ist_antwort(wort)) {
            return;
        }
        s_.dauer = std::max(s_.dauer, als_zahl(naechstes_wort(rest)).value_or(0));
        if (wort == "abbruch" || wort == "schliessen") {
            letzte_frage_ = davor;
        } else if (wort == "zumachen") {
            s_.geschlossen = s_.verlassen = true;
            schnitt_ = s_.beendet || schnitt_ ? schnitt_ : davor;
        } else if (wort == "start") {
            s_.gestartet = s_.beendet = false;
            s_.runden = {};
        } else if (wort == "fortsetzen") {
            s_.beendet = false;
        } else if (wort == "umsetzen") {
            umsetzen(rest);
        }
    }

    void umsetzen(std::string_view rest) {
        const spuren<std::string> fahrer = s_.fahrer;
        const spuren<int> runden = s_.runden;
        for (const int spur : alle_spuren) {
            const auto woher = als_zahl(naechstes_wort(rest)).value_or(0);
            if (woher >= 1 && woher <= spuren_max) {
                s_.fahrer[spur] = fahrer[static_cast<int>(woher)];
                s_.runden[spur] = runden[static_cast<int>(woher)];
            }
        }
    }

    void vermerk(std::string_view wort, std::string_view rest) {
        if (wort == vermerk::gruen) {
            s_.gestartet = true;
        } else if (wort == vermerk::ende) {
            s_.beendet = true;
        } else if (wort == vermerk::abbruch) {
            s_.abgebrochen = true;
            schnitt_ = letzte_frage_;
        } else if (wort == vermerk::runde || wort == vermerk::abzug) {
            const auto spur = als_zahl(naechstes_wort(rest)).value_or(0);
            if (spur >= 1 && spur <= spuren_max) {
                s_.runden[static_cast<int>(spur)] = static_cast<int>(als_zahl(naechstes_wort(rest)).value_or(0));
            }
        }
    }

    protokollstand& s_;
    ort letzte_frage_;  ///< before the line with which the way out began
    std::optional<ort> schnitt_;
};

}  // namespace

int protokollstand::fuehrungsrunden() const {
    return std::max(*std::max_element(runden.begin(), runden.end()), 0);
}

std::optional<protokollstand> protokollstand_lesen(std::string_view inhalt) {
    protokollleser leser(inhalt);
    std::vector<ort> orte{{}};  // before each line
    protokollstand stand;
    while (const auto zeile = leser.zeile()) {
        stand.zeilen.push_back(*zeile);
        orte.push_back({stand.zeilen.size(), leser.gelesen(), leser.kette()});
    }
    std::optional<gelesener_kopf> kopf = kopf_lesen(stand.zeilen);
    if (!kopf) {
        return std::nullopt;
    }
    stand.kopf = std::move(kopf->kopf);
    standleser leser_der_zeilen(stand);
    for (std::size_t i = kopf->zeilen; i < stand.zeilen.size(); ++i) {
        leser_der_zeilen.zeile(stand.zeilen[i], orte[i]);
    }
    const ort bis = leser_der_zeilen.schnitt().value_or(orte.back());
    stand.bytes = bis.bytes;
    stand.kette = bis.kette;
    stand.zeilen.resize(std::max(bis.zeilen, kopf->zeilen));
    stand.zeilen.erase(stand.zeilen.begin(), stand.zeilen.begin() + static_cast<std::ptrdiff_t>(kopf->zeilen));
    stand.erste_zeile = static_cast<int>(kopf->zeilen) + 1;
    return stand;
}

}  // namespace tarvel
