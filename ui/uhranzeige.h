#pragma once

#include <QWidget>
#include <vector>

#include "race/bahn1.h"
#include "ui/binder.h"

namespace tarvel::ui {

/// One clock of the race window, with its title above.
class Uhranzeige : public QWidget {
public:
    /// `nummer` is the clock's number in the control names.
    Uhranzeige(rennuhr_felder& uhr, int nummer, Binder& binder, QWidget* eltern);

    /// Font size of the digits; it is less where they would not fit.
    void setSchriftPx(int px);

protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    struct Teil {
        TextAnzeige* anzeige;
        QString muster;  ///< as wide as the part ever gets
    };
    void anordnen();

    TextAnzeige* titel_;
    std::vector<Teil> teile_;
    int schrift_px_ = 0;
};

}  // namespace tarvel::ui
