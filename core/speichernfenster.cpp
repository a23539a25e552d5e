#include "core/speichernfenster.h"

#include <utility>

#include "core/ordnerblick.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr int name_laenge_max = 100;

}  // namespace

speichernfenster::speichernfenster(fenster_umgebung um, fenstername welches, std::string_view sprachdatei)
    : fensterlogik(um.fenster, um.ablage, welches), um_(um), sprachdatei_(sprachdatei) {
    name.laenge_max(name_laenge_max);
    dateiliste.bei_auswahl = [this] {
        const int zeile = dateiliste.markiert();
        if (zeile >= 0) {
            name.text(dateiliste.zeilen().at(static_cast<std::size_t>(zeile)));
        }
    };
    dateiliste.bei_doppelklick = [this] { ausfuehren(); };
    alle_dateien.bei_aenderung = [this] { liste_fuellen(); };
    Command1.bei_klick = [this] { ausfuehren(); };
    Command2.bei_klick = [this] { schliessen(); };
}

sprachliste speichernfenster::sprache() {
    sprachliste texte(sprachdatei_);
    texte.ueberschrift("Dateien").text("Bitte Dateinamen eingeben.", wort_.name_fehlt);
    texte.text("Der Dateiname enthält ein unzulässiges Zeichen.", wort_.zeichen).text("Die Datei", wort_.die_datei);
    texte.text("ist nicht vorhanden.", wort_.nicht_vorhanden);
    texte.text("ist bereits vorhanden. Überschreiben?", wort_.ueberschreiben);
    texte.text("Dies ist keine gültige Tarvel Datei. Die Einstellungen wurden nicht geladen", wort_.ungueltig);
    return texte.ansage("Dateiname", name).ansage("Vorhandene Dateien", dateiliste);
}

void speichernfenster::oeffnen(dateiauftrag auftrag) {
    um_.fenster.laden(kennung());
    auftrag_ = std::move(auftrag);
    titel.text(auftrag_.titel);
    ueberschrift.text(auftrag_.ueberschrift);
    Command1.text(auftrag_.knopf);
    Command2.text(um_.txt.datei_text[10]);
    alle_dateien.text(um_.txt.datei_text[11]);
    alle_dateien.gesetzt(false);
    name.text(auftrag_.vorschlag);
    liste_fuellen();
    um_.fenster.zeigen(kennung(), anzeige_art::modal);
    name.fokus_setzen();
}

void speichernfenster::liste_fuellen() {
    dateiliste.leeren();
    std::vector<dateiort> orte{{auftrag_.ordner, auftrag_.endung}};
    orte.insert(orte.end(), auftrag_.weitere_orte.begin(), auftrag_.weitere_orte.end());
    for (const dateiort& ort : orte) {
        for (const std::string& datei :
             um_.ablage.auflisten(ort.ordner, "", alle_dateien.gesetzt() ? "" : ort.endung)) {
            dateiliste.hinzufuegen(datei);
        }
    }
}

std::string speichernfenster::pfad_von(const std::string& datei) const {
    for (const dateiort& ort : auftrag_.weitere_orte) {
        for (const std::string& gesucht : {datei, datei + ort.endung}) {
            if (std::string dort = ort.ordner + "\\" + gesucht; um_.ablage.gibt_es(dort)) {
                return dort;
            }
        }
    }
    const bool hat_endung = auftrag_.andere_endung_bleibt ? datei.size() >= 4 && datei[datei.size() - 4] == '.'
                                                          : endet_auf(datei, auftrag_.endung);
    const std::string wie_getippt = auftrag_.ordner + "\\" + datei;
    return hat_endung || um_.ablage.gibt_es(wie_getippt) ? wie_getippt : wie_getippt + auftrag_.endung;
}

void speichernfenster::melden(const std::string& text) {
    um_.meldungen.zeigen(text, um_.txt.titel[0]);
    name.fokus_setzen();
}

void speichernfenster::ausfuehren() {
    std::string datei(gekuerzt(name.text()));
    if (datei.empty()) {
        melden(auftrag_.name_fehlt.empty() ? wort_.name_fehlt : auftrag_.name_fehlt);
        return;
    }
    if (!dateiname_zulaessig(datei)) {
        melden(wort_.zeichen);
        return;
    }
    const std::string pfad = pfad_von(datei);
    datei = pfad.substr(pfad.rfind('\\') + 1);
    if (!auftrag_.speichern && !um_.ablage.gibt_es(pfad)) {
        melden(wort_.die_datei + " " + datei + " " + wort_.nicht_vorhanden);
        return;
    }
    if (auftrag_.speichern && um_.ablage.gibt_es(pfad) &&
        !um_.meldungen.fragen(wort_.die_datei + " " + datei + " " + wort_.ueberschreiben, um_.txt.titel[0])) {
        return;
    }
    if (auftrag_.laden_von ? auftrag_.laden_von(pfad) : auftrag_.ausfuehren(datei)) {
        um_.fenster.entladen(kennung());
        if (auftrag_.speichern) {
            um_.meldungen.mitteilen(um_.txt.gespeichert + " " + pfad);
        }
    }
}

}  // namespace tarvel
