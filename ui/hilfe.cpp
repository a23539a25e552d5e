#include "ui/hilfe.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <map>
#include <utility>

#include "optionen/erklaerungen.h"

namespace tarvel::ui {
namespace {

constexpr int bild_breite_max = 820;
const QString handbuchdatei = "Handbuch.md";
const QString einstellungsliste = "Einstellungen.md";

const std::map<fenstername, const char*>& kapitel() {
    using f = fenstername;
    static const std::map<fenstername, const char*> alle{
        {f::wiedergabe, "ein-rennen-noch-einmal-sehen"},
        {f::auswertung, "die-auswertung"},
        {f::bahn1, "der-rennbildschirm"},
        {f::drucker_fenster, "druckeranschluss"},
        {f::einfahren, "einfahren"},
        {f::frmMain, "4x4-usb"},
        {f::fahrerspeichernfenster, "fahrer-fahrzeuge-und-ihre-bilder"},
        {f::Form2, "startampel-und-frühstart"},
        {f::k_ampel, "chaos-die-pause"},
        {f::protokoll, "das-protokoll-eines-rennens"},
        {f::rangliste, "der-wettkampfabend"},
        {f::rc_einstellungen, "race-control"},
        {f::rundenspeichern, "die-auswertung"},
        {f::speichernfenster, "die-einstellungen"},
        {f::urkunden, "urkunden"},
        {f::usbtest, "iow-40-usb"},
        {f::w_auswertung, "der-wettkampfabend"},
        {f::wettkampf1, "wettkampf-vorbereiten"},
        {f::wettkampf2, "der-wettkampfabend"},
        {f::s6_fragefenster, "4x4-usb"},
        {f::Form5, "4x4-usb"},
        {f::Form1, "das-hauptfenster"},
        {f::beste_zeiten_fenster, "bestzeiten"},
        {f::cu_eigenschaften, "carrera-control-unit"},
        {f::Tastaturbelegung, "der-rennbildschirm"},
        {f::Tagesrennen, "tagesrennen"},
        {f::fahrerbild_laden, "fahrer-fahrzeuge-und-ihre-bilder"},
        {f::w_ausw_debug, "ergebnisse-ansehen"},
        {f::w_auswertung2, "ergebnisse-ansehen"},
        {f::UART_einstellungen, "at-2560-usb"},
        {f::UART_Profildatei, "at-2560-usb"},
        {f::UART_probe, "at-2560-usb"},
        {f::timekeeper, "timekeeper-usb"},
        {f::beste_zeiten_verwaltung, "bestzeiten"}};
    return alle;
}

/// The page and the row of the option that has the focus.
hilfeort option_im_fokus(const QWidget& fenster) {
    const QWidget* fokus = fenster.focusWidget();
    const QString name = fokus != nullptr ? fokus->objectName().section('.', -1) : QString();
    const auto platz = erklaerung_fuer(name.toStdString());
    if (name.isEmpty() || !platz) {
        return {einstellungsliste, {}, {}};
    }
    const std::string_view titel = erklaerungen()[*platz].titel;
    return {einstellungsliste, {}, QString::fromUtf8(titel.data(), static_cast<qsizetype>(titel.size()))};
}

}  // namespace

hilfeort hilfe_zu(fenstername fenster) {
    if (fenster == fenstername::einstellungen) {
        return {einstellungsliste, {}, {}};
    }
    const auto gefunden = kapitel().find(fenster);
    return {handbuchdatei, gefunden == kapitel().end() ? QString() : QString(gefunden->second), {}};
}

QString anker_von(const QString& ueberschrift) {
    QString anker;
    for (const QChar zeichen : ueberschrift.toLower()) {
        if (zeichen == ' ' || zeichen == '-') {
            anker += '-';
        } else if (zeichen.isLetterOrNumber()) {
            anker += zeichen;
        }
    }
    return anker;
}

Handbuch::Handbuch(QString ordner, QWidget* vor) : QTextBrowser(vor), ordner_(std::move(ordner)) {
    setWindowFlag(Qt::Window);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle("Handbuch");
    setAccessibleName(windowTitle());
    setObjectName("handbuch");
    setOpenLinks(false);
    setStyleSheet("QTextBrowser { background: white; color: #1c2028; padding: 12px; }");
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& verweis) { folgen(verweis); });
    const QSize platz = screen()->availableGeometry().size();
    resize(QSize(bild_breite_max + 80, platz.height() * 17 / 20).boundedTo(platz));
}

