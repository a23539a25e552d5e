#pragma once

#include <memory>
#include <vector>

#include "hardware/messgeraet.h"
#include "platform/dienste.h"
#include "platform/schnittstelle.h"

namespace tarvel {

class dateien;
class einstellungsfenster;
class einstellungspflege;
class ereignis_tabelle;
class fensterlogik;
class fensterregister;
class form1;
class messgeraete;
struct rennen;
struct texte;

/// What the devices and their windows work on.
struct geraete_umgebung {
    plattform::dienste dienste;
    einstellungen& einst;
    const texte& txt;
    const dateien& ablage;
    ereignis_tabelle& ereignisse;
    messquellen& quellen;
    tarvel::ausgaben& ausgaben;
    fensterregister& fenster;
    tarvel::form1& form1;
    tarvel::einstellungsfenster& einstellungsfenster;
    tarvel::rennen& rennen;
    einstellungspflege& pflege;
};

/// A device in the program, and what only it brings: its windows, the commands that open them.
class geraeteverdrahtung : public schnittstelle {
public:
    virtual messgeraet& geraet() = 0;
    virtual std::vector<fensterlogik*> fenster() = 0;
    /// Another device is in force: what this one switches it may switch all the same, if it is there. Says nothing if
    /// it is not.
    virtual void nebenher_oeffnen() {}
    /// The program ends: its windows close for good.
    virtual void beenden() {}
};

/// One line per timing device, in the order in which they are asked.
using geraet_anlegen = std::unique_ptr<geraeteverdrahtung> (*)(const geraete_umgebung&, messgeraete&);
const std::vector<geraet_anlegen>& geraetetabelle();

}  // namespace tarvel
