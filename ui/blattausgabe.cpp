#include "ui/blattausgabe.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QMessageBox>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSaveFile>
#include <QUrl>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "core/texte.h"
#include "results/papiername.h"
#include "ui/fenster.h"
#include "ui/kuerzel.h"

namespace tarvel::ui {
namespace {

constexpr double rand_mm = 10;
constexpr int pdf_dpi = 300;
constexpr double kleinste_schrift = 0.45;  // of its size, before a text is cut

QPageLayout seitenformat(const blattseiten& seiten) {
    if (seiten.urkunde) {
        QPageLayout randlos({QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()});
        randlos.setMode(QPageLayout::FullPageMode);
        return randlos;
    }
    return {QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(rand_mm, rand_mm, rand_mm, rand_mm),
            QPageLayout::Millimeter};
}

double skala_von(const QSizeF& flaeche, const blattseiten& seiten) {
    return seiten.urkunde
               ? std::min(flaeche.width() / blattmass::urkunde_breite, flaeche.height() / blattmass::urkunde_hoehe)
               : std::min(flaeche.width() / blattmass::breite_min, flaeche.height() / blattmass::hoehe_min);
}

/// The pages from `von` on, up to `bis` if that is above 0; both count from 1.
bool auf_geraet_zeichnen(QPagedPaintDevice& geraet, const blattseiten& seiten, int von = 1, int bis = 0) {
    QPainter maler;
    if (!maler.begin(&geraet)) {
        return false;
    }
    const QRectF flaeche(0, 0, geraet.width(), geraet.height());
    const int anzahl = seiten.anzahl(flaeche.size() / skala_von(flaeche.size(), seiten));
    const int letzte = bis > 0 ? std::min(bis, anzahl) : anzahl;
    for (int nummer = von; nummer <= letzte; ++nummer) {
        if (nummer > von && !geraet.newPage()) {
            return false;
        }
        seite_malen(maler, flaeche, seiten, nummer - 1);
    }
    return maler.end();
}

/// The box goes on being there until somebody closes it; it waits for nobody.
void gespeichert_melden(QWidget* eltern, const QString& pfad, const pdf_auftrag& auftrag) {
    const texte::dateiworte& worte = auftrag.worte;
    const auto text = [](const std::string& utf8) { return QString::fromStdString(utf8); };
    auto* box = new QMessageBox(QMessageBox::Information, QString::fromUtf8(programm_name.data()),
                                text(worte.gespeichert), QMessageBox::NoButton, eltern);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setObjectName("gespeichert");
    box->setTextFormat(Qt::PlainText);
    const QString ort = QDir::toNativeSeparators(pfad);
    box->setInformativeText(auftrag.inhalt.isEmpty() ? ort : ort + "\n\n" + auftrag.inhalt);
    const auto zeigen = [box, text, worte](const QString& was) {
        if (!QDesktopServices::openUrl(QUrl::fromLocalFile(was))) {
            box->setText(text(worte.kein_programm));
        }
    };
    Kuerzel kuerzel;
    const auto neuer_knopf = [&](const std::string& beschriftung, QMessageBox::ButtonRole rolle) {
        QPushButton* neuer = box->addButton(text(beschriftung), rolle);
        neuer->setText(kuerzel.vergeben(neuer, text(beschriftung)));
        return neuer;
    };
    const auto knopf = [&](const std::string& beschriftung, auto tun) {
        QPushButton* neuer = neuer_knopf(beschriftung, QMessageBox::ActionRole);
        QObject::disconnect(neuer, &QPushButton::clicked, nullptr,
                            nullptr);  // what it opens may not be there; the place of the file stays to be read
        QObject::connect(neuer, &QPushButton::clicked, box, tun);
    };
    knopf(worte.oeffnen, [zeigen, pfad] { zeigen(pfad); });
    knopf(worte.ordner, [zeigen, pfad] { zeigen(QFileInfo(pfad).path()); });
    QPushButton* zu = neuer_knopf(worte.schliessen, QMessageBox::AcceptRole);
    box->setDefaultButton(zu);
    box->setEscapeButton(zu);
    vor_allem_zeigen(*box);
}

}  // namespace

void seite_malen(QPainter& maler, const QRectF& flaeche, const blattseiten& seiten, int nummer) {
    const double skala = skala_von(flaeche.size(), seiten);
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.translate(flaeche.topLeft());
    maler.scale(skala, skala);
    seiten.zeichnen(maler, flaeche.size() / skala, nummer);
    maler.restore();
}

bool blatt_als_pdf(const QString& pfad, const blattseiten& seiten) {
    QDir().mkpath(QFileInfo(pfad).path());
    QSaveFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly)) {
        return false;
    }
    {
        QPdfWriter schreiber(&datei);
        schreiber.setResolution(pdf_dpi);
        schreiber.setPageLayout(seitenformat(seiten));
        schreiber.setTitle(seiten.titel);
        schreiber.setCreator(QString::fromStdString(std::string(programm_name) + " " + std::string(programm_version)));
        if (!auf_geraet_zeichnen(schreiber, seiten)) {
            datei.cancelWriting();
        }
    }
    return datei.commit();
}

