#include "results/beste_zeiten_fenster.h"

#include <algorithm>
#include <utility>

#include "core/namensliste.h"
#include "core/text.h"
#include "core/zeit.h"

namespace tarvel {
namespace {

constexpr std::string_view keine_runde = "---";
constexpr std::string_view leere_zeit = "00:00:000";
constexpr int zeit_laenge = 9;
constexpr farbe gruen = 0x3CA01E;
constexpr dauer_s anzeigedauer{2};    // long enough to see what is saved
constexpr dauer_s ohne_bediener{15};  // and for somebody to come to it

/// The number that stands at these characters, the first at 0; -1 if something else stands there.
int zahl_an(std::string_view text, std::size_t ab, std::size_t anzahl) {
    const std::string_view stelle = links(text, ab + anzahl).substr(links(text, ab).size());
    const bool ziffern = stelle.size() == anzahl && stelle.find_first_not_of("0123456789") == std::string_view::npos;
    return ziffern ? static_cast<int>(ganzzahl_lesen(stelle, 0, 999)) : -1;
}

/// The best lap, and behind it all others as they were driven.
std::vector<std::string> rundenzeiten(const spur_angebot& angebot, const trennzeichen_tabelle& trennzeichen) {
    std::vector<zeit_ms> runden = angebot.runden;
    const auto beste = std::find(runden.begin(), runden.end(), angebot.beste);
    if (beste != runden.end()) {
        std::rotate(runden.begin(), beste, beste + 1);
    } else {
        runden.insert(runden.begin(), angebot.beste);
    }
    std::vector<std::string> zeiten;
    for (const zeit_ms runde : runden) {
        if (runde > 0) {
            zeiten.push_back(zeit_formatieren(runde, true, trennzeichen));
        }
    }
    return zeiten.empty() ? std::vector<std::string>{std::string(keine_runde)} : zeiten;
}

}  // namespace

spuren<spur_angebot> bestzeit_angebote(const rennergebnis& ergebnis) {
    spuren<spur_angebot> angebote;
    for (const rennergebnis::spur& s : ergebnis.spuren) {
        spur_angebot& angebot = angebote[s.nummer];
        const int davor = s.vor_fortsetzung.value_or(0);
        angebot.aktiv = true;
        angebot.fahrer = s.fahrer;
        angebot.fahrzeug = s.fahrzeug;
        angebot.beste = davor == 0 ? s.beste : 0;
        for (auto runde = static_cast<std::size_t>(davor) + 1; runde < s.runden.size(); ++runde) {
            const zeit_ms zeit = s.runden[runde].zeit;
            if (!s.gemessen(runde)) {
                continue;
            }
            angebot.runden.push_back(zeit);
            if (davor > 0 && zeit > 0 && (angebot.beste == 0 || zeit < angebot.beste)) {
                angebot.beste = zeit;
            }
        }
    }
    return angebote;
}

beste_zeiten_fenster::beste_zeiten_fenster(umgebung um, plattform::zeitgeber_dienst& zeitgeber)
    : fensterlogik(um.fenster, um.ablage, fenstername::beste_zeiten_fenster),
      um_(um),
      timer1_(zeitgeber.erzeugen(plattform::zeitgeber_art::zaehlend, 1s)) {
    timer1_->bei_tick = [this] { timer1_tick(); };
    for (std::size_t i = 0; i < spur_chk.size(); ++i) {
        btext_name.at(i).laenge_max(namensliste::name_laenge_max);
        btext_kfz.at(i).laenge_max(namensliste::name_laenge_max);
        beste_combo.at(i).frei(true);
        beste_combo.at(i).laenge_max(zeit_laenge);
        spur_chk.at(i).bei_aenderung = [this] { eintrag_geaendert(); };
        for (eingabe_element* eingabe :
             {static_cast<eingabe_element*>(&btext_name.at(i)), static_cast<eingabe_element*>(&btext_kfz.at(i)),
              static_cast<eingabe_element*>(&beste_combo.at(i))}) {
            eingabe->bei_aenderung = [this] { eintrag_geaendert(); };
        }
    }
    Command1.bei_klick = [this] { speichern(true); };
    Command2.bei_klick = [this] { schliessen(); };
    Command3.bei_klick = [this] {
        eingangswerte_zeigen();
        eintrag_geaendert();
    };
}

sprachliste beste_zeiten_fenster::sprache_best() {
    sprachliste texte("language\\language_best.txt");
    texte.ueberschrift("Bestzeiten").text("Neue Bestzeiten", titel);
    texte.text("Korrekturen bitte direkt eintragen oder auswählen. Bei grün wird der Wert gespeichert.", Label1);
    texte.text("Spur", wort_spur_).text("Fahrer", Label_kopf[0]).text("Fahrzeug", Label_kopf[1]);
    texte.text("Rundenzeit", Label_kopf[2]).text("Bisher", Label_kopf[3]);
    texte.text("speichern", wort_speichern_).text("Abbrechen", Command2);
    texte.text("Eingangswerte", Command3);
    return texte.text("Grün heißt: der Kreis mit dem Haken, ganz rechts. Der Rahmen hat die Farbe der Spur.",
                      Label_gruen);
}

void beste_zeiten_fenster::laden() {
    texte_lesen();
    Command1.text(wort_speichern_);
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        spur_chk[i].text(wort_spur_ + " " + std::to_string(spur));
        const auto ansagen = [&](steuerelement& element, const bezeichnung& was) {
            element.ansage(spur_chk[i].text() + ": " + was.text());
        };
        ansagen(btext_name[i], Label_kopf[0]);
        ansagen(btext_kfz[i], Label_kopf[1]);
        ansagen(beste_combo[i], Label_kopf[2]);
        ansagen(beste_alt[i], Label_kopf[3]);
    }
}

