#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "competition/wettkampf.h"
#include "core/einstellungsdatei.h"
#include "core/zeit.h"

namespace tarvel {

inline constexpr std::string_view wettkampfdatei_kopf = "[Wettkampfparameter für Rennen]";

/// The state of a competition as it stands in its file behind the settings.
std::vector<std::string> wettkampf_zeilen(const wettkampf& w, const trennzeichen_tabelle& trennzeichen);

/// What a file of an older version does not tell.
struct wettkampf_annahme {
    const texte& txt;
    wettkampf_modus modus = wettkampf_modus::rotation;
    wechsel_folge folge = wechsel_standard;
    std::string wahr = "Wahr";  ///< the word that the file has for true
};
/// None if the lines are no state that can go on; any text is taken. What can be derived is derived anew.
std::optional<wettkampf> wettkampf_lesen(const std::vector<std::string>& zeilen, const wettkampf_annahme& annahme);

/// The settings and the state in one file. False if it could not be written; the old file is whole then.
bool wettkampf_speichern(const dateien& ablage, std::string_view datei, const einstellungsdatei& einstellungen,
                         const wettkampf& w, const trennzeichen_tabelle& trennzeichen);

enum class einstellungen_aus_datei { uebernehmen, lassen };
/// Nothing has changed, no setting either, if there is none. `gewaehlt` are the tick boxes, for a file of an older
/// version. The current race may have been driven already: `naechstes_offenes_rennen` leads on.
std::optional<wettkampf> wettkampf_laden(einstellungsdatei& einstellungen, std::string_view datei, gruppenwahl gewaehlt,
                                         const texte& txt, einstellungen_aus_datei wie,
                                         version_melden melden = version_melden::ja);

}  // namespace tarvel
