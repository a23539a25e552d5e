#pragma once

#include <QListView>
#include <QObject>
#include <QWidget>
#include <array>
#include <vector>

#include "core/form1.h"
#include "ui/ziehen.h"

namespace tarvel::ui {

/// The rows of the lanes in the main window, as far as drivers are moved among them: with the mouse, and with Ctrl and
/// the arrow keys.
class Spurzeilen final : public QObject {
public:
    /// `gruppe` holds all the rows.
    Spurzeilen(form1& logik, QWidget* gruppe);

    struct Zeile {
        std::vector<QWidget*> griffe;    ///< that the row is dragged by
        std::vector<QWidget*> fahrer;    ///< where a picture is the driver's,
        std::vector<QWidget*> fahrzeug;  ///< and where it is the vehicle's
        std::vector<QWidget*> felder;    ///< that the focus goes through: tick, length, driver, vehicle
    };
    void aufnehmen(int spur, const Zeile& zeile);
    /// The list that drivers are taken from.
    void liste_verbinden(QListView* liste);

    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    QRect flaeche_von(const std::vector<QWidget*>& widgets) const;
    QRect zeile_von(int spur) const;
    int spur_bei(const QPoint& hier) const;
    QRect ort(const QPoint& hier, const Zuglast& last) const;
    void nehmen(const QPoint& hier, const Zuglast& last);
    bool schieben(QObject* feld, int richtung);

    form1& logik_;
    QWidget* gruppe_;
    QListView* liste_ = nullptr;
    std::array<Zeile, spuren_max> zeilen_;
};

}  // namespace tarvel::ui
