#include <algorithm>

#include "competition/wettkampf.h"

namespace tarvel {

/// The first race of that status from `ab` on, round the list; 0 if there is none.
int wettkampf::naechstes(int ab, rennstatus status) const {
    for (int schritt = 0; schritt < rennen_gesamt(); ++schritt) {
        const int rennen = (ab - 1 + schritt) % rennen_gesamt() + 1;
        if (rennen_gefahren(rennen) == status) {
            return rennen;
        }
    }
    return 0;
}

bool wettkampf::naechstes_offenes_rennen() {
    int rennen = naechstes(aktuelles_rennen, rennstatus::offen);
    if (rennen == 0) {
        zurueckgestellte.clear();
        rennen = naechstes(aktuelles_rennen + 1, rennstatus::offen);  // the current one was put off last
    }
    aktuelles_rennen = rennen == 0 ? aktuelles_rennen : rennen;
    return rennen != 0;
}

int wettkampf::folgendes_rennen() const {
    for (const rennstatus status : {rennstatus::offen, rennstatus::zurueckgestellt}) {
        const int rennen = naechstes(aktuelles_rennen + 1, status);
        if (rennen != 0 && rennen != aktuelles_rennen) {
            return rennen;
        }
    }
    return 0;
}

bool wettkampf::rennen_waehlen(int rennen) {
    if (rennen < 1 || rennen > rennen_gesamt() || rennen_gefahren(rennen) == rennstatus::gefahren) {
        return false;
    }
    zurueckgestellte.erase(rennen);
    aktuelles_rennen = rennen;
    return true;
}

bool wettkampf::wiederholen(int rennen) {
    const auto vorher = gefahren.size();
    std::erase_if(gefahren, [&](const gefahrener_teil& einer) { return einer.rennen == rennen; });
    if (gefahren.size() == vorher) {
        return false;
    }
    return rennen_waehlen(rennen);
}

bool wettkampf::zurueckstellen(int rennen) {
    if (rennen < 1 || rennen > rennen_gesamt() || rennen_gefahren(rennen) == rennstatus::gefahren) {
        return false;
    }
    if (zurueckgestellte.erase(rennen) == 0) {
        zurueckgestellte.insert(rennen);
    }
    naechstes_offenes_rennen();
    return true;
}

gefahrener_teil* wettkampf::teil_von(int rennen, int teil) {
    const auto dort = std::find_if(gefahren.begin(), gefahren.end(), [&](const gefahrener_teil& einer) {
        return einer.rennen == rennen && einer.teil == teil;
    });
    return dort == gefahren.end() ? nullptr : &*dort;
}

fahrt* wettkampf::fahrt_von(int rennen, int teil, int spur) {
    if (spur < 1 || spur > spuren_max) {
        return nullptr;
    }
    const int wer = plan.feld(rennen, teil)[spur];
    gefahrener_teil* const dort = teil_von(rennen, teil);
    return wer == 0 || ist_fueller(wer) || dort == nullptr ? nullptr : &dort->fahrten[spur];
}

bool wettkampf::runden_aendern(int rennen, int teil, int spur, int runden, double spurlaenge) {
    fahrt* const seine = fahrt_von(rennen, teil, spur);
    if (seine == nullptr) {
        return false;
    }
    const int vorher = seine->runden;
    seine->runden = runden;
    *seine = begrenzt(*seine);
    seine->meter += zentimeter_aus((seine->runden - vorher) * spurlaenge);
    *seine = begrenzt(*seine);
    return true;
}

bool wettkampf::meter_aendern(int rennen, int teil, int spur, double meter) {
    fahrt* const seine = fahrt_von(rennen, teil, spur);
    if (seine == nullptr) {
        return false;
    }
    seine->meter = zentimeter_aus(meter);
    *seine = begrenzt(*seine);
    return true;
}

namensmangel wettkampf::name_aendern(int platz, std::string_view neu, const texte& txt) {
    if (platz < 1 || platz > plaetze() || ist_fueller(platz)) {
        return namensmangel::kein_fahrer;
    }
    std::string name = wettkampf_text(neu);
    std::string& seiner = teilnehmer.at(static_cast<std::size_t>(platz - 1));
    const namensmangel mangel = name == seiner ? namensmangel::keiner : name_pruefen(name, teilnehmer, txt);
    if (mangel == namensmangel::keiner) {
        seiner = std::move(name);
    }
    return mangel;
}

}  // namespace tarvel
