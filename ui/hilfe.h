#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QWidget>
#include <optional>

#include "core/einstellungen.h"
#include "core/texte.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// A place in the handbook, in whatever language it is: all have the same chapters and rows in the same order.
struct hilfeort {
    QString datei;   ///< in the folder of the handbook
    QString anker;   ///< of a heading, as it is called here or in German; empty for the beginning
    int zeile = -1;  ///< of all tables of the page, from 0, their heads not counted; below 0: none
};

/// Where a window is explained.
hilfeort hilfe_zu(fenstername fenster);
/// The anchor that a link names a heading by.
QString anker_von(const QString& ueberschrift);

/// The handbook in a window of its own, without a network. A language has its pages in a folder of its name below the
/// German ones; one without pages shows the German.
class Handbuch final : public QTextBrowser {
public:
    /// `fehlt` is said, with the name of the file, where a page is missing.
    Handbuch(QString ordner, QString sprache, QString fehlt, QWidget* vor);

    void aufschlagen(const hilfeort& ort);
    const QString& sprache() const { return sprache_; }

protected:
    QVariant loadResource(int art, const QUrl& name) override;
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    void folgen(const QUrl& verweis);
    void laden(const QString& datei);
    void hinrollen(const hilfeort& ort);
    QTextBlock ueberschrift(const QString& anker) const;
    QTextCursor tabellenzeile(int zeile) const;

    QString ordner_;   ///< of the German pages
    QString sprache_;  ///< its letters, as in the name of its folder
    QString fehlt_;
    QString datei_;          ///< that is open
    QString seiten_ordner_;  ///< that it is from; its pictures are named from there
    QStringList anker_;      ///< of its headings, in their order
};

/// F1 in any window opens the handbook at its chapter, in the language of the windows; in the main window the AT-2560
/// has that key.
class Hilfe final : public QObject {
public:
    Hilfe(const dateien& ablage, const einstellungen& einst, const texte& txt);

    bool eventFilter(QObject* ziel, QEvent* ereignis) override;
    Handbuch* handbuch() const { return handbuch_; }

private:
    /// What F1 opens now; none if it is not the handbook's.
    std::optional<hilfeort> ort(const Fenster& vorn) const;

    const dateien& ablage_;
    const einstellungen& einst_;
    const texte& txt_;
    QPointer<Handbuch> handbuch_;
};

}  // namespace tarvel::ui
