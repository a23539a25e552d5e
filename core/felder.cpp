#include "core/felder.h"

#include <algorithm>

#include "core/text.h"

namespace tarvel {

std::optional<std::vector<std::string>> felder_lesen(const dateien& ablage, std::string_view datei,
                                                     std::size_t anzahl) {
    const auto zeilen = ablage.zeilen_lesen(datei, anzahl);
    if (!zeilen) {
        return std::nullopt;
    }
    std::vector<std::string> felder;
    for (const std::string& zeile : *zeilen) {
        std::string_view rest = zeile;
        while (felder.size() < anzahl) {
            rest = gekuerzt(rest);
            const bool zitat = rest.starts_with('"');
            const std::size_t ende = zitat ? rest.find('"', 1) : rest.find(',');
            felder.emplace_back(zitat ? rest.substr(1, ende == std::string_view::npos ? ende : ende - 1)
                                      : gekuerzt(rest.substr(0, ende)));
            const std::size_t komma = ende == std::string_view::npos ? ende : rest.find(',', ende);
            if (komma == std::string_view::npos) {
                break;
            }
            rest.remove_prefix(komma + 1);
        }
    }
    return felder;
}

std::string als_feld(std::string_view text) {
    std::string feld = "\"" + std::string(text) + "\"";
    std::replace(feld.begin() + 1, feld.end() - 1, '"', '\'');
    return feld;
}

}  // namespace tarvel
