#include "competition/wettkampf2.h"

#include <algorithm>

#include "competition/rangfolge.h"
#include "core/text.h"
#include "core/zeit.h"

namespace tarvel {
namespace {

constexpr std::size_t namensbreite_min = 15;
constexpr std::size_t markenbreite = 6;
constexpr std::size_t vor_den_namen = 5 + markenbreite;
constexpr std::string_view zwischen_namen = "   ";
constexpr std::size_t einsetzer_zeichen_max = 72;  // more have no room in letters that the track can read
constexpr std::string_view keine_beste = "99 : 99 , 999";

bool in_gruppen(wettkampf_modus modus) {
    using m = wettkampf_modus;
    return modus != m::rotation && modus != m::jeder_gegen_jeden && modus != m::schema_rotation &&
           modus != m::schema_gleichmaessig;
}

}  // namespace

wettkampf2::wettkampf2(const fenster_umgebung& um, const einstellungen& einst, const renn_parameter& param,
                       const namensliste& fahrerliste, wettkampfabend& abend, wettkampf2_folgen& folgen)
    : fensterlogik(um.fenster, um.ablage, fenstername::wettkampf2),
      um_(um),
      einst_(einst),
      param_(param),
      fahrerliste_(fahrerliste),
      abend_(abend),
      folgen_(folgen) {
    abend_.ansicht_anmelden(*this);
    befehle_verbinden();
    neuer_name.laenge_max(namensliste::name_laenge_max);
    for (std::size_t i = 0; i < spuren_max; ++i) {
        anz_runden.at(i).laenge_max(5);
        anz_meter.at(i).laenge_max(10);
    }
}

void wettkampf2::befehle_verbinden() {
    nach_korrektur(Command1, [this] { folgen_.stand_speichern_unter(); });
    nach_korrektur(Command2, [this] { abend_.rennen_starten(); });
    Command3.bei_klick = [this] { um_.fenster.zeigen(fenstername::w_auswertung); };
    nach_korrektur(Command4, [this] { abend_.automatik_umschalten(); });
    Command5.bei_klick = [this] { wettkampf_beenden(); };
    Command6.bei_klick = [this] { um_.fenster.zeigen(fenstername::rangliste); };
    nach_korrektur(Command7, [this] { folgen_.fahrerverwaltung_oeffnen(); });
    nach_korrektur(Command8, [this] { wiederholen(); });
    nach_korrektur(Command9, [this] { zurückstellen(); });
    nach_korrektur(Command10, [this] { folgen_.tabelle_speichern_unter(); });
    Command11.bei_klick = [this] { folgen_.bahnstrom(true); };
    Command12.bei_klick = [this] { folgen_.bahnstrom(false); };
    nach_korrektur(Command13, [this] {
        rundenliste.leeren();  // so that the first choice leads on to its fields, also of who was chosen last
        felder_zeigen(feldgruppe::runden);
    });
    nach_korrektur(Command14, [this] { felder_zeigen(feldgruppe::namen); });
    Command_uebernehmen.bei_klick = [this] { korrektur_uebernehmen(); };
    nach_korrektur(Command_runden_fertig, [this] { zum_naechsten_rennen(); });
    Command_aushang.bei_klick = [this] {
        felder_zeigen(offen_ == feldgruppe::aushang ? feldgruppe::blick : feldgruppe::aushang);
    };
    Command_umbenennen.bei_klick = [this] { umbenennen(); };
    Command_namen_fertig.bei_klick = [this] { zum_naechsten_rennen(); };
    List1.bei_auswahl = [this] {
        korrektur_uebernehmen();
        rennen_gewaehlt();
    };
    rundenliste.bei_auswahl = [this] {
        korrektur_uebernehmen();
        korrekturfelder_zeigen();
    };
    aendernliste.bei_auswahl = [this] {
        neuer_name.text(abend_.stand().name(umbenennbar_.at(static_cast<std::size_t>(aendernliste.markiert()))));
    };
}

void wettkampf2::laden() {
    texte_lesen();
    titel.text(wort_.titel + ": " + abend_.stand().wettkampf_name);
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        listlabel[i].text(wort_.spur + " " + std::to_string(spur));
        Label_anz[i].text(listlabel[i].text());
        anz_runden[i].ansage(Label_runden.text() + ", " + listlabel[i].text());
        anz_meter[i].ansage(Label_meter.text() + ", " + listlabel[i].text());
        spurfarbe[i].hintergrund(einst_.farben_spur[spur]);
    }
    Label_liste.text(in_gruppen(abend_.stand().modus) ? wort_.gruppenliste : wort_.liste);
    List1.ansage(Label_liste.text());
    rundenliste.ansage(Label_rundenwahl.text());
    aendernliste.ansage(Label_namenwahl.text());
    neuer_name.ansage(Label_neuer_name.text());
    opt_reihenfolge.gesetzt(false);
    zum_naechsten_rennen();
}

