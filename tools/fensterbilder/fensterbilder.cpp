// Draws the program's windows in given states: fensterbilder <folder> [<size>] [dunkel] [englisch] [<scene>...]
// Without a screen, unless QT_QPA_PLATFORM names one: the theme of a desktop only shows there.
// A size is written as 1024x768; without one, each scene is drawn in all of the usual ones. Without scenes, all.
// Tells of each text that has no room, and then ends in 1.

#include <QApplication>
#include <QPainter>
#include <QTest>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "tests/ui/textmasse.h"
#include "tools/fensterbilder/szenen.h"
#include "ui/stil.h"

namespace tarvel {
namespace {

const std::vector<QSize> uebliche_groessen{{1024, 768}, {1280, 800}, {1920, 1080}, {3840, 2160}};

/// The window, and the light that stands in front of it.
QPixmap aufnehmen(buehne& b, QWidget& fenster) {
    QPixmap bild = fenster.grab();
    for (ui::Fenster* ampel : {static_cast<ui::Fenster*>(&b.o.form2), static_cast<ui::Fenster*>(&b.o.k_ampel)}) {
        if (&fenster == &b.o.bahn1 && ampel->isVisible()) {
            ampel->aufschlagen();  // again, for the window has another size now
            QPainter(&bild).drawPixmap(ampel->pos() - fenster.pos(), ampel->grab());
        }
    }
    return bild;
}

/// A text that is cut is told of.
bool texte_pruefen(const QWidget& fenster, const QString& szene) {
    const QStringList beschnitten = test::beschnittene_texte(fenster);
    for (const QString& text : beschnitten) {
        std::fprintf(stderr, "%s: %s\n", szene.toUtf8().constData(), text.toUtf8().constData());
    }
    return beschnitten.isEmpty();
}

bool zeichnen(const szeneneintrag& gewuenscht, const QString& ordner, const std::vector<QSize>& groessen,
              const erscheinung& wie) {
    buehne b(wie);
    QWidget& fenster = gewuenscht.zeigen(b);
    bool gut = true;
    for (const QSize& groesse : gewuenscht.eigene_groesse ? std::vector{fenster.size()} : groessen) {
        fenster.showNormal();  // the race window fills its screen otherwise
        fenster.resize(groesse);
        QTest::qWait(60);  // layouts settle in several turns of the loop
        b.o.takt.ausfuehren();
        QTest::qWait(60);
        const QString masse = QString("%1x%2").arg(groesse.width()).arg(groesse.height());
        const QString datei = ordner + "/" + gewuenscht.name +
                              (gewuenscht.eigene_groesse || groessen.size() == 1 ? QString() : "_" + masse) + ".png";
        gut = aufnehmen(b, fenster).save(datei) && gut;
        gut = texte_pruefen(fenster, gewuenscht.name + QString(" ") + masse) && gut;
    }
    return gut;
}

}  // namespace
}  // namespace tarvel

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tarvel::ui::stil::anwenden(anwendung);
    QStringList argumente = QApplication::arguments().mid(1);
    if (argumente.isEmpty()) {
        std::fprintf(stderr, "fensterbilder <Ordner> [<Breite>x<Hoehe>] [dunkel] [englisch] [<Szene>...]\n");
        return 2;
    }
    const QString ordner = argumente.takeFirst();
    std::vector<QSize> groessen = tarvel::uebliche_groessen;
    const QStringList masse = argumente.isEmpty() ? QStringList() : argumente.front().split('x');
    if (masse.size() == 2 && masse[0].toInt() > 0 && masse[1].toInt() > 0) {
        groessen = {QSize(masse[0].toInt(), masse[1].toInt())};
        argumente.removeFirst();
    }
    tarvel::erscheinung wie;
    if (argumente.removeAll("dunkel") > 0) {
        wie.fenster = tarvel::aussehen::dunkel;
    }
    if (argumente.removeAll("englisch") > 0) {
        wie.sprachordner = "language-en";
    }
    std::filesystem::create_directories(ordner.toStdU16String());
    bool gut = true;
    const bool alle = argumente.isEmpty();
    std::vector<tarvel::szeneneintrag> szenen = tarvel::fensterszenen();
    for (const auto* weitere :
         {&tarvel::rennszenen(), &tarvel::lagenszenen(), &tarvel::abendszenen(), &tarvel::ergebnisszenen()}) {
        szenen.insert(szenen.end(), weitere->begin(), weitere->end());
    }
    for (const auto& szene : szenen) {
        if (alle || argumente.removeAll(szene.name) > 0) {
            gut = tarvel::zeichnen(szene, ordner, groessen, wie) && gut;
        }
    }
    for (const QString& unbekannt : argumente) {
        std::fprintf(stderr, "keine Szene: %s\n", unbekannt.toUtf8().constData());
        gut = false;
    }
    return gut ? 0 : 1;
}
