#include "core/namensspalten.h"

#include <algorithm>

#include "core/namensliste.h"
#include "core/text.h"

namespace tarvel {

std::size_t namensbreite(const std::vector<std::string>& namen, std::size_t mindestens) {
    constexpr std::size_t hoechstens = namensliste::name_laenge_max;
    std::size_t breite = mindestens;
    for (const std::string& name : namen) {
        breite = std::max(breite, std::min(laenge(name), hoechstens));
    }
    return breite;
}

std::string eingepasst(std::string_view text, std::size_t breite) {
    if (laenge(text) <= breite) {
        return aufgefuellt(text, breite);
    }
    return breite == 0 ? std::string() : std::string(links(text, breite - 1)) + "…";
}

std::size_t passende_breite(const namensspalten& namen, std::size_t zeichen, std::size_t platz) {
    if (zeichen <= platz || namen.ab.empty()) {
        return namen.breite;
    }
    const std::size_t je_spalte = (zeichen - platz + namen.ab.size() - 1) / namen.ab.size();
    const std::size_t weniger = namen.breite - std::min(namen.mindestens, namen.breite);
    return namen.breite - std::min(je_spalte, weniger);
}

std::string mit_schmalen_namen(std::string_view zeile, const namensspalten& namen, std::size_t breite) {
    std::string schmale;
    std::size_t stelle = 0;
    for (const std::size_t ab : namen.ab) {
        if (ab >= laenge(zeile)) {
            break;
        }
        schmale += mitte(zeile, stelle + 1, ab - stelle);
        schmale += eingepasst(gekuerzt(mitte(zeile, ab + 1, namen.breite)), breite);
        stelle = ab + namen.breite;
    }
    return stelle >= laenge(zeile) ? schmale : schmale.append(mitte(zeile, stelle + 1, laenge(zeile)));
}

std::string gekuerzte_namen(std::string_view zeile, const namensspalten& namen, std::size_t breite) {
    std::string alle;
    for (const std::size_t ab : namen.ab) {
        const std::string_view name = ab < laenge(zeile) ? gekuerzt(mitte(zeile, ab + 1, namen.breite)) : "";
        if (laenge(name) > breite) {
            alle += (alle.empty() ? "" : ", ") + std::string(name);
        }
    }
    return alle;
}

}  // namespace tarvel