/// It is what is marked and begun next, whichever was looked at or corrected.
void wettkampf2::zum_naechsten_rennen() {
    felder_zeigen(feldgruppe::blick);
    gezeigtes_rennen_ = 0;
    stand_zeigen();
    (Command2.sichtbar() ? Command2 : Command3).fokus_setzen();
}

void wettkampf2::felder_zeigen(feldgruppe welche) {
    offen_ = welche;
    const bool aushang = welche == feldgruppe::aushang;
    Frame_blick.sichtbar(aushang || welche == feldgruppe::blick);
    Frame_liste.sichtbar(!aushang);
    Command_aushang.text(aushang ? wort_.rennliste : wort_.aushang);
    Command_aushang.aktiviert(Frame_blick.sichtbar());
    Frame_runden.sichtbar(welche == feldgruppe::runden);
    aendernframe.sichtbar(welche == feldgruppe::namen);
    korrigiert_.reset();  // nobody is asked for what is out of sight
    if (welche == feldgruppe::runden) {
        korrektur_zeigen();
    } else if (welche == feldgruppe::namen) {
        namen_zeigen();
    }
}

void wettkampf2::stand_zeigen() {
    if (!abend_.wettkampf_aktiv()) {
        return;
    }
    blick_zeigen();
    liste_zeigen();
    beste_zeigen();
    befehle_zeigen();
    felder_zeigen(offen_);
    wartezeit_zeigen();
}

void wettkampf2::wartezeit_zeigen() {
    Label_warten.sichtbar(abend_.wartet_auf_rennen());
    Label_wartezeit.sichtbar(abend_.wartet_auf_rennen());
    Label_wartezeit.text(std::to_string(abend_.wartezeit().count()));
}

void wettkampf2::blick_zeigen() {
    const abendblick blick = abend_.blick();
    const bool ende = blick.rennen == 0;
    Label_nr.text(ende ? wort_.ende : std::to_string(blick.rennen));
    Label_von.text(ende ? "" : wort_.von + " " + std::to_string(blick.rennen_gesamt));
    Label2.sichtbar(!ende);
    spuren_zeigen(blick);
    Label_jetzt.sichtbar(!ende);
    Label_danach.sichtbar(blick.naechstes_rennen != 0);
    const std::vector<int> stand = fahrer_in_rangfolge(abend_.stand(), abend_.stand().wertung);
    Label_einsetzer.text(ende ? wort_.sieger : wort_.einsetzer);
    Label_einsetzer.sichtbar(!ende || !stand.empty());
    Label_einsetzer_fahrer.text(!ende            ? einsetzer_text(blick.einsetzer)
                                : !stand.empty() ? abend_.stand().name(stand.front())
                                                 : "");
    Label_fehler.sichtbar(abend_.nicht_gesichert());
    Label_noch.sichtbar(blick.dauert_noch.has_value());
    Label_dauer.text(dauer_text(blick));
}

std::string wettkampf2::einsetzer_text(const std::vector<std::string>& namen) const {
    std::string alle;
    for (std::size_t i = 0; i < namen.size(); ++i) {
        if (i > 0 && laenge(alle) + laenge(namen[i]) > einsetzer_zeichen_max) {
            return alle + " " + wort_.und + " " + std::to_string(namen.size() - i) + " " + wort_.weitere;
        }
        alle += (i == 0 ? "" : ", ") + namen[i];
    }
    return alle.empty() ? wort_.niemand : alle;
}

void wettkampf2::spuren_zeigen(const abendblick& blick) {
    const wettkampf& w = abend_.stand();
    const renn_uebergabe dran = w.uebergabe();
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        const bool dabei = w.spur_aktiv[spur] && blick.rennen != 0;
        listlabel[i].sichtbar(dabei);
        spurfarbe[i].sichtbar(dabei);
        Label_b[i].sichtbar(dabei);
        Label_b[i].text(blick.faehrt[spur]);
        Label_danach_b[i].sichtbar(dabei);
        Label_danach_b[i].text(blick.als_naechste[spur]);
        const int platz = dran.spur_fahrer[spur];
        const bool mit_bild = dabei && dran.rennen_spur_aktiv[spur];
        Image_b[i].sichtbar(mit_bild);
        if (mit_bild) {
            const std::string& datei = w.bilder.at(static_cast<std::size_t>(platz - 1));
            Image_b[i].datei(datei);
            if (datei.empty()) {
                fahrerliste_.bild_zeigen(um_.ablage, w.name(platz), Image_b[i]);
            }
        }
    }
}

