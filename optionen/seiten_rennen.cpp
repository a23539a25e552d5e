#include <algorithm>
#include <cmath>
#include <memory>

#include "optionen/optionsseite.h"

// The pages of what happens in a race.

namespace tarvel::optionsseiten {
namespace {

using namespace option;
using e = einstellungen;

/// The tick boxes of the dark race; the second is free only with the first.
void nachtrennen_kaesten(optionsgruppe& gruppe) {
    gruppe << leerer_kasten({"nachtrennen", "Nachtrennen"}) << leerer_kasten({"nachtampel", "Nachtampel"});
    optionszeile& zweite = *gruppe.zeilen.back();
    haken* rennen = &std::get<haken>(gruppe.zeilen[gruppe.zeilen.size() - 2]->element);
    haken* ampel = &std::get<haken>(zweite.element);
    rennen->bei_aenderung = [rennen, ampel] {
        ampel->aktiviert(rennen->gesetzt());
        ampel->gesetzt(ampel->gesetzt() && rennen->gesetzt());
    };
    zweite.zeigen = [rennen, ampel](const einstellungs_ziel& z) {
        rennen->gesetzt(z.einst.nachtrennen_modus > tarvel::nachtrennen::aus);
        ampel->gesetzt(z.einst.nachtrennen_modus > tarvel::nachtrennen::rennen);
        ampel->aktiviert(rennen->gesetzt());
    };
    zweite.uebernehmen = [rennen, ampel](const einstellungs_ziel& z, const auto&) {
        z.einst.nachtrennen_modus = ampel->gesetzt()    ? tarvel::nachtrennen::rennen_und_ampel
                                    : rennen->gesetzt() ? tarvel::nachtrennen::rennen
                                                        : tarvel::nachtrennen::aus;
    };
}

/// The penalty of a false start is also the step that its time penalty grows by.
optionszeile_zeiger fruehstart_strafzeit() {
    optionszeile_zeiger zeile =
        zahl({"f_strafzeit", "Stromunterbrechung", "Sekunden"}, wert(&e::fruehstart_strafzeit),
             {0, 300, "Stromunterbrechung bei Frühstart außerhalb des gültigen Bereichs (0-300)."}, 100);
    zeile->uebernehmen = [davor = zeile->uebernehmen, element = &std::get<feld>(zeile->element)](
                             const einstellungs_ziel& z, const optionszeile::melder& melden) {
        const dauer_hs bisher = z.einst.fruehstart_strafzeit;
        bool gut = true;
        davor(z, [&](const std::string& meldung) {
            gut = false;
            melden(meldung);
        });
        // the tenth of a second that a start may have left behind is no step that somebody has chosen
        if (gut && (z.einst.fruehstart_strafzeit != bisher || bisher >= 1s)) {
            z.einst.fruehstart_schritte = std::chrono::duration_cast<dauer_s>(z.einst.fruehstart_strafzeit);
        }
    };
    return zeile;
}

/// The window takes a penalty of nothing, the file does not.
optionszeile_zeiger tank_strafzeit() {
    return mit_warnung(zahl({"t_strafzeit", "Strafzeit", "Sekunden"}, wert(&e::tank_strafzeit),
                            {0, 60, "Strafzeit bei leerem Tank außerhalb des gültigen Bereichs (0-60)."}, 100),
                       "Mit der Strafzeit 0 ist die Einstellungsdatei ungültig: Beim nächsten Laden gelten statt aller "
                       "Einstellungen die Standardwerte. Soll ein leerer Tank nichts kosten, bitte als Aktion ohne "
                       "wählen.",
                       [](const einstellungs_ziel& z) { return z.einst.tank_strafzeit == 0s; });
}

/// At most half a tank, whatever size the tank has just been given.
optionszeile_zeiger tankwarnung() {
    constexpr double datei_spielraum = 2;  // litres above half a tank that a file may have
    optionszeile_zeiger zeile = leeres_feld({"t_warnung", "Tankwarnung bei", "Liter"}, 8);
    optionszeile* zeiger = zeile.get();
    feld* element = &std::get<feld>(zeile->element);
    zeile->texte_nennen = [zeiger, davor = zeile->texte_nennen](sprachliste& texte) {
        davor(texte);
        texte.text("in Box bei Literzahl außerhalb des gültigen Bereichs.", zeiger->grenzen_meldung);
    };
    zeile->zeigen = [element](const einstellungs_ziel& z) { element->text(zahl_als_text(z.einst.tank_warnung)); };
    const auto angepasst = std::make_shared<bool>(false);
    zeile->uebernehmen = [element, zeiger, angepasst](const einstellungs_ziel& z, const optionszeile::melder& melden) {
        const double liter = zahl_im_feld(*element);
        const double halber_tank = z.einst.tank_inhalt / 2.0;
        *angepasst = false;
        if (liter >= 1 && liter <= halber_tank) {
            z.einst.tank_warnung = liter;
        } else if (z.einst.tank_warnung <= halber_tank + datei_spielraum) {
            melden(zeiger->grenzen_meldung);
        } else {  // the tank has become too small for the old one as well
            z.einst.tank_warnung = std::max(1, z.einst.tank_inhalt / 4);
            *angepasst = true;
        }
    };
    zeile = mit_warnung(std::move(zeile), "Die Tankwarnung liegt nun bei einem Viertel des neuen Tankinhalts.",
                        [angepasst](const einstellungs_ziel& /*z*/) { return *angepasst; });
    return mit_warnung(
        std::move(zeile), "Die Tankwarnung wird beim nächsten Laden der Einstellungen auf ganze Liter gekürzt.",
        [](const einstellungs_ziel& z) { return z.einst.tank_warnung != std::trunc(z.einst.tank_warnung); });
}

}  // namespace

optionsseite_zeiger start_ziel() {
    auto seite = std::make_unique<optionsseite>("Start-/Zieloptionen");
    optionsgruppe& start = seite->gruppe("Start", 0);
    start << wahl({"start_ampel_combo", "Startampel"}, wert(&e::start_ampel_modus), 0,
                  {"keine Startampel", "Startampel 5 rot, grün", "Startampel 5 rot", "Startampel 4 rot, grün",
                   "Startampel 4 rot", "Startampel 3 rot", "Dragrace-Startampel", "Bildschirmampel aus, 5 rot",
                   "Bildschirmampel aus, 4 rot", "Bildschirmampel aus, 3 rot"})
          << wahl({"start_option", "Startzeit"}, wert(&e::start_option), 1, {"Startzeit fix", "Startzeit variabel"})
          << kasten({"start_zeit_sensor", "Startzeiten je Spur bei Sensor"}, wert(&e::start_zeit_sensor))
          << kasten({"blinken_an", "Blinken vor Rennbeginn"}, wert(&e::blinken_an));
    nachtrennen_kaesten(start);
    seite->gruppe("Frühstart", 0) << wahl({"fruehstartcombo", "Aktion bei Frühstart"}, wert(&e::fruehstart_option), 0,
                                          {"ohne", "Startabbruch", "Disqualifikation", "Stromunterbrechung",
                                           "1 Runde Abzug", "Zeitstrafe"})
                                  << fruehstart_strafzeit();
    seite->gruppe("Ziel", 1) << entweder({"zielmodus_erster", "Rennende"}, wert(&e::zielmodus_erster), "erster im Ziel",
                                         "letzter im Ziel")
                             << kasten({"formelcheck", "akt. Runde beenden"}, wert(&e::runde_beenden))
                             << wahl({"auswertung_nach", "Auswertung nach"}, wert(&e::auswertung_nach), 1,
                                     {"Metern", "Runden", "schnellster Runde"})
                             << kasten({"fahrzeug_wechseln", "Fahrzeuge wechseln die Spur (nur Einzelrennen)"},
                                       wert(&e::fahrzeug_wechseln));
    seite->gruppe("Ergebnisse", 1) << kasten({"aut_speichern", "Ergebnisse automatisch speichern"},
                                             wert(&e::aut_speichern))
                                   << kasten({"aut_loeschen", "Automatische Dateien beim Programmstart löschen"},
                                             wert(&e::aut_loeschen));
    seite->gruppe("Rennbildschirm", 1)
        << kasten({"darstellung_opt", "Zeilenansicht"}, wert(&e::darstellung_zeile))
        << kasten({"chk_alte_leute", "große Zeitanzeige"}, wert(&e::grosse_zeit))
        << kasten({"Chk_fenstermodus", "Fenstermodus"}, wert(&e::fenstermodus))
        << kasten({"fahrzeugbild_an", "Fahrzeugbilder einblenden"}, wert(&e::fahrzeugbild_an))
        << kasten({"rennbild_worte", "Pause, Strafe, Ziel in Worten"}, wert(&e::rennbild, &rennbildwahl::worte))
        << kasten({"rennbild_nach_platz", "Spuren nach Platz geordnet"}, wert(&e::rennbild, &rennbildwahl::nach_platz))
        << kasten({"rennbild_schirm_2", "auf dem zweiten Bildschirm"}, wert(&e::rennbild, &rennbildwahl::auf_schirm_2));
    return seite;
}

optionsseite_zeiger tanken_chaos() {
    auto seite = std::make_unique<optionsseite>("Tanken / Chaos");
    seite->gruppe("Tank", 0) << zahl({"t_inhalt_w", "Tankinhalt", "Liter"}, wert(&e::tank_inhalt),
                                     {1, 100, "Tankinhalt außerhalb des gültigen Bereichs (1-100)."})
                             << zahl({"t_verbrauch_w", "Benzinverbrauch", "Liter je Runde"}, wert(&e::tank_verbrauch),
                                     {1, 30, "Benzinverbrauch außerhalb des gültigen Bereichs (1-30)."})
                             << zahl({"t_rundenzeit_w", "Durchschn. Rundenzeit", "Sekunden"}, wert(&e::tank_rundenzeit),
                                     {1, 300, "Durchschn. Rundenzeit außerhalb des gültigen Bereichs (1-300)."})
                             << tankwarnung()
                             << kasten({"tankanz_art", "Grafische Tankanzeige"}, wert(&e::tankanzeige_grafisch));
    seite->gruppe("Leerer Tank", 0) << wahl({"t_straf_combo", "Aktion bei leerem Tank"}, wert(&e::tank_straf_option), 0,
                                            {"ohne", "Disqualifikation", "1 Runde Abzug", "Stromunterbrechung",
                                             "Zeitstrafe"})
                                    << tank_strafzeit();
    seite->gruppe("Tanken", 1)
        << wahl({"tank_art", "Tanken"}, wert(&e::tank_art), 1, {"auf einem Kontakt", "zwischen 2 Kontakten"})
        << zahl({"t_wartezeit", "Wartezeit bis Tankbeginn", "Sekunden"}, wert(&e::tank_wartezeit),
                {0, 60, "Wartezeit bis Tankbeginn außerhalb des gültigen Bereichs (0-60)."}, 100)
        << wahl({"tank_runden_combo", "Rundenzählung auf Tanksensor:"}, wert(&e::tank_runden_modus), 0,
                {"ohne Rundenzählung", "auf Tanksensor 1", "auf Tanksensor 2"})
        << zahl({"txt_justierung_aufeinemsensortanken", "Justierung auf einem Kontakt", "Standard = 20"},
                wert(&e::tanksensor_justierung), begrenzt(12, 100));
    optionsgruppe& chaos = seite->gruppe("Chaos", 1);
    chaos << zahl({"chaos_durch", "Timeout bei Sensordurchfahrt", "Sekunden"}, wert(&e::sensor_timeout),
                  {0, 10, "Timeout bei Sensordurchfahrt außerhalb des gültigen Bereichs (0-10)."}, 1000)
          << kasten({"chaosampel_an", "Chaosampel aktivieren"}, wert(&e::chaosampel_an))
          << kasten({"chaos_schalter", "Chaosschalter statt Taster"}, wert(&e::chaos_schalter))
          << entweder({"chaos_strafe_strom", "Strafe des Verursachers"}, wert(&e::chaos_strafe_strom), "Strafzeit",
                      "Stromunterbrechung!")
          << zahl({"e_ch_strafzeit", "Strafzeit bei Chaos", "Sekunden"}, wert(&e::chaos_strafzeit),
                  begrenzt(-999, 9999));
    std::get<feld>(chaos.zeilen.back()->element).laenge_max(4);
    return seite;
}

optionsseite_zeiger sektoren_topspeed() {
    auto seite = std::make_unique<optionsseite>("Sektoren/Topspeed");
    for (std::size_t sektor = 1; sektor <= 3; ++sektor) {
        const std::string nummer = std::to_string(sektor);
        optionsgruppe& gruppe = seite->gruppe("Sektor " + nummer, static_cast<int>(sektor) - 1);
        gruppe << kasten({"sektor_an_" + nummer, "Messen, Länge:"}, element(&e::sektor_an, sektor));
        for (const int spur : alle_spuren) {
            gruppe << meter(
                {"sektor_laenge_" + nummer + "_" + std::to_string(spur), "Spur " + std::to_string(spur), "m"},
                [sektor, spur](const einstellungs_ziel& z) -> std::string& {
                    return z.einst.sektor_laenge.at(sektor)[spur];
                });
        }
    }
    seite->gruppe("Anzeige", 0) << wahl({"sektor_anzeige", "Sektorzeit"}, wert(&e::sektor_anzeige), 0,
                                        {"keine", "klein", "groß"})
                                << wahl({"topspeed_anzeige", "Topspeed"}, wert(&e::topspeed_anzeige), 0,
                                        {"keine", "klein", "groß"})
                                << kasten({"sekt_speed", "Realgeschwindigkeit"}, wert(&e::real_speed));
    return seite;
}

}  // namespace tarvel::optionsseiten
