#pragma once

#include <functional>

#include "core/steuerelemente.h"
#include "ui/fenster.h"

class QGridLayout;

namespace tarvel {
class uart_einstellungen;
}

namespace tarvel::ui {

/// The wizard of the AT-2560: one page after the other, with the log at the side.
class UartEinstellungenFenster : public Fenster {
public:
    UartEinstellungenFenster(uart_einstellungen& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    QWidget* seite(int nummer, const std::function<void(QGridLayout*)>& fuellen);
    void port_seite(QGridLayout* raster);
    void anzahl_seite(QGridLayout* raster);
    void sensoren_seite(QGridLayout* raster);
    void chaos_seite(QGridLayout* raster);
    QLabel* ereignis(bezeichnung& element, const QString& name);
    QWidget* protokoll();
    QWidget* befehlszeile();

    uart_einstellungen& logik_;
};

}  // namespace tarvel::ui