std::string wettkampf2::dauer_text(const abendblick& blick) const {
    if (!blick.dauert_noch) {
        return {};
    }
    const auto minuten = std::chrono::ceil<std::chrono::minutes>(dauer_ms(*blick.dauert_noch)).count();
    const std::string teil = std::to_string(minuten % 60) + " " + wort_.minuten;
    return minuten < 60 ? teil : std::to_string(minuten / 60) + " " + wort_.stunden + " " + teil;
}

std::string wettkampf2::rennmarke(int rennen) const {
    const wettkampf& w = abend_.stand();
    switch (w.rennen_gefahren(rennen)) {
        case rennstatus::gefahren:
            return "X";
        case rennstatus::zurueckgestellt:
            return "Z";
        case rennstatus::offen:
            break;
    }
    const int teile = w.fortsetzung_nummer(rennen);
    return teile == 0 ? "" : std::to_string(teile) + "/" + std::to_string(w.plan.teile);
}

std::string wettkampf2::rennzeile(int rennen) const {
    const wettkampf& w = abend_.stand();
    const std::string nummer = std::to_string(rennen);
    const std::string marke = rennmarke(rennen);
    std::string zeile = std::string(3 - std::min<std::size_t>(nummer.size(), 3), '0') + nummer;
    // the mark stands at both ends: a narrow window shows the first
    zeile += "  " + marke + std::string(markenbreite - std::min(marke.size(), markenbreite), ' ');
    for (const int spur : alle_spuren) {
        if (w.spur_aktiv[spur]) {
            zeile += eingepasst(w.name(w.plan.feld(rennen)[spur]), planspalten.breite);
            zeile += zwischen_namen;
        }
    }
    return zeile + marke;
}

void wettkampf2::spalten_legen() {
    const wettkampf& w = abend_.stand();
    planspalten = {{}, namensbreite(w.teilnehmer, namensbreite_min), namensbreite_min};
    for (const int spur : alle_spuren) {
        if (w.spur_aktiv[spur]) {
            const std::size_t je_spalte = planspalten.breite + zwischen_namen.size();
            planspalten.ab.push_back(vor_den_namen + planspalten.ab.size() * je_spalte);
        }
    }
}

void wettkampf2::liste_zeigen() {
    const wettkampf& w = abend_.stand();
    spalten_legen();
    const int vorher = w.aktuelles_rennen == gezeigtes_rennen_ ? List1.markiert() : -1;
    gezeigtes_rennen_ = w.aktuelles_rennen;
    List1.leeren();
    for (int rennen = 1; rennen <= w.rennen_gesamt(); ++rennen) {
        List1.hinzufuegen(rennzeile(rennen));
    }
    List1.markieren(vorher < 0 ? w.aktuelles_rennen - 1 : vorher);
    zeichen_erklaeren();
}

void wettkampf2::zeichen_erklaeren() {
    const wettkampf& w = abend_.stand();
    std::array<bool, 3> da{};
    for (int rennen = 1; rennen <= w.rennen_gesamt(); ++rennen) {
        const rennstatus status = w.rennen_gefahren(rennen);
        da[0] |= status == rennstatus::gefahren;
        da[1] |= status == rennstatus::zurueckgestellt;
        da[2] |= status == rennstatus::offen && w.fortsetzung_nummer(rennen) > 0;
    }
    const std::array<const std::string*, 3> zeichen{&wort_.gefahren, &wort_.zurueckgestellt, &wort_.teile_gefahren};
    std::string text;
    for (std::size_t i = 0; i < da.size(); ++i) {
        if (da.at(i)) {
            text += (text.empty() ? "" : ",  ") + *zeichen.at(i);
        }
    }
    Label_zeichen.text(text);
}

void wettkampf2::beste_zeigen() {
    const schnellste_runde beste = abend_.stand().beste_runde();
    const bool keine = beste.beste_runde_fahrer == 0;
    label_best.text(keine ? std::string(keine_beste)
                          : zeit_formatieren(beste.beste_runde_ms, true, einst_.trennzeichen));
    label_fahrer.text(keine ? "( Fahrername )" : abend_.stand().name(beste.beste_runde_fahrer));
    for (bezeichnung* anzeige : {&Label1, &label_best, &label_fahrer}) {
        anzeige->sichtbar(!keine);  // nobody takes the stand-ins for a time
    }
}

