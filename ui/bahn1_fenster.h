#pragma once

#include <QTimer>
#include <array>
#include <vector>

#include "race/rennen.h"
#include "ui/fenster.h"
#include "ui/spurblock.h"
#include "ui/uhranzeige.h"

namespace tarvel::ui {

/// The race window, to be read from a distance.
class Bahn1Fenster : public Fenster {
public:
    Bahn1Fenster(rennen& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

    void aufschlagen() override;
    /// The light of a pause is there, or gone: of a time race, the time left moves out of its way.
    void licht_der_pause(bool da);
    /// Its place on the screen.
    QRect licht_ort() const;
    /// Likewise what the names of the rows leave free of the lanes; empty in columns.
    QRect neben_den_namen() const;
    /// Likewise what is below the names, as columns and a single lane have them.
    QRect unter_den_namen() const;
    /// It has another place or size: what lies in front of it goes with it.
    std::function<void()> bei_umzug;
    /// How the dark screen gets bright again.
    QString nachthinweis() const;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void moveEvent(QMoveEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;
    void hideEvent(QHideEvent* ereignis) override;
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    /// Fills its screen. On a second one, the commands are on the first.
    void schirm_fuellen();
    /// A screen has gone or come: fills the one that is left, or has come.
    void neu_verteilen();
    void umgezogen();
    void befehle_verlegen(bool woanders);
    void befehle_zeigen();
    void kopf();
    void befehlszeile();
    void strafformular();
    /// In a pause Alt and the number of a lane say that it is to blame; the number alone counts its laps.
    void schuldtasten();
    void geraetehinweis();
    /// At the start, when the start light covers the blocks, over the clock; in a pause the small light may be there.
    void hinweis_anordnen();
    void geraetealarm();
    void alarm_anordnen(const rechteck& uhren);
    void lagen();
    void lagen_nachfuehren();
    void bloecke_anordnen(const ansicht_geometrie& geometrie, bool gleitend);
    void pause_anordnen();
    void restrunden();
    void restrunden_anordnen();
    void nachtabschaltung();
    void nacht_anordnen();
    /// Puts every widget where the layout has it for the window's size.
    void anordnen();
    void folge_anordnen(const plaetze<fenster_teil>& orte);
    ansicht_geometrie aufteilung() const;
    void befehle_beschriften(int schrift_px);
    void formular_beschriften(int schrift_px, const rechteck& ort);
    /// In a pause beside the other commands, and the club's line gives way to it.
    void protokollknopf_anordnen(const rechteck& werbung);
    QWidget*& teil(fenster_teil name) { return teile_.at(static_cast<std::size_t>(name)); }
    QWidget* teil(fenster_teil name) const { return teile_.at(static_cast<std::size_t>(name)); }

    rennen& logik_;
    std::vector<Spurblock*> bloecke_;
    std::array<QWidget*, static_cast<std::size_t>(fenster_teil::anzahl)> teile_{};
    std::vector<TextAnzeige*> formular_;  ///< words of the penalty form
    QLineEdit* sekunden_ = nullptr;
    QPushButton* protokoll_ = nullptr;
    QTimer lagetakt_;             ///< asks what the lanes are in, while the window is to be seen
    Lagetafel* pause_ = nullptr;  ///< over all lanes
    bool mit_pause_ = false;
    spuren<int> ordnung_{};         ///< of the lanes, as they stand
    TextAnzeige* folge_ = nullptr;  ///< order of the result
    TextAnzeige* rest_titel_ = nullptr;
    TextAnzeige* rest_zahl_ = nullptr;
    TextAnzeige* nacht_ = nullptr;  ///< black, but for a hint that hardly shows
    TextAnzeige* alarm_ = nullptr;  ///< the timing device is gone
    bool licht_der_pause_ = false;
    QTimer umzug_;
    QTimer startfokus_;  ///< behind a start that was stopped: a second press of that key is none of "Rennstart"
    bool befehle_woanders_ = false;       ///< in the director's window
    TextAnzeige* hinweistext_ = nullptr;  ///< what is to do at the device
};

}  // namespace tarvel::ui
