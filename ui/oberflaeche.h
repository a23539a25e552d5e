#pragma once

#include "hardware/cu_eigenschaften.h"
#include "hardware/drucker_fenster.h"
#include "hardware/form5.h"
#include "hardware/frm_main.h"
#include "hardware/rc_einstellungen.h"
#include "hardware/s6_fragefenster.h"
#include "hardware/tk_einstellungen.h"
#include "hardware/uart_einstellungen.h"
#include "hardware/uart_probe.h"
#include "hardware/uart_profildatei.h"
#include "hardware/usbtest.h"
#include "programm/fluegel.h"
#include "programm/messgeraete.h"
#include "programm/programm.h"
#include "ui/auswertung_fenster.h"
#include "ui/bahn1_fenster.h"
#include "ui/bestzeiten_fenster.h"
#include "ui/bestzeitverwaltung_fenster.h"
#include "ui/bildwahl_fenster.h"
#include "ui/cu_fenster.h"
#include "ui/drucker_fenster.h"
#include "ui/einfahren_fenster.h"
#include "ui/einstellungen_fenster.h"
#include "ui/fenster.h"
#include "ui/form1_fenster.h"
#include "ui/form2_fenster.h"
#include "ui/frm_main_fenster.h"
#include "ui/hilfe.h"
#include "ui/k_ampel_fenster.h"
#include "ui/leitstand_fenster.h"
#include "ui/protokoll_fenster.h"
#include "ui/rangliste_fenster.h"
#include "ui/rc_fenster.h"
#include "ui/spaetes_fenster.h"
#include "ui/speichern_fenster.h"
#include "ui/start_fenster.h"
#include "ui/tagesrennen_fenster.h"
#include "ui/tastatur_fenster.h"
#include "ui/tastenfaenger.h"
#include "ui/timekeeper_fenster.h"
#include "ui/tx_fenster.h"
#include "ui/uart_einstellungen_fenster.h"
#include "ui/uart_probe_fenster.h"
#include "ui/uart_profildatei_fenster.h"
#include "ui/urkunden_fenster.h"
#include "ui/usbtest_fenster.h"
#include "ui/w_auswertung2_fenster.h"
#include "ui/w_auswertung_fenster.h"
#include "ui/wettkampf1_fenster.h"
#include "ui/wettkampf2_fenster.h"
#include "ui/wiedergabe_fenster.h"

