#include "ui/fenster.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

/// `QWidget::isAncestorOf` ends at the edge of a window.
bool gehoert_zu(const QWidget* fenster, const QWidget* offen) {
    while (fenster != nullptr && fenster != offen) {
        fenster = fenster->parentWidget();
    }
    return fenster == offen;
}

/// Ctrl and Alt together are AltGr.
bool tippt_etwas(const QKeyEvent& taste) {
    return !taste.modifiers().testFlag(Qt::ControlModifier) && !taste.modifiers().testFlag(Qt::KeypadModifier) &&
           !taste.text().isEmpty() && taste.text().front().isPrint();
}

bool nimmt_zeichen(const QObject* ziel) {
    return qobject_cast<const QLineEdit*>(ziel) != nullptr || qobject_cast<const QComboBox*>(ziel) != nullptr ||
           qobject_cast<const QAbstractItemView*>(ziel) != nullptr;
}

}  // namespace

Fenster::Fenster(fensterlogik& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : QWidget(eltern, Qt::Window),
      logik_(logik),
      binder_(QString::fromUtf8(text_von(logik.kennung()).data()), verwaltung.takt(), verwaltung.bilder(), this) {
    setObjectName(QString::fromUtf8(text_von(logik.kennung()).data()));
    binder_.fenstertitel(logik.titelzeile());
    if (logik.escape_schliesst()) {
        bei_escape = [this] { close(); };
    }
    verwaltung.aufnehmen(*this);
}

void vor_allem_zeigen(QDialog& dialog) {
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

bool Fenster::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::WindowActivate && bei_aktivierung) {
        bei_aktivierung();
    }
    if (ereignis->type() == QEvent::WindowActivate) {
        nach_vorn_lassen();
    }
    return QWidget::event(ereignis);
}

void Fenster::nach_vorn_lassen() {
    QWidget* gefragt = QApplication::activeModalWidget();
    if (gefragt != nullptr && gefragt->isVisible() && !gehoert_zu(this, gefragt)) {
        QTimer::singleShot(0, gefragt, [gefragt] {  // the desktop has not done with this window yet
            const bool vorn = gehoert_zu(QApplication::activeWindow(), gefragt);  // meanwhile, or what it has opened
            if (!vorn && gefragt == QApplication::activeModalWidget()) {
                gefragt->raise();
                gefragt->activateWindow();
            }
        });
    }
}

void Fenster::closeEvent(QCloseEvent* ereignis) {
    ereignis->ignore();
    logik_.schliessen();
}

void Fenster::keyPressEvent(QKeyEvent* ereignis) {
    if (bei_escape && ereignis->key() == Qt::Key_Escape) {
        bei_escape();
    } else {
        QWidget::keyPressEvent(ereignis);
    }
}

QScreen* Fenster::schirm_des_leiters() const {
    const QWidget* wer = QApplication::activeWindow();
    if (wer != nullptr && wer != this) {
        return wer->screen();
    }
    const QWidget* haupt = this;  // another program has the keys: the main window is never on the public's screen
    while (haupt->parentWidget() != nullptr) {
        haupt = haupt->parentWidget();
    }
    return haupt->screen();
}

void Fenster::zentrieren() {
    constexpr int rahmen_px = 40;  // title bar and edges of the desktop
    constexpr int seiten_px = 12;
    const QRect platz = schirm_des_leiters()->availableGeometry();
    const QSize gewuenscht = size().expandedTo(minimumSizeHint());
    resize(gewuenscht.boundedTo({platz.width() - seiten_px, platz.height() - rahmen_px}));
    move(platz.center() - rect().center() - QPoint(0, rahmen_px / 4));
}

void Fenster::vor_sein_fenster_stellen() {
    QWidget* vorn = QApplication::activeWindow();
    const bool woanders = parentWidget() != nullptr && !parentWidget()->isVisible() && vorn != nullptr && vorn != this;
    dahinter_ = woanders ? vorn : parentWidget();
    if (woanders) {
        winId();  // makes its handle
    }
    if (windowHandle() != nullptr && dahinter_ != nullptr) {
        windowHandle()->setTransientParent(dahinter_->windowHandle());
    }
}

