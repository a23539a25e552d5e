#include <QApplication>
#include <QPainter>
#include <QTimer>
#include <array>
#include <string>
#include <utility>

#include "competition/rangliste.h"
#include "competition/w_auswertung.h"
#include "core/text.h"
#include "platform_qt/qt_meldungen.h"
#include "results/w_auswertung2.h"
#include "tests/ergebnistabelle_probe.h"
#include "tests/plattform/vereinswettkampf.h"
#include "tests/ui/textmasse.h"
#include "tools/fensterbilder/szenen.h"

namespace tarvel {
namespace {

/// Thirty letters each.
constexpr std::array<const char*, spuren_max> lange_namen{
    "Maximilian-Alexander Wörgötter", "Wilhelmine von Mecklenburg-Sch", "Hans-Joachim Großmann-Wüstenba",
    "Anneliese Schwarzenberger-Wamm", "Karl-Friedrich Schulze-Mommsen", "Friederike Wagenknecht-Müllerm"};
constexpr std::array<const char*, spuren_max> lange_fahrzeuge{
    "Mercedes-Benz CLK GTR Weltmeis", "Porsche 917K Martini Le Mans W", "Lamborghini Murciélago LP 640 ",
    "Volkswagen Käfer 1303 S Rallye", "McLaren-Mercedes MP4-23 Wurzbu", "Wartburg 353 W Gruppe 2 Wismut"};

std::string langer_name(std::size_t nummer) {
    std::string name = lange_namen.at(nummer % lange_namen.size());
    return nummer < lange_namen.size() ? name : name.substr(0, name.size() - 3) + " " + std::to_string(nummer);
}

void lange_namen_aufstellen(buehne& b) {
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        b.p.form1.fahrer.at(i).eingeben(lange_namen.at(i));
        b.p.form1.auto_.at(i).eingeben(lange_fahrzeuge.at(i));
        b.p.fahrerliste.hinzufuegen(lange_namen.at(i));
    }
    b.p.form1.listen_zeigen();
}

/// A lap race of all lanes with long names is over.
void langes_ergebnis(buehne& b) {
    lange_namen_aufstellen(b);
    b.ergebnis("14", {1, 2, 3, 4, 5, 6});
}

wettkampf langer_wettkampf(wettkampf_modus modus, int fahrer, std::initializer_list<int> lanes, int rennen) {
    wettkampf w = test::vereinswettkampf::neu(modus, fahrer, lanes);
    for (std::size_t i = 0; i < w.teilnehmer.size(); ++i) {
        w.teilnehmer[i] = langer_name(i);
    }
    test::vereinswettkampf::fahren(w, rennen);
    return w;
}

template <fenstername name>
void wettkampf_zeigen(buehne& b, wettkampf w) {
    b.p.wettkampfabend.beginnen(std::move(w));
    b.p.fenster.zeigen(name);
}

rennergebnis langes_rennen() {
    rennergebnis e = test::rennen_mit({lange_namen.begin(), lange_namen.end()}, 24, "11:14:27");
    for (rennergebnis::spur& s : e.spuren) {
        s.fahrzeug = lange_fahrzeuge.at(feld_index(s.nummer));
    }
    return e;
}

w_auswertung2& betrachter(buehne& b, const std::string& datei, const std::vector<std::string>& zeilen) {
    b.p.ablage.zeilen_schreiben("Ergebnisse\\" + datei, zeilen);
    b.p.w_auswertung2.datei_zeigen("Ergebnisse\\" + datei);
    return b.p.w_auswertung2;
}

/// What a box that waits for an answer looked like.
class Boxbild final : public QWidget {
public:
    Boxbild(QWidget* eltern, QPixmap bild) : QWidget(eltern, Qt::Window), bild_(std::move(bild)) {
        resize(bild_.deviceIndependentSize().toSize());
        show();
    }

protected:
    void paintEvent(QPaintEvent* /*ereignis*/) override { QPainter(this).drawPixmap(0, 0, bild_); }

private:
    QPixmap bild_;
};

/// A box with this in it, in front of the main window.
template <class Stellen>
QWidget& box_zeigen(buehne& b, Stellen stellen) {
    QPixmap bild;
    QTimer::singleShot(300, &b.o.form1, [&bild] {
        QWidget* box = QApplication::activeModalWidget();
        for (const QString& text : test::beschnittene_texte(*box)) {
            qWarning("%s", qPrintable(text));
        }
        bild = box->grab();
        box->close();
    });
    qt::QtMeldungen meldungen;
    meldungen.knoepfe_beschriften(b.p.txt.ja, b.p.txt.nein, b.p.txt.datei_text[texte::abbrechen]);
    stellen(meldungen, b.p.txt);
    return *new Boxbild(&b.o.form1, bild);
}

using m = wettkampf_modus;

const std::vector<szeneneintrag> alle_randszenen{
    {"lang_hauptfenster",
     [](buehne& b) -> QWidget& {
         lange_namen_aufstellen(b);
         return b.o.form1;
     }},
    {"lang_hauptfenster_liste",
     [](buehne& b) -> QWidget& {
         lange_namen_aufstellen(b);
         b.p.form1.command_liste.klicken();
         return b.o.form1;
     }},
    {"lang_auswertung",
     [](buehne& b) -> QWidget& {
         langes_ergebnis(b);
         return b.o.auswertung;
     }},
    {"lang_rundenverlauf",
     [](buehne& b) -> QWidget& {
         langes_ergebnis(b);
         b.p.auswertung.Command_verlauf.klicken();
         return b.o.auswertung;
     }},
    {"lang_nachtragen",
     [](buehne& b) -> QWidget& {
         langes_ergebnis(b);
         b.p.auswertung.liste[0].auswaehlen(4);
         b.p.auswertung.Command_nachtragen.klicken();
         return b.o.auswertung;
     }},
    {"lang_protokoll",
     [](buehne& b) -> QWidget& {
         langes_ergebnis(b);
         b.p.auswertung.Command_protokoll.klicken();
         return *b.o.protokoll;
     }},
    {"lang_urkunden",
     [](buehne& b) -> QWidget& {
         langes_ergebnis(b);
         b.p.auswertung.Command_urkunden.klicken();
         b.p.ergebnis_fluegel().urkunden.verein.eingeben("Slotfreunde Nordheide und Umgebung von 1978 e. V.");
         b.p.ergebnis_fluegel().urkunden.veranstaltung.eingeben("Kinder- und Jugendpokal 2026, dritter Wertungslauf");
         return *b.o.urkunden;
     }},
    {"lang_bestzeiten",
     [](buehne& b) -> QWidget& {
         b.p.bestzeiten.leeren();
         langes_ergebnis(b);
         b.p.auswertung.Command5.klicken();
         return *b.o.bestzeiten;
     },
     true},
    {"lang_bestzeitverwaltung",
     [](buehne& b) -> QWidget& {
         for (const int spur : alle_spuren) {
             const std::size_t i = feld_index(spur);
             b.p.bestzeiten.einfuegen(spur, {6500, lange_namen.at(i), lange_fahrzeuge.at(i), "12.09.2026"});
         }
         b.p.beste_zeiten_verwaltung.oeffnen();
         return *b.o.bestzeitverwaltung;
     }},
    {"lang_wettkampf_vorbereiten",
     [](buehne& b) -> QWidget& {
         lange_namen_aufstellen(b);
         b.p.form1.Command3.klicken();
         b.p.wettkampf1.Command17.klicken();
         b.p.wettkampf1.auswahlliste.auswaehlen(7);
         return *b.o.wettkampf1;
     }},
    {"lang_wettkampf2",
     [](buehne& b) -> QWidget& {
         wettkampf_zeigen<fenstername::wettkampf2>(b, langer_wettkampf(m::rotation, 20, {1, 2, 3, 4, 5, 6}, 4));
         return *b.o.wettkampf2;
     }},
    {"lang_wettkampf2_aushang",
     [](buehne& b) -> QWidget& {
         wettkampf_zeigen<fenstername::wettkampf2>(b, langer_wettkampf(m::rotation, 20, {1, 2, 3, 4, 5, 6}, 4));
         b.p.wettkampf2.Command_aushang.klicken();
         return *b.o.wettkampf2;
     }},
    {"lang_wettkampf2_ende",
     [](buehne& b) -> QWidget& {
         wettkampf_zeigen<fenstername::wettkampf2>(b, langer_wettkampf(m::rotation, 6, {1, 2, 3}, 6));
         return *b.o.wettkampf2;
     }},
    {"lang_w_auswertung",
     [](buehne& b) -> QWidget& {
         wettkampf_zeigen<fenstername::w_auswertung>(b, langer_wettkampf(m::rotation, 12, {1, 2, 3, 4, 5, 6}, 12));
         return *b.o.w_auswertung;
     }},
    {"lang_rangliste",
     [](buehne& b) -> QWidget& {
         wettkampf_zeigen<fenstername::rangliste>(b, langer_wettkampf(m::rotation, 12, {1, 2, 3, 4, 5, 6}, 12));
         return *b.o.rangliste;
     }},
    {"lang_betrachter",
     [](buehne& b) -> QWidget& {
         betrachter(b, "Einzelrennen\\Klubmeisterschaft der Slotfreunde Nordheide, erster Vorlauf.csv",
                    test::rennzeilen(langes_rennen()));
         return *b.o.w_auswertung2;
     }},
    {"lang_betrachter_blatt",
     [](buehne& b) -> QWidget& {
         betrachter(b, "Einzelrennen\\Vorlauf.csv", test::rennzeilen(langes_rennen())).Command_blick[1].klicken();
         return *b.o.w_auswertung2;
     }},
    {"lang_betrachter_vergleich",
     [](buehne& b) -> QWidget& {
         betrachter(b, "Einzelrennen\\Vorlauf.csv", test::rennzeilen(langes_rennen())).Command_blick[3].klicken();
         return *b.o.w_auswertung2;
     }},
    {"lang_tagesrennen",
     [](buehne& b) -> QWidget& {
         lange_namen_aufstellen(b);
         std::string tag = "Tarvel Tagesrennen\r\n";
         for (const char* wer : lange_namen) {
             tag += std::string("A;") + wer + "; 12;125.40;00:08,123;01:42,004\r\n";
         }
         b.t.maschine.datei_schreiben("Ergebnisse/Tagesrennen/Samstag.csv", nach_1252(tag));
         b.p.form1.command17.klicken();
         b.p.tagesrennen_fenster.text_lf_datei.eingeben("Samstag");
         b.p.tagesrennen_fenster.Check1.umschalten();
         b.t.maschine.laufen(1000);
         return *b.o.tagesrennen;
     }},
    {"leer_fahrer",
     [](buehne& b) -> QWidget& {
         b.p.fahrerliste.eingebaut({});
         b.p.fahrerliste.laden(b.p.ablage, "keine Datei");
         b.p.einstellungsfenster.oeffnen(einstellungsfenster::seite_fahrer);
         return *b.o.einstellungen;
     }},
    {"leer_bestzeiten",
     [](buehne& b) -> QWidget& {
         b.p.bestzeiten.leeren();
         b.p.beste_zeiten_verwaltung.oeffnen();
         return *b.o.bestzeitverwaltung;
     }},
    {"leer_urkunden",
     [](buehne& b) -> QWidget& {
         b.p.ergebnis_fluegel().urkunden.oeffnen({}, "21.11.2026", "Tagesrennen");
         return *b.o.urkunden;
     }},
    {"leer_auswertung",
     [](buehne& b) -> QWidget& {
         b.einrichten("Zeit", "1", {1, 2});
         b.t.bahn().Command1.klicken();
         b.t.maschine.laufen(90000);
         return b.o.auswertung;
     }},
    {"frage",
     [](buehne& b) -> QWidget& {
         return box_zeigen(b, [](qt::QtMeldungen& meldungen, const texte& txt) {
             meldungen.anbieten_mit_ausweg(txt.wettkampf.das_rennen + " 21.11.2026-14:03 " + txt.wettkampf.in_runde +
                                               " 12 " + txt.wettkampf.unterbrochen,
                                           txt.titel[0], {txt.wettkampf.weiterfahren, txt.wettkampf.naechstes});
         });
     },
     true},
    {"meldung",
     [](buehne& b) -> QWidget& {
         return box_zeigen(
             b, [](qt::QtMeldungen& meldungen, const texte& txt) { meldungen.zeigen(txt.meldung[1], txt.titel[1]); });
     },
     true},
};

}  // namespace

const std::vector<szeneneintrag>& randszenen() {
    return alle_randszenen;
}

}  // namespace tarvel
