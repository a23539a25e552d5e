#include <string>
#include <vector>

#include "core/form1.h"
#include "core/text.h"
#include "core/zeit.h"

namespace tarvel {
namespace {

/// How drivers come to the lanes.
sprachliste& aufstellung_nennen(sprachliste& texte, form1& f, std::string& voll, std::string& ohne_namen) {
    texte.text("Liste", f.command_liste);
    texte.tipp("Die Fahrer neben den Spuren, um sie mit der Maus oder einer Ziffer aufzustellen", f.command_liste);
    texte.text("Fahrer aufstellen", f.Frame_liste).text("Die Liste ist voll.", voll);
    texte.text("Das Bild braucht einen Namen: erst einen Fahrer oder ein Fahrzeug eintragen.", ohne_namen);
    texte.text("Auf eine Spur ziehen. Oder: 1 bis 6 stellt den gewählten auf diese Spur, Enter auf die nächste freie.",
               f.Label_liste);
    return texte.text(
        "Auf eine andere Spur ziehen tauscht die Fahrer, ebenso Strg mit Pfeil auf oder ab in ihrer Zeile. "
        "Eine Bilddatei hierher ziehen gibt ein neues Bild.",
        [&f](const std::string& tipp) {
            for (const int nummer : alle_spuren) {
                const std::size_t i = feld_index(nummer);
                f.fahrerbild[i].tipp(tipp);
                f.autobild[i].tipp(tipp);
                f.spurfarbe[i].tipp(tipp);
            }
        });
}

}  // namespace

sprachliste form1::sprache_m2() {
    sprachliste texte("language/language_m2.txt");
    texte.ueberschrift("Hauptfenster").ueberschrift("Form1");
    texte.text("Spur/Auto", [this](const std::string& wort) {
        wort_spur_ = wort;
        for (const int nummer : alle_spuren) {
            spur[feld_index(nummer)].text(wort + " " + std::to_string(nummer));
        }
    });
    texte.text("Spurlänge", label_spurlaenge).text("Bestzeit", wort_bestzeit_).text("Bahnstrom", Label7);
    texte.text("Einstellungsdatei: ", wort_einstellungsdatei_).text("Maßstab 1/", Label2).text("Stunden", Label8);
    texte.text("Minuten", wort_minuten_).ueberschrift("Zeit").text("Runden", wort_runden_);
    texte.text("Rundenzeiten kleiner", Label9).text("sec verwerfen", Label10).text("Tankfunktion", t_aktiv);
    texte.text("Renndauer", dauerlabel).text("Einzelrennen", Command1).text("Ende", Command2);
    texte.text("Einstellungen", Command4).text("Speichern", Command5).text("EIN", Command6).text("Laden", Command7);
    texte.text("Fahrer", Command8).text("Fahrzeuge", Command9).text("Bildübernahme", Command10);
    texte.text("AUS", Command12).text("Bildübernahme", Command13).text("Tastaturbelegung", command_tasten);
    texte.text("Zeitmessung und Rennleitung für die Modellrennbahn", untertitel);
    texte.text("Rennen", Frame_rennen).text("Spuren", Frame_spuren).text("Rennart", Label_rennart);
    texte.text("m", Label_meter).text("Fahrer", Label_fahrer).text("Fahrzeug", Label_auto);
    texte.tipp(
        "Minuten, auch mit Sekunden: 5,30 sind fünf Minuten und dreißig Sekunden. Im Rundenrennen die Zahl der Runden.",
        renndauer);
    texte.tipp("Einstellungen und die Felder dieses Fensters in eine Datei speichern", Command5);
    texte.tipp("Einstellungen und die Felder dieses Fensters aus einer Datei laden", Command7);
    texte.tipp("Womit gemessen wird. Im Simulationsmodus zählt die Tastatur die Runden.", modus_label);
    texte.tipp("Fahrzeugbilder aus dem Ordner slotcars den Fahrzeugen gleichen Namens zuordnen", Command10);
    texte.tipp("Fahrerbilder aus dem Ordner pictures den Fahrern gleichen Namens zuordnen", Command13);
    texte.tipp("Bahnstrom einschalten; braucht Messhardware mit Ausgängen", Command6);
    texte.tipp("Bahnstrom ausschalten; braucht Messhardware mit Ausgängen", Command12);
    texte.tipp("Fahrerliste bearbeiten", Command8).tipp("Fahrzeugliste bearbeiten", Command9);
    texte.text("Zugeordnete Bilder: ", wort_bilder_).text("Beim Programmstart: ", wort_standarddatei_);
    texte.text("kein Fahrer", um_.txt.kein_fahrer).text("Liter", wort_liter_);
    texte.text("Liter je Runde", wort_verbrauch_).text("Bitte warten!", µwarte_titel);
    texte.text("AT-2560 Zeitmessung wird eingerichtet.", µwarte_text).text(" – keine Verbindung", wort_getrennt_);
    texte.text("Control Unit", command_cu);
    texte.text("Den Anschluss hält ein anderes Programm oder ein anderer Benutzer, mit der Datei", wort_gesperrt_);
    texte.text("Hier stand keine Zahl. Jetzt gilt:", wort_keine_zahl_);
    texte.text("Zeichen, die in keiner Datei stehen können, sind ersetzt:", wort_ersetzt_);
    texte.text("fährt auf zwei Spuren. Trotzdem starten?", wort_zwei_spuren_).text("Wettkampf", Command3);
    texte.tipp("Rennen für viele Fahrer, mit Startliste, Rennplan und Rangliste", Command3);
    texte.text("Tagesrennen", command17);
    texte.tipp("Einzelrennen, deren Ergebnisse in einer Datei des Tages zusammenkommen", command17);
    texte.text("Auswertung", Command18);
    texte.tipp("Gespeicherte Ergebnisse ansehen, sortieren, addieren, vergleichen und drucken", Command18);
    texte.text("Fortsetzen", command_fortsetzen);
    texte.tipp("Einen Wettkampf oder ein Rennen weiterfahren, das unterbrochen oder abgebrochen wurde",
               command_fortsetzen);
    texte.text("Training", Command11);
    texte.tipp("Fahren nach der Trainingsart, die bei den Einstellungen gewählt ist", Command11);
    texte.text("Zuletzt", command_zuletzt).tipp("Die letzten 20 Ergebnisse; wählen öffnet sie", command_zuletzt);
    texte.text("nicht mehr da", wort_nicht_mehr_da_).text("Noch kein Ergebnis gespeichert", wort_kein_ergebnis_);
    aufstellung_nennen(texte, *this, wort_liste_voll_, wort_ohne_namen_);
    texte.tipp("Sprache der Fenster und des Handbuchs (language)", command_sprache);
    texte.text("Hell", wort_aussehen_[0]).text("Dunkel", wort_aussehen_[1]).text("Wie das System", wort_aussehen_[2]);
    texte.tipp("Fenster hell oder dunkel; der Rennbildschirm hat seine eigenen Farben", command_aussehen);
    texte.text("Felder merken", felder_merken);
    texte.tipp(
        "Beim nächsten Start stehen alle Felder dieses Fensters wieder so da wie beim Beenden. Ohne Haken stehen sie "
        "wie in der Einstellungsdatei.",
        felder_merken);
    texte.tipp(
        "Eine kürzere Runde zählt nicht. Außer im Wettkampf kommt eine Zehntelsekunde dazu: mit 5 zählt eine Runde ab "
        "5,1 Sekunden.",
        wertmin);
    texte.text("Zeitrennen", wort_zeitrennen_).text("Rundenrennen", wort_rundenrennen_).text("Sieger:", wort_sieger_);
    texte.text("In Führung:", wort_fuehrung_).text("Runde", wort_runde_);
    texte.text("automatisch gesichert", wort_automatisch_);
    texte.text("der Spur", [this](const std::string& wort) { Label_bestzeit.text(wort_bestzeit_ + " " + wort); });
    texte.tipp("Die schnellste Runde, die auf dieser Spur je gefahren wurde; wer es war, steht am Mauszeiger",
               Label_bestzeit);
    texte.tipp(
        "Der Verbrauch gilt für eine Runde in der Durchschnittszeit der Einstellungen. Schneller kostet mehr: in der "
        "halben Zeit gut das Doppelte, und so viel kostet auch die erste Überfahrt nach dem Start.",
        tank_label);
    texte.text("Wie beim letzten Mal:", wort_letztes_mal_);
    return texte.tipp(
        "Trägt Rennart, Dauer, Spuren, Fahrer und Fahrzeuge so ein, wie sie standen, als das Programm zuletzt lief",
        command_wieder);
}

void form1::ansagen_setzen() {
    rennart.ansage(Label_rennart.text());
    stddauer.ansage(dauerlabel.text() + " " + Label8.text());
    renndauer.ansage(dauerlabel.text() + " " + wort_minuten_ + "/" + wort_runden_);
    wertmin.ansage(Label9.text() + " " + Label10.text());
    massstab.ansage(Label2.text());
    for (const int nummer : alle_spuren) {
        const std::size_t i = feld_index(nummer);
        const std::string auf_spur = ", " + spur[i].text();
        lspur[i].ansage(label_spurlaenge.text() + auf_spur);
        fahrer[i].ansage(Label_fahrer.text() + auf_spur);
        auto_[i].ansage(Label_auto.text() + auf_spur);
        Label_fahrzeug[i].ansage(Label_bestzeit.text() + auf_spur);
    }
    fahrerreihe.ansage(Frame_liste.text());
}

void form1::laden() {
    version_label.text("V " + std::string(programm_version));
    texte_lesen();
    ansagen_setzen();
    erscheinung_zeigen();
    tankoptionen_zeigen();
    constexpr std::array<std::string_view, 2> startbilder{"tvkpic1.jpg", "tvkpic2.jpg"};
    for (std::size_t i = 0; i < startbilder.size(); ++i) {
        eigenes_bild.at(i).datei(startbilder.at(i));
        eigenes_bild.at(i).sichtbar(um_.ablage.gibt_es(startbilder.at(i)));
    }
    rennart.eintraege({um_.txt.text_zeit, um_.txt.text_runden});
    beste_zeiten_anzeigen();
    farben_einstellen();
    rennart_geaendert();
    timer1_->an();
}

void form1::sprache_gewechselt() {
    const std::string bisher_niemand = um_.txt.kein_fahrer;
    const std::vector<std::string> bisherige = auto_[0].eintraege();  // the first one is the standard one
    texte_lesen();
    ansagen_setzen();
    erscheinung_zeigen();
    tankoptionen_zeigen();
    const int art = rennart.platz();  // the word in the field is that of the language before
    rennart.eintraege({um_.txt.text_zeit, um_.txt.text_runden});
    rennart.platz(art);
    for (auswahl& wer : fahrer) {
        if (wer.text() == bisher_niemand) {
            wer.text(um_.txt.kein_fahrer);
        }
    }
    for (auswahl& womit : auto_) {
        if (!bisherige.empty() && womit.text() == bisherige.front()) {
            womit.text(um_.txt.standardfahrzeug_text);
        }
    }
    letztes_mal_uebersetzen(bisher_niemand, bisherige.empty() ? "" : bisherige.front());
    listen_zeigen();
    rennart_geaendert();
    modus_anzeigen();
    einstellungsname_anzeigen(einstell_name_, standard_name_);
}

void form1::listen_zeigen() {
    const auto mit_standard = [](const std::string& standard, const namensliste& liste) {
        std::vector<std::string> namen{standard};
        for (const listeneintrag& eintrag : liste.eintraege()) {
            namen.push_back(eintrag.name);
        }
        return namen;
    };
    const auto fahrernamen = mit_standard(um_.txt.kein_fahrer, um_.fahrerliste);
    const auto fahrzeugnamen = mit_standard(um_.txt.standardfahrzeug_text, um_.fahrzeugliste);
    for (std::size_t i = 0; i < fahrer.size(); ++i) {
        fahrer.at(i).eintraege(fahrernamen);
        auto_.at(i).eintraege(fahrzeugnamen);
    }
    reihe_zeigen();
}

void form1::fahrerbild_laden(const std::string& name, int nummer) {
    um_.fahrerliste.bild_zeigen(um_.ablage, name, fahrerbild.at(feld_index(nummer)));
}

void form1::autobild_anzeigen(int nummer) {
    bild& anzeige = autobild.at(feld_index(nummer));
    anzeige.sichtbar(um_.einst.fahrzeugbild_an);
    um_.fahrzeugliste.bild_zeigen(um_.ablage, auto_.at(feld_index(nummer)).text(), anzeige);
}

void form1::bilder_anzeigen() {
    for (const int nummer : alle_spuren) {
        fahrerbild_laden(fahrer[feld_index(nummer)].text(), nummer);
        autobild_anzeigen(nummer);
        fahrerbild[feld_index(nummer)].neu_laden();
        autobild[feld_index(nummer)].neu_laden();
    }
}

void form1::tankoptionen_zeigen() {
    tank_label.sichtbar(t_aktiv.gesetzt());
    tank_label.text(std::to_string(um_.einst.tank_inhalt) + " " + wort_liter_ + ", " +
                    std::to_string(um_.einst.tank_verbrauch) + " " + wort_verbrauch_);
}

void form1::beste_zeiten_anzeigen() {
    for (const int nummer : alle_spuren) {
        const bestzeit& beste = um_.bestzeiten.eintrag(1, nummer);
        const bool zeigen = um_.einst.beste_modus != bestzeit_speicherung::aus && !beste.leer();
        bezeichnung& label = Label_fahrzeug.at(feld_index(nummer));
        label.text(zeigen ? zeit_formatieren(beste.ms, true, um_.einst.trennzeichen) : "–");
        label.tipp(zeigen ? beste.name + "   " + beste.fahrzeug + "   " + beste.datum : std::string());
    }
}

void form1::fahrer_Change(int nummer) {
    fahrerbild_laden(fahrer[feld_index(nummer)].text(), nummer);
    beste_zeiten_anzeigen();
}

void form1::farben_einstellen() {
    for (const int nummer : alle_spuren) {
        spurfarbe.at(feld_index(nummer)).hintergrund(um_.einst.farben_spur[nummer]);
    }
}

void form1::spuren_nach_laden() {
    tankoptionen_zeigen();
    for (std::size_t i = 0; i < spur.size(); ++i) {
        const bool offen = i < 4 || spur[i].gesetzt();
        lspur[i].aktiviert(offen);
        fahrer[i].aktiviert(offen);
        auto_[i].aktiviert(offen);
    }
    leihspuren_sperren();
}

void form1::leihspuren_sperren() {
    for (const std::size_t i : {std::size_t{2}, std::size_t{3}}) {
        const bool verliehen = um_.einst.spur_verliehen(static_cast<int>(i) + 1);
        const bool frei_geworden = !verliehen && !spur[i].aktiviert();
        spur[i].aktiviert(!verliehen);
        if (verliehen || frei_geworden) {
            spur_geaendert(i);
        }
    }
}

void form1::bahnstrom_schaltbar(bool schaltbar) {
    for (steuerelement* element : {static_cast<steuerelement*>(&Label7), static_cast<steuerelement*>(&Command6),
                                   static_cast<steuerelement*>(&Command12)}) {
        element->aktiviert(schaltbar);
    }
}

void form1::modus_anzeigen() {
    const hardware_art modus = um_.einst.hardware.modus();
    std::string status = um_.txt.hardware_name.at(static_cast<std::size_t>(modus));
    if (modus == hardware_art::timekeeper) {
        status += ": " + um_.txt.spurmodus_name.at(static_cast<std::size_t>(um_.einst.hardware.tk_spurmodus));
    } else if (modus == hardware_art::usb_4x4) {
        status += ": " + um_.txt.tx_modus(static_cast<int>(um_.einst.hardware.hw_4x4_modus) -
                                          static_cast<int>(modul_4x4::aus));
    }
    command_cu.sichtbar(um_.einst.hardware.hw_cu);
    modus_label.text(getrennt_ ? status + wort_getrennt_ : status);
}

void form1::messgeraet_getrennt(bool getrennt) {
    getrennt_ = getrennt;
    modus_anzeigen();
}

std::string form1::anschluss_gesperrt(const std::string& sperrdatei) const {
    return sperrdatei.empty() ? std::string() : "\n\n" + wort_gesperrt_ + " " + sperrdatei;
}

void form1::wartehinweis(bool an) {
    (an ? inhalt : µwartehinweis).sichtbar(false);  // first: both at once would make the window grow
    (an ? µwartehinweis : inhalt).sichtbar(true);
}

void form1::taste_F1() {
    if (um_.einst.hardware.hw_uart && inhalt.aktiviert() && !µwartehinweis.sichtbar() && befehlsdatei_waehlen) {
        befehlsdatei_waehlen();
    }
}

void form1::einstellungsname_anzeigen(std::string_view name, std::string_view standard) {
    einstell_name_ = name;
    standard_name_ = standard;
    Label6.text(wort_einstellungsdatei_ + einstell_name_);
    Label6.tipp(wort_standarddatei_ + standard_name_);
}

}  // namespace tarvel
