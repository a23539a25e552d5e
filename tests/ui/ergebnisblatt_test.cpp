#include "ui/ergebnisblatt.h"

#include <sys/resource.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <csignal>

#include "tests/ergebnistabelle_probe.h"
#include "tests/programm_probe.h"
#include "ui/rundendiagramm.h"
#include "ui/urkundenbild.h"

namespace tarvel {
namespace {

/// As if the disk were full after so many bytes.
class VolleFestplatte {
public:
    explicit VolleFestplatte(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &vorher_);
        const rlimit knapp{bytes, vorher_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &knapp);
    }
    VolleFestplatte(const VolleFestplatte&) = delete;
    VolleFestplatte& operator=(const VolleFestplatte&) = delete;
    ~VolleFestplatte() {
        setrlimit(RLIMIT_FSIZE, &vorher_);
        std::signal(SIGXFSZ, signal_);
    }

private:
    void (*signal_)(int);
    rlimit vorher_{};
};

QByteArray inhalt_von(const QString& pfad) {
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

/// All lanes drive; in lap 5 lies one car for a minute beside the track.
ui::rundenbild_inhalt bild_mit(int runden) {
    ui::rundenbild_inhalt bild;
    for (const int spur : alle_spuren) {
        bild.farben[spur] = spur == 6 ? 0xFFFFFF : 0x4040U * static_cast<unsigned>(spur);
        bild.verlauf.push_back({spur, std::string(60, 'W') + std::to_string(spur), false, {}, runden > 2 ? 3 : 0});
        for (int runde = 1; runde <= runden; ++runde) {
            const zeit_ms zeit = runde == 5 && spur == 2 ? 62431 : 7000 + 100 * spur + runde * 37 % 400;
            bild.verlauf.back().runden.push_back({runde, zeit, runde == 4 ? 9000 : 0});
        }
    }
    sprachliste texte("");
    bild.wort.eintragen(texte).deutsch_setzen();
    return bild;
}

class Ergebnisblatt : public testing::Test {
protected:
    ui::ergebnisblatt bilden(ui::rundenbild_inhalt bild, const std::string& fahrer = {}) {
        rennergebnis ergebnis = t.p.wertung.ergebnis();
        for (rennergebnis::spur& s : ergebnis.spuren) {
            s.fahrer = fahrer.empty() ? s.fahrer : fahrer;
            s.fahrzeug = "Kremer " + std::string(53, 'M');
        }
        const auswertung& a = t.p.auswertung;
        return ui::ergebnisblatt_bilden(ergebnis, {a.titel.text(), a.kopf(), a.wort_strafzeit(), a.blatt},
                                        std::move(bild));
    }

    test::testprogramm t;
    QString pfad = QString::fromStdString((t.maschine.ordner() / "Blatt" / "Blatt.pdf").string());
};

TEST_F(Ergebnisblatt, LangerTextWirdKleinerStattGekuerzt) {
    for (const char* text : {"Kinder- und Jugendpokal 2026, dritter Wertungslauf", "Maximilian-Alexander Wörgötter"}) {
        for (int px = 40; px <= 110; ++px) {
            QFont schrift = ui::schrift_mit(px, false);
            schrift.setItalic(px % 2 == 0);
            const double platz = QFontMetricsF(schrift).horizontalAdvance(text) * (0.5 + px % 10 * 0.05);
            const QFontMetricsF masse(ui::eingepasst(schrift, text, platz));
            EXPECT_LE(masse.horizontalAdvance(text), platz) << text << " in " << px;
        }
    }
}

TEST_F(Ergebnisblatt, ZeigtDenStandInDerFolgeDerPlaetze) {
    t.starten("Zeit", "1", {1, 2, 4});
    t.runde_nach(1000, "124");
    t.runde_nach(6000, "124");
    t.runde_nach(6000, "24");
    t.runde_nach(6500, "2");
    t.spur(1).disqualifiziert = true;
    t.spur(4).strafzeit = 10s;
    t.maschine.laufen(60000);
    const ui::ergebnisblatt blatt = bilden({});
    ASSERT_EQ(blatt.zeilen.size(), 3U);
    const auto zellen = [&blatt](std::size_t zeile) {
        QStringList texte;
        for (const ui::blattzelle& zelle : blatt.zeilen[zeile].zellen) {
            texte << zelle.text;
        }
        return texte.join("|").toStdString();
    };
    EXPECT_EQ(zellen(0), "1.|2|Fahrer 2|3|75,00 m|00:18,500||06,000|15,00 / 14,59 km/h");
    EXPECT_EQ(blatt.zeilen[1].zellen[5].zusatz, "Strafzeit: 10 sec");
    EXPECT_EQ(zellen(2), "3.|1|Fahrer 1|Dis.|–|–|–|–|–");
    EXPECT_EQ(blatt.spalten.size(), blatt.zeilen[0].zellen.size());
    ASSERT_EQ(blatt.rundenspalten.size(), 2U) << "a lane without a counted lap has no lap times";
    EXPECT_EQ(blatt.rundenspalten[0].zeiten, (std::vector<QString>{"00:06,000", "00:06,000", "00:06,500"}));
    EXPECT_EQ(blatt.rundenspalten[0].beste, 1U);
    EXPECT_TRUE(blatt.kopf.endsWith("Strecke 25 m")) << blatt.kopf.toStdString();
}

TEST_F(Ergebnisblatt, EineSeiteFuerDieWandErsetztDieAlteDateiNurGanz) {
    t.starten("Runden", "1", {1, 2, 3, 4, 5, 6});
    t.runde_nach(1000, "123456");
    t.runde_nach(6000, "123456");
    const std::string langer_name(60, 'W');
    for (const int runden : {0, 1, 2000}) {
        ASSERT_TRUE(ui::ergebnisblatt_pdf(pfad, bilden(bild_mit(runden), langer_name)));
        const QByteArray pdf = inhalt_von(pfad);
        EXPECT_TRUE(pdf.startsWith("%PDF"));
        EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
        EXPECT_EQ(pdf.count("/Type /Page\n"), 2) << "and one of lap times";
    }
    const QByteArray vorher = inhalt_von(pfad);
    {
        const VolleFestplatte voll(20000);
        EXPECT_FALSE(ui::ergebnisblatt_pdf(pfad, bilden(bild_mit(100))));
    }
    EXPECT_EQ(inhalt_von(pfad), vorher);
    EXPECT_FALSE(ui::ergebnisblatt_pdf(pfad + "/darunter.pdf", bilden({}))) << "below a file";
    EXPECT_EQ(QFileInfo(pfad).dir().entryList(QDir::Files).size(), 1) << "nothing is left beside it";
}

TEST_F(Ergebnisblatt, JederFahrerHatEineUrkundeAufEinerSeite) {
    const dateien ablage(t.maschine.ordner());
    const gelesene_vorlage vorlage = vorlage_lesen(eingebaute_vorlage());
    rennergebnis e = test::rennen_mit({std::string(60, 'W'), "", "Käthe"}, 3, "14:03:22");
    t.maschine.datei_schreiben("kaputt.jpg", "no picture");
    std::vector<ui::urkundenbogen> boegen;
    for (urkunde u : urkunden_bilden(e, {})) {
        u.fahrerbild = u.spur == 1 ? "kaputt.jpg" : "../../fehlt.jpg";
        boegen.push_back(ui::bogen_bilden(ablage, vorlage.vorlage, u, Qt::red));
    }
    ASSERT_TRUE(ui::blatt_als_pdf(pfad, ui::urkundenseiten("Urkunden", std::move(boegen))));
    EXPECT_EQ(inhalt_von(pfad).count("/Type /Page\n"), 3);
    EXPECT_TRUE(inhalt_von(pfad).contains("/MediaBox [0 0 595"));
}

TEST_F(Ergebnisblatt, DruckenWartetNichtUndHinterlaesstKeinenDialog) {
    QWidget fenster;
    const ui::ergebnisblatt blatt = bilden(bild_mit(10));
    ui::ergebnisblatt_drucken(&fenster, blatt, [] { ADD_FAILURE() << "the printer did not begin"; });
    auto* dialog = fenster.findChild<QPrintDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowModality(), Qt::ApplicationModal) << "no window of the program comes in front of it";
    const QString gedruckt = QString::fromStdString((t.maschine.ordner() / "gedruckt.pdf").string());
    dialog->printer()->setOutputFileName(gedruckt);
    emit dialog->accepted(dialog->printer());
    EXPECT_EQ(inhalt_von(gedruckt).count("/Type /Page\n"), 1);
    dialog->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(fenster.findChild<QPrintDialog*>(), nullptr);
}

TEST(Rundendiagramm, EineAbgeschnitteneRundeSagtIhreZeit) {
    ui::Rundenbild bild;
    bild.setGroesse({1200, 400});
    bild.setInhalt(bild_mit(20));
    const auto* hoch = qobject_cast<QValueAxis*>(bild.axes(Qt::Vertical).front());
    ASSERT_NE(hoch, nullptr);
    EXPECT_LT(hoch->max(), 10);
    const QString tipp = bild.runde_bei(bild.mapToPosition({5, hoch->max()}, bild.series().front()));
    EXPECT_TRUE(tipp.contains("W2")) << tipp.toStdString();
    EXPECT_TRUE(tipp.contains("01:02,431")) << tipp.toStdString();
    EXPECT_EQ(bild.runde_bei({-500, -500}), "");
}

}  // namespace
}  // namespace tarvel
