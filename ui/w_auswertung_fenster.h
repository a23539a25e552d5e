#pragma once

#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <vector>

#include "competition/w_auswertung.h"
#include "ui/fenster.h"
#include "ui/standzeichner.h"

namespace tarvel::ui {

/// The standing of the evening: columns of figures and the bars, whose rows stay level. Where there are more columns
/// than the window is wide, those of the lanes and heats move behind the others.
class WAuswertungFenster : public Fenster {
public:
    WAuswertungFenster(w_auswertung& logik, const dateien& ablage, Fensterverwaltung& verwaltung, QWidget* eltern);

    void aufschlagen() override;
    bool eventFilter(QObject* wer, QEvent* ereignis) override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    static void tasten_zeigen(QObject* wer, bool mit_tasten);
    struct spalte {
        const liste& logik;
        QWidget* feld;
        QLabel* kopf;
        QListView* zeilen;
        Standzeichner* zeichner;
        bool je;  ///< of a lane or heat
    };

    QWidget* tabelle();
    QLabel* kopf(bezeichnung& element, const QString& name, Qt::Alignment ausrichtung);
    void spalte_anlegen(QHBoxLayout* aufbau, liste& element, QLabel* kopf, const QString& name,
                        Qt::Alignment ausrichtung);
    void gleich_rollen(int zeile);
    QLayout* knopfzeile();
    void drucken();
    void pdf_speichern(const dateien& ablage);
    void skalieren_vormerken();
    void skalieren();
    void zeilen_einteilen();
    void schriften_setzen(double px);
    int breite_der_spalten() const;
    double ueberstand(double px, double name_em, int platz);
    double passende_schrift(int platz, int hoehe);
    double schrift_fuer_ganze_namen(double px, int platz);
    QString balkenkopf() const;
    int breite_von(const spalte& eine) const;
    int ganze_spalten(int platz);
    void breiten_setzen(int platz);

    w_auswertung& logik_;
    standmass mass_;
    std::vector<spalte> spalten_;  ///< from left to right; the last one are the bars
    double schrift_px_ = 0;        ///< of the large letters
    int name_max_px_ = 0;
    TextAnzeige* stand_ = nullptr;
    QLabel* werte_ = nullptr;
    QScrollArea* mitte_ = nullptr;
    QScrollBar* schieber_ = nullptr;
    bool vorgemerkt_ = false;
};

}  // namespace tarvel::ui
