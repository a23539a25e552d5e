#include "competition/rangliste.h"

#include <utility>

#include "competition/rangfolge.h"
#include "core/text.h"

namespace tarvel {

rangliste::rangliste(const fenster_umgebung& um, const einstellungen& einst, wettkampfabend& abend)
    : fensterlogik(um.fenster, um.ablage, fenstername::rangliste), um_(um), einst_(einst), abend_(abend) {
    abend_.ansicht_anmelden(*this);
    cbo_sortierung.bei_aenderung = [this] { ordnung_gewaehlt(); };
    Command1.bei_klick = [this] { schliessen(); };
}

sprachliste rangliste::sprache_rl() {
    sprachliste texte("language\\language_rl.txt");
    texte.text("Rangliste", titel).text("sortieren nach", Label1);
    texte.text("Metern", wort_.ordnung[0]).text("Runden", wort_.ordnung[1]).text("schnellster Runde", wort_.ordnung[2]);
    texte.text("Fenster schliessen", Command1);
    texte.text("Nr.", wort_.nummer).text("Name", wort_.name).text("Rd.", wort_.runden).text("Meter", wort_.meter);
    texte.text("Gesamtzeit", wort_.zeit).text("beste Runde", wort_.beste);
    texte.text("nach", wort_.nach).text("von", wort_.von).text("Rennen", wort_.rennen);
    texte.text("Es läuft kein Wettkampf.", wort_.kein_wettkampf);
    return texte.tipp("Danach richten sich die Plätze, auch in Auswertung und Qualifying", cbo_sortierung);
}

void rangliste::laden() {
    texte_lesen();
    cbo_sortierung.eintraege({wort_.ordnung.begin(), wort_.ordnung.end()});
    cbo_sortierung.ansage(Label1.text());
    const auto wertung = static_cast<int>(abend_.stand().wertung);
    if (abend_.wettkampf_aktiv() && (wertung < 0 || wertung > 3)) {
        abend_.aendern([](wettkampf& w) {
            w.wertung = sortier_modus::runden;
            return true;
        });
    }
    stand_zeigen();
    List_name.fokus_setzen();
}

void rangliste::stand_zeigen() {
    const wettkampf& w = abend_.stand();
    if (!abend_.wettkampf_aktiv()) {
        Label_stand.text(wort_.kein_wettkampf);
        List_name.leeren();
        return;
    }
    const abendblick blick = abend_.blick();
    Label_stand.text(w.wettkampf_name + " – " + wort_.nach + " " + std::to_string(blick.rennen_gesamt - blick.noch) +
                     " " + wort_.von + " " + std::to_string(blick.rennen_gesamt) + " " + wort_.rennen);
    // what is no way of judging goes by laps
    const bool gueltig = w.wertung >= sortier_modus::meter && w.wertung <= sortier_modus::beste;
    cbo_sortierung.platz(static_cast<int>(gueltig ? w.wertung : sortier_modus::runden) - 1);
    spalten = rangspalten(w);
    Label_kopf.text(kopfzeile());
    List_name.ansage(Label_kopf.text());
    List_name.zeilen(rangschreiben(w, w.wertung, einst_.trennzeichen),
                     rangschreiben(w, w.wertung, einst_.trennzeichen, spalten.breite));
}

void rangliste::ordnung_gewaehlt() {
    const auto neu = static_cast<sortier_modus>(cbo_sortierung.platz() + 1);
    abend_.aendern([neu](wettkampf& w) { return std::exchange(w.wertung, neu) != neu; });
}

std::string rangliste::kopfzeile() const {
    std::string kopf;
    const auto spalte = [&kopf](const std::string& wort, std::size_t breite) {
        kopf += aufgefuellt(links(wort, breite - 1), breite);
    };
    spalte(wort_.nummer, 4);
    spalte(wort_.name, spalten.breite + 3);
    spalte(wort_.runden, 6);
    spalte(wort_.meter, 9);
    return kopf + (abend_.stand().wertung == sortier_modus::beste ? wort_.beste : wort_.zeit);
}

}  // namespace tarvel