void Fenster::aufschlagen() {
    if (!isVisible()) {
        zentrieren();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void Fensterverwaltung::bereitstellen(fenstername name) {
    if (const auto knoten = noch_zu_machen_.extract(name)) {
        knoten.mapped()();
    }
}

void Fensterverwaltung::alle_machen() {
    while (!noch_zu_machen_.empty()) {
        bereitstellen(noch_zu_machen_.begin()->first);
    }
}

void Fensterverwaltung::zeigen(fenstername name, anzeige_art art) {
    bereitstellen(name);
    const auto gefunden = fenster_.find(name);
    if (gefunden == fenster_.end()) {
        return;
    }
    Fenster* fenster = gefunden->second;
    if (!fenster->isVisible()) {
        fenster->setWindowModality(art == anzeige_art::modal ? Qt::ApplicationModal : Qt::NonModal);
        fenster->vor_sein_fenster_stellen();
    }
    takt_.ausfuehren();
    if (!fenster->isVisible()) {
        fenster->kuerzel_verteilen();
        if (fenster->kommt_ungerufen()) {
            ungerufen_ = fenster;
            seit_ungerufen_.start();
            seit_getippt_.start();
        }
    }
    fenster->aufschlagen();
}

void Fensterverwaltung::erscheinen(const erscheinung& wie) {
    stil::faerben(wie.fenster);
    const QString datei = "qtbase_" + QString::fromStdString(sprachkuerzel(wie.sprachordner));
    QApplication::removeTranslator(&qt_texte_);
    if (qt_texte_.load(datei, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&qt_texte_);
    }
    takt_.ausfuehren();  // the captions of the language first
    for (const auto& [name, fenster] : fenster_) {
        if (fenster->isVisible()) {
            fenster->kuerzel_verteilen();
        }
    }
}

void Fensterverwaltung::verbergen(fenstername name) {
    const auto gefunden = fenster_.find(name);
    if (gefunden == fenster_.end()) {
        return;
    }
    Fenster* fenster = gefunden->second;
    const bool war_vorn = fenster->isActiveWindow();
    fenster->hide();
    QWidget* dahinter = fenster->dahinter();
    if (war_vorn && dahinter != nullptr && dahinter->isVisible()) {  // else the keys may reach no window at all
        dahinter->activateWindow();
    }
}

bool Fensterverwaltung::fragt() const {
    return qobject_cast<const QDialog*>(QApplication::activeModalWidget()) != nullptr;  // the program's own are none
}

bool Fensterverwaltung::galt_anderem(bool getippt) {
    constexpr qint64 pause_ms = 500;
    constexpr qint64 laengstens_ms = 2000;
    if (ungerufen_ == nullptr || QApplication::activeWindow() != ungerufen_) {
        return false;
    }
    if (seit_getippt_.elapsed() > pause_ms || seit_ungerufen_.elapsed() > laengstens_ms) {
        ungerufen_ = nullptr;
        return false;
    }
    if (getippt) {
        seit_getippt_.start();
    }
    return true;
}

bool Fensterverwaltung::taste_schlucken(QObject* ziel, QKeyEvent& taste) {
    const bool gehalten = tastenhalt_.gehalten(taste);
    if (taste.type() == QEvent::KeyRelease && taste.key() == Qt::Key_Alt) {
        seit_schluss_.invalidate();
    }
    const bool druck = taste.type() == QEvent::ShortcutOverride || taste.type() == QEvent::KeyPress;
    if (druck && galt_anderem(taste.type() == QEvent::KeyPress) && !(gehoert_dem_rennen && gehoert_dem_rennen(taste))) {
        taste.accept();
        return true;
    }
    if (taste.type() == QEvent::ShortcutOverride && gehalten) {
        taste.accept();  // no letter of a button: what it types into a field is still typed
        return true;
    }
    if (taste.type() != QEvent::KeyPress || !ziel->isWidgetType()) {
        return false;
    }
    if (gehalten && (taste.key() == Qt::Key_Return || taste.key() == Qt::Key_Enter || taste.key() == Qt::Key_Escape)) {
        return true;
    }
    if (gehalten && taste.key() == Qt::Key_Space && qobject_cast<QAbstractButton*>(ziel) != nullptr) {
        return true;
    }
    return taste.modifiers().testFlag(Qt::AltModifier) && tippt_etwas(taste) && nimmt_zeichen(ziel);
}

bool Fensterverwaltung::schliesst_gehalten(const QEvent& ereignis) {
    if (!ereignis.spontaneous()) {
        return false;
    }
    constexpr qint64 erste_wiederholung_ms = 1100;  // the longest that a keyboard takes to its first repeat
    const bool eben = seit_schluss_.isValid() && seit_schluss_.elapsed() < erste_wiederholung_ms;
    seit_schluss_.start();
    return eben && QGuiApplication::queryKeyboardModifiers().testFlag(Qt::AltModifier);
}

bool Fensterverwaltung::eventFilter(QObject* ziel, QEvent* ereignis) {
    const bool taste = ereignis->type() == QEvent::KeyPress || ereignis->type() == QEvent::KeyRelease ||
                       ereignis->type() == QEvent::ShortcutOverride;
    if (taste && taste_schlucken(ziel, *static_cast<QKeyEvent*>(ereignis))) {
        return true;
    }
    if (ereignis->type() == QEvent::Close && ziel->isWidgetType() && schliesst_gehalten(*ereignis)) {
        ereignis->ignore();
        return true;
    }
    const bool druck = ereignis->type() == QEvent::MouseButtonPress || ereignis->type() == QEvent::MouseButtonDblClick;
    if (druck && ziel->isWidgetType()) {
        QWidget* fenster = static_cast<QWidget*>(ziel)->window();
        const bool eben = seit_druck_.isValid() && seit_druck_.elapsed() < QApplication::doubleClickInterval();
        if (eben && druck_fenster_ != nullptr && druck_fenster_ != fenster && !druck_fenster_->isVisible()) {
            return true;
        }
        seit_druck_.start();
        druck_fenster_ = fenster;
        ungerufen_ = fenster == ungerufen_ ? nullptr : ungerufen_.data();  // somebody is at work in it
    }
    return QObject::eventFilter(ziel, ereignis);
}

}  // namespace tarvel::ui
