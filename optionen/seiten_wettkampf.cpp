#include "core/text.h"
#include "core/wechselschema.h"
#include "optionen/optionsseite.h"

namespace tarvel::optionsseiten {
namespace {

using namespace option;
using e = einstellungen;

/// The order that is in force, whatever scheme it comes from.
optionszeile_zeiger wechselfolge() {
    optionszeile_zeiger zeile = leeres_feld({"wechsel_schema", "Spurfolge", "P = Pause"}, 20);
    optionszeile* zeiger = zeile.get();
    feld* element = &std::get<feld>(zeile->element);
    zeile->texte_nennen = [zeiger, davor = zeile->texte_nennen](sprachliste& texte) {
        davor(texte);
        texte.text("Schema ungültig", zeiger->grenzen_meldung);
    };
    zeile->zeigen = [element](const einstellungs_ziel& z) {
        element->text(wechsel_folge_text(z.einst.wechsel_schema));
    };
    zeile->uebernehmen = [element, zeiger](const einstellungs_ziel& z, const optionszeile::melder& melden) {
        if (element->text() == wechsel_folge_text(z.einst.wechsel_schema)) {
            return;
        }
        if (const auto folge = wechsel_folge_lesen(element->text())) {
            z.einst.wechsel_schema = *folge;
        } else {
            melden(zeiger->grenzen_meldung);
        }
    };
    return zeile;
}

/// One of the boxes of the grouping. Which of them may be ticked depends on the others, so they are tied together by
/// their window.
optionszeile_zeiger gruppenkasten(const beschriftet& b, bool gruppenwahl::*ziel) {
    optionszeile_zeiger zeile = leerer_kasten(b);
    haken* element = &std::get<haken>(zeile->element);
    zeile->zeigen = [element, ziel](const einstellungs_ziel& z) { element->gesetzt(z.einst.gruppen.*ziel); };
    zeile->uebernehmen = [element, ziel](const einstellungs_ziel& z, const auto&) {
        z.einst.gruppen.*ziel = element->gesetzt();
    };
    return zeile;
}

/// The length of the warm-up has limits of its own for laps and for seconds.
optionszeile_zeiger einfahrdauer() {
    optionszeile_zeiger zeile = leeres_feld({"w_edauertext", "Einfahrdauer", "max 99 Runden oder 999 Sekunden"}, 4);
    feld* element = &std::get<feld>(zeile->element);
    zeile->nur_zahlen = true;
    zeile->zeigen = [element](const einstellungs_ziel& z) { element->text(zahl_als_text(z.einst.w_edauer)); };
    zeile->uebernehmen = [element](const einstellungs_ziel& z, const auto&) {
        const zahl_regel regel =
            z.einst.w_edauer_runden ? zahl_regel{1, 99, {}, 2, 10} : zahl_regel{1, 999, {}, 60, 999};
        const double zahl = zahl_im_feld(*element);
        const double gilt = zahl < regel.min ? regel.darunter : zahl > regel.max ? regel.darueber : zahl;
        z.einst.w_edauer = static_cast<int>(gilt);
    };
    return zeile;
}

/// The window takes one second more than the file.
optionszeile_zeiger trainingwechseldauer() {
    return mit_warnung(zahl({"txt_trainingwechseldauer", "Countdown bis zum Fahrerwechsel", "Sekunden"},
                            wert(&e::training_wechseldauer), begrenzt(0, 1000)),
                       "Ein Countdown von 1000 Sekunden gilt nur bis zum Programmende: Beim Laden der Einstellungen "
                       "gelten höchstens 999.",
                       [](const einstellungs_ziel& z) { return z.einst.training_wechseldauer > 999s; });
}

}  // namespace

optionsseite_zeiger wettkampf_training() {
    auto seite = std::make_unique<optionsseite>("Wettkampf/Training");
    seite->gruppe("Wettkampf", 0) << wahl({"wechselauswahl", "Wechselmodus"}, wert(&e::w_wechselmodus), 1,
                                          {"Wechselmodus normaler Wettkampf", "Jeder gegen Jeden / 2spurig",
                                           "CU Modus, nur einmal fahren!"})
                                  << kasten({"dummy_opt", "Freie Slots ausblenden"}, wert(&e::freie_slots))
                                  << kasten({"w_speichern", "Wettkampf nach jedem Rennen speichern"},
                                            wert(&e::w_speichern))
                                  << kasten({"opt_centermode", "Centermode"}, wert(&e::centermode));
    seite->gruppe("Wechselschema", 0) << wortliste({"Wechselschemaauswahl", "Schema"}, wert(&e::wechselschema_name), {})
                                      << wechselfolge() << leeres_feld({"schema_name", "Neues Schema", "Name"}, 40)
                                      << aktion({"schema_hinzufuegen", "Als neues Schema hinzufügen"});
    seite->gruppe("Gruppen", 0)
        << gruppenkasten({"wechselcheck1", "in festen Gruppen fahren"}, &gruppenwahl::feste_gruppen)
        << gruppenkasten({"wechselcheck2", "optimal verteilen"}, &gruppenwahl::optimal_verteilen)
        << gruppenkasten({"wechselcheck3", "Grp fährt Rennen hintereinander"}, &gruppenwahl::am_stueck);
    seite->gruppe("Einfahren", 1) << kasten({"w_einfahren_an", "Einfahrzeit aktivieren"}, wert(&e::w_einfahren_an))
                                  << entweder({"w_edauer1", "Einfahren nach"}, wert(&e::w_edauer_runden), "Runden",
                                              "Sekunden")
                                  << einfahrdauer();
    seite->gruppe("Automatischer Ablauf", 1)
        << kasten({"w_autom", "automatischer Wettkampf Ablauf"}, wert(&e::w_autom))
        << zahl({"w_zeit1", "Wartezeit bis Rennbeginn", "Sekunden"}, wert(&e::w_zeit1),
                {1, 300, "Autom. Wettkampfablauf: Wartezeit bis Rennbeginn außerhalb des gültigen Bereichs (1-300)."},
                1000)
        << zahl({"w_zeit2", "Wartezeit nach Einfahrfunktion", "Sekunden"}, wert(&e::w_zeit2),
                {1, 300,
                 "Autom. Wettkampfablauf: Wartezeit nach Einfahrfunktion außerhalb des gültigen Bereichs (1-300)."},
                1000);
    seite->gruppe("Training", 1) << wahl({"cmb_training", "Trainingsart"}, wert(&e::training_art), 0,
                                         {"normales Training", "Intervaltraining", "Dauertraining"})
                                 << trainingwechseldauer()
                                 << wahl({"cmb_trainingweiter", "Danach"}, wert(&e::training_weiter), 0,
                                         {"neu starten", "fortsetzen"});
    return seite;
}

optionsseite_zeiger bestzeiten() {
    auto seite = std::make_unique<optionsseite>("Bestzeitverwaltung");
    seite->gruppe("Bestzeiten", 0) << wortliste({"beste_datei", "Bestzeitdatei"}, wert(&e::beste_datei), {})
                                   << wahl({"Combo1", "Speicherung"}, wert(&e::beste_modus), 0,
                                           {"Bestzeiten deaktiviert", "automatische Speicherung",
                                            "manuelle Speicherung!"})
                                   << aktion({"bestzeiten_verwalten", "Bestzeiten verwalten"});
    return seite;
}

}  // namespace tarvel::optionsseiten
