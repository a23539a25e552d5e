#include "competition/w_auswertung.h"

#include <algorithm>

#include "competition/rangfolge.h"
#include "core/weitergeben.h"
#include "results/ergebnisdatei.h"
#include "results/papiername.h"

namespace tarvel {

w_auswertung::w_auswertung(const fenster_umgebung& um, const einstellungen& einst, wettkampfabend& abend,
                           urkundenfenster& urkunden)
    : fensterlogik(um.fenster, um.ablage, fenstername::w_auswertung),
      um_(um),
      einst_(einst),
      abend_(abend),
      urkunden_(urkunden) {
    abend_.ansicht_anmelden(*this);
    befehle_verbinden();
}

void w_auswertung::befehle_verbinden() {
    Command1.bei_klick = [this] { blaettern(-1); };
    Command2.bei_klick = [this] { blaettern(1); };
    Command_schliessen.bei_klick = [this] { schliessen(); };
    weitergeben(Command_drucken, drucken);
    weitergeben(Command_pdf, als_pdf);
    Command_urkunden.bei_klick = [this] { urkunden_zeigen(); };
    for (liste* einer : listen()) {
        einer->bei_auswahl = [this, einer] { auswaehlen(einer->markiert()); };
    }
}

sprachliste w_auswertung::sprache_w3() {
    sprachliste texte("language\\language_w3.txt");
    texte.text("Nr.", Label1).text("Name", Label2);
    texte.text("Runden gesamt, Einzelrunden, Bestzeit, Gesamtzeit", Label3);
    texte.text("Auswertung", wort_.titel).text("Es läuft kein Wettkampf.", wort_.kein_wettkampf);
    texte.text("zurückblättern", Command1).text("weiterblättern", Command2);
    texte.text("Drucken", Command_drucken).text("Als PDF speichern", Command_pdf);
    texte.text("Fenster schliessen", Command_schliessen);
    texte.tipp("Alle Spalten um so viele Fahrer zurück, wie zu sehen sind", Command1);
    texte.tipp("Alle Spalten um so viele Fahrer weiter, wie zu sehen sind", Command2);
    texte.tipp("Rangliste, Einzelergebnisse und Rennplan zum Aushängen", Command_drucken);
    texte.text("Runden je Spur", Label_balken);
    texte.text("Die PDF-Datei konnte nicht geschrieben werden.", wort_.pdf_fehler);
    texte.text("Der Drucker nimmt die Seite nicht an.", wort_.druckfehler);
    blattwort_.eintragen(texte);
    texte.text("Urkunden", Command_urkunden);
    return texte.tipp("Eine Urkunde für jeden Fahrer nach der Rangliste", Command_urkunden);
}

std::vector<liste*> w_auswertung::listen() {
    std::vector<liste*> alle{&List_platz, &List_name, &List_gesamt};
    for (liste& einer : List_je) {
        alle.push_back(&einer);
    }
    alle.insert(alle.end(), {&List_zeit, &List_balken});
    return alle;
}

void w_auswertung::laden() {
    texte_lesen();
    blattwort_.nummer = Label1.text();
    blattwort_.name = Label2.text();
    Label_gesamt.text(blattwort_.gesamt);
    Label_zeit.text(blattwort_.gesamtzeit);
    for (const auto& [spalte, kopf] : {std::pair{&List_platz, &Label1},
                                       {&List_name, &Label2},
                                       {&List_gesamt, &Label_gesamt},
                                       {&List_zeit, &Label_zeit},
                                       {&List_balken, &Label_balken}}) {
        spalte->ansage(kopf->text());
    }
    gewaehlter_ = 0;
    stand_zeigen();
    List_name.fokus_setzen();
}

void w_auswertung::stand_zeigen() {
    const wettkampf& w = abend_.stand();
    const bool aktiv = abend_.wettkampf_aktiv();
    titel.text(aktiv ? wort_.titel + ": " + w.wettkampf_name : wort_.titel);
    Label_stand.text(aktiv ? w.wettkampf_name + "  –  " + blattwort_.stand_von(w) : wort_.kein_wettkampf);
    Command_drucken.aktiviert(aktiv);
    Command_pdf.aktiviert(aktiv);
    Command_urkunden.aktiviert(aktiv);
    fahrer_ = aktiv ? fahrer_in_rangfolge(w, w.wertung) : std::vector<int>{};
    zeilen_zeigen();
    balken_zeigen();
    const auto gewaehlt = std::find(fahrer_.begin(), fahrer_.end(), gewaehlter_);
    if (gewaehlt != fahrer_.end()) {
        auswaehlen(static_cast<int>(gewaehlt - fahrer_.begin()));
    }
    blaettern_zeigen();
}

void w_auswertung::koepfe_zeigen(std::size_t spalten) {
    const wettkampf& w = abend_.stand();
    const bool heats = je_heat();
    for (std::size_t i = 0; i < je_max; ++i) {
        const int nummer = static_cast<int>(i) + 1;
        const bool da = i < spalten && (heats || w.spur_aktiv[nummer]);
        Label_je[i].sichtbar(da);
        List_je[i].sichtbar(da);
        Label_je[i].text((heats ? blattwort_.heat : blattwort_.spur) + " " + std::to_string(nummer));
        Label_je[i].hintergrund(heats || !da ? std::nullopt : std::optional(einst_.farben_spur[nummer]));
        List_je[i].ansage(Label_je[i].text());
    }
}

void w_auswertung::zeilen_zeigen() {
    const wettkampf& w = abend_.stand();
    const auto zeilen =
        fahrer_.empty() ? std::vector<auswertung_zeile>{} : w_auswertung_schreiben(w, w.wertung, einst_.trennzeichen);
    const std::size_t spalten = zeilen.empty() ? 0 : std::min(zeilen.front().je.size(), je_max);
    koepfe_zeigen(spalten);
    const auto spalte = [&zeilen](const auto& text) {
        std::vector<std::string> texte(zeilen.size());
        std::transform(zeilen.begin(), zeilen.end(), texte.begin(), text);
        return texte;
    };
    using z = auswertung_zeile;
    List_platz.zeilen(spalte([](const z& zeile) { return zeile.platz; }));
    List_name.zeilen(spalte([](const z& zeile) { return zeile.name; }),
                     spalte([](const z& zeile) { return zeile.ganzer_name; }));
    List_gesamt.zeilen(spalte([](const z& zeile) { return zeile.runden + "\n" + zeile.meter + " m"; }));
    for (std::size_t i = 0; i < spalten; ++i) {
        List_je[i].zeilen(spalte([i](const z& zeile) { return zeile.je[i].runden + "\n" + zeile.je[i].beste; }));
    }
    List_zeit.zeilen(spalte([](const z& zeile) { return zeile.gesamtzeit; }));
}

void w_auswertung::balken_zeigen() {
    const wettkampf& w = abend_.stand();
    balken_ = fahrer_.empty() ? std::vector<wettkampf_balken>{} : tarvel::balken(w, w.wertung);
    std::vector<std::string> zeilen;
    for (const wettkampf_balken& einer : balken_) {
        std::string ansage;
        for (const int spur : alle_spuren) {
            if (w.spur_aktiv[spur]) {
                ansage +=
                    blattwort_.spur + " " + std::to_string(spur) + ": " + std::to_string(einer.runden[spur]) + ", ";
            }
        }
        zeilen.push_back(ansage + blattwort_.gesamt + ": " + std::to_string(einer.gesamt));
    }
    List_balken.zeilen(zeilen);
}

void w_auswertung::auswaehlen(int zeile) {
    gewaehlter_ = fahrer_.at(static_cast<std::size_t>(zeile));
    for (liste* einer : listen()) {
        if (!einer->zeilen().empty()) {
            einer->markieren(zeile);
        }
    }
}

void w_auswertung::gerollt(int erste_zeile, int sichtbare) {
    erste_zeile_ = erste_zeile;
    sichtbare_ = std::max(sichtbare, 1);
    blaettern_zeigen();
}

void w_auswertung::blaettern(int seiten) {
    const int letzte = std::max(static_cast<int>(fahrer_.size()) - sichtbare_, 0);
    erste_zeile_ = std::clamp(erste_zeile_ + seiten * sichtbare_, 0, letzte);
    if (rollen) {
        rollen(erste_zeile_);
    }
    blaettern_zeigen();
}

void w_auswertung::blaettern_zeigen() {
    Command1.aktiviert(erste_zeile_ > 0);
    Command2.aktiviert(erste_zeile_ + sichtbare_ < static_cast<int>(fahrer_.size()));
}

wettkampfblatt w_auswertung::blatt() const {
    return wettkampfblatt_bilden(abend_.stand(), blattwort_, einst_.farben_spur, einst_.trennzeichen);
}

void w_auswertung::urkunden_zeigen() {
    const wettkampf& w = abend_.stand();
    const auto staende = w.staende();
    std::vector<tabellenplatz> plaetze;
    for (const int platz : fahrer_in_rangfolge(w, w.wertung)) {
        const fahrt& alles = staende.at(static_cast<std::size_t>(platz - 1)).auf.front();
        plaetze.push_back({static_cast<int>(plaetze.size()) + 1,
                           w.name(platz),
                           {},
                           alles.runden,
                           als_meter(alles.meter),
                           alles.beste,
                           alles.zeit});
    }
    urkunden_.oeffnen(std::move(plaetze), w.beginn, w.wettkampf_name);
}

std::string w_auswertung::blatt_datei() const {
    const wettkampf& w = abend_.stand();
    return papiername(ergebnis_ordner::wettkampf, {w.beginn, {}},
                      w.wettkampf_name.empty() ? wort_.titel : wort_.titel + " " + w.wettkampf_name);
}

}  // namespace tarvel
