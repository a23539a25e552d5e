#include "results/rundenspeichern.h"

#include <utility>

#include "results/ergebnisdatei.h"

namespace tarvel {
namespace {

constexpr std::string_view endung = ".csv";
constexpr std::size_t tageszeilen_max = 1000000;  // what was driven before is never cut
constexpr std::size_t tageszeile_bytes_max = 200000;

}  // namespace

rundenspeichern::rundenspeichern(const trennzeichen_tabelle& trennzeichen, const plattform::kalender& kalender,
                                 const fenster_umgebung& um)
    : speichernfenster(um, fenstername::rundenspeichern, "language\\language_s1.txt"),
      trennzeichen_(trennzeichen),
      kalender_(kalender) {}

sprachliste rundenspeichern::sprache() {
    sprachliste texte = speichernfenster::sprache();
    texte.text("Rennergebnis speichern", titel_);
    texte.text("Bitte geben Sie einen gültigen Dateinamen an.", name_fehlt_);
    texte.text("Fehler beim Schreiben der Datei. Rennergebnisse wurden nicht gespeichert.", schreibfehler_);
    texte.text("Rennergebnis", wort_.rennergebnis).text("Tanken aktiv", wort_.tanken_aktiv);
    texte.text("Rundendirektvergleich", wort_.direktvergleich).text("Spur", wort_.spur);
    texte.text("Rundenzahl", wort_.rundenzahl).text("Disqualifiziert", wort_.disqualifiziert);
    texte.text("Spurlänge", wort_.spurlaenge).text("Sektorlänge", wort_.sektorlaenge);
    texte.text("Restmeter", wort_.restmeter).text("Gesamtmeter", wort_.gesamtmeter);
    texte.text("Gesamtzeit", wort_.gesamtzeit);
    texte.text("Fehler beim Schreiben in Tages-Datei.", tagesfehler_);
    texte.text("Name", tabelle_.name).text("Runden", tabelle_.runden).text("Einzelrunden", tabelle_.einzelrunden);
    texte.text("Meter", tabelle_.meter).text("beste Runde", tabelle_.beste_runde);
    texte.text("Gesamtzeit", tabelle_.gesamtzeit);
    return texte.text("Fehler beim Schreiben der datei. Die Einstellungen wurden nicht gespeichert.",
                      einstellungsfehler_);
}

std::string rundenspeichern::stempel() const {
    return ergebnis_stempel(kalender_.jetzt());
}

void rundenspeichern::oeffnen(const rennergebnis& ergebnis) {
    oeffnen({stempel(), ergebnis_ordner::einzelrennen, endung}, [this, &ergebnis](const std::string& gewaehlt) {
        return einzelrennen_schreiben(std::string(ergebnis_ordner::einzelrennen) + "\\" + gewaehlt, ergebnis);
    });
}

void rundenspeichern::oeffnen(const ergebnisziel& ziel, std::function<bool(const std::string& name)> schreiben) {
    um_.fenster.laden(fenstername::rundenspeichern);
    dateiauftrag auftrag;
    auftrag.speichern = true;
    auftrag.titel = ziel.titel.empty() ? titel_ : ziel.titel;
    auftrag.ueberschrift = um_.txt.datei_text[1];
    auftrag.knopf = um_.txt.datei_text[0];
    auftrag.ordner = ziel.ordner;
    auftrag.endung = ziel.endung;
    auftrag.andere_endung_bleibt = true;
    auftrag.name_fehlt = name_fehlt_;
    auftrag.vorschlag = ziel.vorschlag + std::string(ziel.endung);
    const std::string& fehler = ziel.einstellungen ? einstellungsfehler_ : schreibfehler_;
    auftrag.ausfuehren = [this, &fehler, schreiben = std::move(schreiben)](const std::string& gewaehlt) {
        return schreiben(gewaehlt) || fehler_zeigen(fehler);
    };
    speichernfenster::oeffnen(std::move(auftrag));
}

bool rundenspeichern::rennen_schreiben(const std::string& pfad, const rennergebnis& ergebnis, bool melden) {
    texte_lesen();
    return einzelrennen_schreiben(pfad, ergebnis, melden);
}

const wettkampf_worte& rundenspeichern::tabellenworte() {
    texte_lesen();
    return tabelle_;
}

bool rundenspeichern::automatisch_speichern(const rennergebnis& ergebnis) {
    texte_lesen();  // the words of the file
    const std::string stamm = std::string(ergebnis_ordner::auto_einzelrennen) + "\\auto-" + stempel();
    std::string pfad = stamm + std::string(endung);
    for (int nummer = 2; um_.ablage.gibt_es(pfad); ++nummer) {  // two results within ten seconds
        pfad = stamm + "-" + std::to_string(nummer) + std::string(endung);
    }
    return einzelrennen_schreiben(pfad, ergebnis) || zeilen(ergebnis) == gesichert_ || schreibfehler_melden();
}

bool rundenspeichern::tages_ergebnis_schreiben(const std::string& datei, const rennergebnis& ergebnis) {
    texte_lesen();
    auto zeilen = um_.ablage.zeilen_lesen(datei, tageszeilen_max, tageszeile_bytes_max);
    if (!zeilen && !um_.ablage.gibt_es(datei)) {
        zeilen = {std::string(magie_tagesrennen)};
    }
    const bool gueltig = zeilen && datei_typ_erkennen(*zeilen) == ergebnis_typ::tagesrennen;
    if (gueltig) {
        const auto neue = tages_zeilen(ergebnis, trennzeichen_);
        zeilen->insert(zeilen->end(), neue.begin(), neue.end());
    }
    if (!gueltig || !um_.ablage.zeilen_schreiben(datei, *zeilen)) {
        um_.meldungen.zeigen(tagesfehler_, um_.txt.titel[1]);
        return false;
    }
    if (bei_ergebnis) {
        bei_ergebnis(datei, ergebnis);
    }
    return true;
}

bool rundenspeichern::schreibfehler_melden() {
    texte_lesen();  // perhaps nothing has been saved yet
    return fehler_zeigen(schreibfehler_);
}

bool rundenspeichern::fehler_zeigen(const std::string& text) {
    um_.meldungen.zeigen(text, um_.txt.titel[1]);
    return false;
}

bool rundenspeichern::einzelrennen_schreiben(const std::string& pfad, const rennergebnis& ergebnis, bool melden) {
    auto inhalt = zeilen(ergebnis);
    const bool geschrieben = um_.ablage.zeilen_schreiben(pfad, inhalt);
    if (geschrieben) {
        gesichert_ = std::move(inhalt);
        if (melden && bei_ergebnis) {
            bei_ergebnis(pfad, ergebnis);
        }
    }
    return geschrieben;
}

}  // namespace tarvel
