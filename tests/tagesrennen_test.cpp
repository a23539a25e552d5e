#include <utility>

#include "core/protokollordner.h"
#include "programm/rennprotokoll.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using zeilen = std::vector<std::string>;

/// The window of the day race over a main window on which lanes 1 and 2 are set up, with Anna and Ben on them.
class Tagesrennen : public test::ProgrammProbe {
protected:
    static constexpr const char* samstag = "Ergebnisse/Tagesrennen/Samstag.csv";

    Tagesrennen() {
        t.einrichten("Zeit", "1", {1, 2});
        t.rennabbruch();
        fahrer_eintragen("Anna", "Ben");
        t.maschine.meldungen_gezeigt.clear();
        nur_eingaben = true;
    }

    void fahrer_eintragen(const char* erster, const char* zweiter) {
        t.p.form1.fahrer[0].eingeben(erster);
        t.p.form1.fahrer[1].eingeben(zweiter);
    }
    void oeffnen() { t.p.form1.command17.klicken(); }
    void datei(std::string_view name) {
        f.text_lf_datei.eingeben(name);
        t.maschine.laufen(1000);
    }
    void klasse(std::size_t i, std::string_view zeichen) {
        const auto& alle = f.lstb_klasse.at(i).eintraege();
        f.lstb_klasse.at(i).waehlen(static_cast<int>(std::find(alle.begin(), alle.end(), zeichen) - alle.begin()));
    }
    /// Lane 1 drives a lap of 6 s, and the race is left.
    void rennen_fahren() {
        ASSERT_TRUE(offen(fenstername::bahn1));
        t.bahn().Command1.klicken();
        t.runde_nach(1000, "12");
        t.runde_nach(6000, "1");
        t.rennende();
        t.p.auswertung.Command5.klicken();
    }
    zeilen inhalt(const char* name) { return t.p.ablage.zeilen_lesen(name, 1000).value_or(zeilen{"none"}); }

    tagesrennen_fenster& f = t.p.tagesrennen_fenster;
};

