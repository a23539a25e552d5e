#include "optionen/einstellungsfenster.h"

#include <algorithm>
#include <cassert>
#include <iterator>
#include <utility>

#include "core/bestzeiten.h"
#include "core/nebendateien.h"
#include "core/portzusatz.h"
#include "core/text.h"
#include "core/zahleneingabe.h"
#include "optionen/erklaerungen.h"

namespace tarvel {
namespace {

constexpr std::size_t erste_hardware_gruppe = 1;

}  // namespace

einstellungsfenster::einstellungsfenster(umgebung um, listen l)
    : fensterlogik(um.fenster, um.ablage, fenstername::einstellungen),
      fahrerseite({um.ablage, um.txt, um.meldungen, um.dateiwahl, um.bilder},
                  {l.fahrer, l.fahrer_datei, um.txt.kein_fahrer, ".lst", "Fahrerverwaltung", "Fahrerliste voll.",
                   "neues Fahrerbild zuordnen", 8, 8, 3}),
      fahrzeugseite({um.ablage, um.txt, um.meldungen, um.dateiwahl, um.bilder},
                    {l.fahrzeuge, l.fahrzeug_datei, um.txt.standardfahrzeug_text, ".kfz", "Fahrzeugverwaltung",
                     "Fahrzeugliste voll.", "neues Fahrzeugbild zuordnen", 6, 7, 2}),
      um_(um),
      nebendateien_{nebendatei::mit<&einstellungen::trennzeichen, trennzeichen_speichern>(),
                    nebendatei::mit<&einstellungen::gruppen, gruppenwahl_speichern>(),
                    nebendatei::mit<&einstellungen::anzeige, erscheinung_speichern>(),
                    nebendatei::mit<&einstellungen::rennbild, rennbildwahl_speichern>()} {
    seiten_[seite_start_ziel] = optionsseiten::start_ziel();
    seiten_[seite_wettkampf] = optionsseiten::wettkampf_training();
    seiten_[seite_tanken] = optionsseiten::tanken_chaos();
    seiten_[seite_sektoren] = optionsseiten::sektoren_topspeed();
    seiten_[seite_bestzeiten] = optionsseiten::bestzeiten();
    seiten_[seite_hardware] = optionsseiten::messhardware();
    seiten_[seite_sounds] = optionsseiten::sounds();
    seiten_[seite_farben] = optionsseiten::farben();
    seiten_[seite_trennzeichen] = optionsseiten::trennzeichen();
    seitenliste.bei_auswahl = [this] { seite_zeigen(seitenliste.markiert()); };
    for (std::size_t nummer = 0; nummer < hardware.size(); ++nummer) {
        hardware.at(nummer).bei_aenderung = [this, nummer] { hardware_waehlen(nummer); };
    }
    Command1.bei_klick = [this] { Command1_Click(); };
    Command2.bei_klick = [this] { schliessen(); };
    sprachwahl_verbinden();
    sounds_verbinden();
    schema_.emplace(schemawahl::umgebung{um.ablage, um.txt, um.meldungen},
                    schemawahl::zeilen{zeile("Wechselschemaauswahl"), zeile("wechsel_schema"), zeile("schema_name"),
                                       zeile("schema_hinzufuegen")});
    gruppen_.emplace(gruppenkaesten::zeilen{zeile("wechselcheck1"), zeile("wechselcheck2"), zeile("wechselcheck3"),
                                            zeile("wechsel_schema")},
                     um_.ziel.einst.wechsel_schema);
    schema_->folge_geaendert = [this] { gruppen_->abgleichen(); };
}

void einstellungsfenster::aktion_verbinden(std::string_view name, std::function<void()> wohin) {
    std::get<befehl>(zeile(name).element).bei_klick = std::move(wohin);
}

sprachliste einstellungsfenster::sprache_e() {
    sprachliste texte("language/language_e.txt");
    texte.ueberschrift("Einstellungen").text("Einstellungen", titel).text("Übernehmen", Command1);
    texte.text("Abbrechen", Command2).text("Parameter außerhalb gültiger Werte", grenzen_titel_);
    texte.text("Die alte Einstellung wird beibehalten.", alte_bleibt_).ansage("Seiten", seitenliste);
    texte.text("Zeitmessung mit", hardware_rahmen);
    for (int nummer = 0; nummer < seiten_anzahl; ++nummer) {
        if (optionsseite* seite = zeilenseite(nummer)) {
            seite->texte_nennen(texte);
        } else {
            (nummer == seite_fahrer ? fahrerseite : fahrzeugseite).texte_nennen(texte);
        }
    }
    schema_->texte_nennen(texte);
    fuer_alle_zeilen([&texte](optionszeile& eine) {
        for (optionswarnung& warnung : eine.warnungen) {
            texte.text(warnung.deutsch, warnung.text);
        }
    });
    texte.text("Hier steht keine Zahl.", keine_zahl_);
    texte.text("Dieses Gerät kann das Programm noch nicht ansprechen. Die Tastatur zählt.", hardware_hinweis);
    texte.text("Tarvel 4x4 USB / Digital", text_4x4_);
    texte.text("Die Wahl der Gruppen gilt, konnte aber nicht gespeichert werden.", nebendateien_[datei_gruppen].fehler);
    texte.text("Sprache und Aussehen gelten, konnten aber nicht gespeichert werden.",
               nebendateien_[datei_anzeige].fehler);
    texte.text("Die Wahl für den Rennbildschirm gilt, konnte aber nicht gespeichert werden.",
               nebendateien_[datei_rennbild].fehler);
    return texte.text("Die Änderungen der Liste sind nicht übernommen. Verwerfen?", verwerfen_);
}

sprachliste einstellungsfenster::sprache_e_s() {
    sprachliste texte("language/language_e_s.txt");
    texte.ueberschrift("Sounds");
    const std::vector<std::string> deutsch = optionsseiten::sound_ereignisse();
    for (std::size_t i = 0; i < deutsch.size(); ++i) {
        texte.text(deutsch[i], zeile("sound_dateien_" + std::to_string(i + 1)).beschriftung);
    }
    return texte;
}

std::vector<sprachliste> einstellungsfenster::sprachdateien() {
    std::vector<sprachliste> alle;
    alle.push_back(sprache_e());
    alle.push_back(sprache_e_s());
    alle.push_back(sprache_e_h());
    return alle;
}

sprachliste einstellungsfenster::sprache_e_h() {
    sprachliste texte("language/language_e_h.txt");
    texte.ueberschrift("Erklärungen");
    erklaerungen_.resize(erklaerungen().size());
    for (std::size_t i = 0; i < erklaerungen_.size(); ++i) {
        texte.text(erklaerungen()[i].deutsch, erklaerungen_[i]);
    }
    return texte;
}

/// The caption explains as well as the control.
void einstellungsfenster::erklaeren(optionszeile& eine) const {
    const auto platz = erklaerung_fuer(eine.name);
    const std::string text = platz ? erklaerungen_.at(*platz) : std::string();
    eine.beschriftung.tipp(text);
    std::visit(
        [&text](auto& element) {
            using art = std::decay_t<decltype(element)>;
            if constexpr (std::is_base_of_v<steuerelement, art>) {
                element.tipp(text);
            } else if constexpr (std::is_same_v<art, soundfeld>) {
                element.datei.tipp(text);
                element.abspielen.tipp(text);
            }
        },
        eine.element);
}

void einstellungsfenster::laden() {
    uart_gesichert();
    texte_lesen();
    seitenliste.leeren();
    for (int nummer = 0; nummer < seiten_anzahl; ++nummer) {
        const optionsseite* seite = zeilenseite(nummer);
        const rahmen& name = seite != nullptr         ? seite->titel
                             : nummer == seite_fahrer ? fahrerseite.titel
                                                      : fahrzeugseite.titel;
        seitenliste.hinzufuegen(name.text());
    }
    for (std::size_t i = 0; i < hardware.size(); ++i) {
        hardware.at(i).text(um_.txt.hardware_name.at(i));
    }
    hardware.at(static_cast<std::size_t>(hardware_art::usb_4x4)).text(text_4x4_);
    fuer_alle_zeilen([](optionszeile& z) {
        std::visit(
            [&z](auto& element) {
                using art = std::decay_t<decltype(element)>;
                if constexpr (std::is_same_v<art, haken> || std::is_same_v<art, befehl>) {
                    element.text(z.beschriftung.text());  // carries its caption itself
                } else if constexpr (std::is_base_of_v<steuerelement, art>) {
                    element.ansage(z.beschriftung.text() + " " + z.einheit.text());
                } else if constexpr (std::is_same_v<art, soundfeld>) {
                    element.datei.ansage(z.beschriftung.text());
                    element.abspielen.ansage(z.beschriftung.text());
                }
            },
            z.element);
    });
    fuer_alle_zeilen([this](optionszeile& eine) { erklaeren(eine); });
    nebendatei& trennzeichen = nebendateien_[datei_trennzeichen];
    trennzeichen.fehler = um_.txt.meldung[24];
    trennzeichen.offen = !trennzeichen_laden(um_.ablage, um_.ziel.einst.trennzeichen);
    if (trennzeichen.offen) {
        um_.ziel.einst.trennzeichen = trennzeichen_standard;
        um_.meldungen.zeigen(um_.txt.meldung[25], um_.txt.titel[1]);
    }
    werte_zeigen();
}

void einstellungsfenster::oeffnen(seitennummer erste) {
    um_.fenster.laden(fenstername::einstellungen);
    seite_zeigen(erste);
    um_.fenster.zeigen(fenstername::einstellungen, anzeige_art::modal);
    if (erste == seite_fahrer || erste == seite_fahrzeuge) {
        (erste == seite_fahrer ? fahrerseite : fahrzeugseite).name.fokus_setzen();
    } else {
        seitenliste.fokus_setzen();
    }
}

void einstellungsfenster::fuer_alle_zeilen(const std::function<void(optionszeile&)>& tun) {
    for (const optionsseite_zeiger& seite : seiten_) {
        if (seite != nullptr) {
            for (const auto& gruppe : seite->gruppen) {
                for (const optionszeile_zeiger& eine : gruppe->zeilen) {
                    tun(*eine);
                }
            }
        }
    }
}

optionszeile& einstellungsfenster::zeile(std::string_view name) {
    optionszeile* gefunden = nullptr;
    fuer_alle_zeilen([&](optionszeile& eine) { gefunden = eine.name == name ? &eine : gefunden; });
    assert(gefunden != nullptr);
    return *gefunden;
}

void einstellungsfenster::seite_zeigen(int nummer) {
    if (nummer < 0 || nummer >= seiten_anzahl) {
        return;
    }
    seitenliste.markieren(nummer);
    for (int andere = 0; andere < seiten_anzahl; ++andere) {
        seitenrahmen.at(static_cast<std::size_t>(andere)).sichtbar(andere == nummer);
    }
    if (nummer == seite_sounds) {
        sounds_auffrischen();
    }
}

void einstellungsfenster::hardware_waehlen(std::size_t nummer) {
    for (std::size_t andere = 0; andere < hardware.size(); ++andere) {
        hardware.at(andere).gesetzt(andere == nummer);
    }
    auto& modus = std::get<auswahl>(zeile("optModus").element);
    if (static_cast<hardware_art>(nummer) == hardware_art::usb_4x4 && modus.platz() < 0) {
        modus.platz(0);
    }
    hardware_gruppen_zeigen();
}

void einstellungsfenster::hardware_gruppen_zeigen() {
    const auto& gruppen = seiten_[seite_hardware]->gruppen;
    bool gewaehlt_geht = false;
    for (std::size_t nummer = 0; nummer < hardware.size(); ++nummer) {
        optionsgruppe& gruppe = *gruppen.at(nummer + erste_hardware_gruppe);
        gruppe.titel.sichtbar(hardware.at(nummer).gesetzt() && !gruppe.zeilen.empty());
        gewaehlt_geht = gewaehlt_geht || (hardware.at(nummer).gesetzt() && unterstuetzt.at(nummer));
    }
    hardware_hinweis.sichtbar(!gewaehlt_geht);
}

void einstellungsfenster::hardware_uebernehmen() {
    messhardware& h = um_.ziel.einst.hardware;
    for (std::size_t nummer = 1; nummer < hardware.size(); ++nummer) {
        h.waehlen(static_cast<hardware_art>(nummer), hardware.at(nummer).gesetzt());
    }
    h.simulation_ableiten();
}

void einstellungsfenster::werte_zeigen() {
    schema_->zeigen(um_.ziel.einst.wechselschema_name);
    fuer_alle_zeilen([this](optionszeile& eine) {
        if (eine.zeigen) {
            eine.zeigen(um_.ziel);
        }
    });
    gruppen_->abgleichen();
    for (const char* name : {"selComPort", "cu_comport", "uart_port"}) {
        portzusaetze_zeigen(std::get<auswahl>(zeile(name).element), um_.anschluesse);
    }
    bestzeiten_zeigen();
    const auto in_kraft = static_cast<std::size_t>(um_.ziel.einst.hardware.modus());
    for (std::size_t nummer = 0; nummer < hardware.size(); ++nummer) {
        hardware.at(nummer).gesetzt(nummer == in_kraft);
    }
    hardware_gruppen_zeigen();
    fahrerseite.zeigen();
    fahrzeugseite.zeigen();
}

void einstellungsfenster::bestzeiten_zeigen() {
    std::get<auswahl>(zeile("beste_datei").element).eintraege(bestzeit_auswahl(um_.ablage, um_.ziel.einst.beste_datei));
    for (const char* name : {"beste_datei", "Combo1"}) {
        zeile(name).zeigen(um_.ziel);
    }
}

void einstellungsfenster::zeilen_zeigen(std::span<const std::string_view> namen) {
    for (const std::string_view name : namen) {
        zeile(name).zeigen(um_.ziel);
    }
}

bool einstellungsfenster::listen_aufgeben() {
    std::string namen;
    for (const listenseite* seite : {&fahrerseite, &fahrzeugseite}) {
        if (seite->ungesichert()) {
            namen += (namen.empty() ? "" : ", ") + seite->titel.text();
        }
    }
    return namen.empty() || um_.meldungen.fragen(namen + ": " + verwerfen_, um_.txt.titel[0]);
}

void einstellungsfenster::schliessen() {
    if (!listen_aufgeben()) {
        return;
    }
    einstellungen& einst = um_.ziel.einst;
    const bool geaendert = einst.uart != uart_vorher_;
    einst.uart = uart_vorher_;
    um_.fenster.entladen(fenstername::einstellungen);
    if (geaendert && einst.hardware.hw_uart) {
        um_.folgen.hardware_starten();
    }
}

void einstellungsfenster::uart_portwerte_uebernehmen() {
    for (const char* name : {"uart_baud", "uart_datenbits", "uart_parity", "uart_stopbits"}) {
        zeile_uebernehmen(zeile(name));
    }
}

void einstellungsfenster::zeile_uebernehmen(optionszeile& eine) {
    const feld* f = std::get_if<feld>(&eine.element);
    if (f != nullptr && eine.nur_zahlen && !ist_zahl(f->text()) && !(eine.auch_leer && f->text().empty())) {
        um_.meldungen.zeigen(f->ansage() + ": " + keine_zahl_ + " " + alte_bleibt_, grenzen_titel_);
        return;
    }
    if (eine.uebernehmen) {
        eine.uebernehmen(um_.ziel, [this](const std::string& meldung) {
            um_.meldungen.zeigen(meldung + " " + alte_bleibt_, grenzen_titel_);
        });
    }
    for (const optionswarnung& warnung : eine.warnungen) {
        if (warnung.wenn(um_.ziel)) {
            um_.meldungen.zeigen(warnung.text, um_.txt.titel[0]);
        }
    }
}

void einstellungsfenster::werte_uebernehmen() {
    fuer_alle_zeilen([this](optionszeile& eine) { zeile_uebernehmen(eine); });
    einstellungen& einst = um_.ziel.einst;
    hardware_uebernehmen();
    einst.fahrzeug_wechseln = einst.fahrzeug_wechseln || einst.centermode;
    sektoranzeige_trennen();
    einst.folgen_ableiten();
}

void einstellungsfenster::sektoranzeige_trennen() {
    einstellungen& einst = um_.ziel.einst;
    if (einst.sektor_anzeige != sektor_ort::keiner && einst.sektor_anzeige == einst.topspeed_anzeige) {
        einst.topspeed_anzeige =  // both would stand in the same place
            einst.sektor_anzeige == sektor_ort::klein ? sektor_ort::gross : sektor_ort::klein;
    }
}

/// What could not be kept is tried again the next time.
bool einstellungsfenster::nebendateien_speichern(const einstellungen& vorher) {
    bool gut = true;
    for (nebendatei& eine : nebendateien_) {
        if (eine.offen || !eine.gleich(um_.ziel.einst, vorher)) {
            eine.offen = !eine.schreiben(um_.ablage, um_.ziel.einst);
        }
        if (eine.offen) {
            um_.meldungen.zeigen(eine.fehler, um_.txt.titel[1]);
        }
        gut = gut && !eine.offen;
    }
    return gut;
}

void einstellungsfenster::Command1_Click() {
    const einstellungen vorher = um_.ziel.einst;
    werte_uebernehmen();
    bool gespeichert = fahrerseite.uebernehmen();
    gespeichert = fahrzeugseite.uebernehmen() && gespeichert;
    uart_gesichert();
    um_.folgen.einstellungen_uebernommen(vorher);
    gespeichert = nebendateien_speichern(vorher) && gespeichert;
    gespeichert = um_.folgen.einstellungen_speichern() && gespeichert;
    if (um_.ziel.einst.hardware_anders_als(vorher)) {
        um_.folgen.hardware_starten();
    }
    if (gespeichert) {
        um_.fenster.entladen(fenstername::einstellungen);
    } else {
        werte_zeigen();
    }
}

}  // namespace tarvel
