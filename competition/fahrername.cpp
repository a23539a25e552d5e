#include "competition/fahrername.h"

#include <algorithm>

#include "core/einstellungszeile.h"
#include "core/namensliste.h"
#include "core/text.h"

namespace tarvel {

std::string wettkampf_text(std::string_view eingabe) {
    constexpr std::size_t zeichen_max = 100;
    std::string text(eingabe);
    std::erase(text, ',');
    return std::string(gekuerzt(links(als_zeile(text), zeichen_max)));
}

std::string startlistenname(std::string_view text) {
    return std::string(gekuerzt(links(wettkampf_text(text), namensliste::name_laenge_max)));
}

namensmangel name_pruefen(std::string_view name, const texte& txt) {
    if (name.empty()) {
        return namensmangel::leer;
    }
    const bool platzhalter = txt.ist_freier_platz(name) || name == txt.kein_fahrer || namensliste::ist_marke(name);
    return platzhalter ? namensmangel::wie_fueller : namensmangel::keiner;
}

namensmangel name_pruefen(std::string_view name, std::span<const std::string> andere, const texte& txt) {
    const namensmangel mangel = name_pruefen(name, txt);
    if (mangel != namensmangel::keiner) {
        return mangel;
    }
    const bool vergeben = std::find(andere.begin(), andere.end(), name) != andere.end();
    return vergeben ? namensmangel::vergeben : namensmangel::keiner;
}

}  // namespace tarvel
