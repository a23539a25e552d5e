#pragma once

#include <filesystem>

#include "platform/abtaster.h"
#include "platform/anhaengedatei.h"
#include "platform/bibliothek.h"
#include "platform/bildschirm.h"
#include "platform/dateisystem.h"
#include "platform/druckerport.h"
#include "platform/kalender.h"
#include "platform/klang.h"
#include "platform/meldungen.h"
#include "platform/prozess.h"
#include "platform/serienport.h"
#include "platform/uhr.h"
#include "platform/zeitgeber.h"
#include "platform/zufall.h"

namespace tarvel::plattform {

/// All that the program needs of the machine. The references outlive the program.
struct dienste {
    plattform::uhr& uhr;
    plattform::zeitgeber_dienst& zeitgeber;
    plattform::meldungen& meldungen;
    plattform::klang& klang;
    plattform::kalender& kalender;
    plattform::bildschirm& bildschirm;
    plattform::prozess& prozess;
    plattform::zufall& zufall;
    plattform::serienport_dienst& serienports;
    plattform::bibliothek_dienst& bibliotheken;
    plattform::druckerport& druckerport;
    plattform::abtaster_dienst& abtaster;
    const plattform::dateisystem& dateisystem;
    plattform::anhaenge_dienst& anhaenge;
    std::filesystem::path programmordner;  ///< all files of the program lie below it
};

}  // namespace tarvel::plattform
