#include <algorithm>
#include <string>
#include <string_view>

#include "core/form1.h"
#include "core/letzte_ergebnisse.h"
#include "core/spurbesetzung.h"
#include "core/text.h"

// Drivers come to the lanes, and change from one to another.

namespace tarvel {
namespace {

/// "21.11.2026 14:03:22" without its end.
std::string ohne_sekunden(std::string wann) {
    if (std::count(wann.begin(), wann.end(), ':') == 2) {
        wann.erase(wann.rfind(':'));
    }
    return wann;
}

}  // namespace

/// What the record says of the lanes, with all that follows from it in their rows.
void form1::spuren_zeigen() {
    letztes_mal_vergessen();
    for (const int nummer : alle_spuren) {
        const std::size_t i = feld_index(nummer);
        const renneinrichtung::spur& s = um_.einrichtung.bahn[nummer];
        fahrer[i].text(s.fahrer);
        auto_[i].text(s.fahrzeug);
        if (spur[i].gesetzt() != s.dabei) {
            spur[i].gesetzt(s.dabei);
            spur_geaendert(i);
        }
    }
    bilder_anzeigen();
    beste_zeiten_anzeigen();
}

void form1::spuren_tauschen(int eine, int andere) {
    if (eine != andere && spur_frei(eine) && spur_frei(andere)) {
        tarvel::spuren_tauschen(gelesen(), eine, andere);
        spuren_zeigen();
    }
}

int form1::spur_schieben(int nummer, int richtung) {
    for (int ziel = nummer + richtung; ziel >= 1 && ziel <= spuren_max; ziel += richtung) {
        if (spur_frei(ziel)) {
            spuren_tauschen(nummer, ziel);
            return ziel;
        }
    }
    return 0;
}

void form1::fahrer_auf_spur(const std::string& name, int nummer) {
    if (!name.empty() && spur_frei(nummer)) {
        fahrer_setzen(gelesen(), nummer, name);
        spuren_zeigen();
    }
}

/// One that takes part and has nobody, else one that does not take part.
int form1::wartende_spur() const {
    for (const bool dabei : {true, false}) {
        for (const int nummer : alle_spuren) {
            const std::size_t i = feld_index(nummer);
            const std::string& wer = fahrer[i].text();
            const bool niemand = wer.empty() || wer == um_.txt.kein_fahrer || um_.txt.ist_freier_platz(wer);
            if (spur_frei(nummer) && spur[i].gesetzt() == dabei && (niemand || !dabei)) {
                return nummer;
            }
        }
    }
    return 0;
}

void form1::gewaehlten_auf_spur(int nummer) {
    const int zeile = fahrerreihe.markiert();
    const int ziel = nummer == 0 ? wartende_spur() : nummer;
    if (zeile >= 0 && ziel >= 1 && ziel <= spuren_max) {
        fahrer_auf_spur(fahrerreihe.zeilen().at(static_cast<std::size_t>(zeile)), ziel);
    }
}

void form1::reihe_zeigen() {
    const auto namen = um_.zuletzt_gefahren.mit_liste(um_.fahrerliste);
    if (namen == fahrerreihe.zeilen()) {
        return;
    }
    fahrerreihe.leeren();
    for (const std::string& name : namen) {
        fahrerreihe.hinzufuegen(name);
    }
    fahrerreihe.markieren(0);
}

std::string form1::in_worten(const letztes& eines) const {
    constexpr std::string_view dazwischen = "  ·  ";
    constexpr std::size_t zeichen_max = 80;  // more of them are wider than a small screen
    std::string text = eines.text;
    if (const auto angabe = ergebnisangabe::aus_zeile(eines.text)) {
        using art = ergebnisangabe::art;
        const bool tag = angabe->was == art::tagesrennen;
        text = ohne_sekunden(angabe->wann).append(dazwischen);
        text += tag                              ? command17.text()
                : angabe->was == art::wettkampf  ? Command3.text()
                : angabe->was == art::zeitrennen ? wort_zeitrennen_
                                                 : wort_rundenrennen_;
        text += angabe->name.empty() ? std::string() : " " + angabe->name;
        for (std::size_t i = 0; i < angabe->fahrer.size(); ++i) {
            const bool sieger = i == 0 && angabe->runden > 0;
            if (i > 0 && laenge(text) + laenge(angabe->fahrer[i]) > zeichen_max) {
                text += "  …";
                break;
            }
            const bool weitere = i == ergebnisangabe::genannte_max;  // have no place there
            text.append(i == 0 ? dazwischen : "  ");
            text += sieger ? (tag ? wort_fuehrung_ : wort_sieger_) + " " : weitere ? "" : std::to_string(i + 1) + ". ";
            text += angabe->fahrer[i];
            if (sieger) {
                text +=
                    ", " + std::to_string(angabe->runden) + " " + (angabe->runden == 1 ? wort_runde_ : wort_runden_);
            }
        }
    }
    text += eines.automatisch ? std::string(dazwischen) + wort_automatisch_ : std::string();
    return eines.da ? text : text + " – " + wort_nicht_mehr_da_;
}

std::vector<form1::letztes> form1::letzte_zeilen() const {
    std::vector<letztes> alle = letzte_nennen ? letzte_nennen() : std::vector<letztes>{};
    for (letztes& eines : alle) {
        eines.text = in_worten(eines);
    }
    if (alle.empty()) {
        alle.push_back({wort_kein_ergebnis_, false});
    }
    return alle;
}

void form1::bilder_neu_laden() {
    bilder_anzeigen();
    for (std::size_t i = 0; i < fahrerbild.size(); ++i) {
        fahrerbild.at(i).neu_laden();
        autobild.at(i).neu_laden();
    }
}

}  // namespace tarvel
