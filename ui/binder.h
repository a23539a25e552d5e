#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "core/steuerelemente.h"
#include "ui/bildanzeige.h"
#include "ui/bildtakt.h"
#include "ui/kuerzel.h"
#include "ui/textanzeige.h"

namespace tarvel::ui {

/// Makes a widget for each control of one window and keeps the two in step: what the operator does goes to the control
/// at once, what the logic changes reaches the widget with the next frame. Widgets are named `window.control`.
class Binder {
public:
    Binder(QString fenster, Bildtakt& takt, Bildleser& bilder, QWidget* eltern);
    Binder(const Binder&) = delete;
    Binder& operator=(const Binder&) = delete;
    ~Binder();

    /// From here on, controls are bound that another window has too. Only while its widget is to be seen here does one
    /// take the focus.
    void nebenher() { nebenher_ = true; }

    QLabel* label(bezeichnung& element, const QString& name);
    /// A large display with a font of `entwurf` design units.
    TextAnzeige* anzeige(steuerelement& element, const QString& name, double entwurf);
    /// A display whose font the window sets.
    TextAnzeige* anzeige(steuerelement& element, const QString& name);
    QGroupBox* gruppe(rahmen& element, const QString& name);
    /// The picture in a frame of this size.
    /// `pfad` tells where the file of a picture lies; empty for nowhere.
    QLabel* bildfeld(bild& element, const QString& name, QSize groesse,
                     std::function<std::filesystem::path(const std::string&)> pfad);
    /// The picture in a place of any size.
    Bildanzeige* bildanzeige(bild& element, const QString& name,
                             std::function<std::filesystem::path(const std::string&)> pfad);
    /// One of several tick boxes of which exactly one is set.
    QRadioButton* wahlknopf(haken& element, const QString& name);
    /// A swatch that opens the colour dialog.
    QPushButton* farbknopf(farbfeld& element, const QString& name);
    /// The title of the window.
    void fenstertitel(rahmen& element);
    /// `rolle` is what the style sheet tells the look from.
    QPushButton* knopf(befehl& element, const QString& name, const char* rolle = nullptr);
    /// For a command that no slip of the hand may give.
    QPushButton* knopf_ohne_kuerzel(befehl& element, const QString& name);
    /// The button has a letter, or has none while its window leaves the keys to another.
    void mit_kuerzel(QPushButton* knopf, const befehl& element, bool ja);
    /// The command that a window is there for.
    QPushButton* hauptknopf(befehl& element, const QString& name) { return knopf(element, name, "haupt"); }
    QLineEdit* zeile(feld& element, const QString& name);
    /// `buchstabe`: ticked with a letter too, as a button is pressed.
    QCheckBox* kasten(haken& element, const QString& name, bool buchstabe = false);
    QComboBox* auswahlfeld(auswahl& element, const QString& name);
    QListView* listenfeld(liste& element, const QString& name,
                          Qt::Alignment ausrichtung = Qt::AlignLeft | Qt::AlignVCenter);
    /// The same for lines that come in as it runs: the newest stays in sight.
    QListView* protokollfeld(liste& element, const QString& name);
    /// Any other widget: visible and enabled follow the control, `abgleich` brings the rest up to date.
    void verbinden(steuerelement& element, QWidget* widget, const QString& name, std::function<void()> abgleich);

    /// Deals the letters of the commands anew; see there.
    void kuerzel_verteilen() { kuerzel_.neu_verteilen(); }

    /// Pixels per design unit for all displays of the window.
    void skala(double px_je_einheit);

private:
    class Bindung;

    Bildtakt& takt_;
    Bildleser& bilder_;
    QString fenster_;
    QWidget* eltern_;  ///< of each new widget, until a layout takes it
    double skala_ = 1;
    bool nebenher_ = false;
    Kuerzel kuerzel_;
    std::vector<std::unique_ptr<Bindung>> bindungen_;
    std::vector<std::function<void()>> schriften_;
};

}  // namespace tarvel::ui
