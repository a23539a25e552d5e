#pragma once

#include "programm/programm.h"
#include "ui/auswertung_fenster.h"
#include "ui/bahn1_fenster.h"
#include "ui/bestzeiten_fenster.h"
#include "ui/bestzeitverwaltung_fenster.h"
#include "ui/bildwahl_fenster.h"
#include "ui/cu_fenster.h"
#include "ui/einstellungen_fenster.h"
#include "ui/fenster.h"
#include "ui/form1_fenster.h"
#include "ui/form2_fenster.h"
#include "ui/k_ampel_fenster.h"
#include "ui/speichern_fenster.h"
#include "ui/start_fenster.h"
#include "ui/tastatur_fenster.h"
#include "ui/uart_einstellungen_fenster.h"
#include "ui/uart_profildatei_fenster.h"

namespace tarvel::ui {

/// All windows of a program. Must go before the program.
class Oberflaeche {
public:
    explicit Oberflaeche(programm& p);
    Oberflaeche(const Oberflaeche&) = delete;
    Oberflaeche& operator=(const Oberflaeche&) = delete;
    ~Oberflaeche();

    Bildtakt takt;
    Fensterverwaltung fenster{takt};
    UpdateFenster update_form;
    Form1Fenster form1;
    Form3Fenster form3;
    Bahn1Fenster bahn1;
    Form2Fenster form2;
    KAmpelFenster k_ampel;
    AuswertungFenster auswertung;
    SpeichernFenster rundenspeichern;
    BestzeitenFenster bestzeiten;
    TastaturFenster tastatur;
    CuFenster cu;
    SpeichernFenster speichern;
    EinstellungenFenster einstellungen;
    BestzeitverwaltungFenster bestzeitverwaltung;
    UartEinstellungenFenster uart_einstellungen;
    UartProfildateiFenster uart_profildatei;
    BildwahlFenster bildwahl;
    SpeichernFenster fahrerspeichern;

private:
    programm& p_;
};

}  // namespace tarvel::ui
