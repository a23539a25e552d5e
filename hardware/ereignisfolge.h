#pragma once

#include <optional>

#include "hardware/ereignisse.h"
#include "hardware/rennverbindung.h"
#include "hardware/uebergabe.h"

namespace tarvel {

/// The events of a device that may tell several at once, each with its stamp. One that would take the place of another
/// that the race has still to see waits until the race has had its tick.
class ereignisfolge {
public:
    ereignisfolge(ereignis_tabelle& ereignisse, rennverbindung& rennen) : ereignisse_(ereignisse), rennen_(rennen) {}

    /// Of those that nobody has asked for, the last ones are kept.
    void melden(ereignis_art nummer, zeit_ms stempel);
    /// Each race tick.
    void abfragen();
    /// What waits is forgotten.
    void leeren();

private:
    struct ereignis {
        ereignis_art nummer = 0;
        zeit_ms stempel = 0;
    };

    void zustellen(bool verdraengen);
    void uebergeben(const ereignis& eines);

    ereignis_tabelle& ereignisse_;
    rennverbindung& rennen_;
    uebergabe<ereignis, 256> folge_;
    std::optional<ereignis> naechstes_;
    bool gewartet_ = false;  ///< for a tick
};

}  // namespace tarvel
