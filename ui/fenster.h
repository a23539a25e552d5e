#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QPointer>
#include <QScreen>
#include <QTranslator>
#include <QWidget>
#include <functional>
#include <map>
#include <utility>

#include "core/fensterlogik.h"
#include "core/fensterregister.h"
#include "ui/binder.h"
#include "ui/tastenhalt.h"

namespace tarvel::ui {

class Fensterverwaltung;

/// A window of the program, with its title. It is made once and then shown and hidden as the register says; what
/// closing it means is for its logic to decide.
class Fenster : public QWidget {
public:
    Fenster(fensterlogik& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

    fenstername kennung() const { return logik_.kennung(); }
    /// Places the window on its screen and shows it.
    virtual void aufschlagen();
    /// The letters of its commands, by the captions that they have now.
    void kuerzel_verteilen() { binder_.kuerzel_verteilen(); }
    /// It comes when a race ends, not when somebody asks for it: he may be typing, or pressing a key of the race.
    virtual bool kommt_ungerufen() const { return false; }
    /// In front of its parent or, while that is hidden, of the window that it is opened from.
    void vor_sein_fenster_stellen();
    /// That window: there the keys go when this one is hidden; null for nowhere.
    QWidget* dahinter() const { return dahinter_; }
    /// The Escape key, unless an open choice takes it; closes the window if its logic wants that.
    std::function<void()> bei_escape;
    /// The window has come to the front.
    std::function<void()> bei_aktivierung;

protected:
    Binder& binder() { return binder_; }
    bool event(QEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void zentrieren();
    /// The screen that it comes up on: where whoever has asked for it sits.
    QScreen* schirm_des_leiters() const;

private:
    /// A window or box that waits for an answer comes in front again, when this one has been clicked at.
    void nach_vorn_lassen();

    fensterlogik& logik_;
    Binder binder_;
    QPointer<QWidget> dahinter_;
};

/// Opens a dialog of the desktop so that no window of the program comes in front of it, like a message box.
void vor_allem_zeigen(QDialog& dialog);

/// Shows and hides the windows for the register.
class Fensterverwaltung final : public QObject, public fensteranzeige {
public:
    explicit Fensterverwaltung(Bildtakt& takt) : takt_(takt) {}
    Bildtakt& takt() { return takt_; }
    Bildleser& bilder() { return bilder_; }
    void aufnehmen(Fenster& fenster) { fenster_[fenster.kennung()] = &fenster; }
    /// A window that is still to be made, and takes itself in then.
    void vormerken(fenstername name, std::function<void()> machen) { noch_zu_machen_[name] = std::move(machen); }
    /// Makes all that are still to be made.
    void alle_machen();

    void zeigen(fenstername name, anzeige_art art) override;
    void verbergen(fenstername name) override;
    bool fragt() const override;
    void erscheinen(const erscheinung& wie) override;
    /// A key that is held gives no command again: it was meant once, and for what lay in front of that command. A
    /// letter with Alt is one of a command, also where no command has it, and types nothing. And the second half of a
    /// double click must not hit what lay behind the window that the first half closed. In a window that comes unasked
    /// no key does anything until the fingers that were busy elsewhere have paused, but for those of the race.
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;
    std::function<bool(const QKeyEvent& taste)> gehoert_dem_rennen;

private:
    bool taste_schlucken(QObject* ziel, QKeyEvent& taste);
    /// Alt+F4 is still held: the desktop keeps the keys to itself, and asks again and again to close what lies in
    /// front.
    bool schliesst_gehalten(const QEvent& ereignis);
    bool galt_anderem(bool getippt);
    void bereitstellen(fenstername name);

    Bildtakt& takt_;
    Bildleser bilder_;
    QTranslator qt_texte_;  ///< of the colour dialog and the like
    Tastenhalt tastenhalt_;
    QElapsedTimer seit_schluss_;   ///< since the desktop has last asked to close a window
    QElapsedTimer seit_druck_;     ///< of a mouse button
    QPointer<QWidget> ungerufen_;  ///< came up, and nobody has paused since
    QElapsedTimer seit_ungerufen_;
    QElapsedTimer seit_getippt_;
    QPointer<QWidget> druck_fenster_;
    std::map<fenstername, Fenster*> fenster_;
    std::map<fenstername, std::function<void()>> noch_zu_machen_;
};

}  // namespace tarvel::ui
