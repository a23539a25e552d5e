#include "race/rennen.h"

namespace tarvel {

rennen::rennen(const plattform::dienste& dienste, const umfeld& um)
    : zeit(dienste.uhr),
      zeitgeber(dienste.zeitgeber),
      sounds(um.einst, dienste.klang),
      umgebung{zustand,    um.param,         um.einst,       um.txt,           um.ablage, um.haupt,
               bahn1,      um.ereignisse,    zeit,           um.ausgaben,      zeitgeber, sounds,
               um.fenster, dienste.kalender, dienste.zufall, dienste.meldungen},
      plaetze(umgebung),
      uhr(umgebung),
      ende(umgebung, uhr),
      zaehlung(umgebung, plaetze, ende),
      ansicht(umgebung),
      strafen(umgebung, ansicht),
      sensoren(umgebung),
      ablauf(umgebung, {plaetze, uhr, ende, zaehlung, ansicht, sensoren}),
      befehle(umgebung, {ablauf, ende, zaehlung, ansicht}, um.belegung) {}

}  // namespace tarvel
