#include <map>

#include "core/renneinrichtung.h"
#include "core/text.h"
#include "tests/optionen_probe.h"

namespace tarvel {
namespace {

/// What is typed into every field at once: limits and what lies just beyond them, and what is no number at all.
const std::vector<std::string> getippt{
    "9999,5", "-0,5",  "59,30", "59.59", "0",    "0,05",  "1000", "500,5", "10000,1", "24,5", "99,96", "1e9",        "",
    "abc",    " 7,5 ", "60,4",  "-999",  "5,3,", "{EOF}", "Ж12€", "1, 5",  "+3.999",  "12,5", "Wahr",  "[allgemein]"};

/// Everything that a field can be typed into is typed, taken over and saved; then a second program starts.
class EinstellungenRundlauf : public test::OptionenProbe {
protected:
    static void hauptfelder(form1& haupt, const std::function<void(eingabe_element&)>& tun) {
        for (eingabe_element* feld :
             {static_cast<eingabe_element*>(&haupt.stddauer), static_cast<eingabe_element*>(&haupt.renndauer),
              static_cast<eingabe_element*>(&haupt.wertmin), static_cast<eingabe_element*>(&haupt.massstab)}) {
            tun(*feld);
        }
        for (std::size_t i = 0; i < spuren_max; ++i) {
            tun(haupt.lspur.at(i));
            tun(haupt.fahrer.at(i));
            tun(haupt.auto_.at(i));
        }
    }
    static void optionsfelder(einstellungsfenster& optionen,
                              const std::function<void(const std::string&, feld&)>& tun) {
        for (int nummer = 0; nummer < einstellungsfenster::seiten_anzahl; ++nummer) {
            optionsseite* seite = optionen.zeilenseite(nummer);
            for (std::size_t g = 0; seite != nullptr && g < seite->gruppen.size(); ++g) {
                for (const auto& zeile : seite->gruppen[g]->zeilen) {
                    if (auto* getroffen = std::get_if<feld>(&zeile->element)) {
                        tun(zeile->name, *getroffen);
                    }
                }
            }
        }
    }
    static std::map<std::string, std::string> optionswerte(programm& p) {
        std::map<std::string, std::string> werte;
        p.form1.Command4.klicken();
        optionsfelder(p.einstellungsfenster, [&](const std::string& name, feld& f) { werte[name] = f.text(); });
        return werte;
    }
    /// The race that the fields stand for.
    static auto rennen(programm& p) {
        p.form1.einrichtung_lesen();
        renneinrichtung einrichtung = p.einrichtung;
        einrichtung.werte_pruefen();
        renn_parameter param;
        const auto fehler = rennen_uebergeben(einrichtung, p.einst, rennumfang::einzelrennen, param);
        return std::tuple(fehler, param.renndauer_ms, param.renn_ziel, param.min_rundenzeit_ms, param.massstab,
                          param.spurlaenge[1], param.spurlaenge[6]);
    }
    void tippen_und_sichern(const std::string& text, const std::string& art) {
        fenster.Command2.klicken();
        t.p.form1.rennart.eingeben(art);
        hauptfelder(t.p.form1, [&](eingabe_element& f) { f.eingeben(text); });
        oeffnen();
        optionsfelder(fenster, [&](const std::string& /*name*/, feld& f) { f.eingeben(text); });
        fenster.Command1.klicken();
    }
};

TEST_F(EinstellungenRundlauf, WasDasProgrammSichertLaedtEsWieder) {
    for (const char* art : {"Runden", "Zeit"}) {
        for (const std::string& text : getippt) {
            SCOPED_TRACE(std::string(art) + " \"" + text + "\"");
            tippen_und_sichern(text, art);
            if (einst.tank_strafzeit == 0s) {  // the file refuses it
                einst.tank_strafzeit = 10s;
                t.p.datei.einstellungen_speichern("Einstellungen/einstellungen.ini");
            }
            t.maschine.meldungen_gezeigt.clear();
            programm neu(t.maschine.dienste());
            neu.starten();
            EXPECT_EQ(t.maschine.meldungen_gezeigt, meldungen{});
            EXPECT_EQ(rennen(neu), rennen(t.p));
            auto vorher = optionswerte(t.p);
            auto nachher = optionswerte(neu);
            bool unveraendert = true;
            for (const char* ausnahme : {"t_warnung", "txt_trainingwechseldauer"}) {  // the fraction, and 1000
                unveraendert = unveraendert && vorher.at(ausnahme) == nachher.at(ausnahme);
                vorher.erase(ausnahme);
                nachher.erase(ausnahme);
            }
            EXPECT_EQ(nachher, vorher);
            EXPECT_TRUE(unveraendert || einst.tank_warnung == 12.5 || einst.training_wechseldauer == 1000s);
            EXPECT_TRUE(!unveraendert || neu.datei.schreiben() == t.p.datei.schreiben());
        }
    }
}

}  // namespace
}  // namespace tarvel
