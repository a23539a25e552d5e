#include "ui/hilfe.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <algorithm>
#include <map>
#include <utility>

#include "core/erscheinung.h"
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
        {f::leitstand, "der-rennbildschirm"},
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
    const auto platz = name.isEmpty() ? std::nullopt : erklaerung_fuer(name.toStdString());
    return {einstellungsliste, {}, platz ? static_cast<int>(*platz) : -1};
}

/// None if the page is missing.
std::optional<QString> seite_lesen(const QString& name) {
    QFile datei(name);
    return datei.open(QIODevice::ReadOnly) ? std::optional(QString::fromUtf8(datei.readAll())) : std::nullopt;
}

/// The anchors of a page's headings, in their order.
QStringList anker_der_seite(const QString& seite) {
    QStringList anker;
    for (const QString& zeile : seite.split('\n')) {
        if (zeile.startsWith('#')) {
            anker << anker_von(zeile.section(' ', 1));
        }
    }
    return anker;
}

/// Gives headings and cells room to breathe, which a page by itself has none of.
void auflockern(QTextDocument& seite) {
    QTextCursor marke(&seite);
    marke.beginEditBlock();
    for (QTextBlock block = seite.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0) {
            QTextBlockFormat form;
            form.setTopMargin(24);
            form.setBottomMargin(8);
            marke.setPosition(block.position());
            marke.mergeBlockFormat(form);
        }
    }
    marke.endEditBlock();
    for (QTextFrame* rahmen : seite.rootFrame()->childFrames()) {
        if (auto* tabelle = qobject_cast<QTextTable*>(rahmen)) {
            QTextTableFormat form = tabelle->format();
            form.setCellPadding(5);
            form.setBorderCollapse(true);
            form.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            form.setBorderBrush(QColor(0xd0, 0xd4, 0xdc));
            tabelle->setFormat(form);
        }
    }
}

}  // namespace

hilfeort hilfe_zu(fenstername fenster) {
    if (fenster == fenstername::einstellungen) {
        return {einstellungsliste, {}};
    }
    const auto gefunden = kapitel().find(fenster);
    return {handbuchdatei, gefunden == kapitel().end() ? QString() : QString(gefunden->second)};
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

Handbuch::Handbuch(QString ordner, QString sprache, QString fehlt, QWidget* vor)
    : QTextBrowser(vor), ordner_(std::move(ordner)), sprache_(std::move(sprache)), fehlt_(std::move(fehlt)) {
    setWindowFlag(Qt::Window);
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("handbuch");
    setOpenLinks(false);
    setStyleSheet("QTextBrowser { background: white; color: #1c2028; padding: 12px; }");
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& verweis) { folgen(verweis); });
    const QSize platz = screen()->availableGeometry().size();
    resize(QSize(bild_breite_max + 80, platz.height() * 17 / 20).boundedTo(platz));
}

void Handbuch::aufschlagen(const hilfeort& ort) {
    if (datei_ != ort.datei) {
        laden(ort.datei);
    }
    show();
    raise();
    activateWindow();
    hinrollen(ort);
}

void Handbuch::laden(const QString& datei) {
    datei_ = datei;
    seiten_ordner_ = ordner_ + "/" + sprache_;
    if (!QFile::exists(seiten_ordner_ + "/" + datei)) {
        seiten_ordner_ = ordner_;
    }
    const auto seite = seite_lesen(seiten_ordner_ + "/" + datei);
    if (seite) {
        setMarkdown(*seite);
        auflockern(*document());
    } else {
        setPlainText(fehlt_ + " " + seiten_ordner_ + "/" + datei);
    }
    anker_ = anker_der_seite(seite.value_or(QString()));
    setWindowTitle(document()->begin().text());
    setAccessibleName(windowTitle());
}

void Handbuch::hinrollen(const hilfeort& ort) {
    QTextCursor marke = ort.zeile >= 0 ? tabellenzeile(ort.zeile) : QTextCursor(ueberschrift(ort.anker));
    setTextCursor(marke);
    marke.setPosition(marke.anchor());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(marke).top() - 20);
}

/// The heading of this anchor, or the one in the place where the German page has it; else the beginning.
QTextBlock Handbuch::ueberschrift(const QString& anker) const {
    qsizetype platz = anker_.indexOf(anker);
    if (platz < 0) {
        platz = anker_der_seite(seite_lesen(ordner_ + "/" + datei_).value_or(QString())).indexOf(anker);
    }
    for (QTextBlock block = document()->begin(); block.isValid() && platz >= 0; block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && platz-- == 0) {
            return block;
        }
    }
    return document()->begin();
}

/// What the row begins with, marked.
QTextCursor Handbuch::tabellenzeile(int zeile) const {
    for (const QTextFrame* rahmen : document()->rootFrame()->childFrames()) {
        const auto* tabelle = qobject_cast<const QTextTable*>(rahmen);
        if (tabelle == nullptr) {
            continue;
        }
        const int zeilen = tabelle->rows() - 1;
        if (zeile < zeilen) {
            QTextCursor marke = tabelle->cellAt(zeile + 1, 0).firstCursorPosition();
            marke.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
            return marke;
        }
        zeile -= zeilen;
    }
    return QTextCursor(document()->begin());
}

void Handbuch::folgen(const QUrl& verweis) {
    const QString datei = verweis.path().isEmpty() ? datei_ : verweis.path();
    if (verweis.scheme().isEmpty() && (datei == handbuchdatei || datei == einstellungsliste)) {
        aufschlagen({datei, verweis.fragment(QUrl::FullyDecoded)});
    }
}

QVariant Handbuch::loadResource(int art, const QUrl& name) {
    if (art != QTextDocument::ImageResource || !name.scheme().isEmpty()) {
        return {};  // nothing comes from a network
    }
    QImage bild(seiten_ordner_ + "/" + name.path());
    return bild.width() > bild_breite_max ? bild.scaledToWidth(bild_breite_max, Qt::SmoothTransformation) : bild;
}

void Handbuch::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Escape) {
        close();
    } else {
        QTextBrowser::keyPressEvent(ereignis);
    }
}

Hilfe::Hilfe(const dateien& ablage, const einstellungen& einst, const texte& txt)
    : ablage_(ablage), einst_(einst), txt_(txt) {
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
                const QString sprache = QString::fromStdString(sprachkuerzel(einst_.anzeige.sprachordner));
                if (handbuch_ == nullptr || handbuch_->parentWidget() != vorn || handbuch_->sprache() != sprache) {
                    delete handbuch_;  // a window that takes all input takes it from one of another window as well
                    handbuch_ = new Handbuch(QString::fromStdU16String(ablage_.pfad("Hilfe").u16string()), sprache,
                                             QString::fromStdString(txt_.handbuch_fehlt), vorn);
                }
                handbuch_->aufschlagen(*wohin);
                return true;
            }
        }
    }
    return QObject::eventFilter(ziel, ereignis);
}

}  // namespace tarvel::ui
