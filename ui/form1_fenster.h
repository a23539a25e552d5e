#pragma once

#include <QGridLayout>
#include <functional>

#include "core/form1.h"
#include "ui/fenster.h"
#include "ui/spurzeilen.h"

namespace tarvel::ui {

/// The main window.
class Form1Fenster : public Fenster {
public:
    Form1Fenster(form1& logik, const dateien& ablage, Fensterverwaltung& verwaltung);

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    QWidget* wartehinweis();
    QWidget* rennen_gruppe();
    QWidget* spuren_gruppe();
    QWidget* fahrerliste();
    QPushButton* letzte_ergebnisse();
    QWidget* rennbefehle();
    QWidget* werkzeugbefehle();
    QPushButton* menueknopf(befehl& element, const QString& name, const std::function<form1::auswahlmenue()>& zeilen,
                            const std::function<void(std::size_t)>& waehlen);
    QPushButton* hoher_knopf(befehl& element, const QString& name);
    QWidget* statuszeile();
    /// What gives its room to the list of drivers while that is open.
    QWidget* weichend(QWidget* inhalt);
    int listenbreite() const;
    void spur_zeile(QGridLayout* raster, int spur);

    form1& logik_;
    const dateien& ablage_;
    QWidget* kopf_ = nullptr;    ///< the picture above all
    QLayout* inhalt_ = nullptr;  ///< of all below it
    QGridLayout* spuren_ = nullptr;
    QWidget* fahrerliste_ = nullptr;
    Spurzeilen* spurzeilen_ = nullptr;
    std::vector<QWidget*> weichen_der_liste_;
};

}  // namespace tarvel::ui
