#pragma once

#include <QWidget>

#include "optionen/optionsseite.h"
#include "ui/binder.h"

class QGridLayout;

namespace tarvel::ui {

/// Lays out the rows of one page of the options window: groups in columns, in each row caption, control and unit.
class OptionsseiteBauen {
public:
    /// Behind a value, the Enter key leads to `weiter`.
    OptionsseiteBauen(Binder& binder, QWidget* eltern, QWidget* weiter)
        : binder_(binder), eltern_(eltern), weiter_(weiter) {}

    /// `vorneweg` stands on top of the first column; it may be null.
    QWidget* seite(optionsseite& inhalt, QWidget* vorneweg = nullptr);

private:
    QWidget* gruppe(optionsgruppe& inhalt, const QString& name);
    void zeile(optionszeile& inhalt, QWidget* traeger, int platz);
    void eingabefeld(optionszeile& inhalt, feld& eingabe, QGridLayout* raster, int platz);

    Binder& binder_;
    QWidget* eltern_;
    QWidget* weiter_;
};

}  // namespace tarvel::ui