TEST_F(Tagesrennen, DreiRennenMitKlassenKommenUntereinander) {
    oeffnen();
    EXPECT_EQ(f.Text_fahrer[0].text(), "Anna");
    EXPECT_FALSE(f.Text_fahrer[0].eintraege().empty()) << "to choose from";
    EXPECT_FALSE(f.Text_fahrer[2].aktiviert()) << "nobody drives there";
    EXPECT_EQ(f.Label_lf_hinweis.text(), "Bitte Dateinamen eingeben.");
    f.text_lf_datei.eingeben("Samstag");
    EXPECT_EQ(f.Label_lf_hinweis.text(), "Prüfe Datei...");
    t.maschine.laufen(1000);
    EXPECT_FALSE(t.maschine.datei_da(samstag)) << "a name that is being typed makes no file";
    f.Check1.umschalten();
    EXPECT_TRUE(f.lstb_klasse[1].aktiviert() && !f.lstb_klasse[2].aktiviert());
    klasse(0, "B");
    f.Command18.klicken();
    EXPECT_EQ(letzte_meldung(), "Bitte Klasse auswählen oder deaktivieren.");
    EXPECT_FALSE(offen(fenstername::bahn1));
    klasse(1, "9");
    f.Command18.klicken();
    EXPECT_FALSE(offen(fenstername::Tagesrennen));
    EXPECT_EQ(t.bahn().namenslabel[1].text(), "Anna") << "the class is no part of the name";
    rennen_fahren();
    EXPECT_TRUE(t.p.auswertung.kopf().starts_with("Tagesrennen Samstag  ·  "));
    const std::string anna = "B;Anna; 1;25.00;00:06,000;00:06,000";
    const std::string ben = "9;Ben; 0;0.00;00:00,000;00:00,000";
    EXPECT_EQ(inhalt(samstag), (zeilen{"Tarvel Tagesrennen", anna, ben}));
    EXPECT_EQ(protokoll_zu_ergebnis(t.p.ablage, t.p.tagesrennen.datei), t.p.rennprotokoll.dateiname());

    ASSERT_TRUE(offen(fenstername::Tagesrennen)) << "the next race of the day is set up here";
    EXPECT_EQ(f.Label_fuehrung.text(), "In Führung: Klasse\u00a0B: Anna, 1 Runde") << "in class 9 nobody has a lap";
    EXPECT_EQ(f.Label_lf_hinweis.text(), "verwende bestehende Datei - Datei bereit");
    EXPECT_EQ(f.ergebnisse.zeilen(), (zeilen{"B   Anna             1       25,00    00:06,000  00:06,000",
                                             "9   Ben              0       0,00     00:00,000  00:00,000"}));
    EXPECT_EQ(f.Label_bisher[0].text(), "bisher 1 Rennen, beste Runde 00:06,000");
    f.Text_fahrer[0].eingeben("Carl");
    EXPECT_EQ(f.lstb_klasse[0].platz(), -1) << "Anna's class is not his";
    f.Text_fahrer[1].eingeben("Anna");
    EXPECT_EQ(f.lstb_klasse[1].text(), "B") << "as she drove before";
    klasse(0, "A");
    f.text_lf_datei.eingeben("Sonntag");
    t.maschine.laufen(1000);
    EXPECT_EQ(f.lstb_klasse[0].text(), "A") << "chosen by hand";
    EXPECT_EQ(f.lstb_klasse[1].platz(), -1) << "of another day";
    datei("Samstag");
    f.Command18.klicken();
    rennen_fahren();
    const std::string carl = "A;Carl; 1;25.00;00:06,000;00:06,000";
    const std::string anna2 = "B;Anna; 0;0.00;00:00,000;00:00,000";
    EXPECT_EQ(inhalt(samstag), (zeilen{"Tarvel Tagesrennen", anna, ben, carl, anna2}));

    oeffnen();
    f.Check1.umschalten();
    f.Text_fahrer[1].eingeben("");
    f.Command18.klicken();
    rennen_fahren();
    EXPECT_EQ(inhalt(samstag).at(5).substr(0, 7), "0;Carl;") << "without classes";
    EXPECT_EQ(inhalt(samstag).at(6).substr(0, 14), "0;kein Fahrer;") << "struck from the list";

    t.p.form1.Command1.klicken();
    rennen_fahren();
    EXPECT_EQ(inhalt(samstag).size(), 7U) << "a race of its own";
}

TEST_F(Tagesrennen, KlasseFolgtDemFahrerAufDieAndereSpur) {
    oeffnen();
    datei("Samstag");
    f.Check1.umschalten();
    klasse(0, "A");
    klasse(1, "B");
    f.Command18.klicken();
    t.bahn().Command1.klicken();
    t.runde_nach(1000, "12");
    t.rennende();
    t.p.auswertung.Command2.klicken();  // anew, on each other's lanes: nothing is added
    EXPECT_EQ(inhalt(samstag).size(), 1U);
    rennen_fahren();
    EXPECT_EQ(inhalt(samstag).at(1).substr(0, 6), "B;Ben;");
    EXPECT_EQ(inhalt(samstag).at(2).substr(0, 7), "A;Anna;");
}

TEST_F(Tagesrennen, NachEinemWiederaufgenommenenRennenZeigtEsWasJetztEingerichtetIst) {
    oeffnen();
    datei("Samstag");
    f.Check1.umschalten();
    klasse(0, "A");
    klasse(1, "B");
    f.Command18.klicken();
    rennen_fahren();
    f.Command18.klicken();
    t.bahn().Command1.klicken();
    t.runde_nach(1000, "12");
    t.rennabbruch();
    ASSERT_EQ(t.maschine.mitgeteilt.size(), 1U);
    EXPECT_EQ(t.maschine.mitgeteilt.back(), "Rennen abgebrochen. „Fortsetzen“ holt es zurück.");
    t.p.fenster.entladen(fenstername::Tagesrennen);
    fahrer_eintragen("Ben", "");
    t.p.form1.spur[4].umschalten();
    t.p.form1.fahrer[4].eingeben("Gast");
    t.maschine.antwort = true;
    t.p.form1.command_fortsetzen.klicken();
    t.p.k_ampel.Command1.klicken();
    t.maschine.laufen(8000);
    t.rennende();
    t.p.auswertung.Command5.klicken();
    ASSERT_TRUE(offen(fenstername::Tagesrennen));
    t.maschine.laufen(300);
    EXPECT_TRUE(f.Text_fahrer[4].aktiviert());
    EXPECT_EQ(f.Text_fahrer[4].text(), "Gast");
    EXPECT_EQ(f.Text_fahrer[0].text() + f.lstb_klasse[0].text(), "BenB");
    EXPECT_EQ(f.Label_bisher[0].text(), "bisher 2 Rennen, beste Runde –");
    EXPECT_EQ(f.Label_bisher[1].text() + f.Label_bisher[4].text(), "");
}

