#pragma once

#include <span>
#include <vector>

#include "core/dateien.h"
#include "ui/ampelfeld.h"
#include "ui/bahn1_fenster.h"

class QVBoxLayout;

namespace tarvel::ui {

/// A start light in front of the race window, or alone on a black screen at night.
class AmpelFenster : public Fenster {
public:
    void aufschlagen() override;
    /// Its race window has moved.
    void nachruecken() {
        anordnen();
        raise();
    }

protected:
    struct umfeld {
        const dateien& ablage;
        Fensterverwaltung& verwaltung;
        Bahn1Fenster* bahn;
    };

    /// `nacht` is visible while the ground is black.
    AmpelFenster(fensterlogik& logik, rahmen& nacht, const umfeld& um);

    QVBoxLayout* aufbau() { return aufbau_; }
    /// Rows of lamps, the first on top.
    QWidget* lampenkasten(std::span<bild> lampen, int je_reihe, const QString& name);
    Ampelfeld& lampe(std::size_t nummer) { return *lampen_.at(nummer); }
    /// A widget whose font goes with the size of the lamps.
    void text_aufnehmen(QWidget* widget) { texte_.push_back(widget); }
    void anordnen();
    /// Of the texts, beside lamps of this size in pixels.
    static int schrift_px(int kante);
    /// Sizes what the window has beside lamps and texts, for lamps of this size in pixels.
    virtual void skalieren(int /*kante*/) {}
    /// Where the light stands instead of its usual place, on the screen; empty for there. It is as high as that, with
    /// its command beside the lamps.
    virtual QRect eigener_platz() const { return {}; }
    void paintEvent(QPaintEvent* ereignis) override;
    /// The light can be drawn to another place and comes up there again.
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    /// The letters of the commands behind it hold as well.
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    /// `anteil`: of the size that the place would give the lamps.
    void masse_setzen(const QRect& platz, const QRect& eigener, double anteil = 1);
    void neu_auslegen();
    void hinstellen(const QRect& platz, const QRect& eigener);
    /// Of the place, what is below the names of the columns.
    QRect unter_den_namen(const QRect& platz) const;
    int reihen() const;
    /// The race window that it stands over, and in it the place on the screen that is its own, as it counts its places:
    /// a light that is no window of its own lies in that window.
    QRect platz_des_rennens() const;
    QRect im_rennen(const QRect& auf_dem_schirm) const;

    rahmen& nacht_;
    const Bahn1Fenster& bahn_;
    const dateien& ablage_;
    QVBoxLayout* aufbau_;
    std::vector<Ampelfeld*> lampen_;
    std::vector<QWidget*> texte_;
    int je_reihe_ = 1;
    QPoint griff_;         ///< where the mouse holds the window
    QPoint verschiebung_;  ///< from the place that the window would have
};

}  // namespace tarvel::ui
