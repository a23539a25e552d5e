#include "competition/wettkampftabelle.h"
#include "core/hauptfensterdatei.h"
#include "core/ordnerblick.h"
#include "programm/bildablage.h"
#include "programm/fluegel.h"
#include "programm/programm.h"
#include "programm/rennprotokoll.h"
#include "results/ergebnisdatei.h"
#include "results/ergebniszusammenfassung.h"
#include "results/tagesfuehrung.h"

// What the main window has at hand beside the set-up: pictures, the results and the drivers of late, and its own state.

namespace tarvel {

void programm::bilder_verbinden() {
    form1.fahrerbilder_uebernehmen = [this] {
        const int anzahl = fahrerliste.bilder_uebernehmen(ablage, "nopic");
        bilder_melden(anzahl, fahrerliste_speichern());
    };
    form1.fahrzeugbilder_uebernehmen = [this] {
        const int anzahl = fahrzeugliste.bilder_uebernehmen(ablage, "");
        bilder_melden(anzahl, fahrzeugliste_speichern());
    };
    using bildpfad = std::filesystem::path;
    const bildablage::umgebung um{form1, fahrerbild_laden, txt, dienste.meldungen};
    form1.fahrerbild_ablegen = [this, um](const std::string& name, const bildpfad& bild) {
        bildablage(um).ablegen({fahrerliste, txt.kein_fahrer, [this] { return fahrerliste_speichern(); }}, name, bild);
    };
    form1.fahrzeugbild_ablegen = [this, um](const std::string& name, const bildpfad& bild) {
        bildablage(um).ablegen({fahrzeugliste, txt.standardfahrzeug_text, [this] { return fahrzeugliste_speichern(); }},
                               name, bild);
    };
}

void programm::bilder_melden(int anzahl, bool gespeichert) {
    form1.bilder_anzeigen();
    if (gespeichert) {
        dienste.meldungen.bestaetigen(form1.bilder_text() + std::to_string(anzahl), txt.titel[0]);
    }
}

void programm::zuletzt_verbinden() {
    form1.erscheinen = [this](const erscheinung& neu) { erscheinung_waehlen(neu); };
    rundenspeichern.bei_ergebnis = [this](const std::string& pfad, const rennergebnis& ergebnis) {
        rennprotokoll.ergebnis_geschrieben(pfad);
        if (pfad.starts_with(ergebnis_ordner::tagesrennen)) {
            const auto zeilen =
                ablage.zeilen_lesen(pfad, ergebnistabelle::zeilen_max).value_or(std::vector<std::string>{});
            const auto tag = ergebnistabelle_lesen(zeilen, einst.trennzeichen);
            const auto vorn = tag ? tagesfuehrung(*tag, einst.auswertung_nach) : std::vector<tagesfuehrender>{};
            zuletzt_geschrieben.merken(ablage, {pfad, tagesangabe(pfad, ergebnis.datum, vorn).zeile()});
        } else if (!pfad.starts_with(ergebnis_ordner::wettkampf)) {  // a competition is one result, not forty
            zuletzt_geschrieben.merken(ablage, {pfad, angabe_von(ergebnis).zeile()});
        }
    };
    wettkampf_->wettkampfspeicher.bei_tabelle = [this](const std::string& pfad, const wettkampf& stand) {
        zuletzt_geschrieben.merken(ablage, {pfad, angabe_von(stand).zeile()});
    };
    form1.letzte_nennen = [this] {
        std::vector<tarvel::form1::letztes> alle;
        for (const letzte_ergebnisse::eintrag& eines : zuletzt_geschrieben.eintraege()) {
            alle.push_back({eines.text, !letzte_ergebnisse::ort(ablage, eines).empty(),
                            eines.pfad.starts_with(ergebnis_ordner::auto_einzelrennen)});
        }
        return alle;
    };
    form1.letztes_oeffnen = [this](std::size_t welches) { zuletzt_oeffnen(welches); };
}

void programm::zuletzt_oeffnen(std::size_t welches) {
    const auto& alle = zuletzt_geschrieben.eintraege();
    const std::string ort = welches < alle.size() ? letzte_ergebnisse::ort(ablage, alle[welches]) : std::string();
    if (!ort.empty()) {
        w_auswertung2.datei_zeigen(ort);
        w_auswertung2.blatt_zeigen();
    }
}

void programm::fahrer_merken() {
    std::vector<std::string> fahrer;
    for (const int nummer : alle_spuren) {
        const std::string& name = param.fahrer_name[nummer];
        if (param.spur_aktiv[nummer] && name != txt.kein_fahrer && !txt.ist_freier_platz(name)) {
            fahrer.push_back(name);
        }
    }
    zuletzt_gefahren.gefahren(ablage, fahrer);
}

/// Chosen in the main window, in force at once.
void programm::erscheinung_waehlen(const erscheinung& neu) {
    const einstellungen vorher = einst;
    einst.anzeige = neu;
    einstellungen_uebernommen(vorher);
    if (!erscheinung_speichern(ablage, neu)) {
        dienste.meldungen.zeigen(txt.meldung[4], txt.titel[1]);
    }
}

void programm::hauptfenster_wie_zuletzt() {
    renneinrichtung felder = einrichtung;
    hauptfenster_laden(ablage, txt, felder);
    if (!einst.anzeige.hauptfenster_wie_zuletzt) {
        form1.letztes_mal_anbieten(felder);
        return;
    }
    einrichtung = felder;
    form1.einrichtung_zeigen();
    form1.felder_nach_spuren();
    form1.bilder_anzeigen();
}

/// Always, for only the next start knows whether they are wanted.
void programm::hauptfenster_merken() {
    const bool noch_angeboten = form1.letztes_mal_offen() && !einst.anzeige.hauptfenster_wie_zuletzt;
    if (hauptfenster_gilt_ && !noch_angeboten) {
        form1.einrichtung_lesen();
        hauptfenster_speichern(ablage, txt, einstellungsruecklage.eigene_einrichtung());  // not those lent by a race
    }
}

}  // namespace tarvel
