#pragma once

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

/// Local date and time of day.
struct datum_uhrzeit {
    int jahr = 0;
    int monat = 1;  ///< 1 to 12
    int tag = 1;    ///< 1 to 31
    int stunde = 0;
    int minute = 0;
    int sekunde = 0;
};

class kalender : public schnittstelle {
public:
    virtual datum_uhrzeit jetzt() const = 0;
};

}  // namespace tarvel::plattform