void wettkampf2::befehle_zeigen() {
    const wettkampf& w = abend_.stand();
    const bool ende = w.ende_pruefen();
    const int rennen = gewaehltes();
    const bool gefahren = rennen > 0 && w.rennen_gefahren(rennen) == rennstatus::gefahren;
    if (ende && Command2.sichtbar()) {
        Command3.fokus_setzen();  // else it falls to whatever lies behind the button that goes
    }
    Command2.sichtbar(!ende);
    Command9.sichtbar(!ende);
    Command4.sichtbar(!ende);
    Command8.aktiviert(rennen > 0 && w.fortsetzung_nummer(rennen) > 0);
    Command9.aktiviert(rennen > 0 && !gefahren);
    Command13.aktiviert(rennen > 0 && w.fortsetzung_nummer(rennen) > 0);
    automatik_zeigen();
}

/// The words on the button tell how it is now, and so does the lamp beside it.
void wettkampf2::automatik_zeigen() {
    constexpr farbe gruen = 0x3CA01E;
    constexpr farbe gelb = 0x28BEFF;
    const bool unterbrochen = einst_.w_autom && !abend_.automatik_an() && abend_.unterbrochen();
    Command4.text(!einst_.w_autom ? wort_.automatik_aus
                  : unterbrochen  ? wort_.automatik_unterbrochen
                                  : wort_.automatik_ein);
    Command4.tipp(einst_.w_autom ? wort_.ist_ein : wort_.ist_aus);
    automatiklampe.sichtbar(Command4.sichtbar());
    automatiklampe.hintergrund(!einst_.w_autom ? std::nullopt : std::optional(unterbrochen ? gelb : gruen));
}

void wettkampf2::rennen_gewaehlt() {
    const int rennen = gewaehltes();
    if (opt_reihenfolge.gesetzt() && abend_.stand().aktuelles_rennen != rennen) {
        abend_.aendern([rennen](wettkampf& w) { return w.rennen_waehlen(rennen); });
    }
    List1.markieren(rennen - 1);
    befehle_zeigen();
    felder_zeigen(offen_);
}

bool wettkampf2::fragen(const std::string& text, const std::string& ueberschrift) {
    fragt_ = true;
    const bool ja = um_.meldungen.fragen(text, ueberschrift);
    fragt_ = false;
    return ja;
}

void wettkampf2::wiederholen() {
    const int rennen = gewaehltes();
    if (wiederholen_fragen()) {
        abend_.aendern([rennen](wettkampf& w) { return w.wiederholen(rennen); });
    }
}

void wettkampf2::zurückstellen() {
    const int rennen = gewaehltes();
    abend_.aendern([rennen](wettkampf& w) { return w.zurueckstellen(rennen); });
}

bool wettkampf2::darf_enden() {
    if (!abend_.wettkampf_aktiv()) {
        return true;
    }
    if (!korrektur_uebernehmen()) {
        korrekturfelder_zeigen();  // as it is stored: who closes once more is not held up again
        return false;
    }
    if (!abend_.nachsichern()) {
        return fragen(wort_.verlust_frage, titel.text());
    }
    if (abend_.stand().ende_pruefen()) {
        return true;
    }
    return abend_.stand().gefahren.empty() ? behalten_fragen() : fragen(wort_.ende_frage, titel.text());
}

void wettkampf2::fertigen_beenden() {
    if (abend_.wettkampf_aktiv() && abend_.stand().ende_pruefen() && !abend_.stand().qualifying_an) {
        abend_.beenden();
    }
}

/// Of an evening of which there is its preparation alone, which may have been work, or a mistake.
bool wettkampf2::behalten_fragen() {
    using antwort = plattform::dreifache_antwort;
    fragt_ = true;
    const antwort will =
        um_.meldungen.anbieten_mit_ausweg(wort_.behalten_frage, titel.text(), {wort_.behalten, wort_.verwerfen});
    fragt_ = false;
    if (will == antwort::nein) {
        abend_.verwerfen();
    }
    return will != antwort::abbrechen;
}

void wettkampf2::wettkampf_beenden() {
    if (!darf_enden()) {
        return;
    }
    const wettkampf& w = abend_.stand();
    std::optional<std::vector<std::string>> qualifying;
    if (w.qualifying_an) {
        qualifying = qualifying_uebernehmen(w);
    }
    abend_.beenden();
    for (const fenstername fenster : {fenstername::rangliste, fenstername::w_auswertung, fenstername::wettkampf2}) {
        um_.fenster.entladen(fenster);
    }
    folgen_.wettkampf_beendet(qualifying);
}

}  // namespace tarvel
