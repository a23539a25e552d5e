#include "competition/wettkampf.h"

#include <algorithm>

#include "core/einstellungszeile.h"
#include "core/text.h"

namespace tarvel {

std::optional<wettkampf> wettkampf_beginnen(planvorgabe vorgabe, std::span<const std::string> fahrer,
                                            std::string_view titel, const texte& txt) {
    std::vector<std::string> namen;
    for (const std::string& einer : fahrer) {
        std::string name = wettkampf_text(einer);
        if (name_pruefen(name, namen, txt) != namensmangel::keiner) {
            return std::nullopt;
        }
        namen.push_back(std::move(name));
    }
    vorgabe.fahrer = static_cast<int>(namen.size());
    wettkampf neu;
    neu.plan = rennplan_erstellen(vorgabe);
    if (neu.plan.rennen.empty()) {
        return std::nullopt;
    }
    neu.wettkampf_name = wettkampf_text(titel);
    neu.modus = vorgabe.modus;
    neu.spur_aktiv = vorgabe.aktiv;
    neu.teilnehmer = teilnehmer_namen(neu.plan, namen, txt.frei_text);
    neu.bilder.resize(neu.teilnehmer.size());
    return neu;
}

std::string wettkampf::name(int platz) const {
    return platz < 1 || platz > plaetze() ? std::string() : teilnehmer.at(static_cast<std::size_t>(platz - 1));
}

int wettkampf::fortsetzung_nummer(int rennen) const {
    return static_cast<int>(std::count_if(gefahren.begin(), gefahren.end(),
                                          [&](const gefahrener_teil& einer) { return einer.rennen == rennen; }));
}

rennstatus wettkampf::rennen_gefahren(int rennen) const {
    if (fortsetzung_nummer(rennen) == plan.teile) {
        return rennstatus::gefahren;
    }
    return zurueckgestellte.contains(rennen) ? rennstatus::zurueckgestellt : rennstatus::offen;
}

bool wettkampf::ende_pruefen() const {
    return static_cast<int>(gefahren.size()) == rennen_gesamt() * plan.teile;
}

renn_uebergabe wettkampf::uebergabe() const {
    return uebergabe(fortsetzung_nummer(aktuelles_rennen) + 1);
}

renn_uebergabe wettkampf::uebergabe(int teil) const {
    renn_uebergabe neu;
    if (aktuelles_rennen > rennen_gesamt() || rennen_gefahren(aktuelles_rennen) == rennstatus::gefahren) {
        return neu;
    }
    neu.rennen = aktuelles_rennen;
    neu.teil = teil;
    neu.spur_fahrer = plan.feld(neu.rennen, neu.teil);
    for (const int spur : alle_spuren) {
        const int wer = neu.spur_fahrer[spur];
        neu.fahrer[spur] = name(wer);
        neu.fueller[spur] = wer != 0 && ist_fueller(wer);
        neu.rennen_spur_aktiv[spur] = wer != 0 && !neu.fueller[spur];
    }
    return neu;
}

const spuren<fahrt>* wettkampf::ergebnis(int rennen, int teil) const {
    const auto dort = std::find_if(gefahren.begin(), gefahren.end(), [&](const gefahrener_teil& einer) {
        return einer.rennen == rennen && einer.teil == teil;
    });
    return dort == gefahren.end() ? nullptr : &dort->fahrten;
}

}  // namespace tarvel
