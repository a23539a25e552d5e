#pragma once

#include <array>
#include <vector>

#include "race/rennen.h"
#include "ui/fenster.h"
#include "ui/spurblock.h"
#include "ui/uhranzeige.h"

namespace tarvel::ui {

/// The race window, to be read from a distance. All characters typed while it is in front go to the race.
class Bahn1Fenster : public Fenster {
public:
    Bahn1Fenster(rennen& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

    void aufschlagen() override;
    /// The large clock on the screen. It stands still in a pause.
    QRect uhr_ort() const;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void kopf();
    void befehlszeile();
    void strafformular();
    void geraetehinweis();
    /// At the start, when the start light covers the blocks, over the clock; in a pause the small light may be there.
    void hinweis_anordnen();
    void geraetealarm();
    void alarm_anordnen();
    void nachtabschaltung();
    /// Puts every widget where the layout has it for the window's size.
    void anordnen();
    void befehle_beschriften(int schrift_px);
    void formular_beschriften(int schrift_px, const rechteck& ort);
    QWidget*& teil(fenster_teil name) { return teile_.at(static_cast<std::size_t>(name)); }
    QWidget* teil(fenster_teil name) const { return teile_.at(static_cast<std::size_t>(name)); }

    rennen& logik_;
    std::vector<Spurblock*> bloecke_;
    std::array<QWidget*, static_cast<std::size_t>(fenster_teil::anzahl)> teile_{};
    std::vector<TextAnzeige*> formular_;  ///< words of the penalty form
    QLineEdit* sekunden_ = nullptr;
    QWidget* nacht_ = nullptr;
    TextAnzeige* alarm_ = nullptr;        ///< the timing device is gone
    TextAnzeige* hinweistext_ = nullptr;  ///< what is to do at the device
};

}  // namespace tarvel::ui
