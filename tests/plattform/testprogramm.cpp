#include "tests/plattform/testprogramm.h"

#include <algorithm>

#include "core/protokollordner.h"
#include "core/text.h"
#include "programm/ergebnisvergleich.h"

namespace tarvel::test {

testprogramm::testprogramm(const std::filesystem::path& unter) : maschine(unter), p(maschine.dienste()) {
    p.starten();
    p.bestzeiten.speichern(p.ablage, p.einst.beste_datei);  // the files that come with the program, not from it
    p.ablage.zeilen_schreiben("Wechselschema.ws", {});
    maschine.meldungen_gezeigt.clear();  // a first start in an empty folder reports what it makes anew
}

void testprogramm::erscheinen(const erscheinung& wie) {
    const std::vector<std::string> ordner = sprachordner_finden(p.ablage);
    const auto gewaehlt = std::find(ordner.begin(), ordner.end(), wie.sprachordner);
    p.form1.Command4.klicken();
    auto& optionen = p.einstellungsfenster;
    std::get<auswahl>(optionen.zeile("sprache").element).waehlen(static_cast<int>(gewaehlt - ordner.begin()));
    std::get<auswahl>(optionen.zeile("aussehen").element).waehlen(static_cast<int>(wie.fenster));
    optionen.Command1.klicken();
}

void testprogramm::einrichten(std::string_view rennart, std::string_view dauer, const std::vector<int>& lanes) {
    p.einst.start_ampel_modus = ampelwahl::keine;
    if (!mit_bestzeiten) {
        p.einst.beste_modus = bestzeit_speicherung::aus;
    }
    const auto in_seiner_sprache = [&]() -> std::string_view {
        return rennart == "Runden" ? p.txt.text_runden : rennart == "Zeit" ? p.txt.text_zeit : rennart;
    };
    p.form1.rennart.eingeben(in_seiner_sprache());
    p.form1.renndauer.eingeben(dauer);
    for (const int nummer : alle_spuren) {
        haken& spur = p.form1.spur.at(feld_index(nummer));
        if (spur.gesetzt() != (std::find(lanes.begin(), lanes.end(), nummer) != lanes.end())) {
            spur.umschalten();
        }
    }
    p.form1.Command1.klicken();
}

void testprogramm::starten(std::string_view rennart, std::string_view dauer, const std::vector<int>& lanes) {
    einrichten(rennart, dauer, lanes);
    bahn().Command1.klicken();
}

void testprogramm::rennende() {
    if (bahn().Command4.bedienbar()) {
        p.rennen.endfrage.bestaetigen();
    }
}

void testprogramm::rennabbruch() {
    if (bahn().Command2.bedienbar()) {
        p.rennen.abbruchfrage.bestaetigen();
    }
}

void testprogramm::taste(std::string_view zeichen) {
    p.rennen.befehle.taste(ansi_code(zeichen).value_or(0));
    maschine.laufen(1);
}

void testprogramm::runde_nach(zeit_ms dauer, std::string_view tasten) {
    maschine.laufen(dauer - 1);
    for (const char zeichen : tasten) {
        p.rennen.befehle.taste(zeichen);
    }
    maschine.laufen(1);
}

void testprogramm::runden_auffuellen(int spur, int bis) {
    while (runden(spur) < bis) {
        p.rennen.zustand.konto.zaehlen(spur, 0, 0, 0);
    }
}

namespace {

std::string unterschied_von(const ergebnisvergleich& v, const programm& noch_einmal) {
    if (const auto u = noch_einmal.rennprotokoll.abweichung()) {
        return "line " + std::to_string(u->zeile) + ": " + u->geschrieben + " / " + u->stattdessen;
    }
    if (!v.anders.empty()) {
        return v.anders.front().datei + ": " + v.anders.front().geschrieben + " / " + v.anders.front().gerechnet;
    }
    return {};
}

}  // namespace

std::string protokolle_nachrechnen(const programm& p) {
    std::string anders;
    for (const std::string& name : protokolle_auflisten(p.ablage)) {
        testprogramm noch_einmal;
        const ergebnisvergleich v =
            rennen_vergleichen(noch_einmal.p, protokoll_lesen(p.ablage, name).value_or(""), p.ablage);
        if (const std::string u = unterschied_von(v, noch_einmal.p); !u.empty()) {
            anders.append(name).append(", ").append(u).append("\n");
        }
    }
    return anders;
}

std::string nachrechnen(const programm& p, const test_plattform& maschine) {
    std::string name = p.rennprotokoll.dateiname();
    std::replace(name.begin(), name.end(), '\\', '/');
    testprogramm noch_einmal;
    const ergebnisvergleich v = rennen_vergleichen(noch_einmal.p, maschine.datei_lesen(name), p.ablage);
    if (std::string u = unterschied_von(v, noch_einmal.p); !u.empty()) {
        return u;
    }
    if (v.ausgang != rennprotokoll::ausgang::ganz) {
        return "no whole log: " + name;
    }
    const renn_zustand& war = p.rennen.zustand;
    const renn_zustand& ist = noch_einmal.p.rennen.zustand;
    for (const int spur : alle_spuren) {
        bool gleich = war.konto.runden(spur) == ist.konto.runden(spur) &&
                      war.spur[spur].tank_inhalt == ist.spur[spur].tank_inhalt &&
                      war.spur[spur].strafzeit == ist.spur[spur].strafzeit;
        for (int runde = 0; gleich && runde <= war.konto.runden(spur); ++runde) {
            gleich = war.konto.rundenzeit(spur, runde) == ist.konto.rundenzeit(spur, runde) &&
                     war.konto.stempel(spur, runde) == ist.konto.stempel(spur, runde);
        }
        if (!gleich) {
            return "lane " + std::to_string(spur);
        }
    }
    return {};
}

}  // namespace tarvel::test
