// Draws the program's windows in given states: fensterbilder <folder> [<size>] [dunkel] [weiss] [englisch] [<scene>...]
// Without a screen, unless QT_QPA_PLATFORM names one: the theme of a desktop only shows there.
// With weiss the race is driven on a white screen.
// A size is written as 1024x768; without one, each scene is drawn in all of the usual ones. Without scenes, all.
// A window that is as large as it wants to be opens on a screen of the first of these sizes.
// Tells of each text that has no room, of widgets on top of one another, of a window that is larger than the size and
// from 1280x800 on of what the race window and its light show too low to be read; and then ends in 1.

#include <QApplication>
#include <QPainter>
#include <QTemporaryFile>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "tests/ui/lesbarkeit.h"
#include "tests/ui/textmasse.h"
#include "tests/ui/ueberdeckung.h"
#include "tools/fensterbilder/szenen.h"
#include "ui/stil.h"

namespace tarvel {
namespace {

const std::vector<QSize> uebliche_groessen{{1024, 768}, {1280, 800}, {1920, 1080}, {3840, 2160}};
constexpr QSize rennbildschirm(1280, 800);  ///< from this one on the letters of the race window are measured

/// Those that stand in front of the race.
std::vector<ui::Fenster*> lichter(buehne& b) {
    std::vector<ui::Fenster*> alle{&b.o.form2, &b.o.k_ampel};
    std::erase_if(alle, [](const ui::Fenster* ampel) { return !ampel->isVisible(); });
    return alle;
}

struct Auftrag {
    QString ordner;
    std::vector<QSize> groessen = uebliche_groessen;
    erscheinung wie;
    bool weiss = false;
    QStringList szenen;  ///< none for all
};

/// The window, and the light that stands in front of it.
QPixmap aufnehmen(buehne& b, QWidget& fenster) {
    QPixmap bild = fenster.grab();
    for (ui::Fenster* ampel : &fenster == &b.o.bahn1 ? lichter(b) : std::vector<ui::Fenster*>()) {
        ampel->aufschlagen();  // again, for the window has another size now
        QPainter(&bild).drawPixmap(ampel->pos() - fenster.pos(), ampel->grab());
    }
    return bild;
}

/// What is wrong with it is told.
bool pruefen(buehne& b, const QWidget& fenster, const QString& szene, const QSize& groesse) {
    QStringList fehler = test::beschnittene_texte(fenster) + test::ueberdeckte_widgets(fenster);
    if (&fenster == &b.o.bahn1 && groesse.height() >= rennbildschirm.height()) {
        fehler += test::zu_niedrige_schriften(fenster, fenster.height());
        for (const QWidget* ampel : lichter(b)) {
            fehler += test::beschnittene_texte(*ampel) + test::zu_niedrige_schriften(*ampel, fenster.height());
        }
    }
    if (fenster.width() > groesse.width() || fenster.height() > groesse.height()) {
        fehler << QString("larger: %1x%2").arg(fenster.width()).arg(fenster.height());
    }
    for (const QString& text : fehler) {
        std::fprintf(stderr, "%s: %s\n", szene.toUtf8().constData(), text.toUtf8().constData());
    }
    return fehler.isEmpty();
}

bool zeichnen(const szeneneintrag& gewuenscht, const Auftrag& a) {
    const std::vector<QSize>& groessen = a.groessen;
    buehne b(a.wie);
    if (a.weiss) {
        b.p.einst.farben_ampel[1] = 0xFFFFFF;
        b.p.einst.farben_schrift[2] = 0x000000;
    }
    QWidget& fenster = gewuenscht.zeigen(b);
    bool gut = true;
    for (const QSize& groesse : gewuenscht.eigene_groesse ? std::vector{fenster.size()} : groessen) {
        fenster.showNormal();  // the race window fills its screen otherwise
        fenster.resize(groesse);
        QTest::qWait(60);  // layouts settle in several turns of the loop
        b.o.takt.ausfuehren();
        QTest::qWait(60);
        const QString masse = QString("%1x%2").arg(groesse.width()).arg(groesse.height());
        const QString datei = a.ordner + "/" + gewuenscht.name +
                              (gewuenscht.eigene_groesse || groessen.size() == 1 ? QString() : "_" + masse) + ".png";
        gut = aufnehmen(b, fenster).save(datei) && gut;
        gut = pruefen(b, fenster, gewuenscht.name + QString(" ") + masse,
                      gewuenscht.eigene_groesse ? fenster.size() : groesse) &&
              gut;
    }
    return gut;
}

}  // namespace
}  // namespace tarvel

namespace tarvel {
namespace {

Auftrag auftrag_lesen(QStringList argumente) {
    Auftrag a;
    a.ordner = argumente.takeFirst();
    const QStringList masse = argumente.isEmpty() ? QStringList() : argumente.front().split('x');
    if (masse.size() == 2 && masse[0].toInt() > 0 && masse[1].toInt() > 0) {
        a.groessen = {QSize(masse[0].toInt(), masse[1].toInt())};
        argumente.removeFirst();
    }
    if (argumente.removeAll("dunkel") > 0) {
        a.wie.fenster = aussehen::dunkel;
    }
    if (argumente.removeAll("englisch") > 0) {
        a.wie.sprachordner = "language-en";
    }
    a.weiss = argumente.removeAll("weiss") > 0;
    a.szenen = argumente;
    return a;
}

bool ausfuehren(Auftrag a) {
    std::filesystem::create_directories(a.ordner.toStdU16String());
    bool gut = true;
    const bool alle = a.szenen.isEmpty();
    std::vector<szeneneintrag> szenen = fensterszenen();
    for (const auto* weitere :
         {&rennszenen(), &lagenszenen(), &abendszenen(), &auswertungsszenen(), &ergebnisszenen(), &randszenen()}) {
        szenen.insert(szenen.end(), weitere->begin(), weitere->end());
    }
    for (const auto& szene : szenen) {
        if (alle || a.szenen.removeAll(szene.name) > 0) {
            gut = zeichnen(szene, a) && gut;
        }
    }
    for (const QString& unbekannt : a.szenen) {
        std::fprintf(stderr, "keine Szene: %s\n", unbekannt.toUtf8().constData());
        gut = false;
    }
    return gut;
}

/// The description of a screen without a display, for Qt to read. At twice the scale it has twice the pixels.
QByteArray schirm(const QSize& groesse) {
    const double skala = std::max(qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(), 1.0);
    return QString(R"({"screens": [{"name": "1", "x": 0, "y": 0, "width": %1, "height": %2,)"
                   R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
        .arg(groesse.width() * skala)
        .arg(groesse.height() * skala)
        .toUtf8();
}

}  // namespace
}  // namespace tarvel

int main(int argc, char** argv) {
    const QStringList argumente(argv + 1, argv + argc);
    if (argumente.isEmpty()) {
        std::fprintf(stderr, "fensterbilder <Ordner> [<Breite>x<Hoehe>] [dunkel] [weiss] [englisch] [<Szene>...]\n");
        return 2;
    }
    const tarvel::Auftrag auftrag = tarvel::auftrag_lesen(argumente);
    QTemporaryFile beschreibung;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        if (!beschreibung.open() || beschreibung.write(tarvel::schirm(auftrag.groessen.front())) < 0 ||
            !beschreibung.flush()) {
            return 1;
        }
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + beschreibung.fileName().toUtf8());
    }
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tarvel::ui::stil::anwenden(anwendung);
    return tarvel::ausfuehren(auftrag) ? 0 : 1;
}
