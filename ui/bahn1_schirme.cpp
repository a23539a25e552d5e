// On which screen the race window is, and where its commands are meanwhile.
#include <QGuiApplication>
#include <QMoveEvent>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "ui/bahn1_fenster.h"

namespace tarvel::ui {
namespace {

using f = fenster_teil;

/// The second screen, if there is one: that on which the main window is not.
QScreen* zweiter_schirm(const QWidget& fenster) {
    const QScreen* erster = fenster.parentWidget() != nullptr ? fenster.parentWidget()->screen() : fenster.screen();
    const QList<QScreen*> alle = QGuiApplication::screens();
    const auto zweiter = std::find_if(alle.begin(), alle.end(), [erster](const QScreen* s) { return s != erster; });
    return zweiter != alle.end() ? *zweiter : nullptr;
}

}  // namespace

void Bahn1Fenster::schirm_fuellen() {
    const QScreen* zweiter = logik_.umgebung.einst.rennbild.auf_schirm_2 ? zweiter_schirm(*this) : nullptr;
    befehle_verlegen(zweiter != nullptr);
    const QScreen* ziel = zweiter != nullptr ? zweiter : screen();
    const QRect schirm = ziel->availableGeometry();
    const bool fenstermodus = logik_.umgebung.einst.fenstermodus;
    setGeometry(
        isVisible() && !fenstermodus  // from one screen to the other
            ? ziel->geometry()
            : schirm.adjusted(schirm.width() / 16, schirm.height() / 12, -schirm.width() / 16, -schirm.height() / 16));
    if (fenstermodus) {
        showNormal();
    } else {
        showFullScreen();
    }
    if (befehle_woanders_) {
        logik_.umgebung.fenster.zeigen(fenstername::leitstand);
    } else {
        logik_.umgebung.fenster.entladen(fenstername::leitstand);
    }
}

void Bahn1Fenster::neu_verteilen() {
    if (!isWindow() || !isVisible() || !logik_.umgebung.einst.rennbild.auf_schirm_2) {
        return;
    }
    QTimer::singleShot(0, this, [this] {  // the desktop has not done with the screens yet
        schirm_fuellen();
        if (!befehle_woanders_) {
            activateWindow();
        }
    });
}

void Bahn1Fenster::befehle_verlegen(bool woanders) {
    befehle_woanders_ = woanders;
    befehle_zeigen();
    teil(f::werbe_label)->setParent(woanders ? this : teil(f::Frame1));
    teil(f::werbe_label)->show();
    anordnen();
}

void Bahn1Fenster::befehle_zeigen() {
    const bahn1& bahn = logik_.bahn1;
    for (const auto& [name, element] :
         {std::pair<f, const rahmen&>{f::Frame1, bahn.Frame1}, {f::ch_strafframe, bahn.ch_strafframe}}) {
        if (teil(name) != nullptr) {  // both are made one after the other
            teil(name)->setVisible(!befehle_woanders_ && element.sichtbar());
        }
    }
}

void Bahn1Fenster::aufschlagen() {
    if (!isVisible()) {
        schirm_fuellen();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    anordnen();
    raise();
    if (!befehle_woanders_) {
        activateWindow();
    }
}

void Bahn1Fenster::moveEvent(QMoveEvent* ereignis) {
    Fenster::moveEvent(ereignis);
    umgezogen();
}

void Bahn1Fenster::umgezogen() {
    constexpr int ruhe_ms = 250;  // the desktop tells places and sizes one after the other
    umzug_.start(isWindow() ? ruhe_ms : 0);
}

}  // namespace tarvel::ui
