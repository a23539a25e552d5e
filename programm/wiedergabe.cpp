#include "programm/wiedergabe.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

#include "core/platzhalter.h"
#include "core/text.h"
#include "core/texte.h"

namespace tarvel {
namespace {

constexpr std::uintmax_t bytes_max = std::uintmax_t{64} * 1024 * 1024;
constexpr dauer_ms takt{10};
constexpr zeit_ms schritt_max = 250;  // what a busy machine has missed is not made up for
constexpr int taten_je_takt = 4000;   // of a jump, so that the window stays alive
constexpr zeit_ms vorlauf_ms = 2000;  // whoever wants to see a moment wants to see it come
constexpr zeit_ms sprungwort_ms = 3000;

std::string zeit_text(zeit_ms zeit) {
    const zeit_teile t = zeit_zerlegen(std::max<zeit_ms>(zeit, 0));
    return std::to_string(t.stunden) + ":" + ziffern(t.minuten, 2) + ":" + ziffern(t.sekunden, 2);
}

std::optional<std::string> lesen(const std::filesystem::path& datei) {
    if (datei.empty() || !ist_lesbar(datei, bytes_max)) {
        return std::nullopt;
    }
    std::ifstream strom(datei, std::ios::binary);
    return std::string{std::istreambuf_iterator<char>(strom), {}};
}

}  // namespace

void zeitleiste::strecke(zeit_ms anfang, zeit_ms ende, marken_liste marken) {
    anfang_ = anfang;
    ende_ = ende;
    marken_ = std::move(marken);
    ++auflage_;
    melden();
}

void zeitleiste::greifen(zeit_ms stelle) {
    if (bedienbar() && bei_griff) {
        bei_griff(stelle);
    }
}

wiedergabe::wiedergabe(umfeld u)
    : fensterlogik(u.um.fenster, u.um.ablage, fenstername::wiedergabe),
      um_(u.um),
      u_(std::move(u)),
      takt_(u_.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, takt)) {
    takt_->bei_tick = [this] { tick(); };
    Command_spielen.bei_klick = [this] { spielen_klick(); };
    Command_vorige.bei_klick = [this] { zur_marke(false); };
    Command_naechste.bei_klick = [this] { zur_marke(true); };
    Command_schliessen.bei_klick = [this] { schliessen(); };
    leiste.bei_griff = [this](zeit_ms stelle) { springen(stelle); };
    tempo.front().gesetzt(true);
    for (std::size_t i = 0; i < tempo.size(); ++i) {
        haken& wahl = tempo.at(i);
        wahl.text(std::to_string(tempi.at(i)) + "×");
        wahl.bei_aenderung = [this, &wahl] {
            for (haken& andere : tempo) {
                andere.gesetzt(&andere == &wahl);
            }
        };
    }
}

wiedergabe::~wiedergabe() = default;

sprachliste wiedergabe::sprache() {
    sprachliste texte("language\\language_wg.txt");
    texte.text("Wiedergabe", titel);
    texte.text("Abspielen", wort_.spielen).text("Anhalten", wort_.anhalten);
    texte.text("Zurück", Command_vorige).tipp("Zum Ereignis davor", Command_vorige);
    texte.text("Vor", Command_naechste).tipp("Zum nächsten Ereignis", Command_naechste);
    texte.text("Schließen", Command_schliessen).ansage("Stelle im Rennen", leiste);
    texte.text("Solange ein Rennen läuft oder vorbereitet wird, gibt es keine Wiedergabe.", wort_.rennen_laeuft);
    texte.text("Das Protokoll kann nicht gelesen werden.", wort_.unlesbar);
    texte.text("Das ist kein Rennprotokoll, oder eine andere Version von Tarvel hat es geschrieben.", wort_.fremd);
    texte.text("Das Protokoll ist beschädigt: Das Rennen läuft bis dahin, wo es noch gut ist.", wort_.beschaedigt);
    texte.text("Hier läuft das Rennen anders, als es im Protokoll steht.", wort_.abgewichen);
    texte.text("Springe …", wort_.springt).text("mit Ampel und Pausen", wort_.ganze_laenge);
    return texte.text("Stillstand von %1 übersprungen", wort_.uebersprungen);
}

void wiedergabe::zeigen(const std::string& protokoll, std::optional<zeit_ms> ab) {
    texte_lesen();
    if (!darf()) {
        um_.meldungen.zeigen(wort_.rennen_laeuft, um_.txt.titel[0]);
        return;
    }
    schliessen();
    std::optional<std::string> inhalt = lesen(um_.ablage.pfad(protokoll));
    if (!inhalt) {
        um_.meldungen.zeigen(wort_.unlesbar, um_.txt.titel[1]);
        return;
    }
    auto neuer = std::make_unique<rennspieler>(u_.programmordner, std::move(*inhalt), ausstatten);
    if (neuer->wie() == rennspieler::gueltigkeit::fremd) {
        um_.meldungen.zeigen(wort_.fremd, um_.txt.titel[1]);
        return;
    }
    spieler_ = std::move(neuer);
    const bool beschaedigt = spieler_->wie() == rennspieler::gueltigkeit::beschaedigt;
    hinweis.text(beschaedigt ? wort_.beschaedigt : "");
    leiste.farben = spieler_->rennen().umgebung.einst.farben_spur;
    leiste.strecke(spieler_->anfang(), spieler_->ende(), spieler_->marken());
    um_.fenster.zeigen(fenstername::wiedergabe, anzeige_art::modal);
    neu_zeichnen();
    takt_->an();
    if (ab) {
        springen(*ab - vorlauf_ms);
    }
    stand_zeigen();
}