TEST_F(Tagesrennen, FremdeDateiUndUnmoeglicherNameWerdenNichtBenutzt) {
    t.maschine.datei_schreiben(samstag, "fremd\r\n");
    oeffnen();
    const std::string kein_name = "Das geht in keinem Dateinamen: ";
    const std::string keine_tagesdatei = "Fehler beim Öffnen der Datei.";
    for (const auto& [name, warum] : {std::pair("Samstag", keine_tagesdatei),
                                      {"..\\Samstag", kein_name + "\\"},
                                      {"a/b", kein_name + "/"},
                                      {".csv", keine_tagesdatei}}) {
        datei(name);
        EXPECT_EQ(f.Label_lf_hinweis.text(), warum) << name;
        EXPECT_FALSE(f.Command1.aktiviert()) << name;
        f.Command18.klicken();
        EXPECT_EQ(letzte_meldung(), warum) << name;
        EXPECT_TRUE(offen(fenstername::Tagesrennen)) << name;
    }
    datei("");
    t.maschine.meldungen_gezeigt.clear();
    f.Command18.klicken();
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
    EXPECT_TRUE(f.Label_lf_hinweis.schriftfarbe()) << "what is missing is seen";
    EXPECT_FALSE(offen(fenstername::bahn1));
    EXPECT_EQ(t.maschine.datei_lesen(samstag), "fremd\r\n");
}

TEST_F(Tagesrennen, AngabenBleibenBisZumNaechstenTag) {
    oeffnen();
    EXPECT_EQ(f.klassen_text[2].text(), "auch nach einem Programmstart noch verfügbar. Z.B.:");
    datei("Samstag.csv");
    f.Check1.umschalten();
    EXPECT_TRUE(f.Frame_klassen.sichtbar());
    f.klassen_text[4].eingeben("A bis 12 Jahre, B über 12");
    f.Command20.klicken();
    EXPECT_EQ(inhalt("Tagesrennen.ini"),
              (zeilen{"Tarvel Parameter-Datei für das Tagesrennen", "Ergebnisse\\Tagesrennen\\Samstag.csv", " 1",
                      "Hier können Sie für die Klasseneinteilung Ihre Parameter für",
                      "die Klassen eingeben. Diese werden automatisch gesichert und sind",
                      "auch nach einem Programmstart noch verfügbar. Z.B.:",
                      "Alter 0 - 5 Jahre, oder z.B. Renngruppe 2, etc.", "A bis 12 Jahre, B über 12"}));
    oeffnen();
    EXPECT_EQ(f.text_lf_datei.text(), "Samstag");
    EXPECT_TRUE(f.Check1.gesetzt());
    EXPECT_EQ(f.klassen_text[4].text(), "A bis 12 Jahre, B über 12");
    f.Command20.klicken();
    t.maschine.nicht_schreibbar = "Tagesrennen.ini";
    oeffnen();
    datei("Sonntag");
    f.Command20.klicken();
    EXPECT_TRUE(letzte_meldung().ends_with("Die Angaben gelten nur bis zum Programmende."));
    oeffnen();
    EXPECT_EQ(f.text_lf_datei.text(), "Sonntag");
    t.maschine.nicht_schreibbar.clear();
    datei("Montag");
    f.Command20.klicken();
    t.maschine.datei_schreiben("Tagesrennen.ini", "Tarvel Parameter-Datei für das Tagesrennen\r\nkurz\r\n");
    oeffnen();
    EXPECT_EQ(f.text_lf_datei.text(), "");
}

}  // namespace
}  // namespace tarvel