namespace tarvel::ui {

/// All windows of a program. Must go before the program.
class Oberflaeche {
public:
    explicit Oberflaeche(programm& p);
    Oberflaeche(const Oberflaeche&) = delete;
    Oberflaeche& operator=(const Oberflaeche&) = delete;
    ~Oberflaeche();

private:
    programm& p_;

public:
    Bildtakt takt;
    Fensterverwaltung fenster{takt};
    // A line for each window: here its drawing meets its logic. Those of a race are there before they are needed.
    UpdateFenster update_form{p_.update_form, fenster};
    Form1Fenster form1{p_.form1, p_.ablage, fenster};
    Form3Fenster form3{p_.form3, p_.ablage, fenster, &form1};
    Bahn1Fenster bahn1{p_.rennen, fenster, &form1};
    Form2Fenster form2{p_.startampel, p_.ablage, fenster, &bahn1};
    KAmpelFenster k_ampel{p_.k_ampel, p_.ablage, fenster, &bahn1};
    EinfahrenFenster einfahren{p_.einfahren, fenster, &bahn1};
    AuswertungFenster auswertung{p_.auswertung, p_.ablage, fenster, &bahn1};
    SpaetesFenster<SpeichernFenster> rundenspeichern{p_.rundenspeichern, fenster, &auswertung};
    SpaetesFenster<BestzeitenFenster> bestzeiten{p_.beste_zeiten_fenster, fenster, &auswertung};
    SpaetesFenster<TastaturFenster> tastatur{p_.tastaturbelegung, fenster, &form1};
    SpaetesFenster<CuFenster> cu{p_.geraete.fenster<tarvel::cu_eigenschaften>(), fenster, &form1};
    SpaetesFenster<SpeichernFenster> speichern{p_.speichernfenster, fenster, &form1};
    SpaetesFenster<EinstellungenFenster> einstellungen{p_.einstellungsfenster, p_.ablage, fenster, &form1};
    SpaetesFenster<BestzeitverwaltungFenster> bestzeitverwaltung{p_.beste_zeiten_verwaltung, fenster, &einstellungen};
    SpaetesFenster<UartEinstellungenFenster> uart_einstellungen{p_.geraete.fenster<tarvel::uart_einstellungen>(),
                                                                fenster, &einstellungen};
    SpaetesFenster<RcFenster> rc{p_.geraete.fenster<tarvel::rc_einstellungen>(), fenster, &einstellungen};
    SpaetesFenster<TimekeeperFenster> timekeeper{p_.geraete.fenster<tarvel::tk_einstellungen>(), fenster,
                                                 &einstellungen};
    SpaetesFenster<UsbtestFenster> usbtest{p_.geraete.fenster<tarvel::usbtest>(), fenster, &einstellungen};
    SpaetesFenster<DruckerFenster> druckeranschluss{p_.geraete.fenster<tarvel::drucker_fenster>(), fenster,
                                                    &einstellungen};
    SpaetesFenster<FrmMainFenster> frm_main{p_.geraete.fenster<tarvel::frm_main>(), p_.ablage, fenster, &einstellungen};
    SpaetesFenster<Form5Fenster> form5{p_.geraete.fenster<tarvel::form5>(), fenster, &form1};
    SpaetesFenster<S6FrageFenster> s6_frage{p_.geraete.fenster<tarvel::s6_fragefenster>(), fenster, &form1};
    SpaetesFenster<UartProfildateiFenster> uart_profildatei{p_.geraete.fenster<tarvel::uart_profildatei>(), fenster,
                                                            &form1};
    SpaetesFenster<UartProbeFenster> uart_probe{p_.geraete.fenster<tarvel::uart_probe>(), fenster, &einstellungen};
    SpaetesFenster<Wettkampf2Fenster> wettkampf2{p_.wettkampf2, p_.ablage, fenster, &form1};
    SpaetesFenster<RanglisteFenster> rangliste{p_.rangliste, fenster, &wettkampf2};
    SpaetesFenster<WAuswertungFenster> w_auswertung{p_.w_auswertung, p_.ablage, fenster, &wettkampf2};
    SpaetesFenster<WAuswertung2Fenster> w_auswertung2{p_.w_auswertung2, p_.ablage, fenster, &form1};
    SpaetesFenster<LeitstandFenster> leitstand{p_.ergebnis_fluegel().leitstand, p_.startampel.fenster, fenster, &bahn1};
    SpaetesFenster<ProtokollFenster> protokoll{p_.protokollfenster, p_.ablage, fenster, &bahn1};
    SpaetesFenster<UrkundenFenster> urkunden{p_.ergebnis_fluegel().urkunden, p_.ablage, fenster, &form1};
    SpaetesFenster<WAuswDebugFenster> w_ausw_debug{p_.w_auswertung2.debug(), fenster, &w_auswertung2};
    SpaetesFenster<Wettkampf1Fenster> wettkampf1{p_.wettkampf1, p_.ablage, fenster, &form1};
    SpaetesFenster<TagesrennenFenster> tagesrennen{p_.tagesrennen_fenster, fenster, &form1};
    SpaetesFenster<BildwahlFenster> bildwahl{p_.fahrerbild_laden, fenster, &einstellungen};
    SpaetesFenster<SpeichernFenster> fahrerspeichern{p_.fahrerspeichernfenster, fenster, &einstellungen};
    SpaetesFenster<WiedergabeFenster> wiedergabe{p_.wiedergabe, fenster, &form1};
    Hilfe hilfe{p_.ablage, p_.einst, p_.txt};
    Tastenfaenger tasten{p_, {&bahn1, &form2, &k_ampel, &einfahren}};
};

}  // namespace tarvel::ui
