#include "core/bildwahl.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <system_error>
#include <utility>

#include "core/ordnerblick.h"

namespace fs = std::filesystem;

namespace tarvel {
namespace {

constexpr const char* darueber = "..";

/// The file begins as pictures of the two kinds do.
bool ist_bild(const fs::path& datei) {
    if (!ist_lesbar(datei, bild_bytes_max)) {
        return false;
    }
    std::array<char, 4> anfang{};
    std::ifstream eingabe(datei, std::ios::binary);
    eingabe.read(anfang.data(), anfang.size());
    const std::string_view gelesen(anfang.data(), static_cast<std::size_t>(eingabe.gcount()));
    return gelesen.starts_with("\xFF\xD8\xFF") || gelesen.starts_with("GIF8");
}

}  // namespace

bildwahl::bildwahl(fenster_umgebung um) : fensterlogik(um.fenster, um.ablage, fenstername::fahrerbild_laden), um_(um) {
    laufwerk.bei_aenderung = [this] { ordner_zeigen(pfad_aus_utf8(laufwerk.text())); };
    ordner.bei_doppelklick = [this] { ordner_betreten(); };
    datei.bei_auswahl = [this] { datei_gewaehlt(); };
    datei.bei_doppelklick = [this] { uebernehmen(); };
    Command1.bei_klick = [this] { uebernehmen(); };
    Command2.bei_klick = [this] { schliessen(); };
}

sprachliste bildwahl::sprache_fbl() {
    sprachliste texte("language\\language_fbl.txt");
    texte.ueberschrift("Bild zuordnen").text("Laufwerk", Label_laufwerk).text("Ordner", Label_ordner);
    texte.text("Bilddatei", Label_datei).text("Übernehmen", Command1).text("Abbrechen", Command2);
    texte.text("Die Datei ist kein Bild in einem Format, das das Programm liest (JPEG, GIF).", kein_bild_text_);
    texte.text("Das Bild konnte nicht kopiert werden.", nicht_kopiert_text_);
    texte.text("Durchsuchen …", Command_suchen);
    return texte.tipp("Das Bild mit dem Dateifenster des Systems suchen", Command_suchen);
}

void bildwahl::oeffnen(auftrag a) {
    um_.fenster.laden(fenstername::fahrerbild_laden);
    auftrag_ = std::move(a);
    titel.text(auftrag_.titel);
    laufwerk.ansage(Label_laufwerk.text());
    ordner.ansage(Label_ordner.text());
    datei.ansage(Label_datei.text());
    laufwerk.eintraege(laufwerke());
    std::error_code fehler;
    if (ort_.empty() || !fs::is_directory(ort_, fehler)) {
        ort_ = fs::absolute(um_.ablage.pfad(auftrag_.bildordner), fehler);
    }
    ordner_zeigen(ort_);
    um_.fenster.zeigen(fenstername::fahrerbild_laden, anzeige_art::modal);
    ordner.fokus_setzen();
}

void bildwahl::ordner_zeigen(const fs::path& ort) {
    ort_ = ort.lexically_normal();
    pfad.text(pfad_als_utf8(ort_));
    const std::string wurzel = pfad_als_utf8(ort_.root_path());
    for (const std::string& kandidat : laufwerk.eintraege()) {
        if (pfad_aus_utf8(kandidat) == ort_.root_path() || kandidat == wurzel) {
            laufwerk.text(kandidat);
        }
    }
    const ordnerblick blick = ordner_ansehen(ort_, {".jpg", ".jpeg", ".gif"});
    ordner.leeren();
    ordner.hinzufuegen(darueber);
    for (const std::string& name : blick.ordner) {
        ordner.hinzufuegen(name);
    }
    datei.leeren();
    for (const std::string& name : blick.dateien) {
        datei.hinzufuegen(name);
    }
    datei_gewaehlt();
}

void bildwahl::zeigen(const fs::path& bilddatei) {
    ordner_zeigen(bilddatei.parent_path());
    const std::string name = pfad_als_utf8(bilddatei.filename());
    const auto gefunden = std::find(datei.zeilen().begin(), datei.zeilen().end(), name);
    if (gefunden != datei.zeilen().end()) {
        datei.markieren(static_cast<int>(gefunden - datei.zeilen().begin()));
        datei_gewaehlt();
    }
}

void bildwahl::ordner_betreten() {
    if (ordner.markiert() < 0) {
        return;
    }
    const std::string ziel = ordner.zeilen().at(static_cast<std::size_t>(ordner.markiert()));
    ordner_zeigen(ziel == darueber ? ort_.parent_path() : ort_ / pfad_aus_utf8(ziel));
}

void bildwahl::datei_gewaehlt() {
    const bool gewaehlt = datei.markiert() >= 0;
    Command1.aktiviert(gewaehlt);
    vorschau.datei(
        gewaehlt ? pfad_als_utf8(ort_ / pfad_aus_utf8(datei.zeilen().at(static_cast<std::size_t>(datei.markiert()))))
                 : std::string());
}

void bildwahl::uebernehmen() {
    if (datei.markiert() < 0) {
        return;
    }
    if (const auto stamm = kopieren(auftrag_, pfad_aus_utf8(vorschau.datei()))) {
        um_.fenster.entladen(fenstername::fahrerbild_laden);
        auftrag_.fertig(*stamm);
    }
}

void bildwahl::hereinnehmen(const auftrag& a, const fs::path& bild) {
    texte_lesen();
    if (const auto stamm = kopieren(a, bild)) {
        a.fertig(*stamm);
    }
}

std::optional<std::string> bildwahl::kopieren(const auftrag& a, const fs::path& quelle) {
    std::string stamm = als_dateiname(a.name);
    if (stamm == a.standardstamm) {
        stamm += '_';  // the stand-in picture of all others stays
    }
    if (!ist_bild(quelle)) {
        um_.meldungen.zeigen(kein_bild_text_, um_.txt.titel[0]);
        return std::nullopt;
    }
    if (!um_.ablage.hereinkopieren(quelle, a.bildordner + "/" + stamm + ".jpg")) {
        um_.meldungen.zeigen(nicht_kopiert_text_, um_.txt.titel[1]);
        return std::nullopt;
    }
    return stamm;
}

void bildwahl::schliessen() {
    um_.fenster.entladen(fenstername::fahrerbild_laden);
    auftrag_.fertig(std::string(abgebrochen));
}

}  // namespace tarvel