void blatt_drucken(QWidget* eltern, const blattseiten& seiten, const std::function<void()>& bei_fehler) {
    const auto drucker = std::make_shared<QPrinter>(QPrinter::HighResolution);
    drucker->setFullPage(seiten.urkunde);
    drucker->setPageLayout(seitenformat(seiten));
    drucker->setDocName(seiten.titel);
    const int anzahl = seiten.anzahl(QSizeF(blattmass::breite_min, blattmass::hoehe_min));
    auto* dialog = new QPrintDialog(drucker.get(), eltern);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QAbstractPrintDialog::PrintPageRange, anzahl > 1);
    QObject::connect(dialog, qOverload<QPrinter*>(&QPrintDialog::accepted), dialog,
                     [drucker, seiten, bei_fehler](QPrinter* /*selber*/) {
                         const bool teil = drucker->printRange() == QPrinter::PageRange;
                         const int von = teil ? std::max(drucker->fromPage(), 1) : 1;
                         if (!auf_geraet_zeichnen(*drucker, seiten, von, teil ? drucker->toPage() : 0) && bei_fehler) {
                             bei_fehler();
                         }
                     });
    vor_allem_zeigen(*dialog);
}

void pdf_speichern(QWidget* eltern, const befehl& knopf, const dateien& ablage, const std::string& name,
                   pdf_auftrag auftrag) {
    const QString datei = QString::fromStdU16String(papierdatei_vorschlagen(ablage, name, ".pdf").u16string());
    const QString titel = QString::fromStdString(knopf.text()) + ": " + QFileInfo(datei).completeBaseName();
    auto* dialog = new QFileDialog(eltern, titel, datei, "PDF (*.pdf)");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix("pdf");
    dialog->selectFile(datei);
    QObject::connect(dialog, &QFileDialog::fileSelected, eltern,
                     [eltern, &ablage, auftrag = std::move(auftrag)](const QString& pfad) {
                         if (auftrag.schreiben(pfad)) {
                             papierordner_merken(ablage, pfad.toStdU16String());
                             gespeichert_melden(eltern, pfad, auftrag);
                         } else {
                             auftrag.misslungen();
                         }
                     });
    vor_allem_zeigen(*dialog);
}

QFont schrift_mit(double px, bool fett) {
    QFont schrift;
    schrift.setPixelSize(static_cast<int>(std::lround(px)));
    schrift.setBold(fett);
    return schrift;
}

QFont eingepasst(QFont schrift, const QString& inhalt, double platz) {
    const auto breite = [&] { return QFontMetricsF(schrift).horizontalAdvance(inhalt); };
    const int kleinste = std::max(static_cast<int>(schrift.pixelSize() * kleinste_schrift), 1);
    if (const double noetig = breite(); noetig > platz) {
        schrift.setPixelSize(std::max(static_cast<int>(schrift.pixelSize() * platz / noetig), kleinste));
    }
    while (breite() > platz && schrift.pixelSize() > kleinste) {  // letters do not shrink by quite as much
        schrift.setPixelSize(schrift.pixelSize() - 1);
    }
    return schrift;
}

void blatttext(QPainter& maler, const QRectF& feld, Qt::Alignment ausrichtung, const QString& inhalt,
               const QFont& schrift, const QColor& farbe) {
    const QFont passende = eingepasst(schrift, inhalt, feld.width());
    maler.setFont(passende);
    maler.setPen(farbe);
    maler.drawText(feld, static_cast<int>(ausrichtung | Qt::AlignVCenter | Qt::TextSingleLine),
                   QFontMetricsF(passende).elidedText(inhalt, Qt::ElideMiddle, feld.width()));
}

void blatttext(QPainter& maler, const QRectF& feld, Qt::Alignment ausrichtung, const QString& inhalt,
               const blattschrift& art) {
    blatttext(maler, feld, ausrichtung, inhalt, schrift_mit(art.px, art.fett), art.farbe);
}

}  // namespace tarvel::ui
