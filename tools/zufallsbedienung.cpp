// Clicks and types at random over all windows: zufallsbedienung [<actions>] [<seed>]
// The program runs on a virtual clock in a temporary folder, without ports, printers or screen. Dialogs of the system,
// which reach the real files, are stubbed; should one open all the same, the run stops before it takes any input.

#include <QApplication>
#include <QFileDialog>
#include <QPrintDialog>
#include <QTest>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string_view>

#include "tools/fensterbilder/buehne.h"
#include "ui/stil.h"

namespace tarvel {
namespace {

class Waechter : public QObject {
public:
    bool eventFilter(QObject* was, QEvent* ereignis) override {
        const bool systemdialog =
            qobject_cast<QFileDialog*>(was) != nullptr || qobject_cast<QAbstractPrintDialog*>(was) != nullptr;
        if (systemdialog && (ereignis->type() == QEvent::Polish || ereignis->type() == QEvent::Show)) {
            std::fputs("a dialog of the system has opened\n", stderr);
            std::_Exit(3);
        }
        return QObject::eventFilter(was, ereignis);
    }
};

class bediener {
public:
    bediener(buehne& b, unsigned saat) : b_(b), wuerfel_(saat) {}

    void handeln() {
        if (QWidget* fenster = oberstes()) {
            const int was = eine_von(100);
            if (was < 60) {
                anklicken(*fenster);
            } else if (was < 98) {
                tippen(*fenster);
            } else {
                fenster->close();
            }
        }
        b_.t.maschine.antwort = eine_von(2) == 0;
        b_.t.maschine.laufen(eine_von(200) == 0 ? 1 + eine_von(20000) : 1 + eine_von(30));
        b_.o.takt.ausfuehren();
        QCoreApplication::processEvents();
    }

    /// What is open, and whether anything in it can be operated.
    QString lage() const {
        QString namen;
        for (const QWidget* fenster : QApplication::topLevelWidgets()) {
            namen += fenster->isVisible() ? fenster->objectName() + (fenster->isEnabled() ? " " : "(aus) ") : QString();
        }
        return namen;
    }

private:
    int eine_von(int anzahl) { return std::uniform_int_distribution<int>(0, anzahl - 1)(wuerfel_); }

    template <class Reihe>
    auto eine_aus(const Reihe& reihe) {
        return reihe.at(static_cast<std::size_t>(eine_von(static_cast<int>(reihe.size()))));
    }

    QWidget* oberstes() {
        if (QWidget* vorn = QApplication::activePopupWidget()) {
            return vorn;
        }
        if (QWidget* vorn = QApplication::activeModalWidget()) {
            return vorn;
        }
        QWidgetList offene = QApplication::topLevelWidgets();
        offene.removeIf([](const QWidget* fenster) { return !fenster->isVisible(); });
        return offene.isEmpty() ? nullptr : offene.at(eine_von(static_cast<int>(offene.size())));
    }

    void anklicken(QWidget& fenster) {
        QWidgetList ziele = fenster.findChildren<QWidget*>();
        ziele.removeIf([](const QWidget* w) { return !w->isVisible() || !w->isEnabled() || w->size().isEmpty(); });
        QWidget& ziel = ziele.isEmpty() ? fenster : *ziele.at(eine_von(static_cast<int>(ziele.size())));
        const QPoint ort(eine_von(std::max(ziel.width(), 1)), eine_von(std::max(ziel.height(), 1)));
        if (eine_von(8) == 0) {
            QTest::mouseDClick(&ziel, Qt::LeftButton, {}, ort);
        } else {
            QTest::mouseClick(&ziel, eine_von(12) == 0 ? Qt::RightButton : Qt::LeftButton, {}, ort);
        }
    }

    void tippen(QWidget& fenster) {
        static constexpr std::array besondere{Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab,    Qt::Key_Backtab,
                                              Qt::Key_Space,  Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left,
                                              Qt::Key_Right,  Qt::Key_Delete, Qt::Key_PageUp, Qt::Key_End,
                                              Qt::Key_F1,     Qt::Key_F10,    Qt::Key_Menu,   Qt::Key_Backspace};
        constexpr std::string_view zeichen = "1234561234561234560,.-;cnqweasdx!<~ABZ";
        QWidget* wohin = fenster.focusWidget() != nullptr ? fenster.focusWidget() : &fenster;
        if (eine_von(3) == 0) {
            QTest::keyClick(wohin, eine_aus(besondere), eine_von(10) == 0 ? Qt::ControlModifier : Qt::NoModifier);
        } else {
            QTest::keyClick(wohin, eine_aus(zeichen));
        }
    }

    buehne& b_;
    std::mt19937 wuerfel_;
};

template <class Fenster>
void ohne_papier(Fenster& fenster) {
    fenster.drucken = [] {};
    fenster.als_pdf = [] {};
}

int bedienen(long anzahl, unsigned saat) {
    constexpr long geduld = 20000;  // actions in which something must open or close
    buehne b;
    b.o.fenster.alle_machen();  // one that is made later brings its dialogs with it
    ohne_papier(b.p.auswertung);
    ohne_papier(b.p.ergebnis_fluegel().urkunden);
    ohne_papier(b.p.w_auswertung);
    ohne_papier(b.p.w_auswertung2);
    b.p.form1.beenden = [] {};
    bediener hand(b, saat);
    QString vorher;
    long seit = 0;
    for (long i = 0; i < anzahl; ++i) {
        hand.handeln();
        const QString lage = hand.lage();
        if (lage != vorher) {
            vorher = lage;
            seit = i;
        }
        if (lage.isEmpty() || i - seit > geduld) {
            std::fprintf(stderr, "dead end after %ld actions: %s\n", i, qPrintable(lage));
            return 1;
        }
        if (i % 10000 == 0) {
            std::printf("%ld %s\n", i, qPrintable(lage));
            std::fflush(stdout);
        }
    }
    return 0;
}

}  // namespace
}  // namespace tarvel

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    tarvel::ui::stil::anwenden(anwendung);
    tarvel::Waechter waechter;
    anwendung.installEventFilter(&waechter);
    const QStringList argumente = QApplication::arguments();
    return tarvel::bedienen(argumente.value(1, "100000").toLong(), argumente.value(2, "7").toUInt());
}
