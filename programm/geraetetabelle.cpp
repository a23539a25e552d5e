#include "programm/at2560_verdrahtung.h"
#include "programm/control_unit_verdrahtung.h"
#include "programm/druckeranschluss_verdrahtung.h"
#include "programm/iow_verdrahtung.h"
#include "programm/race_control_verdrahtung.h"
#include "programm/timekeeper_verdrahtung.h"
#include "programm/tx_verdrahtung.h"

namespace tarvel {
namespace {

template <class Verdrahtung>
std::unique_ptr<geraeteverdrahtung> anlegen(const geraete_umgebung& um, messgeraete& alle) {
    return std::make_unique<Verdrahtung>(um, alle);
}

}  // namespace

const std::vector<geraet_anlegen>& geraetetabelle() {
    static const std::vector<geraet_anlegen> tabelle{
        anlegen<control_unit_verdrahtung>,     anlegen<at2560_verdrahtung>, anlegen<iow_verdrahtung>,
        anlegen<druckeranschluss_verdrahtung>, anlegen<tx_verdrahtung>,     anlegen<race_control_verdrahtung>,
        anlegen<timekeeper_verdrahtung>,
    };
    return tabelle;
}

}  // namespace tarvel
