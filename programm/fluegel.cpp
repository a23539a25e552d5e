#include "programm/fluegel.h"

#include "programm/programm.h"

namespace tarvel {
namespace {

fenster_umgebung fensterwelt(programm& p) {
    return {p.ablage, p.txt, p.fenster, p.dienste.meldungen};
}

einzelrennen::umgebung rennwelt(programm& p, rundenspeichern& speichern) {
    return {p.param, p.einst, p.txt, speichern};
}

}  // namespace

startfluegel::startfluegel(programm& p)
    : form3(p.dienste.zeitgeber, p.ablage, p.fenster), update_form(p.dienste.zeitgeber, p.ablage, p.fenster) {}

rennfluegel::rennfluegel(programm& p)
    : rennen(p.dienste, {p.param, p.einst, p.txt, p.ablage, p.ereignisse, p.quellen, p.belegung, p.ausgaben, p.fenster,
                         p.bestzeiten, p.fahrerliste, p.fahrzeugliste}),
      startampel(rennen, p.einst, rennen.maschine.dienste().zeitgeber),
      k_ampel(rennen, rennen.maschine.dienste().zeitgeber) {
    rennen.chaos.neustart_ampel = &k_ampel;
}

ergebnisfluegel::ergebnisfluegel(programm& p, rennen& r, bestzeitfolgen& folgen)
    : wertung(r),
      rundenspeichern(p.einst.trennzeichen, p.dienste.kalender, fensterwelt(p)),
      beste_zeiten_fenster(
          {p.einst, p.txt, p.ablage, p.fenster, p.dienste.meldungen, p.dienste.kalender, p.bestzeiten, folgen},
          p.dienste.zeitgeber),
      urkunden({fensterwelt(p), p.einst, p.fahrerliste, p.fahrzeugliste}),
      auswertung({r, p.einst, p.dienste.zeitgeber, wertung, rundenspeichern, beste_zeiten_fenster, urkunden}),
      einzelrennen(rennwelt(p, rundenspeichern)),
      tagesrennen(rennwelt(p, rundenspeichern)),
      training(rennwelt(p, rundenspeichern)),
      intervalltraining(rennwelt(p, rundenspeichern)),
      w_auswertung2({fensterwelt(p), p.einst, p.einrichtung, p.dienste.kalender, urkunden}),
      protokollfenster({fensterwelt(p), p.einst, r, p.dienste.zeitgeber}),
      leitstand({p.ablage, p.fenster, r, protokollfenster, p.dienste.zeitgeber}) {
    r.teil_von.wechseln(einzelrennen);
}

optionsfluegel::optionsfluegel(programm& p, optionsfolgen& folgen, bestzeitfolgen& bestzeiten)
    : tastaturbelegung({p.belegung, p.txt, p.ablage, p.fenster, p.dienste.meldungen}),
      speichernfenster(fensterwelt(p), fenstername::speichernfenster, "language\\language_s1.txt"),
      fahrerspeichernfenster(fensterwelt(p), fenstername::fahrerspeichernfenster, "language\\language_s2.txt"),
      fahrerbild_laden(fensterwelt(p)),
      beste_zeiten_verwaltung({p.einst, p.txt, p.ablage, p.fenster, p.dienste.meldungen, p.dienste.kalender,
                               p.bestzeiten, folgen, bestzeiten}),
      einstellungsfenster({{p.einst, p.einrichtung, p.txt},
                           p.txt,
                           p.ablage,
                           p.fenster,
                           p.dienste.meldungen,
                           p.dienste.klang,
                           p.dienste.serienports,
                           fahrerspeichernfenster,
                           fahrerbild_laden,
                           folgen},
                          {p.fahrerliste, p.fahrer_datei, p.fahrzeugliste, p.fahrzeug_datei}) {}

wettkampffluegel::wettkampffluegel(programm& p, rennfluegel& r, ergebnisfluegel& e, optionsfluegel& o,
                                   einstellungsfolgen& folgen, wettkampfumfeld& umfeld, tagesrennen_folgen& tagesfolgen)
    : einfahren(r.rennen, p.belegung, p.dienste.zeitgeber),
      wettkampfspeicher({p.datei, p.einst, p.ablage, p.txt, p.dienste.kalender, e.rundenspeichern}),
      wettkampfabend({p.param, p.einst, r.rennen.teil_von, r.rennen.bahn1, p.fenster, wettkampfspeicher, umfeld,
                      p.dienste.zeitgeber, p.dienste.uhr}),
      wettkampfablauf({p.datei, p.einst, p.einrichtung, p.param, p.txt, p.ablage, p.fenster, p.dienste.meldungen,
                       p.dienste.kalender, p.form1, p.einstellungsruecklage, folgen, umfeld, wettkampfabend,
                       wettkampfspeicher}),
      wettkampf1({fensterwelt(p), p.einst, p.einrichtung, p.param, p.fahrerliste, p.zuletzt_gefahren,
                  o.fahrerspeichernfenster, o.fahrerbild_laden, p.dienste.zufall, wettkampfablauf}),
      wettkampf2(fensterwelt(p), p.einst, p.param, p.fahrerliste, wettkampfabend, wettkampfablauf),
      rangliste(fensterwelt(p), p.einst, wettkampfabend),
      w_auswertung(fensterwelt(p), p.einst, wettkampfabend, e.urkunden),
      tagesrennen_fenster({fensterwelt(p), p.einst, p.einrichtung, p.form1, p.fahrerliste, p.zuletzt_gefahren,
                           p.dienste.zeitgeber, tagesfolgen}) {
    wettkampfablauf.vorbereitung = &wettkampf1;
}

}  // namespace tarvel
