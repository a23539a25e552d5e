#pragma once

#include "programm/programm.h"
#include "programm/wiedergabe.h"
#include "ui/bahn1_fenster.h"
#include "ui/form2_fenster.h"
#include "ui/k_ampel_fenster.h"

namespace tarvel::ui {

/// Where the replay stands, with a mark for each happening; a press of the mouse or an arrow key goes elsewhere.
class Zeitleiste : public QWidget {
public:
    Zeitleiste(zeitleiste& leiste, Binder& binder, QWidget* eltern);

    QSize sizeHint() const override { return {400, 44}; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    double ort(zeit_ms zeit) const;
    void greifen(double x);
    void marken_malen();

    zeitleiste& leiste_;
    QPixmap bild_;  ///< the marks, which do not move
    unsigned auflage_ = 0;
};

/// The window of the replay: the race window as it was, and below it what plays it.
class WiedergabeFenster : public Fenster {
public:
    WiedergabeFenster(wiedergabe& logik, Fensterverwaltung& verwaltung, QWidget* eltern);
    WiedergabeFenster(const WiedergabeFenster&) = delete;
    WiedergabeFenster& operator=(const WiedergabeFenster&) = delete;
    ~WiedergabeFenster() override;

    void aufschlagen() override;
    /// The keys of the race's own buttons do nothing.
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    /// Of that program's windows the lights come and go by themselves; they lie over its race.
    class Lichtschalter final : public fensteranzeige {
    public:
        explicit Lichtschalter(Fensterverwaltung& fenster) : fenster_(fenster) {}
        void zeigen(fenstername name, anzeige_art art) override;
        void verbergen(fenstername name) override;

    private:
        Fensterverwaltung& fenster_;
    };

    QLayout* befehlszeile();
    /// The race of a program of its own: no key and no button of it does anything.
    void rennen_zeichnen(programm* p);
    void lichter_zeichnen();

    wiedergabe& logik_;
    Fensterverwaltung innen_;
    Lichtschalter lichter_{innen_};
    QWidget* flaeche_ = nullptr;
    programm* gezeichnet_ = nullptr;
    Bahn1Fenster* bahn_ = nullptr;
};

}  // namespace tarvel::ui