void beste_zeiten_fenster::entladen() {
    timer1_->aus();
    danach_ = nullptr;
}

void beste_zeiten_fenster::oeffnen(const spuren<spur_angebot>& angebote, std::function<void()> danach,
                                   bool von_selbst) {
    if (um_.einst.beste_modus == bestzeit_speicherung::aus) {
        if (danach) {
            danach();
        }
        return;
    }
    um_.fenster.laden(kennung());
    angebote_ = angebote;
    danach_ = std::move(danach);
    von_selbst_ = von_selbst;
    eingangswerte_zeigen();
    anzeigen();
    um_.fenster.zeigen(kennung(), anzeige_art::modal);
    Command1.fokus_setzen();
    if (automatisch() || von_selbst_) {
        warten();
    }
}

void beste_zeiten_fenster::warten() {
    timer1_->aus();
    rest_ = automatisch() ? anzeigedauer : ohne_bediener;
    timer1_->an();
    wartezeit_zeigen();
}

void beste_zeiten_fenster::wartezeit_zeigen() {
    if (!automatisch()) {
        Command1.text(wort_speichern_ + "  " + std::to_string(rest_.count()));
    }
}

void beste_zeiten_fenster::timer1_tick() {
    rest_ -= 1s;
    wartezeit_zeigen();
    if (rest_ > 0s) {
        return;
    }
    speichern(!von_selbst_);  // whoever was not there can take one out later, but drive none again
}

void beste_zeiten_fenster::schliessen() {
    const std::function<void()> danach = std::exchange(danach_, nullptr);  // it may open this window again
    um_.fenster.entladen(kennung());
    if (danach) {
        danach();
    }
}

void beste_zeiten_fenster::eingangswerte_zeigen() {
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        const spur_angebot& angebot = angebote_[spur];
        Frame[i].sichtbar(angebot.aktiv);
        Frame[i].schriftfarbe(um_.einst.farben_spur[spur]);
        spur_chk[i].gesetzt(angebot.aktiv);
        btext_name[i].text(links(angebot.fahrer, namensliste::name_laenge_max));
        btext_kfz[i].text(links(angebot.fahrzeug, namensliste::name_laenge_max));
        const std::vector<std::string> zeiten = rundenzeiten(angebot, um_.einst.trennzeichen);
        beste_combo[i].eintraege(zeiten);
        beste_combo[i].text(zeiten.front());
    }
}

void beste_zeiten_fenster::eintrag_geaendert() {
    anzeigen();
    if (timer1_->laeuft()) {  // nobody saves a correction that is half typed, or takes it away
        warten();
    }
}

void beste_zeiten_fenster::anzeigen() {
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        const zeit_ms bisher = um_.bestzeiten.beste(spur);
        beste_alt[i].text(bisher == keine_bestzeit ? std::string(leere_zeit)
                                                   : zeit_formatieren(bisher, true, um_.einst.trennzeichen));
        beste_alt[i].tipp(um_.bestzeiten.eintrag(1, spur).name);
        Shape1[i].hintergrund(wird_gespeichert(spur) ? std::optional(gruen) : std::nullopt);
    }
}

/// The time as it is kept. A minute counts as six seconds: the best times of all older files are kept that way, and a
/// lap of a minute or more stands among them with its like.
zeit_ms beste_zeiten_fenster::neue_zeit(int spur) const {
    constexpr zeit_ms minute_ms = 6000;
    const std::string_view text = gekuerzt(beste_combo.at(feld_index(spur)).text());
    const int minuten = zahl_an(text, 0, 2);
    const int sekunden = zahl_an(text, 3, 2);
    const int millisekunden = zahl_an(text, 6, 3);
    if (minuten < 0 || sekunden < 0 || millisekunden < 0) {
        return keine_bestzeit;
    }
    const zeit_ms ms = minute_ms * minuten + zeit_ms{1000} * sekunden + millisekunden;
    return ms == 0 ? keine_bestzeit : ms;
}

bool beste_zeiten_fenster::wird_gespeichert(int spur) const {
    return angebote_[spur].aktiv && spur_chk.at(feld_index(spur)).gesetzt() &&
           neue_zeit(spur) < um_.bestzeiten.beste(spur);
}

void beste_zeiten_fenster::speichern(bool bediener_da) {
    timer1_->aus();
    bestzeiten neu = um_.bestzeiten;
    const std::string heute = datum_text(um_.kalender.jetzt());
    for (const int spur : alle_spuren) {
        if (wird_gespeichert(spur)) {
            const std::size_t i = feld_index(spur);
            neu.einfuegen(spur, {neue_zeit(spur), btext_name[i].text(), btext_kfz[i].text(), heute});
        }
    }
    const bool geschrieben = neu.speichern(um_.ablage, um_.einst.beste_datei);
    if (!geschrieben && bediener_da) {
        um_.meldungen.zeigen(um_.txt.meldung[21], um_.txt.titel[1]);  // all entries stay, for another attempt
        return;
    }
    ungesichert_ = geschrieben ? std::string() : um_.einst.beste_datei;
    um_.bestzeiten = neu;
    um_.folgen.bestzeiten_geaendert();
    schliessen();
}

void beste_zeiten_fenster::nachsichern() {
    const std::string datei = std::exchange(ungesichert_, {});
    if (!datei.empty() && !um_.bestzeiten.speichern(um_.ablage, datei)) {
        um_.meldungen.zeigen(um_.txt.meldung[21], um_.txt.titel[1]);
    }
}

}  // namespace tarvel
