#include "results/leitstand.h"

namespace tarvel {
namespace {

constexpr std::size_t zeilen_max = 60;
constexpr std::size_t vorrat_bytes = std::size_t{256} * 1024;  // of a second, and the race tick allocates nothing
constexpr int blick_ms = 200;

}  // namespace

leitstand::leitstand(const umfeld& um)
    : fensterlogik(um.fenster, um.ablage, fenstername::leitstand),
      um_(um),
      takt_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, dauer_ms(blick_ms))) {
    takt_->bei_tick = [this] { nachlesen(); };
    Check_runden.bei_aenderung = [this] { zeigen(); };
}

leitstand::~leitstand() {
    if (um_.r.fenster.fuehrung != nullptr) {
        um_.r.fenster.fuehrung->mitlesen(nullptr);
    }
}

void leitstand::laden() {
    texte_lesen();
    worte_ = um_.protokoll.in_worten();
    spur_ = um_.r.bahn1.wort.spur;
    List_verlauf.ansage(Label_verlauf.text());
    neu_.reserve(vorrat_bytes);
    von_vorn_lesen();
    if (um_.r.fenster.fuehrung != nullptr) {
        um_.r.fenster.fuehrung->mitlesen(this);
    }
    takt_->an();
}

void leitstand::entladen() {
    takt_->aus();
    if (um_.r.fenster.fuehrung != nullptr) {
        um_.r.fenster.fuehrung->mitlesen(nullptr);
    }
    hergang_.reset();
    List_verlauf.leeren();
}

void leitstand::anhaengen(std::string_view zeile) {
    constexpr std::string_view kopf_zu_ende = "# Anfang";  // of another log: a race begins anew
    zu_viel_ = zu_viel_ || neu_.size() + zeile.size() > neu_.capacity() || zeile.starts_with(kopf_zu_ende);
    if (!zu_viel_) {
        neu_ += zeile;
    }
}

void leitstand::von_vorn_lesen() {
    neu_.clear();
    zu_viel_ = false;
    protokollfuehrung* fuehrung = um_.r.fenster.fuehrung;
    hergang_ = std::make_unique<hergangsmitleser>(fuehrung == nullptr ? std::string() : fuehrung->bisher());
    zeigen();
}

void leitstand::nachlesen() {
    if (zu_viel_) {
        von_vorn_lesen();
        return;
    }
    constexpr std::string_view zeilenende = "\r\n";
    std::string_view rest = neu_;
    for (std::size_t ende = rest.find(zeilenende); ende != std::string_view::npos; ende = rest.find(zeilenende)) {
        hergang_->zeile(rest.substr(0, ende + zeilenende.size()));
        rest.remove_prefix(ende + zeilenende.size());
    }
    neu_.clear();
    if (hergang_->anzahl() != gezeigt_bis_) {
        zeigen();
    }
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
        wer = spur_ + " " + std::to_string(g.spur) + " " + hergang_->fahrername(g) + ":  ";
    }
    return hergang_zeit(g.seit_gruen, 3, worte_.komma) + "   " + wer + worte_.von(g);
}

void leitstand::zeigen() {
    gezeigt_bis_ = hergang_ == nullptr ? 0 : hergang_->anzahl();
    List_verlauf.leeren();
    std::size_t zeilen = 0;
    for (std::size_t i = gezeigt_bis_; i-- > 0 && zeilen < zeilen_max;) {
        const geschehen g = hergang_->an(i);
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
