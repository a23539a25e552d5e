#pragma once

#include <span>
#include <vector>

#include "core/dateien.h"
#include "core/einstellungen.h"
#include "ui/ampelfeld.h"
#include "ui/fenster.h"

class QVBoxLayout;

namespace tarvel::ui {

/// A start light in front of the race window, or alone on a black screen at night.
class AmpelFenster : public Fenster {
public:
    void aufschlagen() override;

protected:
    struct umfeld {
        const einstellungen& einst;
        const dateien& ablage;
        Bildtakt& takt;
        QWidget* bahn;
    };

    /// `nacht` is visible while the ground is black.
    AmpelFenster(const QString& name, rahmen& nacht, const umfeld& um);

    QVBoxLayout* aufbau() { return aufbau_; }
    /// Rows of lamps, the first on top.
    QWidget* lampenkasten(std::span<bild> lampen, int je_reihe, const QString& name);
    /// A widget whose font goes with the size of the lamps.
    void text_aufnehmen(QWidget* widget) { texte_.push_back(widget); }
    void anordnen();
    /// Sizes what the window has beside lamps and texts, for lamps of this size in pixels.
    virtual void skalieren(int /*kante*/) {}
    void paintEvent(QPaintEvent* ereignis) override;

private:
    rahmen& nacht_;
    const einstellungen& einst_;
    const dateien& ablage_;
    QVBoxLayout* aufbau_;
    std::vector<Ampelfeld*> lampen_;
    std::vector<QWidget*> texte_;
};

}  // namespace tarvel::ui
