#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>

#include "core/fensterregister.h"
#include "ui/binder.h"

namespace tarvel::ui {

/// A window of the program. It is made once and then shown and hidden as the register says; what closing it means is
/// for the logic to decide.
class Fenster : public QWidget {
public:
    Fenster(const QString& name, Bildtakt& takt, QWidget* eltern);

    std::function<void()> bei_schliessen;
    /// Places the window on its screen and shows it.
    virtual void aufschlagen();
    /// The Escape key closes the window, unless an open choice takes the key.
    void escape_schliesst() {
        bei_escape = [this] { close(); };
    }
    std::function<void()> bei_escape;
    /// The window has come to the front.
    std::function<void()> bei_aktivierung;

protected:
    Binder& binder() { return binder_; }
    bool event(QEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void zentrieren();

private:
    Binder binder_;
};

/// Shows and hides the windows for the register.
class Fensterverwaltung final : public QObject, public fensteranzeige {
public:
    explicit Fensterverwaltung(Bildtakt& takt) : takt_(takt) {}
    void aufnehmen(const std::string& name, Fenster* fenster) { fenster_[name] = fenster; }

    void zeigen(const std::string& name, anzeige_art art) override;
    void verbergen(const std::string& name) override;
    /// A key that is held presses no button again: it was meant for what lay in front of that button. And the second
    /// half of a double click must not hit what lay behind the window that the first half closed.
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    Bildtakt& takt_;
    QElapsedTimer seit_druck_;  ///< of a mouse button
    QPointer<QWidget> druck_fenster_;
    std::map<std::string, Fenster*> fenster_;
};

}  // namespace tarvel::ui
