#include "ui/oberflaeche.h"

#include <QCoreApplication>

#include "programm/at2560_verdrahtung.h"
#include "programm/control_unit_verdrahtung.h"

namespace tarvel::ui {

Oberflaeche::Oberflaeche(programm& p)
    : update_form(p.update_form, takt),
      form1(p.form1, p.ablage, takt),
      form3(p.form3, p.ablage, takt, &form1),
      bahn1(p.rennen, takt, &form1),
      form2(p.startampel, p.einst, p.ablage, takt, &bahn1),
      k_ampel(p.k_ampel, p.rennen.befehle, p.einst, p.ablage, takt, &bahn1),
      auswertung(p.auswertung, p.ablage, takt, &bahn1),
      rundenspeichern(p.rundenspeichern.fenster, "rundenspeichern", takt, &auswertung),
      bestzeiten(p.beste_zeiten_fenster, takt, &auswertung),
      tastatur(p.tastaturbelegung, takt, &form1),
      cu(p.geraete.von<control_unit_verdrahtung>().cu_eigenschaften, takt, &form1),
      speichern(p.speichernfenster, "speichernfenster", takt, &form1),
      einstellungen(p.einstellungsfenster, p.ablage, takt, &form1),
      bestzeitverwaltung(p.beste_zeiten_verwaltung, takt, &einstellungen),
      uart_einstellungen(p.geraete.von<at2560_verdrahtung>().uart_einstellungen, takt, &einstellungen),
      uart_profildatei(p.geraete.von<at2560_verdrahtung>().uart_profildatei, takt, &form1),
      bildwahl(p.fahrerbild_laden, takt, &einstellungen),
      fahrerspeichern(p.fahrerspeichernfenster, "fahrerspeichernfenster", takt, &einstellungen),
      p_(p) {
    fenster.aufnehmen("Update_form", &update_form);
    fenster.aufnehmen("Form1", &form1);
    fenster.aufnehmen("Form3", &form3);
    fenster.aufnehmen("bahn1", &bahn1);
    fenster.aufnehmen("Form2", &form2);
    fenster.aufnehmen("k_ampel", &k_ampel);
    fenster.aufnehmen("auswertung", &auswertung);
    fenster.aufnehmen("rundenspeichern", &rundenspeichern);
    fenster.aufnehmen("beste_zeiten_fenster", &bestzeiten);
    fenster.aufnehmen("beste_zeiten_verwaltung", &bestzeitverwaltung);
    fenster.aufnehmen("Tastaturbelegung", &tastatur);
    fenster.aufnehmen("cu_eigenschaften", &cu);
    fenster.aufnehmen("speichernfenster", &speichern);
    fenster.aufnehmen("einstellungen", &einstellungen);
    fenster.aufnehmen("UART_einstellungen", &uart_einstellungen);
    fenster.aufnehmen("UART_Profildatei", &uart_profildatei);
    fenster.aufnehmen("fahrerbild_laden", &bildwahl);
    fenster.aufnehmen("fahrerspeichernfenster", &fahrerspeichern);
    p.fenster.anzeigen_auf(&fenster);

    QCoreApplication::instance()->installEventFilter(&fenster);
    form2.escape_schliesst();
    bahn1.bei_escape = [&p] {  // for a light that is not on the screen
        if (p.startampel.laeuft()) {
            p.startampel.fenster_schliessen();
        }
    };
    bestzeiten.escape_schliesst();
    bestzeitverwaltung.escape_schliesst();
    tastatur.escape_schliesst();
    cu.escape_schliesst();
    speichern.escape_schliesst();
    rundenspeichern.escape_schliesst();
    einstellungen.escape_schliesst();
    uart_einstellungen.escape_schliesst();
    uart_profildatei.escape_schliesst();
    bildwahl.escape_schliesst();
    fahrerspeichern.escape_schliesst();
    form1.bei_schliessen = [&p] { p.programm_beenden(); };
    form3.bei_schliessen = [&p] { p.fenster.entladen("Form3"); };
    update_form.bei_schliessen = [&p] { p.fenster.entladen("Update_form"); };
    bahn1.bei_schliessen = [&p] { p.rennen.befehle.fenster_schliessen(); };
    form2.bei_schliessen = [&p] { p.startampel.fenster_schliessen(); };
    bahn1.bei_aktivierung = [this] {  // a light belongs in front, however its race window was reached
        for (Fenster* ampel : {static_cast<Fenster*>(&form2), static_cast<Fenster*>(&k_ampel)}) {
            if (ampel->isVisible()) {
                ampel->raise();
            }
        }
    };
    k_ampel.bei_schliessen = [&p] { p.k_ampel.beginnen(); };
    auswertung.bei_schliessen = [&p] { p.auswertung.fenster_schliessen(); };
    rundenspeichern.bei_schliessen = [&p] { p.fenster.entladen("rundenspeichern"); };
    bestzeiten.bei_schliessen = [&p] { p.beste_zeiten_fenster.schliessen(); };
    bestzeitverwaltung.bei_schliessen = [&p] { p.beste_zeiten_verwaltung.schliessen(); };
    speichern.bei_schliessen = [&p] { p.fenster.entladen("speichernfenster"); };
    fahrerspeichern.bei_schliessen = [&p] { p.fenster.entladen("fahrerspeichernfenster"); };
    einstellungen.bei_schliessen = [&p] { p.fenster.entladen("einstellungen"); };
    bildwahl.bei_schliessen = [&p] { p.fahrerbild_laden.abbrechen(); };
    cu.bei_schliessen = [&p] { p.fenster.entladen("cu_eigenschaften"); };
    uart_einstellungen.bei_schliessen = [&p] { p.fenster.entladen("UART_einstellungen"); };
    uart_profildatei.bei_schliessen = [&p] { p.fenster.entladen("UART_Profildatei"); };
    tastatur.bei_schliessen = [&p] { p.fenster.entladen("Tastaturbelegung"); };
}

Oberflaeche::~Oberflaeche() {
    p_.fenster.anzeigen_auf(nullptr);
}

}  // namespace tarvel::ui
