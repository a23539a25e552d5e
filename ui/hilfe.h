#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTextBrowser>
#include <QWidget>
#include <optional>

#include "core/einstellungen.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// A place in the handbook.
struct hilfeort {
    QString datei;  ///< in the folder of the handbook
    QString anker;  ///< of a heading; empty for the beginning
    QString zeile;  ///< text behind it that is looked for, as in a table; may be empty
};

/// Where a window is explained.
hilfeort hilfe_zu(fenstername fenster);
/// The anchor that a link names a heading by.
QString anker_von(const QString& ueberschrift);

/// The handbook in a window of its own, without a network.
class Handbuch final : public QTextBrowser {
public:
    Handbuch(QString ordner, QWidget* vor);

    void aufschlagen(const hilfeort& ort);

protected:
    QVariant loadResource(int art, const QUrl& name) override;
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    void folgen(const QUrl& verweis);
    void hinrollen(const hilfeort& ort);

    QString ordner_;
    QString datei_;  ///< that is open
};

/// F1 in any window opens the handbook at its chapter; in the main window the AT-2560 has that key.
class Hilfe final : public QObject {
public:
    Hilfe(const dateien& ablage, const einstellungen& einst);

    bool eventFilter(QObject* ziel, QEvent* ereignis) override;
    Handbuch* handbuch() const { return handbuch_; }

private:
    /// What F1 opens now; none if it is not the handbook's.
    std::optional<hilfeort> ort(const Fenster& vorn) const;

    const dateien& ablage_;
    const einstellungen& einst_;
    QPointer<Handbuch> handbuch_;
};

}  // namespace tarvel::ui
