#include <algorithm>
#include <cmath>

#include "competition/wettkampf.h"

namespace tarvel {
namespace {

constexpr int runden_grenze = 99999;
constexpr zeit_ms zeit_grenze = 999999999;
constexpr zentimeter meter_grenze = 100000000000;

zeit_ms bessere(zeit_ms eine, zeit_ms andere) {
    return eine == 0 || (andere > 0 && andere < eine) ? andere : eine;
}

}  // namespace

zentimeter zentimeter_aus(double meter) {
    const auto grenze = static_cast<double>(meter_grenze);
    return std::isnan(meter) ? 0 : std::llround(std::clamp(meter * 100, -grenze, grenze));
}

double als_meter(zentimeter meter) {
    return static_cast<double>(meter) / 100;
}

fahrt& fahrt::operator+=(const fahrt& weitere) {
    runden += weitere.runden;
    zeit += weitere.zeit;
    meter += weitere.meter;
    beste = bessere(beste, weitere.beste);
    return *this;
}

fahrt begrenzt(const fahrt& wert) {
    return {std::clamp(wert.runden, 0, runden_grenze), std::clamp<zeit_ms>(wert.zeit, 0, zeit_grenze),
            std::clamp<zentimeter>(wert.meter, 0, meter_grenze), std::clamp<zeit_ms>(wert.beste, 0, zeit_grenze)};
}

bool wettkampf::ergebnis_eintragen(const spuren<fahrt>& fahrten) {
    const renn_uebergabe dran = uebergabe();
    if (dran.rennen == 0) {
        return false;
    }
    gefahrener_teil neu{dran.rennen, dran.teil, {}};
    for (const int spur : alle_spuren) {
        neu.fahrten[spur] = dran.rennen_spur_aktiv[spur] ? begrenzt(fahrten[spur]) : fahrt{};
    }
    gefahren.push_back(neu);
    zurueckgestellte.erase(dran.rennen);
    return true;
}

std::vector<fahrer_stand> wettkampf::staende() const {
    std::vector<fahrer_stand> alle(teilnehmer.size());
    for (const gefahrener_teil& einer : gefahren) {
        const startfeld feld = plan.feld(einer.rennen, einer.teil);
        for (const int spur : alle_spuren) {
            if (feld[spur] != 0) {
                auto& auf = alle.at(static_cast<std::size_t>(feld[spur] - 1)).auf;
                auf.at(static_cast<std::size_t>(spur)) += einer.fahrten[spur];
                auf.front() += einer.fahrten[spur];
            }
        }
    }
    return alle;
}

std::vector<jeder_zeile> wettkampf::jeder_tabelle() const {
    std::vector<jeder_zeile> alle(teilnehmer.size());
    for (const gefahrener_teil& einer : gefahren) {
        const startfeld feld = plan.feld(einer.rennen);
        for (const int spur : alle_spuren) {
            const int nummer = plan.heat(einer.rennen, spur);
            if (nummer >= 1 && nummer <= jeder_zeile::heats_max) {
                auto& heat = alle.at(static_cast<std::size_t>(feld[spur] - 1)).heat;
                heat.at(static_cast<std::size_t>(nummer)) = einer.fahrten[spur];
                heat.front() += einer.fahrten[spur];
            }
        }
    }
    return alle;
}

std::string schnellste_runde::beste_runde_text(const trennzeichen_tabelle& trennzeichen) const {
    return beste_runde_fahrer == 0 ? "99 : 99 , 999" : zeit_formatieren(beste_runde_ms, true, trennzeichen);
}

std::string wettkampf::beste_runde_name() const {
    const int wer = beste_runde().beste_runde_fahrer;
    return wer == 0 ? "( Fahrername )" : name(wer);
}

schnellste_runde wettkampf::beste_runde() const {
    schnellste_runde schnellste;
    for (const gefahrener_teil& einer : gefahren) {
        const startfeld feld = plan.feld(einer.rennen, einer.teil);
        for (const int spur : alle_spuren) {
            const zeit_ms beste = einer.fahrten[spur].beste;
            if (beste > 0 && beste < schnellste.beste_runde_ms) {
                schnellste = {beste, feld[spur]};
            }
        }
    }
    return schnellste;
}

}  // namespace tarvel
