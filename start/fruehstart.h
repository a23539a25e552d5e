#pragma once

#include "core/spuren.h"
#include "platform/schnittstelle.h"
#include "race/strafen.h"
#include "race/umgebung.h"

namespace tarvel {

/// What a false start brings about in the start that runs.
class fruehstartfolgen : public schnittstelle {
public:
    /// Cuts the power of a lane within the next turn of the loop.
    virtual void strom_unterbrechen(int spur) = 0;
    /// The whole start is off.
    virtual void start_abbrechen() = 0;
};

/// Watches the sensors for cars that move before green, and does to their lanes what the settings say. Lanes that are
/// not in the race are watched too.
class fruehstart {
public:
    fruehstart(const renn_umgebung& um, strafen& s, fruehstartfolgen& folgen) : um_(um), strafen_(s), folgen_(folgen) {}

    /// For a new start: nobody has moved, and only edges from here on count.
    void zuruecksetzen();
    /// One poll: finds false starts, and acts on them once there is one. True if a lane is newly found.
    bool pruefen();
    /// A tank sensor that counts laps stands in for the lap sensor.
    void tanksensor_als_rundensensor();

    bool erkannt(int spur) const { return stand_[spur].erkannt; }

private:
    struct spur_stand {
        bool erkannt = false;   ///< the sensor fired before green
        bool gemeldet = false;  ///< announced
    };

    bool fruehstart_erkennen();
    void fruehstart_behandeln();
    void melden(int spur);
    /// The green to come gives the crossing its stamp.
    void ueberfahrt_zaehlen(int spur);
    template <class Tat>
    void je_frueher_spur(Tat tat);

    void fruehstart_ohne();
    void fruehstart_abbruch();
    void fruehstart_disqualifikation();
    void fruehstart_strom();
    void fruehstart_runde();
    void fruehstart_zeit();

    renn_umgebung um_;
    strafen& strafen_;
    fruehstartfolgen& folgen_;
    spuren<spur_stand> stand_;
    bool einer_ = false;  ///< any lane has moved
};

}  // namespace tarvel
