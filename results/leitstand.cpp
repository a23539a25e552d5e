#include "results/leitstand.h"

namespace tarvel {
namespace {

constexpr std::size_t zeilen_max = 60;
constexpr int blick_ms = 200;

}  // namespace

leitstand::leitstand(const umfeld& um)
    : fensterlogik(um.fenster, um.ablage, fenstername::leitstand),
      um_(um),
      takt_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, dauer_ms(blick_ms))),
      mithoerer_(um.r) {
    takt_->bei_tick = [this] {
        if (mithoerer_.nachlesen()) {
            zeigen();
        }
    };
    Check_runden.bei_aenderung = [this] { zeigen(); };
}

void leitstand::laden() {
    texte_lesen();
    worte_ = um_.protokoll.in_worten();
    spur_ = um_.r.bahn1.wort.spur;
    List_verlauf.ansage(Label_verlauf.text());
    mithoerer_.beginnen();
    zeigen();
    takt_->an();
}

void leitstand::entladen() {
    takt_->aus();
    mithoerer_.aufhoeren();
    List_verlauf.leeren();
}

bool leitstand::gehoert_dazu(const geschehen& g) const {
    using f = protokollfenster;
    switch (f::gruppe_von(g.was)) {
        case f::runden:
            return g.was != vorgang::runde || Check_runden.gesetzt();
        case f::plaetze:
        case f::befehle:
            return false;
        case f::geraete:
            return g.was == vorgang::verloren;
        default:
            return true;
    }
}

std::string leitstand::in_worten(const geschehen& g) const {
    std::string wer;
    if (g.spur != 0) {
        wer = spur_ + " " + std::to_string(g.spur) + " " + mithoerer_.hergang()->fahrername(g) + ":  ";
    }
    return hergang_zeit(g.seit_gruen, 3, worte_.komma) + "   " + wer + worte_.von(g);
}

void leitstand::zeigen() {
    const hergangsmitleser* hergang = mithoerer_.hergang();
    List_verlauf.leeren();
    std::size_t zeilen = 0;
    for (std::size_t i = hergang == nullptr ? 0 : hergang->anzahl(); i-- > 0 && zeilen < zeilen_max;) {
        const geschehen g = hergang->an(i);
        if (gehoert_dazu(g)) {
            List_verlauf.hinzufuegen(in_worten(g));
            ++zeilen;
        }
    }
}

sprachliste leitstand::sprache_ls() {
    sprachliste texte("language\\language_ls.txt", sprachliste::form::zeilen);
    texte.text("Rennleitung", titel).text("Was geschah, das Neueste zuerst (Zeit ab Grün, mit Pausen)", Label_verlauf);
    return texte.text("auch jede Runde", Check_runden);
}

}  // namespace tarvel
