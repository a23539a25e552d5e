#include <algorithm>
#include <filesystem>
#include <set>

#include "core/erscheinung.h"
#include "core/hauptfensterdatei.h"
#include "core/letzte_ergebnisse.h"
#include "core/letzte_fahrer.h"
#include "core/text.h"
#include "results/papierkopf.h"
#include "tests/fuzz/dateiarten.h"

// What the program remembers from one start to the next, in small files of its own. None of them is refused.

namespace tarvel::test {
namespace {

/// What was written into the one folder, laid into the other as the program will find it.
std::string geschrieben(const werkbank& bank, const std::string& name) {
    return bank.t.maschine.datei_lesen("ausgang/" + name);
}

bool letzte_ergebnisse_lesen(werkbank& bank, const std::string& bytes) {
    letzte_ergebnisse gelesen;
    bank.legen("tvk_zuletzt.ini", bytes);
    gelesen.laden(bank.eingang);
    fordern(gelesen.eintraege().size() <= letzte_ergebnisse::anzahl_max, "more results than the menu shows");
    for (const letzte_ergebnisse::eintrag& e : gelesen.eintraege()) {
        const std::filesystem::path ort = bank.eingang.pfad(e.pfad);
        fordern(!ort.empty() && *ort.lexically_relative(bank.t.maschine.ordner()).begin() != "..",
                "a result lies outside the program folder");
        fordern(ist_eine_zeile(e.text) && laenge(e.text) <= 200, "a result is told in one line");
        letzte_ergebnisse::ort(bank.eingang, e);
    }
    const bool etwas = !gelesen.eintraege().empty();
    gelesen.merken(bank.ausgang, {"Ergebnisse\\neu.csv", "neu"});
    letzte_ergebnisse zurueck;
    zurueck.laden(bank.ausgang);
    fordern(zurueck.eintraege() == gelesen.eintraege(), "results change on the way through their file");
    return etwas;
}

bool letzte_fahrer_lesen(werkbank& bank, const std::string& bytes) {
    letzte_fahrer gelesen;
    bank.legen("tvk_fahrer.ini", bytes);
    gelesen.laden(bank.eingang);
    const bool etwas = !gelesen.namen().empty();
    const std::set<std::string> verschieden(gelesen.namen().begin(), gelesen.namen().end());
    fordern(verschieden.size() == gelesen.namen().size() && verschieden.size() <= letzte_fahrer::anzahl_max,
            "a driver stands there twice, or too many do");
    for (const std::string& name : gelesen.namen()) {
        fordern(!name.empty() && laenge(name) <= namensliste::name_laenge_max, "a name that no field takes");
        namensvorschlaege(name, gelesen.namen());
    }
    gelesen.gefahren(bank.ausgang, {"ganz neu"});
    letzte_fahrer zurueck;
    zurueck.laden(bank.ausgang);
    fordern(zurueck.namen() == gelesen.namen(), "drivers change on the way through their file");
    return etwas;
}

bool hauptfenster_lesen(werkbank& bank, const std::string& bytes) {
    const texte& txt = bank.t.p.txt;
    const auto lesen = [&](const dateien& von) {
        renneinrichtung e;
        e.dauer = "5";
        hauptfenster_laden(von, txt, e);
        return e;
    };
    const renneinrichtung vorher = lesen(dateien(bank.t.maschine.ordner() / "nichts"));
    bank.legen("tvk_hauptfenster.ini", bytes);
    const renneinrichtung gelesen = lesen(bank.eingang);
    fordern(gelesen.dauer_lesbar(), "a length that no race has");
    for (const int nummer : alle_spuren) {
        fordern(laenge(gelesen.bahn[nummer].fahrer) <= namensliste::name_laenge_max, "a name that no field takes");
    }
    fordern(hauptfenster_speichern(bank.ausgang, txt, gelesen), "fields cannot be written");
    const std::string einmal = geschrieben(bank, "tvk_hauptfenster.ini");
    fordern(hauptfenster_speichern(bank.ausgang, txt, lesen(bank.ausgang)), "fields cannot be written again");
    fordern(geschrieben(bank, "tvk_hauptfenster.ini") == einmal, "fields change on the way through their file");
    return gelesen.dauer != vorher.dauer;
}

bool papierkopf_lesen(werkbank& bank, const std::string& bytes) {
    bool etwas = false;
    for (const char* sprache : {"language", "language-en", "language-fr"}) {
        bank.legen("Urkunden/papier.ini", bytes);
        papierkopf kopf = papierkopf_laden(bank.eingang, sprache);
        fordern(ist_eine_zeile(kopf.verein) && ist_eine_zeile(kopf.veranstaltung) && ist_eine_zeile(kopf.vorlage),
                "a name is one line");
        etwas = etwas || !kopf.verein.empty();
        const papierkopf andere = papierkopf_laden(bank.eingang, "language-da");
        kopf.vorlage = "unsere.txt";
        fordern(papierkopf_speichern(bank.eingang, kopf, sprache), "the head of the paper cannot be written");
        fordern(papierkopf_laden(bank.eingang, sprache) == kopf, "it changes on the way through its file");
        fordern(papierkopf_laden(bank.eingang, "language-da").vorlage == andere.vorlage,
                "another language loses its template");
    }
    return etwas;
}

bool anzeige_lesen(werkbank& bank, const std::string& bytes) {
    erscheinung gelesen;
    bank.legen("tvk_anzeige.ini", bytes);
    erscheinung_laden(bank.eingang, gelesen);
    const std::vector<std::string> sprachen = sprachordner_finden(bank.eingang);
    fordern(std::find(sprachen.begin(), sprachen.end(), gelesen.sprachordner) != sprachen.end(),
            "a language that is not there");
    erscheinung zurueck;
    fordern(erscheinung_speichern(bank.eingang, gelesen), "the look cannot be written");
    erscheinung_laden(bank.eingang, zurueck);
    fordern(zurueck == gelesen, "the look changes on the way through its file");
    return gelesen != erscheinung{};
}

}  // namespace

std::map<std::string, dateiart> gedaechtnisdateien() {
    return {{"zuletzt",
             {{"Ergebnisse\\Einzelrennen\\a.csv\r\n21.11.2026 14:03  1. J\xF6rg\r\nErgebnisse\\b.csv\r\n\r\n"},
              letzte_ergebnisse_lesen}},
            {"letzte_fahrer", {{"J\xF6rg\r\nAnna\r\n\r\nAnna\r\n"}, letzte_fahrer_lesen}},
            {"hauptfenster",
             {{"Runden=Wahr\r\nTanken=Falsch\r\nStunden=0\r\nDauer=17\r\nMindestrunde=5\r\nMassstab=32\r\n"
               "Spur1.dabei=Wahr\r\nSpur1.Laenge=12.5\r\nSpur1.Fahrer=J\xF6rg\r\nSpur1.Fahrzeug=Viper\r\n"},
              hauptfenster_lesen}},
            {"papierkopf", {{"Klub\r\nAbend\r\nunsere.txt\r\nlanguage-en=ours.txt\r\n"}, papierkopf_lesen}},
            {"anzeige", {{"language\r\n1\r\nWahr\r\n"}, anzeige_lesen}}};
}

}  // namespace tarvel::test
