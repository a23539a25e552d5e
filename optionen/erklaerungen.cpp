#include "optionen/erklaerungen.h"

#include <algorithm>

namespace tarvel {
namespace {

/// A name with a star at its end stands for all that begin like it.
bool nennt(std::string_view namen, std::string_view name) {
    while (!namen.empty()) {
        const std::size_t ende = std::min(namen.find(' '), namen.size());
        const std::string_view eine = namen.substr(0, ende);
        if (eine == name || (eine.ends_with('*') && name.starts_with(eine.substr(0, eine.size() - 1)))) {
            return true;
        }
        namen.remove_prefix(std::min(ende + 1, namen.size()));
    }
    return false;
}

}  // namespace

const std::vector<erklaerung>& erklaerungen() {
    static const std::vector<erklaerung> alle{
        {"Start-/Zieloptionen", "Startampel", "start_ampel_combo", "welche Ampel den Start gibt, siehe Startampel"},
        {"Start-/Zieloptionen", "Startzeit fix / variabel", "start_option",
         "der letzte Schritt vor Grün dauert immer gleich lang oder jedes Mal anders"},
        {"Start-/Zieloptionen", "Startzeiten je Spur bei Sensor", "start_zeit_sensor",
         "die Rundenliste beginnt mit Runde 0, dem Weg zur ersten Überfahrt: angekreuzt ist sie null, sonst die Zeit "
         "seit Grün. Die Gesamtzeit beginnt in beiden Fällen mit der ersten Überfahrt der Spur, deshalb kann das "
         "Ergebnis anders lauten als die Folge an der Ziellinie"},
        {"Start-/Zieloptionen", "Blinken vor Rennbeginn", "blinken_an",
         "die echte Ampel wechselt vor dem Rennen zwischen Rot und Grün, damit jeder sieht, dass die Bahn bereit ist"},
        {"Start-/Zieloptionen", "Nachtrennen, Nachtampel", "nachtrennen nachtampel",
         "Rennen und Ampel auf schwarzem Bildschirm; n schaltet um"},
        {"Start-/Zieloptionen", "Aktion bei Frühstart", "fruehstartcombo",
         "was ein Frühstart kostet; ab Werk eine Stromunterbrechung"},
        {"Start-/Zieloptionen", "Stromunterbrechung", "f_strafzeit",
         "Sekunden der Strafe, auch der Zeitstrafe (0 bis 300)"},
        {"Start-/Zieloptionen", "Rennende", "zielmodus_erster",
         "„erster im Ziel“: mit dem Sieger oder der Zeit ist Schluss. „letzter im Ziel“: jeder fährt zu Ende, im "
         "Zeitrennen noch über die Linie, höchstens zwei Minuten lang"},
        {"Start-/Zieloptionen", "akt. Runde beenden", "formelcheck",
         "im Rundenrennen fahren alle die Runde, in der sie sind, noch zu Ende"},
        {"Start-/Zieloptionen", "Auswertung nach", "auswertung_nach",
         "was den Sieger macht: Runden, Meter oder die schnellste Runde. Bei Gleichstand entscheidet die Gesamtzeit, "
         "dann die beste Runde"},
        {"Start-/Zieloptionen", "Fahrzeuge wechseln die Spur", "fahrzeug_wechseln",
         "bei „neu starten“ und „fortsetzen“ gehen die Autos mit ihren Fahrern"},
        {"Start-/Zieloptionen", "Ergebnisse automatisch speichern", "aut_speichern",
         "jedes Ergebnis liegt danach in Ergebnisse/auto-Einzelrennen"},
        {"Start-/Zieloptionen", "Automatische Dateien beim Programmstart löschen", "aut_loeschen",
         "legt sie bei jedem Start in den Ordner Ergebnisse/Papierkorb, wo sie 30 Tage lang liegen; ab Werk "
         "angekreuzt. Ergebnisse, die bleiben sollen, in der Auswertung mit „speichern“ ablegen"},
        {"Start-/Zieloptionen", "Zeilenansicht", "darstellung_opt", "im Rennen eine Zeile je Spur statt einer Säule"},
        {"Start-/Zieloptionen", "große Zeitanzeige", "chk_alte_leute",
         "große Uhr, bei höchstens drei Spuren und ohne Tankbalken"},
        {"Start-/Zieloptionen", "Fenstermodus", "Chk_fenstermodus",
         "der Rennbildschirm ist ein Fenster und füllt nicht den ganzen Bildschirm"},
        {"Start-/Zieloptionen", "Fahrzeugbilder einblenden", "fahrzeugbild_an",
         "zeigt neben den Fahrern auch die Autos"},
        {"Start-/Zieloptionen", "Pause, Strafe, Ziel in Worten", "rennbild_worte",
         "jede Spur sagt in einem großen Wort, warum sie steht, und kurz, warum eine Überfahrt nicht zählte, siehe Der "
         "Rennbildschirm. Ab Werk angekreuzt"},
        {"Start-/Zieloptionen", "Spuren nach Platz geordnet", "rennbild_nach_platz",
         "der Führende steht vorn, und die Spuren gleiten an ihren Platz; sonst stehen sie nach ihren Nummern"},
        {"Start-/Zieloptionen", "auf dem zweiten Bildschirm", "rennbild_schirm_2",
         "der Rennbildschirm füllt den zweiten Schirm; auf dem ersten liegt das Fenster „Rennleitung“ mit Uhr, Spuren, "
         "Knöpfen und dem, was geschah. Wird er abgezogen oder gibt es keinen, steht wie sonst alles auf dem ersten. "
         "Diese drei Kästen stehen in der Datei tvk_rennbild.ini und gelten für jede "
         "Einstellungsdatei"},
        {"Wettkampf/Training",
         "Wechselmodus, Freie Slots ausblenden, Centermode, Wettkampf nach jedem Rennen speichern",
         "wechselauswahl dummy_opt opt_centermode w_speichern", "gelten im Wettkampf"},
        {"Wettkampf/Training", "Schema, Spurfolge", "Wechselschemaauswahl wechsel_schema",
         "wer nach dem Rennen auf welche Spur kommt: von jeder Spur auf die, die in der Folge danach steht; nach der "
         "letzten kommt die erste"},
        {"Wettkampf/Training", "in festen Gruppen fahren", "wechselcheck1",
         "dieselben Fahrer fahren gegeneinander, auf jeder Spur einmal"},
        {"Wettkampf/Training", "optimal verteilen", "wechselcheck2",
         "mit Gruppen: freie Plätze auf mehrere Gruppen verteilt. Ohne Gruppen nur bei einem anderen Schema als dem "
         "Standard: alle warten etwa gleich lang"},
        {"Wettkampf/Training", "Grp fährt Rennen hintereinander", "wechselcheck3",
         "nur mit Gruppen: jede fährt alle ihre Rennen am Stück. Die drei Kästen stehen in der Datei tvk_gruppen.ini "
         "und gelten für jede Einstellungsdatei; welcher Rennplan daraus wird, steht unter Wettkampf vorbereiten"},
        {"Wettkampf/Training", "Neues Schema, Als neues Schema hinzufügen", "schema_name schema_hinzufuegen",
         "Folge und Name eintragen, „Als neues Schema hinzufügen“"},
        {"Wettkampf/Training", "Einfahrzeit aktivieren, Einfahren nach, Einfahrdauer",
         "w_einfahren_an w_edauer1 w_edauertext",
         "Aufwärmen vor einem Wettkampfrennen, nach Runden oder nach Sekunden (bis 99 Runden oder 999 Sekunden, sonst "
         "wird der Wert begrenzt), siehe Einfahren"},
        {"Wettkampf/Training",
         "automatischer Wettkampf Ablauf, Wartezeit bis Rennbeginn, Wartezeit nach Einfahrfunktion",
         "w_autom w_zeit1 w_zeit2", "die Rennen folgen von selbst (1 bis 300 Sekunden)"},
        {"Wettkampf/Training", "Trainingsart", "cmb_training",
         "was der Knopf „Training“ im Hauptfenster beginnt, siehe Training"},
        {"Wettkampf/Training", "Countdown bis zum Fahrerwechsel, Danach", "txt_trainingwechseldauer cmb_trainingweiter",
         "wann und wie es im Intervalltraining weitergeht (bis 1000 Sekunden; die Datei behält höchstens 999)"},
        {"Tanken / Chaos", "Tankinhalt", "t_inhalt_w", "Liter (1 bis 100)"},
        {"Tanken / Chaos", "Benzinverbrauch", "t_verbrauch_w",
         "Liter je Runde (1 bis 30) in der Durchschnittszeit; schneller kostet mehr, höchstens gut das Doppelte, und "
         "so viel kostet auch die erste Überfahrt"},
        {"Tanken / Chaos", "Durchschn. Rundenzeit", "t_rundenzeit_w",
         "die Runde, die genau diesen Verbrauch hat, in Sekunden (1 bis 300)"},
        {"Tanken / Chaos", "Tankwarnung bei", "t_warnung",
         "ab so viel Litern wird die Anzeige rot und der Ton warnt (bis zum halben Tank; die Datei behält ganze "
         "Liter)"},
        {"Tanken / Chaos", "Grafische Tankanzeige", "tankanz_art", "ein Balken statt der Zahl"},
        {"Tanken / Chaos", "Aktion bei leerem Tank, Strafzeit", "t_straf_combo t_strafzeit",
         "siehe Tanken. Bei „Stromunterbrechung“ steht die Runde im Rennen mit der Strafe da, im Ergebnis ohne sie "
         "(Strafzeit 0 bis 60 Sekunden; 0 macht die Datei ungültig, davor wird gewarnt)"},
        {"Tanken / Chaos", "Tanken", "tank_art",
         "auf einem Kontakt oder zwischen 2 Kontakten: wie die Tankstelle der Bahn gebaut ist"},
        {"Tanken / Chaos", "Wartezeit bis Tankbeginn", "t_wartezeit",
         "so lange steht das Auto, bevor Sprit kommt (0 bis 60 Sekunden)"},
        {"Tanken / Chaos", "Rundenzählung auf Tanksensor", "tank_runden_combo",
         "wer durch die Boxengasse fährt, bekommt dort seine Runde"},
        {"Tanken / Chaos", "Justierung auf einem Kontakt", "txt_justierung_aufeinemsensortanken",
         "für Bahnen mit einem Kontakt (12 bis 100)"},
        {"Tanken / Chaos", "Timeout bei Sensordurchfahrt", "chaos_durch",
         "so lange zählt nach Pausenbeginn und Rennende noch, wer gerade über die Linie rollt (0 bis 10 Sekunden)"},
        {"Tanken / Chaos", "Chaosampel aktivieren", "chaosampel_an",
         "nach einer Pause geht es über die kleine Ampel weiter"},
        {"Tanken / Chaos", "Chaosschalter statt Taster", "chaos_schalter",
         "die Pause dauert, solange der Schalter gedrückt ist"},
        {"Tanken / Chaos", "Strafe des Verursachers, Strafzeit bei Chaos", "chaos_strafe_strom e_ch_strafzeit",
         "was der Verursacher zahlt; eine Zeitstrafe kommt am Ende dazu, und jede seiner Runden danach wird um so "
         "viele Tausendstel länger; unter 0 fragt niemand"},
        {"Sektoren/Topspeed", "Messen, Länge", "sektor_an_* sektor_laenge_*",
         "Sensor in Gebrauch, und die Länge des Sektors auf jeder Spur in Metern. Sektor 3 ist der letzte, bis zur "
         "Linie"},
        {"Sektoren/Topspeed", "Sektorzeit, Topspeed", "sektor_anzeige topspeed_anzeige",
         "wo sie erscheinen: klein an der Stelle der besten, groß an der der letzten Runde"},
        {"Sektoren/Topspeed", "Realgeschwindigkeit", "sekt_speed",
         "die Geschwindigkeit des Vorbilds, mit dem Maßstab aus dem Hauptfenster"},
        {"Bestzeitverwaltung", "Bestzeitdatei", "beste_datei",
         "die Tabelle der Bahn, auf der gefahren wird, siehe Bestzeiten"},
        {"Bestzeitverwaltung", "Speicherung", "Combo1",
         "ob neue Bestzeiten nach dem Rennen eingetragen werden: nie, von selbst nach zwei Sekunden, oder wenn jemand "
         "„Speichern“ drückt"},
        {"Bestzeitverwaltung", "Bestzeiten verwalten", "bestzeiten_verwalten",
         "berichtigt und löscht Einträge, legt Tabellen für andere Bahnen an"},
        {"Messhardware", "alternative Sensorzeit", "zeit_methode_alt",
         "der Zeitstempel kommt vom Rechner statt vom Gerät"},
        {"Messhardware", "Sensorkalibrierung", "sensorkalibrierung",
         "vor dem Rennen gehen die Ausgänge in Ruhe, damit die Sensoren ihren Ruhepegel messen"},
        {"Messhardware", "Bahnstromabschaltung umkehren, Ampelschaltung umkehren", "bahnstabsch opt_ampel",
         "für Relais und Lampen, die andersherum verdrahtet sind"},
        {"Messhardware", "Zuordnungsdatei, Modul einrichten und testen", "iow_datei iow_einrichten",
         "IOW 40: welcher Kontakt was bedeutet, und der Test der Kontakte, siehe IOW 40 USB"},
        {"Messhardware", "COM-Port", "selComPort cu_comport uart_port",
         "der Anschluss, an dem das Gerät steckt, siehe COM-Ports"},
        {"Messhardware", "Sensor 1 bis 4, Box prüfen und Sensoren zuordnen", "selSpur_* rc_einrichten",
         "Race Control: zu welcher Spur jeder Sensor der Box gehört, und ihr Test, siehe Race Control"},
        {"Messhardware", "bis Überfahrt Sensor 3 + 4", "check_rctank",
         "Race Control: getankt wird von der Ziellinie der Spuren 1 und 2 bis zur Überfahrt der Sensoren 3 und 4"},
        {"Messhardware", "Rennende auf Sensor 3 + 4", "check_rcziel",
         "Race Control: die Sensoren 3 und 4 sind eine zweite Ziellinie der Spuren 1 und 2"},
        {"Messhardware", "Modus 1 / 2, Empfindlichkeit, Verzögerung, Nachlauf, Reverse, Kennzeichen und Wert der Box",
         "rc_aufbewahrt rc_mod1 selLevel selDelayMS selPostMS cbxRevZZ cbxRevSZ rc_schalter rc_wert",
         "bleiben gespeichert; es gilt, was die Box selbst eingestellt hat"},
        {"Messhardware", "Druckeranschluß, Druckeranschluss einrichten und testen", "lpt_text lpt_einrichten",
         "die Adresse des Anschlusses, hexadezimal von 100 bis FFFD, und der Test der Pins, siehe Druckeranschluss"},
        {"Messhardware", "Eingang Pin, Ausgang Pin", "ecomb_* comb_*",
         "was an diesem Pin des Druckeranschlusses hängt"},
        {"Messhardware", "Modus, manuelle Modusabfrage bei Programmstart, 4x4 USB einrichten und prüfen",
         "optModus manuell_s6 tx_einrichten",
         "was das Modul zählt, ob jeder Start danach fragt, und sein Test, siehe 4x4 USB"},
        {"Messhardware", "Eingang, Spur/Auto, Sensorposition", "s6_eingang_*",
         "4x4 USB: was dieser Eingang oder diese Sensorposition bedeutet"},
        {"Messhardware", "Einstellungsdatei, Timekeeper einrichten", "tk_datei tk_einrichten",
         "Timekeeper: welcher Eingang was bedeutet, und sein Test, siehe Timekeeper USB"},
        {"Messhardware", "Control Unit einrichten und prüfen", "cu_einrichten",
         "das Fenster der Control Unit: sucht ihren Port, zeigt, was sie meldet, und schickt ihr Befehle, siehe "
         "Carrera Control Unit"},
        {"Messhardware", "automatische Tankfunktion", "opt_cu_tankautomatik",
         "Control Unit: „Tankfunktion“ im Hauptfenster folgt ihrem Tankschalter"},
        {"Messhardware", "Rennstart über Software", "opt_cu_prgstart",
         "Control Unit: „Rennstart“ startet ihre Ampel; ohne den Haken tut es ihre Starttaste"},
        {"Messhardware", "Blackbox mit Rundenzähler 30342 verwenden", "opt_cu_alterRZ",
         "Control Unit: die Blackbox bereitet das Rennen vor, sobald sie startklar ist"},
        {"Messhardware", "Regler 1 bis 6", "cu_spur_wert_*", "Control Unit: Wert des Reglers (0 bis 15)"},
        {"Messhardware", "Baudrate, Datenbits, Parität, Stoppbits",
         "uart_baud uart_datenbits uart_parity uart_stopbits", "AT-2560: wie am Gerät eingestellt, siehe AT-2560 USB"},
        {"Messhardware", "Befehlsdatei, Befehlsdatei auswählen, Zeitmessung einrichten",
         "uart_datei uart_datei_waehlen uart_einrichten",
         "AT-2560: welches Wort des Geräts was bedeutet; „Zeitmessung einrichten“ fragt die Sensoren ab und schreibt "
         "die Datei neu"},
        {"Messhardware", "Gerät prüfen", "uart_pruefen",
         "AT-2560: eine Lampe für jeden Sensor und Taster, und jeder Ausgang von Hand, siehe AT-2560 USB"},
        {"Sounds", "Sounds abspielen", "sound_an", "aus: das Programm ist still"},
        {"Sounds", "'beste Runde' ab Runde", "snd_beste",
         "vorher meldet der Ton keine beste Runde (1 bis 10, sonst 5)"},
        {"Sounds", "Ordner der Sounddateien", "sound_ordner",
         "woraus die Listen der Töne gefüllt sind; leer ist der Ordner sound"},
        {"Sounds", "Töne", "sound_dateien_*",
         "die Datei, die bei diesem Ereignis erklingt; der Knopf dahinter spielt sie vor"},
        {"Farben", "Farben", "farben_* farbe_*",
         "Spurfarben überall, Hintergrund und Schrift des Rennbildschirms, ausgeschaltete Lampen der Ampel"},
        {"Farben", "Sprache", "sprache",
         "die Texte aller Fenster, sofort und für jede Einstellungsdatei; siehe Eine andere Sprache. Sie steht mit dem "
         "Aussehen in der Datei tvk_anzeige.ini"},
        {"Farben", "Hell oder dunkel", "aussehen",
         "alle Fenster außer dem Rennbildschirm; „wie das System“ richtet sich nach der Arbeitsumgebung"},
        {"Farben", "Hauptfenster wie beim letzten Mal", "hauptfenster_wie_zuletzt",
         "beim Start stehen im Hauptfenster Rennart, Dauer, Spuren, Fahrer und Fahrzeuge, wie sie beim Beenden waren. "
         "Sie liegen in der Datei tvk_hauptfenster.ini; die Einstellungsdatei bleibt, wie sie gespeichert wurde"},
        {"Trennzeichen", "Trennzeichen", "trennzeichen_*",
         "zwischen Minuten und Sekunden, vor den Tausendsteln, zwischen den Spalten der Ergebnisdateien. Alte "
         "Ergebnisse passen nur zu den Zeichen, mit denen sie geschrieben sind"},
    };
    return alle;
}

std::optional<std::size_t> erklaerung_fuer(std::string_view name) {
    const auto& alle = erklaerungen();
    const auto gefunden =
        std::find_if(alle.begin(), alle.end(), [name](const erklaerung& e) { return nennt(e.namen, name); });
    return gefunden == alle.end() ? std::nullopt : std::optional<std::size_t>(gefunden - alle.begin());
}

}  // namespace tarvel
