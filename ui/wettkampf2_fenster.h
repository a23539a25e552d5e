#pragma once

#include <utility>
#include <vector>

#include "competition/wettkampf2.h"
#include "ui/fenster.h"

class QGridLayout;
class QListView;

namespace tarvel::ui {

/// The window of the evening: who drives now and next, large, above the list of the races and the commands.
class Wettkampf2Fenster : public Fenster {
public:
    Wettkampf2Fenster(wettkampf2& logik, const dateien& ablage, Fensterverwaltung& verwaltung, QWidget* eltern);

    void aufschlagen() override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    bool eventFilter(QObject* wer, QEvent* ereignis) override;

private:
    QWidget* blickfeld();
    QLayout* kopfzeile();
    void spurzeile(QGridLayout& zeilen, int spur);
    TextAnzeige* klein(bezeichnung& element, const QString& name);
    TextAnzeige* gross(bezeichnung& element, const QString& name, double schrift);
    QWidget* rundenfeld();
    QWidget* namenfeld();
    QWidget* listenfeld();
    QLayout* rennbefehle();
    QLayout* fuss();
    void skalieren();
    void plan_skalieren();
    void schriften_angleichen();

    wettkampf2& logik_;
    const dateien& ablage_;
    QGridLayout* kopf_ = nullptr;
    QGridLayout* spuren_ = nullptr;
    std::vector<std::pair<TextAnzeige*, double>> kleine_;  ///< never too small to be read, with their font at scale 1
    QListView* plan_ = nullptr;
    std::vector<TextAnzeige*> fahrer_;
    TextAnzeige* einsetzer_ = nullptr;
    double skala_ = 1;
};

}  // namespace tarvel::ui