void wiedergabe::laden() {
    texte_lesen();
    spielen(false);
}

void wiedergabe::entladen() {
    takt_->aus();
    spielt_ = false;
    ziel_.reset();
    neues_spiel_ = false;
    uebersprungen_ = {};
    if (zeichnen) {
        zeichnen(nullptr);
    }
    spieler_.reset();
}

void wiedergabe::schliessen() {
    um_.fenster.entladen(fenstername::wiedergabe);
}

void wiedergabe::spielen_klick() {
    if (spieler_ == nullptr) {
        return;
    }
    if (!spielt_ && spieler_->stelle() >= spieler_->ende()) {
        springen(spieler_->anfang());
    }
    spielen(!spielt_);
}

void wiedergabe::zur_marke(bool vor) {
    if (spieler_ != nullptr) {
        const zeit_ms hier = ziel_.value_or(spieler_->stelle());
        springen(vor ? spieler_->naechste_marke(hier) : spieler_->vorige_marke(hier));
    }
}

void wiedergabe::spielen(bool an) {
    spielt_ = an;
    zuletzt_ = u_.uhr.jetzt();
    Command_spielen.text(an ? wort_.anhalten : wort_.spielen);
}

int wiedergabe::schnelle() const {
    const auto wahl = std::find_if(tempo.begin(), tempo.end(), [](const haken& h) { return h.gesetzt(); });
    return wahl == tempo.end() ? tempi.front() : tempi.at(static_cast<std::size_t>(wahl - tempo.begin()));
}

void wiedergabe::springen(zeit_ms ziel) {
    if (spieler_ == nullptr) {
        return;
    }
    uebersprungen_ = {};
    ziel_ = std::clamp(ziel, spieler_->anfang(), spieler_->ende());
    leiste.stelle(*ziel_);
}

void wiedergabe::tick() {
    if (spieler_ == nullptr) {
        return;
    }
    const zeit_ms jetzt = u_.uhr.jetzt();
    const zeit_ms vergangen = std::clamp<zeit_ms>(jetzt - std::exchange(zuletzt_, jetzt), 0, schritt_max);
    if (ziel_) {
        weiter_springen();
    } else if (spielt_) {
        weiterspielen(vergangen);
    }
    stand_zeigen();
}

void wiedergabe::weiterspielen(zeit_ms vergangen) {
    const zeit_ms ziel = spieler_->stelle() + vergangen * schnelle();
    const zeit_ms dahinter = spieler_->nach_stillstand(ziel);
    if (dahinter != ziel && dahinter != uebersprungen_.bis) {  // the way there may take several ticks
        uebersprungen_ = {dahinter, dahinter - ziel, zuletzt_ + sprungwort_ms};
    }
    if (spieler_->vor(dahinter, taten_je_takt) && spieler_->stelle() >= spieler_->ende()) {
        spielen(false);
    }
}

void wiedergabe::weiter_springen() {
    if (*ziel_ < spieler_->stelle()) {
        spieler_->von_vorn();
        neues_spiel_ = true;
    }
    if (spieler_->vor(*ziel_, taten_je_takt)) {
        ziel_.reset();
        zuletzt_ = u_.uhr.jetzt();
        if (neues_spiel_) {
            neu_zeichnen();
        }
    }
}

void wiedergabe::neu_zeichnen() {
    neues_spiel_ = false;
    if (zeichnen) {
        zeichnen(&spieler_->im_programm());
    }
    spieler_->alten_vergessen();
}

void wiedergabe::stand_zeigen() {
    const zeit_ms anfang = spieler_->anfang();
    if (ziel_) {
        Label_zeit.text(wort_.springt);
    } else if (zuletzt_ < uebersprungen_.zeigen_bis) {
        Label_zeit.text(eingesetzt(wort_.uebersprungen, {zeit_text(uebersprungen_.dauer)}));
    } else {
        Label_zeit.text(zeit_text(spieler_->stelle() - anfang) + " / " + zeit_text(spieler_->ende() - anfang) + " " +
                        wort_.ganze_laenge);
    }
    leiste.stelle(ziel_.value_or(spieler_->stelle()));
    if (spieler_->abgewichen()) {
        hinweis.text(wort_.abgewichen);
    }
    hinweis.sichtbar(!hinweis.text().empty());
}

}  // namespace tarvel
