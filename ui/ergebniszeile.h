#pragma once

#include <QHBoxLayout>
#include <QWidget>
#include <array>
#include <vector>

#include "results/auswertung.h"
#include "ui/binder.h"

namespace tarvel::ui {

/// One lane of the result window: place, driver, figures and the list of laps.
class Ergebniszeile : public QWidget {
public:
    Ergebniszeile(auswertung& logik, int spur, const dateien& ablage, Binder& binder, QWidget* eltern);

    /// Row of the window, from 0.
    int reihe() const { return logik_.Frame.at(index_).reihe(); }
    bool gezeigt() const { return logik_.Frame.at(index_).sichtbar(); }
    /// The lists of all rows are as wide as this line needs.
    void skalieren(double skala, const QString& laengste_runde);
    QString laengste_runde() const;
    /// What stands under the time is in one size in all rows: that which the longest needs.
    int abstandsschrift() const;
    void abstandsschrift_setzen(int px);
    /// What the Tab key reaches in the row.
    QWidget* meterfeld() const { return meterfeld_; }
    QWidget* rundenliste() const { return liste_; }
    const std::vector<QPushButton*>& knoepfe() const { return knoepfe_; }
    /// Called when the row has changed.
    std::function<void()> bei_umzug;
    /// Called when its list has other laps.
    std::function<void()> bei_runden;

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    /// One figure of the row with its caption above, and what goes beside that and under it.
    struct zelle_inhalt {
        steuerelement& titel;
        steuerelement& wert;
        QString name;  ///< of the figure's control
        double entwurf;
    };
    struct zelle_teile {
        QWidget* feld;
        QHBoxLayout* kopf;    ///< room behind the caption
        QHBoxLayout* zusatz;  ///< and under the figure
        TextAnzeige* wert;
    };
    zelle_teile zelle(const zelle_inhalt& inhalt, Binder& binder);
    TextAnzeige* zusatz(steuerelement& element, const QString& name, Binder& binder);
    QWidget* fahrerzelle(Binder& binder);
    QWidget* rundenzelle(Binder& binder);
    QWidget* meterzelle(Binder& binder);
    QWidget* listenspalte(Binder& binder);
    void knoepfe_skalieren(double skala);
    void meterfeld_skalieren(double skala);
    void bilder(const dateien& ablage, Binder& binder, QHBoxLayout& aufbau);
    QString nummeriert(const QString& name) const { return name + "_" + QString::number(index_); }

    auswertung& logik_;
    std::size_t index_;
    QListView* liste_ = nullptr;
    std::vector<QWidget*> bilder_;
    std::vector<QWidget*> werte_;              ///< the figures and the name
    std::vector<QPushButton*> knoepfe_;        ///< beside the list
    std::array<TextAnzeige*, 2> abstaende_{};  ///< in time, and in laps
    QHBoxLayout* unter_der_zeit_ = nullptr;    ///< where they stand
    QLineEdit* meterfeld_ = nullptr;
    QWidget* tankzelle_ = nullptr;
    QColor spurfarbe_;
};

}  // namespace tarvel::ui
