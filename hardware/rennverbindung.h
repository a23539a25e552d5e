#pragma once

#include "platform/schnittstelle.h"
#include "platform/uhr.h"

namespace tarvel {

/// What a timing device asks of the race, and tells it beside its events.
class rennverbindung : public schnittstelle {
public:
    /// The race window waits for a start, and nothing of a race runs behind it.
    virtual bool rennen_ruht() const = 0;
    /// A race runs and is not paused.
    virtual bool rennen_laeuft() const = 0;
    virtual bool pause() const = 0;
    /// As the start command.
    virtual void rennen_vorbereiten() = 0;
    /// All stamps so far move by so many ms.
    virtual void stempel_verschieben(zeit_ms um) = 0;
    /// The same, but the crossings have the device's stamps already.
    virtual void uhr_nachruecken(zeit_ms um) = 0;
    /// The clock that pauses have been measured on runs `faktor` times as fast as was thought: the laps that they are
    /// still to come off get the better measure.
    virtual void pausen_nachmessen(double faktor) = 0;
    /// The device's clock has been found anew at this stamp: what was paused before is not measured again.
    virtual void pausen_festhalten(zeit_ms stempel) = 0;
    /// Events have reached the table: the fuel simulation looks at them at once.
    virtual void tankflanken_auswerten() = 0;
    /// The lane's car has left its tank contact: where one contact is all there is, it refuels no longer.
    virtual void tankkontakt_verlassen(int spur) = 0;
    /// Level of a tank that the device has itself: `stufe` of `stufen`, 0 is empty. `neu`: it was another a moment ago.
    virtual void fuellstand(int spur, int stufe, int stufen, bool neu) = 0;
    /// The device drives with fuel. Nothing happens while a race window is open.
    virtual void tankfunktion(bool an) = 0;
};

}  // namespace tarvel