void Handbuch::aufschlagen(const hilfeort& ort) {
    if (datei_ != ort.datei) {
        QFile datei(ordner_ + "/" + ort.datei);
        if (datei.open(QIODevice::ReadOnly)) {
            setMarkdown(QString::fromUtf8(datei.readAll()));
        } else {
            setPlainText("Das Handbuch fehlt: " + datei.fileName());
        }
        datei_ = ort.datei;
    }
    show();
    raise();
    activateWindow();
    hinrollen(ort);
}

void Handbuch::hinrollen(const hilfeort& ort) {
    QTextBlock ziel = document()->begin();
    for (QTextBlock block = document()->begin(); block.isValid() && !ort.anker.isEmpty(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && anker_von(block.text()) == ort.anker) {
            ziel = block;
            break;
        }
    }
    for (QTextBlock block = ziel; block.isValid() && !ort.zeile.isEmpty(); block = block.next()) {
        if (block.text() == ort.zeile) {
            ziel = block;
            break;
        }
    }
    QTextCursor marke(ziel);
    if (!ort.zeile.isEmpty()) {
        marke.setPosition(ziel.position() + ziel.length() - 1, QTextCursor::KeepAnchor);
    }
    setTextCursor(marke);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(QTextCursor(ziel)).top() - 20);
}

void Handbuch::folgen(const QUrl& verweis) {
    const QString datei = verweis.path().isEmpty() ? datei_ : verweis.path();
    if (verweis.scheme().isEmpty() && (datei == handbuchdatei || datei == einstellungsliste)) {
        aufschlagen({datei, verweis.fragment(QUrl::FullyDecoded), {}});
    }
}

QVariant Handbuch::loadResource(int art, const QUrl& name) {
    if (art != QTextDocument::ImageResource || !name.scheme().isEmpty()) {
        return {};  // nothing comes from a network
    }
    QImage bild(ordner_ + "/" + name.path());
    return bild.width() > bild_breite_max ? bild.scaledToWidth(bild_breite_max, Qt::SmoothTransformation) : bild;
}

void Handbuch::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Escape) {
        close();
    } else {
        QTextBrowser::keyPressEvent(ereignis);
    }
}

Hilfe::Hilfe(const dateien& ablage, const einstellungen& einst) : ablage_(ablage), einst_(einst) {
    QCoreApplication::instance()->installEventFilter(this);
}

std::optional<hilfeort> Hilfe::ort(const Fenster& vorn) const {
    if (vorn.kennung() == fenstername::Form1 && einst_.hardware.hw_uart) {
        return std::nullopt;
    }
    return vorn.kennung() == fenstername::einstellungen ? option_im_fokus(vorn) : hilfe_zu(vorn.kennung());
}

bool Hilfe::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() == QEvent::KeyPress || ereignis->type() == QEvent::ShortcutOverride) {
        const auto& taste = *static_cast<QKeyEvent*>(ereignis);
        const auto* feld = qobject_cast<QWidget*>(ziel);
        auto* vorn = feld == nullptr ? nullptr : dynamic_cast<Fenster*>(feld->window());
        if (taste.key() == Qt::Key_F1 && taste.modifiers() == Qt::NoModifier && vorn != nullptr) {
            const auto wohin = ort(*vorn);
            if (wohin && ereignis->type() == QEvent::ShortcutOverride) {
                ereignis->accept();  // comes as a key press then, also where a shortcut has it
                return true;
            }
            if (wohin && !taste.isAutoRepeat()) {
                if (handbuch_ == nullptr || handbuch_->parentWidget() != vorn) {
                    delete handbuch_;  // a window that takes all input takes it from one of another window as well
                    handbuch_ = new Handbuch(QString::fromStdU16String(ablage_.pfad("Hilfe").u16string()), vorn);
                }
                handbuch_->aufschlagen(*wohin);
                return true;
            }
        }
    }
    return QObject::eventFilter(ziel, ereignis);
}

}  // namespace tarvel::ui
