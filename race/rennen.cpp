#include "race/rennen.h"

namespace tarvel {

rennen::rennen(const plattform::dienste& echte, const umfeld& um)
    : maschine(protokoll, echte),
      teil_von(protokoll),
      zeit(maschine.dienste().uhr),
      zeitgeber(maschine.dienste().zeitgeber),
      sounds(um.einst, maschine.dienste().klang),
      umgebung{zustand,
               um.param,
               um.einst,
               um.txt,
               um.ablage,
               bahn1,
               um.ereignisse,
               um.quellen,
               zeit,
               um.ausgaben,
               zeitgeber,
               sounds,
               um.fenster,
               maschine.dienste().kalender,
               maschine.dienste().zufall,
               maschine.dienste().meldungen,
               um.bestzeiten,
               um.fahrerliste,
               um.fahrzeugliste,
               teil_von,
               protokoll},
      plaetze(umgebung),
      uhr(umgebung),
      ende(umgebung, uhr),
      ansicht(umgebung),
      blinken(umgebung),
      strafen(umgebung, ansicht),
      fruehstartstrafe(umgebung, strafen),
      rundenanzeige(umgebung),
      tanken(umgebung, strafen, rundenanzeige),
      sektoren(umgebung),
      zaehlung(umgebung, {plaetze, ende, rundenanzeige, tanken, sektoren}),
      sensoren(umgebung),
      ablauf(umgebung, {plaetze, uhr, ende, zaehlung, ansicht, blinken, fruehstartstrafe, tanken, sektoren, sensoren}),
      chaos(umgebung, {ablauf, ansicht, strafen, fruehstartstrafe}),
      fortsetzung(umgebung, {plaetze, uhr, ende, ansicht, ablauf, strafen, tanken, sektoren}),
      ausfall(umgebung, {zaehlung, chaos}),
      rundenkorrektur(umgebung, sektoren),
      befehle(umgebung, {ablauf, ende, zaehlung, ansicht, tanken, chaos}, um.belegung),
      abbruchfrage(bahn1.Command2, {echte.uhr, echte.zeitgeber, [this] { return !zustand.rennen_beendet; },
                                    bahn1.wort.wirklich, bahn1.wort.ohne_ergebnis}),
      endfrage(bahn1.Command4, {echte.uhr, echte.zeitgeber, [this] { return !zustand.rennen_beendet; },
                                bahn1.wort.wirklich, bahn1.wort.ohne_rest}),
      lage(umgebung, {plaetze, fruehstartstrafe, ansicht}),
      fenster(umgebung, {ablauf, ansicht, befehle, abbruchfrage, endfrage}) {
    protokoll.nebenbei(
        [this] {
            return mitschrift::beiwerk{umgebung.ereignisse.messzeit, tanken.getankt_bis()};
        },
        [this](const mitschrift::beiwerk& b) {
            if (b[1] != 0) {
                umgebung.ereignisse.messzeit = b[1];
                tanken.tank_alle_spuren();
            }
            umgebung.ereignisse.messzeit = b[0];
        });
    um.quellen.mitschreiben(protokoll);
    um.ereignisse.mitschreiben(protokoll);
    zeit.mitschreiben(protokoll);
    ablauf.pause = &chaos;
    ende.abschluss = this;
}

void rennen::laufendes_beenden() {
    fruehstartstrafe.beenden();
    fortsetzung.zuruecknehmen();
    chaos.aufheben();
    zaehlung.runden_auswerten();  // who crossed the line while the pause began
    tanken.beenden();
}

}  // namespace tarvel
